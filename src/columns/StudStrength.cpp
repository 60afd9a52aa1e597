#include "columns/StudStrength.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "columns/ColumnStability.h"
#include "core/BeamNumbers.h"
#include "core/NumberText.h"
#include "design/Stability.h"

namespace kordavan {

namespace {

/// The rules read one after the other; each figure rests on those kept before it.
class StudStrength {
public:
    StudStrength(const StudColumnProblem& stud, const StudFactors& factors, Edition edition)
        : problem(stud), isNds2005Plus(IsNds2005Plus(edition)), heightIn(stud.StudHeight * InchesPerFoot)
    {
        result.CFb = factors.CFb;
        result.CFc = factors.CFc;
        result.Cr = factors.Cr;
    }

    StudResult Run(const StudMoment& moment)
    {
        TakeLoads(moment);
        WorkOutColumn();
        WorkOutBending();
        Combine();
        CheckBendingStability();
        return result;
    }

private:
    void TakeLoads(const StudMoment& moment)
    {
        const double s = problem.StudSpacing / InchesPerFoot;
        result.P = Single(problem.AxialPLF * s + problem.AxialPoint);
        result.R1 = moment.R1;
        result.MaxMoment = moment.MaxMoment;
        result.MaxMomentAtFt = moment.MaxMomentAtFt;
    }

    void WorkOutColumn()
    {
        const double A = double{problem.Breadth} * problem.Depth;
        const double Fc = double{result.CFc} * problem.BaseFc;
        const double Cd = problem.AxialCd;
        result.Slenderness = heightIn / problem.Depth;
        result.SlendernessOver50 = result.Slenderness > MostColumnSlenderness;
        result.FcE = Single(problem.BaseE * PsiPerMillion * EulerColumnCoefficient(isNds2005Plus) /
                            (result.Slenderness * result.Slenderness));
        result.FcStar = Single(Cd * Fc);
        result.Cp = Single(ColumnStabilityFactor(double{result.FcE} / result.FcStar));
        result.AllowableAxial = Single(Fc * result.Cp * A);
        result.AxialFails = result.P > result.AllowableAxial;
        result.FcActual = Single(result.P / A);
        result.FcPrime = Single(Fc * result.Cp * Cd);
    }

    void WorkOutBending()
    {
        const double S = double{problem.Depth} * problem.Depth * problem.Breadth / 6;
        result.FbPrime = Single(double{result.CFb} * problem.BaseFb * problem.WindCd * result.Cr);
        result.FbActual = Single(result.MaxMoment * InchesPerFoot / S);
    }

    void Combine()
    {
        if (result.FcActual < result.FcE) {
            result.Interaction = InteractionOf(result);
        }
        result.InteractionFails = !result.Interaction || *result.Interaction > 1;
    }

    void CheckBendingStability()
    {
        const double b = problem.Breadth;
        result.RB = std::sqrt(heightIn * problem.Depth / (b * b));
        const double KbE = BucklingCoefficient(!isNds2005Plus, BucklingClass::VisuallyGraded);
        result.FbE = Single(problem.BaseE * PsiPerMillion * KbE / (result.RB * result.RB));
        result.BendingBuckles = result.FbActual >= result.FbE;
    }

    const StudColumnProblem& problem;
    bool isNds2005Plus;
    double heightIn;
    StudResult result;
};

}  // namespace

StudResult WorkOutStud(const StudColumnProblem& problem, const StudFactors& factors, const StudMoment& moment,
                       Edition edition)
{
    return StudStrength(problem, factors, edition).Run(moment);
}

std::optional<float> InteractionOf(const StudResult& result)
{
    const double axial = double{result.FcActual} / result.FcPrime;
    const double growth = 1 - double{result.FcActual} / result.FcE;
    if (growth == 0) {
        return std::nullopt;
    }
    return Single(axial * axial + result.FbActual / (result.FbPrime * growth));
}

bool IsFinite(const StudResult& result)
{
    const std::initializer_list<double> figures{
        result.P,       result.R1,          result.MaxMoment, result.MaxMomentAtFt,
        result.FbPrime, result.Slenderness, result.FcE,       result.FcStar,
        result.Cp,      result.FcActual,    result.FcPrime,   result.AllowableAxial,
        result.RB,      result.FbActual,    result.FbE,       result.Interaction.value_or(0.0F),
    };
    return std::all_of(figures.begin(), figures.end(), [](double figure) { return std::isfinite(figure); });
}

}  // namespace kordavan
