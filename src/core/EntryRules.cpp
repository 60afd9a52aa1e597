#include "core/EntryRules.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr std::array Rules{
    EntryRule{"Span", EntryKind::Length,
              "Please enter a valid numeric value for the beam Span in feet (and decimal fraction, if any)"},
    EntryRule{"UNIF", EntryKind::Load,
              "Please enter a valid numeric value for the Uniform Load in Lbs Per/Ft."},
    EntryRule{"LUNIF", EntryKind::Load,
              "Please enter a valid numeric value for the Live Uniform Load in Lbs Per/Ft."},
    EntryRule{"PT", EntryKind::Load, "Please enter a valid numeric value for the Point Load."},
    EntryRule{"LPT", EntryKind::Load, "Please enter a valid numeric value for the Live Point Load."},
    EntryRule{"DIS", EntryKind::Distance, "Please enter a numeric value for the DISTANCE to the point load."},
    EntryRule{"PAR", EntryKind::Load, "Please enter a valid numeric value for the Partial Uniform Load."},
    EntryRule{"LPAR", EntryKind::Load,
              "Please enter a valid numeric value for the Live Partial Uniform Load."},
    EntryRule{"BEGP", EntryKind::Distance,
              "Please enter a numeric value for the distance to the START of the Partial Uniform Load."},
    EntryRule{"ENDP", EntryKind::Distance,
              "Please enter a numeric value for the END location of the Partial Uniform Load."},
    EntryRule{
        "UBLtext", EntryKind::Unbraced,
        "Please enter a valid numeric value for the unbraced length in feet (and decimal fraction, if any)"},
    EntryRule{"CantUBLtext", EntryKind::Unbraced,
              "Please enter a valid numeric value for the unbraced length of Overhang in feet (enter in the "
              "blue box)."},
    EntryRule{"Pitchtext", EntryKind::Pitch,
              "Please enter a valid numeric value for the roof pitch in feet (and decimal fraction, if any)"},
    EntryRule{
        "IncTL", EntryKind::Load,
        "Please enter a valid numeric value for the Total (LL + DL) Increasing Load in Lbs. per square ft."},
    EntryRule{"IncLL", EntryKind::Load,
              "Please enter a valid numeric value for the Live Increasing Load in Lbs. per square ft."},
    EntryRule{"IncUnifTL", EntryKind::Load,
              "Please enter a valid numeric value for the Total (LL + DL) Uniform Load in Lbs. per lin. ft."},
    EntryRule{"IncUnifLL", EntryKind::Load,
              "Please enter a valid numeric value for the Live Uniform Load in Lbs. per lin. ft."},
    EntryRule{"Trib1", EntryKind::Length, "Please enter a valid numeric value for the tributary length"},
    EntryRule{"Trib2", EntryKind::Length, "Please enter a valid numeric value for the tributary length"},
    EntryRule{"Tribute", EntryKind::Length, "Please enter a valid numeric value for tributary length."},
    EntryRule{"Text1", EntryKind::Load, "Please enter a valid numeric value for the live load PSF."},
    EntryRule{"Text2", EntryKind::Load, "Please enter a valid numeric value for the LL+DL PSF."},
    EntryRule{"PSF", EntryKind::Load,
              "Please enter a valid numeric value for the Partial Uniform Sq Ft Load."},
    EntryRule{"LPSF", EntryKind::Load,
              "Please enter a valid numeric value for the Live Partial Uniform Sq Ft Load."},
    EntryRule{"TribPSF", EntryKind::Length,
              "Please enter a valid numeric value for the tributary partial load length."},
};

constexpr std::string_view AnyUnbracedLength = "Any";
constexpr double InsertLimit = 999999;

/// What stands in a box although it is no number.
bool StandsUnread(EntryKind kind, std::string_view text, EntryState state)
{
    switch (kind) {
        case EntryKind::Distance:
        case EntryKind::Pitch:
            return text == ".";
        case EntryKind::Unbraced:
            return text == AnyUnbracedLength ||
                   (state == EntryState::BeingTyped && AnyUnbracedLength.starts_with(text));
        case EntryKind::Length:
        case EntryKind::Load:
            return false;
    }
    return false;
}

}  // namespace

const EntryRule* FindEntryRule(std::string_view box)
{
    const auto* const found =
        std::find_if(Rules.begin(), Rules.end(), [&](const EntryRule& rule) { return rule.Box == box; });
    return found == Rules.end() ? nullptr : found;
}

EntryVerdict JudgeEntry(const EntryRule& rule, std::string_view text, EntryState state)
{
    if (text.empty() || StandsUnread(rule.Kind, text, state)) {
        return EntryVerdict::Stands;
    }
    if (!IsNumeric(text) || Val(text) < 0) {
        return EntryVerdict::Refused;
    }
    return rule.Kind == EntryKind::Load && Val(text) == 0 ? EntryVerdict::Emptied : EntryVerdict::Stands;
}

std::string_view InsertRefusal(const EntryRule* rule, std::string_view calculatorText)
{
    if (calculatorText.empty()) {
        return EntryTexts::NothingToInsert;
    }
    const bool isLoad = rule != nullptr && rule->Kind == EntryKind::Load;
    const bool tooLarge = isLoad && Val(calculatorText) >= InsertLimit;
    return tooLarge ? EntryTexts::TooLargeToInsert : std::string_view{};
}

bool IsDoubtfulDuration(std::string_view text)
{
    constexpr std::array<std::string_view, 4> beginnings{"", "0", "0.", "."};
    if (std::find(beginnings.begin(), beginnings.end(), text) != beginnings.end()) {
        return false;
    }
    const double factor = Val(text);
    return factor < LeastDuration || factor > MostDuration;
}

Message DoubtfulDurationWarning()
{
    return Alert(
        "Are you sure you want to enter this Duration of load?\n"
        "Please see the Duration of Load 'On Line Help' button, (the small gray square next to Duration of "
        "Load), or see Help for acceptable values.",
        "Dur");
}

}  // namespace kordavan
