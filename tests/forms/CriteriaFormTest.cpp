#include <QComboBox>
#include <QGroupBox>
#include <QToolButton>

#include "forms/HelpButton.h"
#include "forms/LoadSketch.h"
#include "forms/WalkFixture.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class CriteriaFormTest : public WalkFixture {
protected:
    void GiveRecord()
    {
        session.Selection =
            SelectionRecord{.MemberChoice = "4x  10 DF-L #2", .MemberStatus = "OK", .RecordDate = "3/07/26"};
        Front().Activate();
    }

    bool IsSeen(const std::string& name) { return Find<QWidget>(name).isVisible(); }

    /// Double-clicks in the frame of a group, beside its boxes.
    void DoubleClickFrame(const std::string& name)
    {
        auto& frame = Find<QGroupBox>(name);
        QTest::mouseDClick(&frame, Qt::LeftButton, {}, QPoint(frame.width() / 2, frame.height() - 4));
    }
};

TEST_F(CriteriaFormTest, OpensOnAnEmptySimpleSpan)
{
    EXPECT_EQ(Text(Front().windowTitle()), " Kordavan Criteria Form 1  NDS 2018");
    EXPECT_EQ(LabelText("SavePanel"), "   Selection:  None");
    EXPECT_EQ(BoxText("Dur"), "1.00");
    EXPECT_EQ(BoxText("LMaxDefl"), "360");
    EXPECT_EQ(BoxText("MaxDefl"), "240");
    EXPECT_TRUE(Find<QAbstractButton>("SimpleSpanbutton").isChecked());
    EXPECT_TRUE(Find<QAbstractButton>("INGRADE").isChecked());
    EXPECT_EQ(FocusName(), "Proj");
    EXPECT_FALSE(IsSeen("FramePSF"));
    EXPECT_FALSE(IsSeen("UBSpan"));
    EXPECT_FALSE(IsSeen("CantUBLtext"));
}

TEST_F(CriteriaFormTest, TakesTheEditionOutOfTheTitleWithTheIngradeSwitchOff)
{
    Click("INGRADE");
    EXPECT_EQ(Text(Front().windowTitle()), " Kordavan Criteria Form 1");
}

TEST_F(CriteriaFormTest, AnyEditWithdrawsTheSelection)
{
    for (const std::string box : {"Span", "PT[3]", "Descrip", "Dur", "TribPSF[0]"}) {
        GiveRecord();
        EXPECT_THAT(LabelText("SavePanel"), HasSubstr("4x  10 DF-L #2"));
        if (box == "TribPSF[0]") {
            Click("CalcPSFPartial");
        }
        Type(box, "1");
        EXPECT_EQ(LabelText("SavePanel"), "   Selection:  None") << box;
    }
    for (const std::string button : {"Wet", "Rep", "Command3D15", "Dadj", "OHbutton"}) {
        GiveRecord();
        Click(button);
        EXPECT_EQ(LabelText("SavePanel"), "   Selection:  None") << button;
    }
}

TEST_F(CriteriaFormTest, EmptyingWhatIsEmptyKeepsTheSelection)
{
    GiveRecord();
    Click("Labl20[2]");
    EXPECT_THAT(LabelText("SavePanel"), HasSubstr("4x  10 DF-L #2"));
}

TEST_F(CriteriaFormTest, SwitchingTheConditionClearsLoadsAndShowsItsTables)
{
    Type("UNIF", "400");
    Type("PT[4]", "900");
    Type("Span", "14");
    Click("CalcPSFPartial");
    Click("OHbutton");
    EXPECT_EQ(BoxText("UNIF"), "");
    EXPECT_EQ(BoxText("PT[4]"), "");
    EXPECT_EQ(BoxText("Span"), "14");
    EXPECT_FALSE(IsSeen("FramePSF"));
    EXPECT_TRUE(Find<QAbstractButton>("CmdOK").isEnabled());
    EXPECT_TRUE(IsSeen("UBSpan"));
    EXPECT_TRUE(IsSeen("CantUBLtext"));

    Click("IncButton");
    EXPECT_TRUE(IsSeen("IncFrame"));
    EXPECT_FALSE(IsSeen("Frame3D4"));
    EXPECT_FALSE(IsSeen("Text1"));
    EXPECT_TRUE(Box("UNIF").isReadOnly());
    EXPECT_EQ(Text(Find<QAbstractButton>("PLFspin").text()), "ETL");

    Click("Multibutton");
    EXPECT_TRUE(IsSeen("MultiFrame"));
    EXPECT_EQ(LabelText("UBLlabel"), "Assumed fully braced");
    EXPECT_EQ(BoxText("UBLtext"), "0");
    EXPECT_FALSE(Box("UBLtext").isEnabled());
    EXPECT_FALSE(Box("UNIF").isReadOnly());
    EXPECT_TRUE(Find<QAbstractButton>("TwoSpan").isChecked());
    Click("CancelMultiSpan");
    EXPECT_TRUE(Find<QAbstractButton>("SimpleSpanbutton").isChecked());
    EXPECT_EQ(BoxText("UBLtext"), "");
    EXPECT_TRUE(Box("UBLtext").isEnabled());
}

