#include "columns/StudCriteria.h"

#include <array>
#include <cstddef>

#include "columns/ColumnSpecies.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

using Fault = std::optional<Message>;

constexpr std::string_view EnterHeight =
    "Please enter a stud height in decimal feet. Example: 10.75 = 10 ft - 9 in.";
constexpr std::string_view SpacingFilled =
    "The minimum stud spacing is 12 inches o.c. for PSF of 1 sq ft, without repetitive use factor.";
constexpr std::string_view EnterAxialLoad = "Please enter a load for the Axial Point Load or Axial PLF.";
constexpr std::string_view EnterWindA =
    "Please enter a load for Wind Load A. Wind loads B and C are optional.";
constexpr std::string_view EnterEndA = "Please enter an end distance for Wind Load A.";
constexpr std::string_view EnterSpecies =
    "For your documentation, please enter a custom Species and Grade name or select one from the drop down "
    "list.";
constexpr std::string_view EnterAxialCd =
    "The default value for NO duration of load factor is 1.0. Other values are 1.15 for Snow, 1.25 for No "
    "Snow, and 1.6 for wind.";
constexpr std::string_view EnterWindCd =
    "The default value for NO duration of load factor is 1.0. Wind load on studs qualifies for a duration of "
    "load factor of 1.6.";
constexpr std::string_view BegBeyondEnd =
    "The Beginning distance of a load can't be further than the load's End distance.";
constexpr std::string_view BegBeyondHeight =
    "The Beginning distance of a load can't be larger than the Stud Height.";
constexpr std::string_view EndBeyondHeight =
    "The End distance of a load can't be further than the overall Stud Height.";
constexpr std::string_view BelowBase =
    "The Beginning distance of a load counts from the base of the stud and can't be below 0.";

constexpr std::string_view MinimumSpacing = "12";  // in.

struct BaseValueRow {
    std::string StudEntry::*Value;
    std::string_view Box;
    std::string_view EnterIt;
    double Least;  // passes
    double Limit;  // fails
    std::string_view OutOfRange;
};

constexpr std::array BaseValues{
    BaseValueRow{&StudEntry::WindStudFb, "WindStudFb", "Please enter an Fb Base Value.", 200, 3100,
                 "The base value entered for the Fb is out of range. Please enter an Fb between 200 and "
                 "3100"},
    BaseValueRow{&StudEntry::WindStudFc, "WindStudFc", "Please enter an Fc Base Value.", 250, 2300,
                 "The base value entered for the Fc is out of range. Please enter an Fc between 250 and "
                 "2300"},
    BaseValueRow{&StudEntry::WindStudE, "WindStudE", "Please enter an E Base Value.", 0.5, 2.0,
                 "The base value entered for the E is out of range. Please enter an E between 0.5 and 2.0 "
                 "(value divided by 1,000,000)"},
};

struct DurationRow {
    std::string StudEntry::*Value;
    std::string_view Box;
    std::string_view EnterIt;
    std::string_view Usual;
};

constexpr std::array Durations{
    DurationRow{&StudEntry::AxialDurTextbox, "AxialDurTextbox", EnterAxialCd, "1.0"},
    DurationRow{&StudEntry::DurWindTextbox, "DurWindTextbox", EnterWindCd, "1.6"},
};

/// Entries that make no sense below 0. Wind does: it is suction.
struct SignRow {
    std::string StudEntry::*Value;
    std::string_view Box;
    std::string_view BelowZero;
};

constexpr std::array Signs{
    SignRow{&StudEntry::WindStudHt, "WindStudHt", "The stud height can't be below 0."},
    SignRow{&StudEntry::WindStudSpacing, "WindStudSpacing", "The stud spacing can't be below 0."},
    SignRow{&StudEntry::AxialPLFtextbox, "AxialPLFtextbox",
            "The Axial PLF can't be below 0: studs in tension are not checked here."},
    SignRow{&StudEntry::AxialPointTextbox, "AxialPointTextbox",
            "The Axial Point Load can't be below 0: studs in tension are not checked here."},
    SignRow{&StudEntry::AxialDurTextbox, "AxialDurTextbox", "A duration of load factor can't be below 0."},
    SignRow{&StudEntry::DurWindTextbox, "DurWindTextbox", "A duration of load factor can't be below 0."},
};

/// The box of a wind load's entry, such as "BegB".
std::string WindBox(std::string_view entry, std::size_t load)
{
    return std::string(entry) + WindLetter(load);
}

Fault CheckHeight(const StudEntry& entry)
{
    return Val(entry.WindStudHt) == 0 ? Fault(Refusal(EnterHeight, "WindStudHt")) : std::nullopt;
}

Fault CheckAxialLoads(const StudEntry& entry)
{
    const bool hasNone = Val(entry.AxialPLFtextbox) == 0 && Val(entry.AxialPointTextbox) == 0;
    return hasNone ? Fault(Refusal(EnterAxialLoad, "AxialPLFtextbox")) : std::nullopt;
}

Fault CheckWindA(const StudEntry& entry)
{
    if (Val(entry.Wind[0]) == 0) {
        return Refusal(EnterWindA, WindBox("Wind", 0));
    }
    return Val(entry.End[0]) == 0 ? Fault(Refusal(EnterEndA, WindBox("End", 0))) : std::nullopt;
}

