#include "columns/ColumnFacts.h"

#include "core/NumberText.h"

namespace kordavan {

namespace {

std::string LoadText(double pounds)
{
    return FormatNumber(pounds, "#,##0") + " lb";
}

std::string InchText(double inches)
{
    return FormatNumber(inches, "#,##0.0") + " in.";
}

std::string EffectiveLength(std::string_view symbol, double inches)
{
    return std::string(symbol) + " " + (inches > 0 ? InchText(inches) : "0, braced");
}

}  // namespace

std::vector<std::string> WoodColumnFacts(const ColumnProblem& problem, Edition edition)
{
    std::vector<std::string> facts{
        "Axial load " + LoadText(problem.Reaction), "Height " + PlainNumber(problem.ColumnHeight) + " ft",
        EffectiveLength("Le1", problem.Le1()), EffectiveLength("Le2", problem.Le2())};
    if (const std::string_view year = EditionYear(edition); !year.empty()) {
        facts.push_back("NDS " + std::string(year));
    }
    if (!problem.SpeciesGrade.empty()) {
        facts.push_back(problem.SpeciesGrade);
    }
    return facts;
}

std::vector<std::string> SteelColumnFacts(const SteelColumnProblem& problem)
{
    return {"Reaction " + LoadText(problem.Reaction), "K " + FormatNumber(problem.K, "0.00"),
            "Unbraced length " + InchText(problem.UnbracedLength)};
}

}  // namespace kordavan