TEST_F(CriteriaFormTest, PaintsTheOverhangInItsBlues)
{
    const QRgb darkBlue = qRgb(0x00, 0x00, 0x80);
    const QRgb blue = qRgb(0x00, 0x00, 0xC0);
    const auto baseOf = [this](const std::string& box) {
        return Box(box).palette().color(QPalette::Active, QPalette::Base).rgb();
    };
    const QRgb plain = baseOf("PT[0]");
    Click("OHbutton");
    for (const std::string box : {"PT[4]", "DIS[5]", "PAR[3]", "BEGP[4]", "ENDP[3]"}) {
        EXPECT_EQ(baseOf(box), darkBlue) << box;
    }
    for (const std::string box : {"LPT[4]", "LPT[5]", "LPAR[3]", "LPAR[4]"}) {
        EXPECT_EQ(baseOf(box), blue) << box;
    }
    EXPECT_EQ(baseOf("PT[3]"), plain);
    EXPECT_EQ(baseOf("PAR[2]"), plain);
    Click("SimpleSpanbutton");
    EXPECT_EQ(baseOf("PT[4]"), plain);
    EXPECT_EQ(baseOf("LPAR[4]"), plain);
}

TEST_F(CriteriaFormTest, CyclesDurationsAndDeflectionLimits)
{
    for (const std::string next : {"1.15", "1.25", "0.90", "1.00"}) {
        Click("Command3D15");
        EXPECT_EQ(BoxText("Dur"), next);
    }
    Type("Dur", "1.6");
    Click("Command3D15");
    EXPECT_EQ(BoxText("Dur"), "1.00");

    const std::array<std::pair<std::string, std::string>, 6> limits{
        {{"480", "240"}, {"240", "180"}, {"", "360"}, {"", "240"}, {"360", "240"}, {"480", "240"}}};
    for (const auto& [live, total] : limits) {
        Click("Dadj");
        EXPECT_EQ(BoxText("LMaxDefl"), live);
        EXPECT_EQ(BoxText("MaxDefl"), total);
    }
}

TEST_F(CriteriaFormTest, StepsThroughTheLoadPairs)
{
    Click("PLFspin");
    ASSERT_EQ(user.Told.size(), 1U);
    session.Defaults.LoadPairs[0] = {.Live = "40", .Total = "55"};
    session.Defaults.LoadPairs[1] = {.Live = "25", .Total = "40"};
    Click("PLFspin");
    EXPECT_EQ(BoxText("LUNIF"), "40");
    EXPECT_EQ(BoxText("UNIF"), "55");
    Click("Command1");
    Click("Command1");
    EXPECT_EQ(BoxText("Text1"), "25");
    EXPECT_EQ(BoxText("Text2"), "40");
    Click("Command1");
    EXPECT_EQ(BoxText("Text1") + BoxText("Text2"), "");
    EXPECT_EQ(user.Told.size(), 1U);
}

