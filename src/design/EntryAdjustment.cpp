#include "design/EntryAdjustment.h"

#include <cstddef>
#include <string_view>

#include "core/NumberText.h"
#include "materials/SteelShapes.h"

namespace kordavan {

namespace {

constexpr double FactorAt16 = 1.3333;
constexpr double FactorAt19 = 1.6;
constexpr double FactorAt24 = 2;

double SpacingFactor(RepetitiveSpacing spacing)
{
    switch (spacing) {
        case RepetitiveSpacing::Ctr16:
            return FactorAt16;
        case RepetitiveSpacing::Ctr19:
            return FactorAt19;
        case RepetitiveSpacing::Ctr24:
            return FactorAt24;
        case RepetitiveSpacing::None:
        case RepetitiveSpacing::Ctr0:
        case RepetitiveSpacing::Ctr12:
            break;
    }
    return 1;
}

/// The total and live boxes of every load that a spacing multiplies.
template <typename Change>
void ForEachLoad(LoadSet& loads, const Change& change)
{
    change(loads.UNIF);
    change(loads.LUNIF);
    for (PointTexts* texts : {&loads.PT, &loads.LPT}) {
        for (std::string& text : *texts) {
            change(text);
        }
    }
    for (PartialTexts* texts : {&loads.PAR, &loads.LPAR}) {
        for (std::string& text : *texts) {
            change(text);
        }
    }
}

void GrowWithSlope(std::string& total, const std::string& live, float slopeFactor)
{
    if (!total.empty()) {
        total = LoadText(WithSlope(Val(total), Val(live), slopeFactor));
    }
}

void MultiplyForSpacing(LoadSet& loads, double factor)
{
    ForEachLoad(loads, [factor](std::string& text) {
        if (Val(text) > 0) {
            text = LoadText(Val(text) * factor);
        }
    });
}

/// Shapes are tested at a number: tubes and plates at none of the person's, a blank at 0.
void SetUnbracedLengths(BeamProblem& problem, EntriesToRestore& restore)
{
    constexpr std::string_view braced = "0";
    restore.SavedUBLtext = problem.UBLtext;
    restore.SavedCantUBLtext = problem.CantUBLtext;
    if (problem.UBLtext.empty() || problem.Family == SteelFamily::Tube || IsPlate(problem.Family)) {
        problem.UBLtext = braced;
    }
    if (problem.CantUBLtext.empty()) {
        problem.CantUBLtext = braced;
    }
}

void DivideForSpacing(LoadSet& loads, RepetitiveSpacing spacing)
{
    const double factor = SpacingFactor(spacing);
    const bool toWholePounds = spacing != RepetitiveSpacing::Ctr24;
    ForEachLoad(loads, [=](std::string& text) {
        const double value = Val(text) / factor;
        text = toWholePounds ? FormatNumber(value, "####") : LoadText(value);
    });
}

}  // namespace

std::string LoadText(double value)
{
    return value == 0 ? std::string{} : PlainNumber(value);
}

double WithSlope(double total, double live, double slopeFactor)
{
    const double dead = total - live;
    return total + dead * slopeFactor - dead;
}

void AdjustEntries(BeamProblem& problem, float slopeFactor, EntriesToRestore& restore)
{
    LoadSet& loads = problem.Loads;
    if (problem.Roofbutton && problem.Support != SupportCondition::HipValley) {
        restore.SavedUniform = loads.UNIF;
        restore.SavedPartial = loads.PAR;
        GrowWithSlope(loads.UNIF, loads.LUNIF, slopeFactor);
        for (std::size_t k = 0; k < PartialSlotCount; ++k) {
            GrowWithSlope(loads.PAR[k], loads.LPAR[k], slopeFactor);
        }
    }
    const double factor = SpacingFactor(SpacingInForce(problem));
    if (factor != 1) {
        MultiplyForSpacing(loads, factor);
    }
    if (problem.Combo1 == SpeciesGroup::Steel) {
        SetUnbracedLengths(problem, restore);
    }
    restore.LoadsMultipliedFlag = true;
}

void RestoreEntries(Session& session)
{
    EntriesToRestore& restore = session.Restore;
    if (!restore.LoadsMultipliedFlag) {
        return;
    }
    BeamProblem& problem = session.Problem;
    const RepetitiveSpacing spacing = SpacingInForce(problem);
    if (SpacingFactor(spacing) != 1) {
        DivideForSpacing(problem.Loads, spacing);
    }
    restore.LoadsMultipliedFlag = false;
    if (problem.Roofbutton && problem.Support != SupportCondition::HipValley) {
        problem.Loads.UNIF = restore.SavedUniform;
        problem.Loads.PAR = restore.SavedPartial;
    }
    if (problem.Combo1 == SpeciesGroup::Steel) {
        problem.UBLtext = restore.SavedUBLtext;
        problem.CantUBLtext = restore.SavedCantUBLtext;
    }
    RestoreHipLoads(session);
}

void RestoreHipLoads(Session& session)
{
    EntriesToRestore& restore = session.Restore;
    if (restore.HipLoadsGrown) {
        session.Problem.Loads.IncTL = restore.SavedIncTL;
        session.Problem.Loads.IncUnifTL = restore.SavedIncUnifTL;
        restore.HipLoadsGrown = false;
    }
}

BeamProblem TypedEntries(const Session& session)
{
    Session asTyped = session;
    RestoreEntries(asTyped);
    RestoreHipLoads(asTyped);
    return asTyped.Problem;
}

}  // namespace kordavan
