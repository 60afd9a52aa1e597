#include "columns/ColumnChecks.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr double LeastBaseFc = 220;      // psi
constexpr double BaseFcBeyond = 2500;    // psi; no longer accepted
constexpr double LeastBaseE = 0.5;       // millions of psi
constexpr double BaseEBeyond = 2.5;      // no longer accepted
constexpr double MostStudHeight = 10;    // ft, of Stud grade
constexpr double MostEntry = 1e9;        // in any box; nothing of a building comes near it
constexpr double LeastEffective = 1e-3;  // in.; less would leave the range of a float

using Finding = std::optional<Message>;
using Check = Finding (*)(const ColumnEntry&);

bool IsMissing(std::string_view text)
{
    return text.empty() || Val(text) == 0;
}

Finding RefuseIf(bool isWrong, std::string_view text, std::string_view focus)
{
    return isWrong ? Finding(Refusal(text, focus)) : std::nullopt;
}

Finding CheckLoad(const ColumnEntry& entry)
{
    return RefuseIf(IsMissing(entry.cReacText), "Please enter a reaction weight on the column.", "cReacText");
}

Finding CheckHeight(const ColumnEntry& entry)
{
    return RefuseIf(IsMissing(entry.cHTtext),
                    "Please enter an actual column height in feet (and decimal fraction, if any).",
                    "cHTtext");
}

Finding CheckBucklingMode(const ColumnEntry& entry)
{
    return RefuseIf(entry.cModeText.empty(),
                    "Please enter a valid numeric Buckling Mode Value.  The default is 1.0.  For other "
                    "appropriate values please click the on line help button (small raised gray square), "
                    "next to Ke Buckling Mode.",
                    "cModeText");
}

Finding CheckD1(const ColumnEntry& entry)
{
    return RefuseIf(entry.cD1text.empty(),
                    "Please enter a valid numeric value for the unbraced length of the column in plane D1.  "
                    "If D1 is braced throughout its length, please enter a zero.",
                    "cD1text");
}

Finding CheckUnbracedHeight(const ColumnEntry& entry, const std::string& unbraced, ColumnPlane plane)
{
    const std::string name(PlaneName(plane));
    return RefuseIf(Val(entry.cHTtext) < Val(unbraced),
                    "The actual column height is less than the column unbraced height in plane " + name +
                        ". Sorry, but this is not possible. Please revise either the actual column height "
                        "or the unbraced height.",
                    "c" + name + "text");
}

Finding CheckHeightOfD1(const ColumnEntry& entry)
{
    return CheckUnbracedHeight(entry, entry.cD1text, ColumnPlane::D1);
}

Finding CheckD2(const ColumnEntry& entry)
{
    return RefuseIf(entry.cD2text.empty(),
                    "Please enter a valid numeric value for the unbraced length of D2.  If D2 is braced "
                    "throughout its length enter a zero.",
                    "cD2text");
}

Finding CheckAnyUnbraced(const ColumnEntry& entry)
{
    return RefuseIf(Val(entry.cD1text) == 0 && Val(entry.cD2text) == 0,
                    "Please enter at least one unbraced length of the column in plane D1 or D2.", "cD1text");
}

Finding CheckDuration(const ColumnEntry& entry)
{
    return RefuseIf(IsMissing(entry.cDurText),
                    "Please enter a valid numeric value for the duration of load.  The default is 1.0",
                    "cDurText");
}

Finding CheckHeightOfD2(const ColumnEntry& entry)
{
    return CheckUnbracedHeight(entry, entry.cD2text, ColumnPlane::D2);
}

Finding CheckFc(const ColumnEntry& entry)
{
    if (IsMissing(entry.cFcText)) {
        return Refusal("Please enter a base value for the column Fc parallel to grain value.", "cFcText");
    }
    const double Fc = Val(entry.cFcText);
    return RefuseIf(
        Fc < LeastBaseFc || Fc >= BaseFcBeyond,
        "Please enter a base value between 220 and 2500 for the column Fc parallel to grain value.",
        "cFcText");
}

Finding CheckE(const ColumnEntry& entry)
{
    if (IsMissing(entry.cEtext)) {
        return Refusal("Please enter a base value for the column E value.", "cEtext");
    }
    const double E = Val(entry.cEtext);
    return RefuseIf(E < LeastBaseE || E >= BaseEBeyond,
                    "Please enter a base value between 0.5 and 2.5 for the column E value. Kordavan "
                    "automatically multiplies the number entered by 1,000,000.",
                    "cEtext");
}

