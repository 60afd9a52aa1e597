#include "Chapters.h"

namespace kordavan::Verification {

namespace {

Example GarageBeam()
{
    return {
        "Garage beam S1: W 12x 22, A36, 20 ft, 720 plf, top braced at 1.33 ft",
        "AISC Specification for Structural Steel Buildings, Allowable Stress Design, 1989 (9th edition of the Manual): "
        "F1.1 (0.66 Fy up to Lc), F4 (0.40 Fy). Lc and Lu from the shape's own flange, bf = 4.03 and tf = 0.425 in.; "
        "the catalogue has them in tenths of a foot.",
        {{"",
          R"({"task":"beam","criteria":{"Span":"20","UNIF":"720","LUNIF":"480","UBLtext":"1.33","Combo1":9,)"
          R"("WFbutton":true},"member":{"ShapeName":"W 12x 22"}})",
          "w = 720 plf, L = 20 ft, d = 12.31 in., tw = 0.26 in., bf = 4.03 in., tf = 0.425 in., I = 156 in4",
          {{"Section by 2 I / d, in3", "2 x I / d", "steel.ActualS", 0.3},
           {"Reactions, lb", "R = (w + 22) x L / 2", "steel.Reaction1"},
           {"Moment, ft-lb", "M = (w + 22) x L^2 / 8", "steel.MaxMoment"},
           {"Lc, ft", "min(76 x bf / sqrt(36), 20000 / (d / (bf x tf) x 36)) / 12", "steel.MaxUnbracedText",
            1.2},
           {"Fb = 0.66 Fy, psi", "Fb = 0.66 x 36000", "steel.FbAllowed"},
           {"Section required, in3", "M x 12 / Fb", "steel.RequiredS"},
           {"Shear stress, psi", "R / (d x tw)", "steel.ShearStress"},
           {"Fv = 0.40 Fy, psi", "0.4 x 36000", "steel.FvAllowed"},
           {"Live deflection, in.", "DL = 5 x 480 / 12 x (12 x L)^4 / (384 x 29000000 x I)",
            "test.LiveDeflection", 0.2},
           {"Total deflection, in., without creep", "DL x (w + 22) / 480", "test.TotalDeflection", 0.2}}}}};
}

Example SteelRegimes()
{
    return {
        "Allowable bending by grade, family and unbraced length",
        "AISC ASD F1.1, F1.3: 0.66 Fy up to Lc, 0.60 Fy up to Lu (equation F1-8, for Cb = 1), tubes 0.60 Fy. Beyond Lu "
        "the program does not compute and says so. Flitch plates weigh with the 2x10 plies beside them.",
        {{"W 12x 22, A36, 6 ft",
          R"({"task":"beam","criteria":{"Span":"20","UNIF":"600","UBLtext":"6","Combo1":9,"WFbutton":true},)"
          R"("member":{"ShapeName":"W 12x 22"}})",
          "",
          {{"Lu, ft", "20000 / (12.31 / (4.03 x 0.425) x 36) / 12", "steel.MaxUnbracedText", 0.8},
           {"Fb, psi", "0.6 x 36000", "steel.FbAllowed"}}},
         {"W 12x 22, 50 ksi, 3.5 ft",
          R"({"task":"beam","criteria":{"Span":"20","UNIF":"600","UBLtext":"3.5","Combo1":9,"WFbutton":true,)"
          R"("ksi50":true},"member":{"ShapeName":"W 12x 22"}})",
          "",
          {{"Lc, ft", "76 x 4.03 / sqrt(50) / 12", "steel.MaxUnbracedText", 0.8},
           {"Fb, psi", "0.66 x 50000", "steel.FbAllowed"},
           {"Fv, psi", "0.4 x 50000", "steel.FvAllowed"}}},
         {"S 8x 18.4, A36, 3 ft",
          R"({"task":"beam","criteria":{"Span":"12","UNIF":"500","UBLtext":"3","Combo1":9,"SFbutton":true},)"
          R"("member":{"ShapeName":"S 8x 18.4"}})",
          "",
          {{"Lc, ft", "76 x 4.001 / sqrt(36) / 12", "steel.MaxUnbracedText", 0.8},
           {"Section by 2 I / d, in3", "2 x 57.6 / 8", "steel.ActualS"}}},
         {"C 10x 15.3, A36, 2 ft",
          R"({"task":"beam","criteria":{"Span":"14","UNIF":"600","UBLtext":"2","Combo1":9,"CFbutton":true},)"
          R"("member":{"ShapeName":"C 10x 15.3"}})",
          "",
          {{"Lu, ft", "20000 / (10 / (2.6 x 0.436) x 36) / 12", "steel.MaxUnbracedText", 1.0},
           {"Fb, psi", "0.6 x 36000", "steel.FbAllowed"}}},
         {"T 8x 4x 1/4, A500 B",
          R"({"task":"beam","criteria":{"Span":"14","UNIF":"600","UBLtext":"0","Combo1":9,"TUbutton":true},)"
          R"("member":{"ShapeName":"T 8x 4x 1/4"}})",
          "",
          {{"Fb, psi", "0.6 x 46000", "steel.FbAllowed"},
           {"Web area, two walls, in2", "2 x 8 x 0.25", "steel.WebArea"},
           {"Section by 2 I / d, in3", "2 x 45.1 / 8", "steel.ActualS", 0.3}}},
         {"PL 9x 1/2, A36",
          R"({"task":"beam","criteria":{"Span":"14","UNIF":"300","UBLtext":"0","Combo1":9,"PLbutton":true},)"
          R"("member":{"ShapeName":"PL 9x 1/2"}})",
          "",
          {{"Section, in3", "0.5 x 9^2 / 6", "steel.ActualS"},
           {"Weight with two plies, plf", "0.5 x 9 x 490 / 144 + 2 x 1.5 x 9.25 x 0.243", "steel.SelfWeight",
            0.1},
           {"Fb, psi", "0.66 x 36000", "steel.FbAllowed"}}},
         {"(2) PL 9x 1/2, A36",
          R"({"task":"beam","criteria":{"Span":"14","UNIF":"300","UBLtext":"0","Combo1":9,"DblPLbutton":true},)"
          R"("member":{"ShapeName":"(2) PL 9x 1/2"}})",
          "",
          {{"Section, in3", "2 x 0.5 x 9^2 / 6", "steel.ActualS"},
           {"Weight with three plies, plf", "2 x 0.5 x 9 x 490 / 144 + 3 x 1.5 x 9.25 x 0.243",
            "steel.SelfWeight", 0.1}}}}};
}

Example SteelBearing()
{
    return {
        "Bearing lengths, W 12x 22 (d = 12.31, tw = 0.26, tf = 0.425, k = 0.875 in.), weight left out",
        "AISC ASD K1.3, K1.4. Web yielding: R = 0.66 Fy (N + 5 k) tw at an interior support, 2.5 k at an end. Web "
        "crippling: R = c tw^2 (1 + 3 (N / d) (tw / tf)^1.5) sqrt(Fy tf / tw), c = 67.5 and 34. The larger N counts, at "
        "least k. The program writes c sqrt(Fy) as a whole number, which differs at 50 ksi, and divides by 23.76 instead "
        "of 33 for yielding at an interior support of 50 ksi steel, which asks for more length.",
        {{"End, 30 kips, A36",
          R"({"task":"beam","criteria":{"Span":"8","UNIF":"7500","UBLtext":"0","Combo1":9,"WFbutton":true,)"
          R"("NoWeight":true},"member":{"ShapeName":"W 12x 22"}})",
          "R = 30 kips, d = 12.31 in., tw = 0.26 in., tf = 0.425 in., k = 0.875 in.",
          {{"N by yielding, in.", "Ny = R / (0.66 x 36 x tw) - 2.5 x k"},
           {"N by crippling, in.",
            "Nc = (R / (34 x tw^2 x sqrt(36 x tf / tw)) - 1) x d / (3 x (tw / tf)^1.5)"},
           {"Bearing length, in.", "max(Ny, Nc, k)", "steel.BearingR1"}}},
         {"End, 30 kips, 50 ksi",
          R"({"task":"beam","criteria":{"Span":"8","UNIF":"7500","UBLtext":"0","Combo1":9,"WFbutton":true,)"
          R"("NoWeight":true,"ksi50":true},"member":{"ShapeName":"W 12x 22"}})",
          "R = 30 kips, d = 12.31 in., tw = 0.26 in., tf = 0.425 in., k = 0.875 in.",
          {{"N by yielding, in.", "Ny = R / (0.66 x 50 x tw) - 2.5 x k"},
           {"N by crippling, in.",
            "Nc = (R / (34 x tw^2 x sqrt(50 x tf / tw)) - 1) x d / (3 x (tw / tf)^1.5)"},
           {"Bearing length, in.", "max(Ny, Nc, k)", "steel.BearingR1", 1.0}}},
         {"Interior, 75 kips, A36",
          R"({"task":"beam","criteria":{"Span":"6","UNIF":"10000","UBLtext":"0","Combo1":9,"WFbutton":true,)"
          R"("NoWeight":true,"Multibutton":true,"TwoSpan":true},"member":{"ShapeName":"W 12x 22"}})",
          "R = 75 kips, d = 12.31 in., tw = 0.26 in., tf = 0.425 in., k = 0.875 in.",
          {{"N by yielding, in.", "Ny = R / (0.66 x 36 x tw) - 5 x k"},
           {"N by crippling, in.",
            "Nc = (R / (67.5 x tw^2 x sqrt(36 x tf / tw)) - 1) x d / (3 x (tw / tf)^1.5)"},
           {"Bearing length, in.", "max(Ny, Nc, k)", "steel.BearingR2"}}},
         {"Interior, 50 kips, 50 ksi",
          R"({"task":"beam","criteria":{"Span":"5","UNIF":"8000","UBLtext":"0","Combo1":9,"WFbutton":true,)"
          R"("NoWeight":true,"Multibutton":true,"TwoSpan":true,"ksi50":true},"member":{"ShapeName":"W 12x 22"}})",
          "R = 50 kips, d = 12.31 in., tw = 0.26 in., tf = 0.425 in., k = 0.875 in.",
          {{"N by yielding, in.", "Ny = R / (0.66 x 50 x tw) - 5 x k"},
           {"N by yielding, over 23.76", "Nw = (R - 165 x k x tw) / (23.76 x tw)"},
           {"N by crippling, in.",
            "Nc = (R / (67.5 x tw^2 x sqrt(50 x tf / tw)) - 1) x d / (3 x (tw / tf)^1.5)"},
           {"Bearing length by the AISC, in.", "max(Ny, Nc, k)", "steel.BearingR2", 12},
           {"Bearing length with 23.76, in.", "max(Nw, Nc, k)", "steel.BearingR2", 1.0}}},
         {"PL 9x 1/2, 4500 lb",
          R"({"task":"beam","criteria":{"Span":"10","UNIF":"900","UBLtext":"0","Combo1":9,"PLbutton":true,)"
          R"("NoWeight":true},"member":{"ShapeName":"PL 9x 1/2"}})",
          "",
          {{"Bearing area on wood of 405 psi, in2", "4500 / 405", "steel.BearingR1"}}}}};
}

}  // namespace

Chapter SteelBeamChapter()
{
    return {"Steel beams",
            "Sections and flanges are those of the AISC Manual, 9th edition.",
            {GarageBeam(), SteelRegimes(), SteelBearing()}};
}

}  // namespace kordavan::Verification
