#include <QCheckBox>
#include <QSvgRenderer>
#include <filesystem>

#include "forms/WalkFixture.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class DiagramFormTest : public WalkFixture {
protected:
    /// 300 plf, 200 of it live, on 14 ft; from the criteria to the selection.
    void CalculateBeam(const std::string& live = "200")
    {
        Type("Span", "14");
        Type("LUNIF", live);
        Type("UNIF", "300");
        Click("CmdOK");
        Settle();
        ASSERT_EQ(Text(Front().objectName()), "Form3");
    }

    void TestMember()
    {
        Type("Text1", "4x");
        Type("Text2", "14");
        Type("Text3", "HF #2");
        Click("CmdOK");
        Settle();
        ASSERT_EQ(Text(Front().objectName()), "Form5");
    }

    Form& Diagram() { return walk.FormOf(Screen::LoadDiagram); }
    QWidget& Plot(const std::string& name) { return FindIn<QWidget>(Diagram(), name); }
    std::string Line(const std::string& name) { return Text(FindIn<QLabel>(Diagram(), name).text()); }
    void Press(const std::string& name) { FindIn<QAbstractButton>(Diagram(), name).click(); }

    std::string After(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&Plot("MomentPlot"), key, modifiers);
        return Line("CursorLine");
    }
};

TEST_F(DiagramFormTest, OpensFromTheCriteriaOnceCalculated)
{
    EXPECT_FALSE(Find<QAction>("MnuDiagram").isEnabled());
    CalculateBeam();
    Key(Qt::Key_Escape);
    ASSERT_EQ(Text(Front().objectName()), "Form1");
    Choose("MnuDiagram");
    EXPECT_TRUE(Diagram().isVisible());
    EXPECT_TRUE(Front().isVisible());
    EXPECT_EQ(Text(Diagram().windowTitle()), " Kordavan Load Diagram");
    EXPECT_EQ(Line("PeakText"),
              "All loads, without the weight of a member. Reactions R1 2,100 lb, R2 2,100 lb.\n"
              "Greatest shear 2,100 lb at 0.00 ft from R1. Least shear -2,100 lb at 14.00 ft from R1. Shear "
              "is zero at 7.00 ft from R1.\n"
              "Greatest moment 7,350 ft-lb at 7.00 ft from R1. Moment for design 7,350 ft-lb.\n"
              "Test a member to see its deflection.");
    EXPECT_THAT(Text(Plot("DeflectionPlot").accessibleDescription()),
                HasSubstr("\nTest a member to see its deflection."));
}

/// A 4x14 weighs 3.5 x 13.25 x 0.243 = 11.27 plf, a 4x16 3.5 x 15.25 x 0.243 = 12.97 plf: 311.27 x 14 / 2
/// and 312.97 x 14 / 2.
TEST_F(DiagramFormTest, FollowsTheMemberOfTheReport)
{
    CalculateBeam();
    TestMember();
    Choose("MnuDiagram");
    EXPECT_THAT(Line("PeakText"), StartsWith("All loads and the weight of 4x  14 HF #2, 11.3 plf. Reactions "
                                             "R1 2,179 lb"));
    EXPECT_THAT(Line("CursorLine"), HasSubstr("deflection "));
    Key(Qt::Key_Plus);
    EXPECT_THAT(Line("PeakText"), StartsWith("All loads and the weight of 4x  16 HF #2, 13.0 plf. Reactions "
                                             "R1 2,191 lb"));
    Diagram().close();
    EXPECT_FALSE(Diagram().isVisible());
    EXPECT_THAT(user.Told, IsEmpty());
}

/// Stations stand each 14 / 200 = 0.07 ft: V = 2,100 - 300 x 7.07 = -21.
TEST_F(DiagramFormTest, ArrowKeysAndMouseMoveTheCursor)
{
    CalculateBeam();
    Choose("MnuDiagram");
    EXPECT_EQ(Line("CursorLine"), "At 7.00 ft:  shear 0 lb;  moment 7,350 ft-lb");
    EXPECT_EQ(After(Qt::Key_Right), "At 7.07 ft:  shear -21 lb;  moment 7,349 ft-lb");
    EXPECT_THAT(After(Qt::Key_Left, Qt::ShiftModifier), StartsWith("At 6.37 ft:"));
    EXPECT_EQ(After(Qt::Key_End), "At 14.00 ft:  shear -2,100 lb;  moment 0 ft-lb");
    EXPECT_EQ(After(Qt::Key_Home), "At 0.00 ft:  shear 2,100 lb;  moment 0 ft-lb");
    QWidget& shear = Plot("ShearPlot");
    QTest::mouseClick(&shear, Qt::LeftButton, {}, QPoint(shear.width() - 2, 20));
    EXPECT_THAT(Line("CursorLine"), StartsWith("At 14.00 ft:"));
}