TEST_F(CriteriaFormTest, EmptiesRowsAndTablesOfLoads)
{
    Type("PT[1]", "900");
    Type("DIS[1]", "6");
    Type("PT[2]", "300");
    Type("PAR[0]", "120");
    Type("BEGP[0]", "0");
    Type("UNIF", "50");
    Click("Labl20[1]");
    EXPECT_EQ(BoxText("PT[1]") + BoxText("DIS[1]"), "");
    EXPECT_EQ(BoxText("PT[2]"), "300");
    DoubleClickFrame("Frame3D4");
    EXPECT_EQ(BoxText("PT[2]"), "");
    EXPECT_EQ(BoxText("PAR[0]"), "120");
    Box("BEGP[0]").setFocus();
    Key(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(BoxText("PAR[0]") + BoxText("BEGP[0]"), "");
    DoubleClickFrame("Frame3D3");
    EXPECT_EQ(BoxText("UNIF"), "");
}

TEST_F(CriteriaFormTest, MultipliesPsfByTheTributaryLength)
{
    Click("CalcPSF");
    EXPECT_EQ(FocusName(), "Text1");
    Click("Command3D25");
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(" Please enter a tributary length in feet.", "Tribute")));
    EXPECT_EQ(FocusName(), "Tribute");
    EXPECT_FALSE(Find<QAbstractButton>("Command3D25").isChecked());
    Type("Text1", "40");
    Type("Text2", "55");
    Type("Tribute", "8");
    Click("Command3D25");
    EXPECT_EQ(BoxText("LUNIF"), "320");
    EXPECT_EQ(BoxText("UNIF"), "440");
    EXPECT_TRUE(Find<QAbstractButton>("Command3D25").isChecked());
    Type("Span", "14");
    EXPECT_TRUE(Find<QAbstractButton>("Command3D25").isChecked());
    Type("PT[0]", "10");
    EXPECT_FALSE(Find<QAbstractButton>("Command3D25").isChecked());
}

TEST_F(CriteriaFormTest, FillsPartialLoadsFromTheirCalculator)
{
    Click("CalcPSFPartial");
    EXPECT_TRUE(IsSeen("FramePSF"));
    EXPECT_EQ(FocusName(), "LPSF[0]");
    EXPECT_FALSE(Find<QAbstractButton>("CmdOK").isEnabled());
    Type("LPSF[1]", "25");
    Type("PSF[1]", "40");
    Type("TribPSF[1]", "6");
    Click("Command3D21");
    EXPECT_FALSE(IsSeen("FramePSF"));
    EXPECT_TRUE(Find<QAbstractButton>("CmdOK").isEnabled());
    EXPECT_EQ(BoxText("LPAR[1]"), "150");
    EXPECT_EQ(BoxText("PAR[1]"), "240");
    Click("CalcPSFPartial");
    EXPECT_EQ(BoxText("PSF[1]"), "40");
    Click("Command3D22");
    EXPECT_FALSE(IsSeen("FramePSF"));
    Click("CalcPSFPartial");
    EXPECT_EQ(BoxText("PSF[1]"), "");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(IsSeen("FramePSF"));
}

TEST_F(CriteriaFormTest, RepetitiveUseEnablesItsSpacings)
{
    EXPECT_FALSE(Find<QAbstractButton>("Ctr16").isEnabled());
    Click("Rep");
    Click("Ctr16");
    EXPECT_EQ(session.Problem.Spacing, RepetitiveSpacing::Ctr16);
    Click("Rep");
    EXPECT_FALSE(Find<QAbstractButton>("Ctr16").isEnabled());
    Click("Rep");
    for (const std::string option : {"Ctr0", "Ctr12", "Ctr16", "Ctr19", "ctr24"}) {
        EXPECT_FALSE(Find<QAbstractButton>(option).isChecked()) << option;
    }
}

TEST_F(CriteriaFormTest, UnbalancesOnePartAtATime)
{
    Click("OHbutton");
    Type("LUNIF", "40");
    Type("UNIF", "100");
    Type("LPT[4]", "200");
    Type("PT[4]", "500");
    Type("DIS[4]", "4");
    Click("UBOH");
    EXPECT_EQ(Text(Find<QAbstractButton>("UBOH").text()), "Restore OH LL");
    EXPECT_FALSE(Find<QAbstractButton>("UBSpan").isEnabled());
    EXPECT_EQ(BoxText("LPT[4]"), "");
    EXPECT_EQ(BoxText("PT[4]"), "300");
    Click("UBOH");
    EXPECT_EQ(BoxText("LPT[4]"), "200");
    EXPECT_EQ(BoxText("PT[4]"), "500");
    EXPECT_EQ(Text(Find<QAbstractButton>("UBOH").text()), "Unbalance OH");
    EXPECT_TRUE(Find<QAbstractButton>("UBSpan").isEnabled());
}

