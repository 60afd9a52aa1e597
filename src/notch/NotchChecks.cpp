#include <array>

#include "core/NumberText.h"
#include "notch/NotchCheck.h"

namespace kordavan {

namespace {

using Finding = std::optional<Message>;

/// A box that must hold a number above 0.
struct NumberBox {
    std::string NotchEntry::*Text;
    std::string_view Name;
    std::string_view EnterIt;
};

constexpr NumberBox ShearBox{&NotchEntry::MaxVtextbox, "MaxVtextbox",
                             "Please enter a valid numeric value for V."};
constexpr NumberBox BreadthBox{&NotchEntry::breadthtextbox, "breadthtextbox",
                               "Please enter a valid numeric value for the Breadth."};
constexpr NumberBox DepthBox{&NotchEntry::depthtextbox, "depthtextbox",
                             "Please enter a valid numeric value for the Depth."};
constexpr NumberBox FvBox{&NotchEntry::Fvtextbox, "Fvtextbox", "Please select or enter the Base Fv Value."};
constexpr NumberBox DnBox{&NotchEntry::dnTextbox, "dnTextbox", "Please enter a valid numeric value for Dn."};
constexpr NumberBox RafterBox{&NotchEntry::rdTextbox, "rdTextbox",
                              "Please enter a valid numeric value for rd. "};
constexpr NumberBox WallBox{&NotchEntry::tTextbox, "tTextbox", "Please enter a valid numeric value for t. "};
constexpr NumberBox PitchBox{&NotchEntry::rpTextbox, "rpTextbox",
                             "Please enter a valid numeric value for rp. "};

constexpr std::string_view EnterSpecies = "Please select or enter a specie and grade";
constexpr std::string_view EnterSetback =
    "Please enter a valid numeric value, enter a zero or leave the box blank";
constexpr std::string_view DnBeyondDepth =
    "The value for Dn (depth remaining at notch) is greater than the depth of the member.";
constexpr std::string_view NoSuchNotch = "Error at Calc selection, OK Cmd";

constexpr double Upright = 90;  // degrees; no roof is so steep

Finding RefuseIf(bool isWrong, std::string_view text, std::string_view focus)
{
    return isWrong ? Finding(Refusal(text, focus)) : std::nullopt;
}

Finding CheckNumber(const NotchEntry& entry, const NumberBox& box)
{
    const std::string& text = entry.*box.Text;
    return RefuseIf(!IsNumeric(text) || Val(text) <= 0, box.EnterIt, box.Name);
}

Finding CheckShearForce(const NotchEntry& entry)
{
    return CheckNumber(entry, ShearBox);
}

/// A log's own breadth is its diameter, so its box may stay empty.
Finding CheckBreadth(const NotchEntry& entry)
{
    const bool isLog = entry.MemberListBox == static_cast<int>(NotchMember::SawnRound);
    return isLog && IsBlankText(entry.breadthtextbox) ? std::nullopt : CheckNumber(entry, BreadthBox);
}

Finding CheckDepth(const NotchEntry& entry)
{
    return CheckNumber(entry, DepthBox);
}

Finding CheckSpecies(const NotchEntry& entry)
{
    return RefuseIf(IsBlankText(entry.Species), EnterSpecies, "SpeciesCombo");
}

Finding CheckFv(const NotchEntry& entry)
{
    return CheckNumber(entry, FvBox);
}

Finding CheckDn(const NotchEntry& entry)
{
    if (Finding finding = CheckNumber(entry, DnBox)) {
        return finding;
    }
    return RefuseIf(Val(entry.dnTextbox) > Val(entry.depthtextbox), DnBeyondDepth, DnBox.Name);
}

Finding CheckSetback(const NotchEntry& entry)
{
    const std::string& e = entry.eTextbox;
    return RefuseIf(!IsBlankText(e) && (!IsNumeric(e) || Val(e) < 0), EnterSetback, "eTextbox");
}

Finding CheckTaper(const NotchEntry& entry)
{
    for (const NumberBox& box : {RafterBox, WallBox, PitchBox}) {
        if (Finding finding = CheckNumber(entry, box)) {
            return finding;
        }
    }
    return RefuseIf(Val(entry.rpTextbox) >= Upright, PitchBox.EnterIt, PitchBox.Name);
}

/// A tension notch has no entries of its own.
Finding CheckNotch(const NotchEntry& entry)
{
    switch (entry.NotchListBox) {
        case static_cast<int>(NotchType::Tension):
            return std::nullopt;
        case static_cast<int>(NotchType::Compression):
            return CheckSetback(entry);
        case static_cast<int>(NotchType::Tapered):
            return CheckTaper(entry);
        default:
            return Refusal(NoSuchNotch, "NotchListBox");
    }
}

using Check = Finding (*)(const NotchEntry&);

constexpr std::array<Check, 7> Checks{CheckShearForce, CheckBreadth, CheckDepth, CheckSpecies,
                                      CheckFv,         CheckDn,      CheckNotch};

}  // namespace

Outcome ValidateNotch(const NotchEntry& entry, UserPort& user)
{
    for (const Check check : Checks) {
        if (const Finding finding = check(entry)) {
            return Refuse(user, *finding);
        }
    }
    return Outcome::Done;
}

}  // namespace kordavan
