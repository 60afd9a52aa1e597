#pragma once

#include "columns/StudProblem.h"

namespace kordavan {

/// A 2x6 of DF-L #2, 10 ft high at 16 in., under 600 plf of wall and 20 psf of wind.
inline StudEntry PlainStud()
{
    StudEntry stud;
    stud.WindStudHt = "10";
    stud.WindStudSpacing = "16";
    stud.DepthCombo = 1;
    stud.WindStudCombo = "DF-L #2";
    stud.WindStudFb = "900";
    stud.WindStudFc = "1350";
    stud.WindStudE = "1.6";
    stud.AxialPLFtextbox = "600";
    stud.Wind[0] = "20";
    stud.Beg[0] = "0";
    stud.End[0] = "10";
    return stud;
}

}  // namespace kordavan
