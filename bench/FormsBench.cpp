#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <filesystem>

#include "design/Selection.h"
#include "forms/DesktopPort.h"
#include "forms/Form.h"
#include "forms/QtPrinters.h"
#include "forms/RecordPdf.h"
#include "forms/Walk.h"
#include "records/DataRecordPage.h"
#include "records/DataSheetFill.h"

namespace kordavan {
namespace {

class SilentUser : public UserPort {
public:
    void Tell(const Message& /*message*/) override {}
    bool Ask(const Message& /*question*/) override { return true; }
};

class BareDesk : public DesktopPort {
public:
    CalendarDay Today() override { return {.Year = 2026, .Month = 1, .Day = 2}; }
    std::string MomentInWords() override { return {}; }
    int MinutesSinceStart() override { return 0; }
    bool OpenFileExplorer() override { return true; }
    void EndProgram() override {}
    std::optional<std::string> AskOpenFile(const FileDialogText& /*text*/) override { return std::nullopt; }
    std::optional<std::string> AskSaveFile(const FileDialogText& /*text*/) override { return std::nullopt; }
    void CopyPicture(const QImage& /*picture*/, const std::string& /*words*/) override {}
    PrinterPort& Printers() override { return printers; }
    std::string FixedFilesFolder() override { return "."; }

private:
    QtPrinters printers;
};

/// A 14 ft simple beam, walked to the report of its first pick.
struct Desk {
    Desk()
    {
        session.Problem.Span = "14";
        session.Problem.Loads.LUNIF = "200";
        session.Problem.Loads.UNIF = "300";
        walk.Go(Screen::Criteria);
    }

    QAbstractButton& Button(const char* name)
    {
        return *walk.Front()->findChild<QAbstractButton*>(QLatin1String(name));
    }

    void GoToReport()
    {
        Button("CmdOK").click();
        Button("ht[2]").click();
        Button("CmdOK").click();
    }

    Session session;
    ColumnSession columns;
    NotchSession notch;
    SilentUser user;
    BareDesk desktop;
    Walk walk{session, columns, notch, user, desktop};
};

void FirstForm(benchmark::State& state)
{
    while (state.KeepRunning()) {
        Desk desk;
        desk.walk.Front()->grab();
    }
}
BENCHMARK(FirstForm)->Unit(benchmark::kMillisecond);

void KeystrokeOnCriteria(benchmark::State& state)
{
    Desk desk;
    auto* const box = desk.walk.Front()->findChild<QLineEdit*>(QStringLiteral("UNIF"));
    bool isOdd = false;
    while (state.KeepRunning()) {
        isOdd = !isOdd;
        box->selectAll();
        box->insert(isOdd ? QStringLiteral("301") : QStringLiteral("300"));
        Q_EMIT box->textEdited(box->text());
        QApplication::processEvents();
    }
}
BENCHMARK(KeystrokeOnCriteria)->Unit(benchmark::kMillisecond);

void StepOnReport(benchmark::State& state)
{
    Desk desk;
    desk.GoToReport();
    bool isUp = false;
    while (state.KeepRunning()) {
        isUp = !isUp;
        desk.Button(isUp ? "CmdNextSize" : "CmdNextSizeDn").click();
        QApplication::processEvents();
    }
}
BENCHMARK(StepOnReport)->Unit(benchmark::kMillisecond);

/// From the report to the Data Record of its member, and back.
void RecordShown(benchmark::State& state)
{
    Desk desk;
    desk.GoToReport();
    while (state.KeepRunning()) {
        desk.walk.Go(Screen::Record);
        desk.walk.Front()->grab();
        desk.walk.Go(Screen::TestReport);
    }
}
BENCHMARK(RecordShown)->Unit(benchmark::kMillisecond);

/// A Data Record as a PDF file, its fonts embedded.
void RecordAsPdf(benchmark::State& state)
{
    Desk desk;
    desk.GoToReport();
    const DataSheet sheet = FillDataRecord(desk.session, desk.desktop.Today(), desk.user);
    const std::filesystem::path path = std::filesystem::temp_directory_path() / "kordavan-bench.pdf";
    const PdfPage page{
        .Page = LayOutDataRecord(sheet, {}), .Picture = {}, .Family = QApplication::font().family()};
    while (state.KeepRunning()) {
        const std::string fault = SavePdf(path, page);
        if (!fault.empty()) {
            state.SkipWithError(fault.c_str());
        }
    }
    std::filesystem::remove(path);
}
BENCHMARK(RecordAsPdf)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kordavan

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