TEST_F(DiagramFormTest, ShowsTheLiveLoadsAlone)
{
    CalculateBeam();
    Choose("MnuDiagram");
    Press("LiveLoad");
    EXPECT_THAT(Line("PeakText"), StartsWith("Live loads alone. Reactions R1 1,400 lb, R2 1,400 lb."));
    EXPECT_THAT(Text(Plot("LoadPlot").accessibleDescription()), HasSubstr("Load A: 200 plf, live 200"));
    EXPECT_THAT(
        Text(Plot("MomentPlot").accessibleDescription()),
        StartsWith("At 7.00 ft:  shear 0 lb;  moment 4,900 ft-lb\nGreatest moment 4,900 ft-lb at 7.00 ft "
                   "from R1."));
}

TEST_F(DiagramFormTest, HasNoLiveLoadsToShowAlone)
{
    CalculateBeam("");
    Choose("MnuDiagram");
    EXPECT_FALSE(FindIn<QCheckBox>(Diagram(), "LiveLoad").isEnabled());
}

TEST_F(DiagramFormTest, TheNextCalculationClosesItARefusedOneDoesNot)
{
    CalculateBeam();
    Choose("MnuDiagram");
    Choose("backmnu");
    Type("Span", "");
    Click("CmdOK");
    EXPECT_TRUE(Diagram().isVisible());
    Type("Span", "16");
    Click("CmdOK");
    EXPECT_FALSE(Diagram().isVisible());
    Choose("MnuDiagram");
    EXPECT_THAT(Line("CursorLine"), StartsWith("At 8.00 ft:"));
}

TEST_F(DiagramFormTest, CopiesPictureAndWords)
{
    CalculateBeam();
    Choose("MnuDiagram");
    Press("CopyDiagram");
    EXPECT_EQ(desktop.CopiedWords, Line("PeakText"));
    EXPECT_EQ(desktop.CopiedPicture.pixelColor(0, 0), QColor(Qt::white));
    desktop.CopiedPicture = {};
    QTest::keyClick(&Plot("LoadPlot"), Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(desktop.CopiedPicture.isNull());
}

/// Pictures are made for paper, plots for the screen.
TEST_F(DiagramFormTest, IsDarkOnADarkDesk)
{
    CalculateBeam();
    Choose("MnuDiagram");
    const auto groundOf = [this](const std::string& plot) {
        return Plot(plot).grab().toImage().pixelColor(3, 30);
    };
    EXPECT_EQ(groundOf("ShearPlot"), QColor(Qt::white));
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    Diagram().setPalette(dark);
    EXPECT_EQ(groundOf("ShearPlot"), QColor(20, 20, 20));
    Press("CopyDiagram");
    EXPECT_EQ(desktop.CopiedPicture.pixelColor(0, 0), QColor(Qt::white));
}

TEST_F(DiagramFormTest, SavesAPictureByTheExtensionOfItsName)
{
    CalculateBeam();
    Choose("MnuDiagram");
    const auto saved = [this](const std::string& name) {
        desktop.ChosenFile = desktop.PathOf(name);
        Press("SavePicture");
        return Text(*desktop.ChosenFile);
    };
    EXPECT_FALSE(QImage(saved("beam.png"), "PNG").isNull());
    EXPECT_FALSE(QImage(saved("BEAM2.PNG"), "PNG").isNull());
    EXPECT_TRUE(QSvgRenderer(saved("beam.svg")).isValid());
    EXPECT_THAT(user.Told, IsEmpty());
    EXPECT_THAT(desktop.DialogTitles, testing::Each("Save Picture As"));
}

struct UnsavedCase {
    std::string_view Name;
    std::optional<std::string> File;
    std::string_view Told;  // the beginning of what is told; nothing for silence
};

class UnsavedPictureTest : public DiagramFormTest, public testing::WithParamInterface<UnsavedCase> {};

TEST_P(UnsavedPictureTest, LeavesNoFile)
{
    CalculateBeam();
    Choose("MnuDiagram");
    if (GetParam().File) {
        desktop.ChosenFile = desktop.PathOf(*GetParam().File);
    }
    Press("SavePicture");
    if (GetParam().Told.empty()) {
        EXPECT_THAT(user.Told, IsEmpty());
    } else {
        ASSERT_EQ(user.Told.size(), 1U);
        EXPECT_THAT(user.Told.front().Text, StartsWith(std::string(GetParam().Told)));
        EXPECT_FALSE(std::filesystem::exists(*desktop.ChosenFile));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Files, UnsavedPictureTest,
    testing::Values(UnsavedCase{"cancelled", std::nullopt, ""},
                    UnsavedCase{"no such folder", "nowhere/beam.png",
                                "This file could not be saved; what stood in it is unchanged:"},
                    UnsavedCase{"another kind", "beam.jpg",
                                "A picture is saved as PNG or SVG. Please end its name with .png or .svg."}),
    CaseName);

}  // namespace
}  // namespace kordavan