Fault CheckOtherWinds(const StudEntry& entry)
{
    for (std::size_t load = 1; load < WindLoadCount; ++load) {
        const std::string name = std::string("Wind Load ") + WindLetter(load) + ".";
        if (Val(entry.Wind[load]) == 0) {
            continue;
        }
        if (entry.Beg[load].empty()) {
            return Refusal("Please enter a Beginning location for " + name, WindBox("Beg", load));
        }
        if (entry.End[load].empty()) {
            return Refusal("Please enter an End location for " + name, WindBox("End", load));
        }
    }
    return std::nullopt;
}

Fault CheckBaseValuesGiven(const StudEntry& entry)
{
    for (const BaseValueRow& row : BaseValues) {
        if ((entry.*row.Value).empty()) {
            return Refusal(row.EnterIt, row.Box);
        }
    }
    return std::nullopt;
}

Fault CheckSpecies(const StudEntry& entry)
{
    return entry.WindStudCombo.empty() ? Fault(Refusal(EnterSpecies, "WindStudCombo")) : std::nullopt;
}

Fault CheckBaseValueRanges(const StudEntry& entry)
{
    for (const BaseValueRow& row : BaseValues) {
        const double value = Val(entry.*row.Value);
        if (value < row.Least || value >= row.Limit) {
            return Refusal(row.OutOfRange, row.Box);
        }
    }
    return std::nullopt;
}

Fault FillDurations(StudEntry& entry)
{
    for (const DurationRow& row : Durations) {
        if (Val(entry.*row.Value) == 0) {
            entry.*row.Value = row.Usual;
            return Refusal(row.EnterIt, row.Box);
        }
    }
    return std::nullopt;
}

Fault CheckPlaces(const StudEntry& entry)
{
    const double height = Val(entry.WindStudHt);
    for (std::size_t load = 0; load < WindLoadCount; ++load) {
        const double begin = Val(entry.Beg[load]);
        const double end = Val(entry.End[load]);
        if (begin > end) {
            return Refusal(BegBeyondEnd, WindBox("Beg", load));
        }
        if (begin > height) {
            return Refusal(BegBeyondHeight, WindBox("Beg", load));
        }
        if (end > height) {
            return Refusal(EndBeyondHeight, WindBox("End", load));
        }
    }
    return std::nullopt;
}

Fault CheckSigns(const StudEntry& entry)
{
    for (const SignRow& row : Signs) {
        if (Val(entry.*row.Value) < 0) {
            return Refusal(row.BelowZero, row.Box);
        }
    }
    for (std::size_t load = 0; load < WindLoadCount; ++load) {
        if (Val(entry.Beg[load]) < 0) {
            return Refusal(BelowBase, WindBox("Beg", load));
        }
    }
    return std::nullopt;
}

void FillSpacing(StudEntry& entry, UserPort& user)
{
    if (Val(entry.WindStudSpacing) == 0) {
        entry.WindStudSpacing = MinimumSpacing;
        user.Tell(Alert(SpacingFilled, "WindStudSpacing"));
    }
}

Fault CheckLoadsAndValues(const StudEntry& entry)
{
    for (const auto check : {CheckAxialLoads, CheckWindA, CheckOtherWinds, CheckBaseValuesGiven, CheckSpecies,
                             CheckBaseValueRanges}) {
        if (Fault fault = check(entry)) {
            return fault;
        }
    }
    return std::nullopt;
}

Fault CheckPlacesAndSigns(const StudEntry& entry)
{
    if (Fault fault = CheckPlaces(entry)) {
        return fault;
    }
    return CheckSigns(entry);
}

}  // namespace

Outcome ValidateStudProblem(StudEntry& entry, UserPort& user)
{
    if (const Fault fault = CheckHeight(entry)) {
        return Refuse(user, *fault);
    }
    FillSpacing(entry, user);
    if (const Fault fault = CheckLoadsAndValues(entry)) {
        return Refuse(user, *fault);
    }
    if (const Fault fault = FillDurations(entry)) {
        return Refuse(user, *fault);
    }
    const Fault fault = CheckPlacesAndSigns(entry);
    return fault ? Refuse(user, *fault) : Outcome::Done;
}

std::optional<StudBaseTexts> FindStudBaseTexts(std::string_view name, Edition edition)
{
    const DimensionValues* const row = FindDimensionValues(name);
    if (row == nullptr) {
        return std::nullopt;
    }
    return StudBaseTexts{.Fb = PlainNumber(row->Fb),
                         .Fc = PlainNumber(FcOfEdition(*row, edition)),
                         .E = FormatNumber(row->E, "0.0")};
}

void PickStudSpecies(StudEntry& entry, std::string_view name, Edition edition)
{
    const std::optional<StudBaseTexts> values =
        name == CustomSpecies ? StudBaseTexts{} : FindStudBaseTexts(name, edition);
    entry.WindStudCombo = name;
    if (values) {
        entry.WindStudFb = values->Fb;
        entry.WindStudFc = values->Fc;
        entry.WindStudE = values->E;
    }
}

void ChangeStudEdition(StudEntry& entry, Edition from, Edition to)
{
    const std::optional<StudBaseTexts> before = FindStudBaseTexts(entry.WindStudCombo, from);
    if (before && entry.WindStudFc == before->Fc) {
        entry.WindStudFc = FindStudBaseTexts(entry.WindStudCombo, to)->Fc;
    }
}

}  // namespace kordavan
