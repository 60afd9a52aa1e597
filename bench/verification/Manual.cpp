#include "Manual.h"

#include "Chapters.h"
#include "Chart.h"
#include "ExampleText.h"
#include "Prose.h"
#include "SweepText.h"

namespace kordavan::Verification {

namespace {

void WriteChapter(const Chapter& chapter, int number, Manual& manual)
{
    manual.Text += "## " + std::to_string(number) + " " + chapter.Title + "\n\n";
    manual.Text += chapter.Text.empty() ? "" : chapter.Text + "\n\n";
    int part = 0;
    for (const Example& example : chapter.Examples) {
        ++part;
        WriteExample(example, std::to_string(number) + "." + std::to_string(part), manual);
    }
}

void WriteSweepChapter(Manual& manual)
{
    const std::vector<SweepGroup> sweep = RunSweep();
    manual.Chart = DrawChart(sweep);
    manual.Text +=
        "## 11 How far the method is from exact beam theory\n\n"
        "The method turns every load on a span into a uniform load of about the same deflection, looks for the peak moment "
        "at 201 stations, and adds the moment of the weight afterwards. All three are long in use in the trade.\n\n"
        "![Differences of deflections from beam theory](images/verification.svg)\n\n";
    WriteYardstick("11.1", manual);
    manual.Text +=
        "### 11.2 The sweep\n\n"
        "A 6x12 beam (E 1,600,000 psi), span L = 10 ft unless it varies, loads of 1000 lb or 100 plf, all live and without "
        "weight unless said. Differences are Kordavan less theory in per cent of theory: below 0 Kordavan finds less than "
        "there is, which is the unsafe side. The limits are what the test allows.\n\n";
    WriteSweep(sweep, manual);
    manual.Text += WhenToDistrust(sweep);
}

}  // namespace

Manual MakeManual()
{
    Manual manual;
    manual.Text = Introduction();
    int number = 0;
    for (const Chapter& chapter :
         {BeamChapter(), FactorChapter(), StabilityChapter(), MemberChapter(), SteelBeamChapter(),
          SelectionChapter(), WoodColumnChapter(), StudChapter(), SteelColumnChapter(), NotchChapter()}) {
        ++number;
        WriteChapter(chapter, number, manual);
    }
    WriteSweepChapter(manual);
    manual.Text += Departures();
    return manual;
}

}  // namespace kordavan::Verification