Finding CheckSpecies(const ColumnEntry& entry)
{
    return RefuseIf(entry.ColSpeciesCombo.empty(), "Please enter a species and grade for your documentation.",
                    "ColSpeciesCombo");
}

Finding CheckStudGrade(const ColumnEntry& entry)
{
    const ColumnProblem problem = ReadColumnProblem(entry);
    if (!problem.StudGrade || problem.ColumnHeight <= MostStudHeight) {
        return std::nullopt;
    }
    return Marked(Refusal("Attention:  Stud Grade is only applicable to members less than 10 feet in height. "
                          "Please revise your grade selection or column height.",
                          "ColSpeciesCombo"),
                  MessageIcon::Warning);
}

constexpr std::array<Check, 3> LoadChecks{CheckLoad, CheckHeight, CheckBucklingMode};
constexpr std::array<Check, 2> BracingChecks{CheckD1, CheckHeightOfD1};
constexpr std::array<Check, 8> WoodChecks{CheckD2, CheckAnyUnbraced, CheckDuration, CheckHeightOfD2,
                                          CheckFc, CheckE,           CheckSpecies,  CheckStudGrade};

struct NumberBox {
    std::string_view Name;
    std::string ColumnEntry::*Text;
    std::string_view Meaning;
};

constexpr std::array NumberBoxes{
    NumberBox{"cReacText", &ColumnEntry::cReacText, "axial load on the column"},
    NumberBox{"cHTtext", &ColumnEntry::cHTtext, "actual column height"},
    NumberBox{"cModeText", &ColumnEntry::cModeText, "Buckling Mode Value"},
    NumberBox{"cD1text", &ColumnEntry::cD1text, "unbraced length in plane D1"},
    NumberBox{"cD2text", &ColumnEntry::cD2text, "unbraced length in plane D2"},
    NumberBox{"cDurText", &ColumnEntry::cDurText, "duration of load"},
};
constexpr std::size_t SteelBoxCount = 4;

/// A negative load or length would pass every stress check.
Finding CheckRange(const ColumnEntry& entry, std::span<const NumberBox> boxes)
{
    for (const NumberBox& box : boxes) {
        const double number = Val(entry.*box.Text);
        if (number < 0 || number > MostEntry) {
            return Refusal("Please enter a number from 0 to " + FormatNumber(MostEntry, "#,##0") +
                               " for the " + std::string(box.Meaning) + ".",
                           box.Name);
        }
    }
    return std::nullopt;
}

Finding CheckEffectiveLength(double Le, ColumnPlane plane)
{
    const std::string name(PlaneName(plane));
    return RefuseIf(Le > 0 && Le < LeastEffective,
                    "The effective length in plane " + name +
                        ", Ke times the unbraced length, is too small to work with. If " + name +
                        " is braced throughout its length, please enter a zero.",
                    "c" + name + "text");
}

Finding CheckNumbers(const ColumnEntry& entry, ColumnFace face)
{
    const std::span<const NumberBox> boxes(NumberBoxes);
    if (face == ColumnFace::Steel) {
        return CheckRange(entry, boxes.first(SteelBoxCount));
    }
    if (Finding finding = CheckRange(entry, boxes)) {
        return finding;
    }
    const ColumnProblem problem = ReadColumnProblem(entry);
    if (Finding finding = CheckEffectiveLength(problem.Le1(), ColumnPlane::D1)) {
        return finding;
    }
    return CheckEffectiveLength(problem.Le2(), ColumnPlane::D2);
}

Finding FirstFinding(const ColumnEntry& entry, std::span<const Check> checks)
{
    for (const Check check : checks) {
        if (Finding finding = check(entry)) {
            return finding;
        }
    }
    return std::nullopt;
}

Finding FindFault(ColumnEntry& entry, ColumnFace face)
{
    if (Finding finding = FirstFinding(entry, LoadChecks)) {
        return finding;
    }
    if (entry.cD1text == "0") {
        entry.ResetKf = true;
    }
    if (Finding finding = FirstFinding(entry, BracingChecks)) {
        return finding;
    }
    if (face == ColumnFace::Wood) {
        if (Finding finding = FirstFinding(entry, WoodChecks)) {
            return finding;
        }
    }
    return CheckNumbers(entry, face);
}

}  // namespace

Outcome ValidateColumnProblem(ColumnEntry& entry, ColumnFace face, UserPort& user)
{
    const Finding finding = FindFault(entry, face);
    return finding ? Refuse(user, *finding) : Outcome::Done;
}

}  // namespace kordavan
