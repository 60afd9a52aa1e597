#include "Chapters.h"
#include "Steps.h"

namespace kordavan::Verification {

namespace {

const std::string InteractionFormula = "(fc / Fc')^2 + fb / (Fb' x (1 - fc / FcE))";

Example ExteriorStud()
{
    return {
        "2x6 DF-L #2 at 16 in., 10 ft, 600 plf of wall and 20 psf of wind, NDS 2018",
        "NDS 3.9.2, equation 3.9-3, face braced by sheathing. The axial part keeps the duration factor of its own load, "
        "1.0, and not that of the wind, 1.6, which NDS 2.3.2 would allow for both; that is on the safe side.",
        {{"",
          R"({"task":"stud","stud":{"WindStudHt":"10","WindStudSpacing":"16","BreadthCombo":0,"DepthCombo":1,)"
          R"("WindStudCombo":"DF-L #2","AxialPLFtextbox":"600","WindA":"20","BegA":"0","EndA":"10"}})",
          "H = 10 ft, b = 1.5 in., d = 5.5 in., E = 1600000 psi",
          {{"Axial load, lb", "P = 600 x 16 / 12", "result.P"},
           {"Wind, plf", "w = 20 x 16 / 12"},
           {"Moment, ft-lb", "M = w x H^2 / 8", "result.MaxMoment"},
           {"fb, psi", "fb = M x 12 / (b x d^2 / 6)", "result.FbActual"},
           {"Fb', psi", "Fb' = 900 x 1.3 x 1.6", "result.FbPrime"},
           {"Fc*, psi", "Fc* = 1350 x 1.1", "result.FcStar"},
           {"FcE, psi", "FcE = 0.822 x E x (1 - 1.645 x 0.25) x 1.03 / 1.66 / (12 x H / d)^2", "result.FcE",
            0.01},
           {"FcE / Fc*", "A = FcE / Fc*"},
           {"Cp", CpStep, "result.Cp", 0.01},
           {"Fc', psi", "Fc' = Fc* x Cp", "result.FcPrime", 0.01},
           {"fc, psi", "fc = P / (b x d)", "result.FcActual"},
           {"Interaction, at most 1", InteractionFormula, "result.Interaction", 0.01},
           {"RB", "RB = sqrt(12 x H x d / b^2)", "result.RB"},
           {"FbE, psi", "1.2 x E x (1 - 1.645 x 0.25) x 1.03 / 1.66 / RB^2", "result.FbE", 0.01},
           TextRow("Verdict", "0.33 is below 1, fb below FbE", "result.Status", "Adequate")}}}};
}

Example TallStud()
{
    return {
        "2x6 HF #2 at 24 in., 14 ft, wind on the upper 8 ft alone, repetitive, NDS 1997",
        "The peak of a partial load is found at one of 201 stations.",
        {{"",
          R"({"task":"stud","edition":"1997","stud":{"WindStudHt":"14","WindStudSpacing":"24","BreadthCombo":0,)"
          R"("DepthCombo":1,"WindStudCombo":"Custom","WindStudFb":"850","WindStudFc":"1250","WindStudE":"1.3",)"
          R"("AxialPointTextbox":"900","WindA":"18","BegA":"6","EndA":"14","RepWindStud":true}})",
          "H = 14 ft, b = 1.5 in., d = 5.5 in., E = 1300000 psi",
          {{"Wind, plf", "w = 18 x 24 / 12"},
           {"Reaction at the base, lb", "R1 = w x 8 x 4 / H", "result.R1"},
           {"Moment at 6 + R1 / w, ft-lb", "M = R1 x (6 + R1 / (2 x w))", "result.MaxMoment", 0.01},
           {"fb, psi", "fb = M x 12 / (b x d^2 / 6)", "result.FbActual", 0.01},
           {"Fb', psi", "Fb' = 850 x 1.3 x 1.6 x 1.15", "result.FbPrime"},
           {"Fc*, psi", "Fc* = 1250 x 1.1", "result.FcStar"},
           {"FcE, psi", "FcE = 0.3 x E / (12 x H / d)^2", "result.FcE"},
           {"FcE / Fc*", "A = FcE / Fc*"},
           {"Cp", CpStep, "result.Cp"},
           {"Fc', psi", "Fc' = Fc* x Cp", "result.FcPrime"},
           {"fc, psi", "fc = 900 / (b x d)", "result.FcActual"},
           {"Interaction", InteractionFormula, "result.Interaction", 0.01}}}}};
}

}  // namespace

Chapter StudChapter()
{
    return {"Studs under axial load and wind", "", {ExteriorStud(), TallStud()}};
}

}  // namespace kordavan::Verification