/// Two quarters of a 10 by 10 plan at 40 psf: 40 x 100 x 0.5 = 2000 lb; the diagonal is 14.14 ft, so that the
/// equivalent load is 2000 x 1.0264 / 14.14 = 145.18 plf.
TEST_F(CriteriaFormTest, HipToolIsTheDefaultUntilThereIsALoad)
{
    Click("IncButton");
    Type("IncTL", "40");
    Type("Trib1", "10");
    Type("Trib2", "10");
    Click("Areas[0]");
    Click("Areas[3]");
    Click("CalctheSpan");
    Box("Trib2").setFocus();
    Key(Qt::Key_Return);
    EXPECT_EQ(BoxText("Span"), "14.14");
    EXPECT_NEAR(Box("UNIF").text().toDouble(), 145.18, 0.005);
    EXPECT_EQ(BoxText("LUNIF"), "");
    EXPECT_EQ(FocusName(), "CmdOK");
    Type("Trib1", "11");
    EXPECT_EQ(BoxText("UNIF"), "");
}

TEST_F(CriteriaFormTest, HipToolWaitsForTheSlopeToBePutBack)
{
    Click("IncButton");
    Click("Roofbutton");
    Type("Pitchtext", "6");
    Type("Span", "14");
    Type("IncLL", "25");
    Type("IncTL", "40");
    Type("Trib1", "10");
    Type("Trib2", "10");
    Click("Areas[1]");
    Click("IncCalcButton");
    // Dead 15 psf grows by sqrt(12^2 + 6^2) / 12 = 1.11803 to 16.77; 25 + 16.77 = 41.77.
    EXPECT_EQ(BoxText("IncTL"), "41.77");
    EXPECT_FALSE(Find<QAbstractButton>("IncCalcButton").isEnabled());
    Click("Roofbutton");
    EXPECT_EQ(BoxText("IncTL"), "40");
    EXPECT_TRUE(Find<QAbstractButton>("IncCalcButton").isEnabled());
}

TEST_F(CriteriaFormTest, SketchFollowsEveryKeystrokeAndLeadsToItsLoads)
{
    auto& sketch = Find<LoadSketch>("LoadSketch");
    Type("Span", "14");
    Type("PT[2]", "900");
    Type("DIS[2]", "6");
    EXPECT_THAT(Text(sketch.accessibleDescription()), HasSubstr("14"));
    EXPECT_THAT(Text(sketch.accessibleDescription()), HasSubstr("900"));
    sketch.setFocus();
    sketch.grab();
    QTest::keyClick(&sketch, Qt::Key_Space);
    EXPECT_EQ(FocusName(), "PT[2]");
}

TEST_F(CriteriaFormTest, EveryHelpButtonTellsItsText)
{
    const QList<HelpButton*> helps = Front().findChildren<HelpButton*>();
    std::size_t told = 0;
    for (HelpButton* const help : helps) {
        help->click();
        told += user.Told.size();
        if (user.Told.empty()) {
            EXPECT_THAT((std::vector<std::string>{"Command3D1", "Command3D2", "Command3D10"}),
                        testing::Contains(Text(help->objectName())));
        } else {
            EXPECT_EQ(user.Told.front().Title, "Kordavan");
            EXPECT_FALSE(user.Told.front().Text.empty()) << Text(help->objectName());
        }
        user.Told.clear();
    }
    EXPECT_EQ(helps.size(), 18);
    EXPECT_EQ(told, 15U);
}

TEST_F(CriteriaFormTest, HelpOfTheBoxInFocusComesByKey)
{
    Box("CantUBLtext");
    Box("Dur").setFocus();
    Key(Qt::Key_F1, Qt::ShiftModifier);
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_EQ(user.Told.front().Text.rfind("DURATION OF LOAD", 0), 0U);
}

TEST_F(CriteriaFormTest, OffersTheMaterialsThatHaveAScreen)
{
    auto& material = Find<QComboBox>("Combo1");
    GiveRecord();
    material.setFocus();
    Key(Qt::Key_Down);
    EXPECT_EQ(session.Problem.Combo1, SpeciesGroup::CedarWesternWoods);
    EXPECT_EQ(LabelText("SavePanel"), "   Selection:  None");
    EXPECT_EQ(material.count(), 10);
}

}  // namespace
}  // namespace kordavan
