#include "forms/Form11.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "forms/DiagramSheet.h"
#include "records/FileDialogs.h"
#include "records/RecordFile.h"

namespace kordavan {

namespace {

constexpr std::array<ControlText, DiagramParts.size()> PlotTexts{
    ControlText{"LoadPlot", "The beam with its loads"}, ControlText{"ShearPlot", "Shear along the beam"},
    ControlText{"MomentPlot", "Moment along the beam"},
    ControlText{"DeflectionPlot", "Deflection along the beam"}};

constexpr std::string_view PictureKinds =
    "A picture is saved as PNG or SVG. Please end its name with .png or .svg.";

}  // namespace

Form11::Form11(Walk& theWalk) : BesideForm(theWalk, "Form11")
{
    setWindowTitle(QStringLiteral(" Kordavan Load Diagram"));
    AddReading();
    AddPlots();
    AddPeaks();
    AddCommands();
    AddHelpMenu(GuidePage::LoadDiagram);
    ShowDiagram();
    plots.front()->setFocus();
}

void Form11::Activate()
{
    ShowDiagram();
}

QSize Form11::sizeHint() const
{
    constexpr int moreLines = 11;
    return Form::sizeHint() + QSize(0, moreLines * fontMetrics().height());
}

QAbstractButton* Form11::DefaultCommand()
{
    return close;
}

void Form11::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copy->click();
    } else if (event->matches(QKeySequence::Save)) {
        save->click();
    } else {
        BesideForm::keyPressEvent(event);
    }
}

void Form11::AddReading()
{
    liveLoad = MakeCheck({.Name = "LiveLoad", .Tip = "Show the live loads alone"}, "&Live load");
    connect(liveLoad, &QCheckBox::toggled, this, &Form11::ShowDiagram);
    reading = MakePanel("CursorLine");
    reading->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* const line = new QHBoxLayout;
    line->addWidget(liveLoad);
    line->addWidget(reading, 1);
    Body().addLayout(line);
}

void Form11::AddPlots()
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(0);
    for (std::size_t k = 0; k < plots.size(); ++k) {
        plots[k] = new DiagramPlot(PlotTexts[k], DiagramParts[k], view);
        connect(plots[k], &DiagramPlot::PlaceAsked, this, &Form11::MoveCursor);
        connect(plots[k], &DiagramPlot::StepAsked, this,
                [this](int places) { MoveCursor(StepAlong(view.Diagram.Curves, view.Cursor, places)); });
        column->addWidget(plots[k], 1);
    }
    Body().addLayout(column, 1);
}

void Form11::AddPeaks()
{
    peaks = MakePanel("PeakText");
    peaks->setWordWrap(true);
    peaks->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    peaks->setFocusPolicy(Qt::StrongFocus);
    Body().addWidget(peaks);
}

void Form11::AddCommands()
{
    copy = MakeButton({.Name = "CopyDiagram", .Tip = "Copy the picture and its words (Ctrl+C)"}, "&Copy");
    save = MakeButton({.Name = "SavePicture", .Tip = "Save the picture as PNG or SVG (Ctrl+S)"},
                      "&Save Picture...");
    close = MakeButton({.Name = "CmdClose", .Tip = "Close this diagram (Enter or Esc)"}, "Cl&ose");
    close->setDefault(true);
    connect(copy, &QPushButton::clicked, this, &Form11::Copy);
    connect(save, &QPushButton::clicked, this, &Form11::SavePicture);
    connect(close, &QPushButton::clicked, this, &Form11::CloseAsked);
    Foot().addStretch(1);
    Foot().addWidget(copy);
    Foot().addWidget(save);
    Foot().addWidget(close);
}

/// Which beam it is, as far as it was entered.
QString Form11::Heading()
{
    const BeamProblem& problem = TheSession().Problem;
    QStringList parts;
    for (const std::string& part : {problem.Proj, problem.ID, problem.Descrip}) {
        if (!part.empty()) {
            parts.append(Text(part));
        }
    }
    return parts.join(QStringLiteral("  -  "));
}

/// The cursor begins at the greatest moment of a new analysis.
void Form11::ShowDiagram()
{
    const bool hasLive = TheSession().Analysis.HasLiveDeflFlag;
    liveLoad->setEnabled(hasLive);
    const bool isLive = hasLive && liveLoad->isChecked();
    view.Diagram = ReadLoadDiagram(TheSession(), isLive ? CurveLoads::Live : CurveLoads::Total);
    if (analysisShown != TheWalk().AnalysisCount) {
        analysisShown = TheWalk().AnalysisCount;
        view.Cursor = PlaceOfGreatestMoment(view.Diagram.Curves);
    }
    peaks->setText(Text(PeakText(view.Diagram)));
    for (QPushButton* const command : {copy, save}) {
        command->setEnabled(!view.Diagram.IsEmpty());
    }
    MoveCursor(view.Cursor);
}

void Form11::MoveCursor(double feet)
{
    view.Cursor = feet;
    reading->setText(Text(ReadingText(view.Diagram, feet)));
    for (DiagramPlot* const plot : plots) {
        plot->ShowView();
    }
}

void Form11::Copy()
{
    TheWalk().Desktop().CopyPicture(DiagramSheet(view.Diagram, Heading()).Image(), PeakText(view.Diagram));
}

void Form11::SavePicture()
{
    const std::optional<std::string> path = TheWalk().Desktop().AskSaveFile(SavePictureDialog);
    if (!path) {
        return;
    }
    const QString kind = QFileInfo(Text(*path)).suffix().toLower();
    const bool isSvg = kind == QLatin1String("svg");
    if (!isSvg && kind != QLatin1String("png")) {
        User().Tell(Refusal(PictureKinds));
        return;
    }
    const DiagramSheet sheet(view.Diagram, Heading());
    const QByteArray picture = isSvg ? sheet.Svg() : sheet.Png();
    const std::string fault = ReplaceFile(*path, picture.toStdString());
    if (!fault.empty()) {
        RefuseSaving(*path, fault, User());
    }
}

}  // namespace kordavan
