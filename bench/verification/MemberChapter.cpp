#include "Chapters.h"
#include "Steps.h"

namespace kordavan::Verification {

namespace {

Example TimberGirder()
{
    return {
        "Timber girder T1: 6x12 DF-L #1 under NDS 1997, 9 ft, 1050 plf",
        "NDS 1997, 3.4 and Supplement Table 4D. The girder fails in shear and is accepted without splits: CH = 2, "
        "with Fv = 90 psi as the program has it.",
        {{"",
          R"({"task":"beam","edition":"1997","criteria":{"Span":"9","UNIF":"1050","LUNIF":"700"},)"
          R"("member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "w = 1050 plf, L = 9 ft, b = 5.5 in., d = 11.5 in., E = 1600000 psi",
          {{"Self-weight, plf", "s = b x d x 0.243", "analysis.SelfWeightPlf"},
           {"Reactions, lb", "R = (w + s) x L / 2", "analysis.R1Total"},
           {"Moment, ft-lb", "M = (w + s) x L^2 / 8", "analysis.MaxMomentFtLb"},
           {"Section required, in3", "M x 12 / 1350", "analysis.SectionRequired"},
           {"Section of the girder, in3", "b x d^2 / 6", "test.SectionProp"},
           {"Shear stress, psi, above 85", "1.5 x R / (b x d)", "test.ActualShearStress"},
           {"Fv' without splits, psi", "Fv' = 2 x 90", "test.FvAdj"},
           {"Area required without splits, in2", "1.5 x R / Fv'", "test.AreaReq"},
           {"Live deflection, in.", "DL = 5 x 700 / 12 x (12 x L)^4 / (384 x E x b x d^3 / 12)",
            "analysis.LiveDeflIn", 0.2},
           {"Total with creep, in.", "DL + DL x (350 + s) / 700 x 1.5", "analysis.TotalDeflIn", 0.2}}}}};
}

Example GlulamRidge()
{
    return {
        "Glulam ridge beam R1: 5-1/8x18 24F-V4 DF/DF, 24 ft, 560 plf, snow, braced at 2 ft",
        "NDS 3.3.3, 3.4 and 5.3, Supplement Table 5A.",
        {{"",
          R"({"task":"beam","criteria":{"Span":"24","UNIF":"560","LUNIF":"350","Dur":"1.15","UBLtext":"2"},)"
          R"("member":{"BreadthText":"5-1/8x","DepthText":"18","SpeciesText":"GLB 24F-V4 DF/DF"}})",
          "w = 560 plf, L = 24 ft, b = 5.125 in., d = 18 in., E = 1800000 psi",
          {{"Self-weight, plf", "s = b x d x 0.243", "analysis.SelfWeightPlf"},
           {"Reactions, lb", "R = (w + s) x L / 2", "analysis.R1Total"},
           {"Moment, ft-lb", "M = (w + s) x L^2 / 8", "analysis.MaxMomentFtLb"},
           {"Rb", "Rb = sqrt(2.06 x 24 x d / b^2)", "stability.Rb"},
           {"FbE / Fb*", "A = 1.2 x 0.5285 x E / Rb^2 / (2400 x 1.15)", "stability.FbEOverFbStar"},
           {"CL", CLStep, "factors.CL"},
           {"CV", "CV = (21 / L x 12 / d x 5.125 / b)^0.1", "factors.Cv"},
           {"Fb', psi", "Fb' = 2400 x 1.15 x min(CL, CV)", "adjusted.FbAdj"},
           {"Section required, in3", "M x 12 / Fb'", "test.SectionReq"},
           {"Section of the beam, in3", "b x d^2 / 6", "test.SectionProp"},
           {"Shear stress, psi", "1.5 x R / (b x d)", "test.ActualShearStress"},
           {"Fv', psi", "240 x 1.15", "test.FvAdj"},
           {"Live deflection, in.", "DL = 5 x 350 / 12 x (12 x L)^4 / (384 x E x b x d^3 / 12)",
            "test.LiveDeflection", 0.2},
           {"Total with creep, in.", "DL + DL x (210 + s) / 350 x 1.5", "test.TotalDeflection", 0.2}}}}};
}

Example CompositeGirder()
{
    return {
        "Composite girder C1: three plies of 1-3/4x11-7/8, Fb 2600, Fv 285, E 1.9, 16 ft, 560 plf, braced at 1.33 ft",
        "Maker's rules: size factor (12 / d)^0.136, 37 lb per cubic foot; NDS 3.3.3 with the COV of sawn lumber, 0.25. "
        "Composite lumber has a COV near 0.10, so FbE is on the safe side.",
        {{"",
          R"({"task":"beam","criteria":{"Span":"16","UNIF":"560","LUNIF":"400","UBLtext":"1.33","Combo1":7},)"
          R"("member":{"Product":2,"BreadthText":"(3) 1-3/4x","DepthText":"11-7/8","Fb":"2600","Fv":"285",)"
          R"("E":"1.9","FcPerp":"750"}})",
          "w = 560 plf, L = 16 ft, b = 5.25 in., d = 11.875 in., E = 1900000 psi",
          {{"Self-weight, plf", "s = b x d / 144 x 37", "analysis.SelfWeightPlf", 0.003},
           {"Reactions, lb", "R = (w + s) x L / 2", "analysis.R1Total"},
           {"Moment, ft-lb", "M = (w + s) x L^2 / 8", "analysis.MaxMomentFtLb"},
           {"Size factor", "CF = (12 / d)^0.136", "factors.SizeFactor"},
           {"Rb", "Rb = sqrt(2.06 x 15.96 x d / b^2)", "stability.Rb"},
           {"FbE / Fb*", "A = 1.2 x 0.3653 x E / Rb^2 / 2600", "stability.FbEOverFbStar"},
           {"CL", CLStep, "factors.CL"},
           {"Fb', psi", "Fb' = 2600 x CF x CL", "adjusted.FbAdj"},
           {"Section required, in3", "M x 12 / Fb'", "test.SectionReq", 0.002},
           {"Shear stress, psi", "1.5 x R / (b x d)", "test.ActualShearStress"},
           {"Live deflection, in.", "5 x 400 / 12 x (12 x L)^4 / (384 x E x b x d^3 / 12)",
            "test.LiveDeflection", 0.2}}}}};
}

Example RoundBeam()
{
    return {
        "Log beam L1: 8 in. round, Fb 900, Fv 130, E 1.1, 12 ft, 160 plf, snow",
        "NDS 3.2, 3.4 with the section of a circle; shear 4 V / 3 A. The form factor 1.18 belongs to NDS 1997 and 2001.",
        {{"NDS 2018",
          R"({"task":"beam","criteria":{"Span":"12","UNIF":"160","LUNIF":"110","Dur":"1.15","Combo1":8},)"
          R"("member":{"SpeciesText":"Peeled lodgepole, No. 2","Fb":"900","Fv":"130","E":"1.1","FcPerp":"425",)"
          R"("Roundoption":true,"Diam":"8"}})",
          "w = 160 plf, L = 12 ft, D = 8 in., E = 1100000 psi",
          {{"Area, in2", "A = pi x D^2 / 4", "test.AreaProp"},
           {"Section, in3", "pi x D^3 / 32", "test.SectionProp"},
           {"Self-weight, plf", "s = A x 0.243", "analysis.SelfWeightPlf"},
           {"Moment, ft-lb", "M = (w + s) x L^2 / 8", "analysis.MaxMomentFtLb"},
           {"Fb', psi", "900 x 1.15", "adjusted.FbAdj"},
           {"Section required, in3", "M x 12 / (900 x 1.15)", "test.SectionReq"},
           {"Shear stress, psi", "4 / 3 x (w + s) x L / 2 / A", "test.ActualShearStress"},
           {"Live deflection, in.", "5 x 110 / 12 x (12 x L)^4 / (384 x E x pi x D^4 / 64)",
            "test.LiveDeflection", 0.2}}},
         {"NDS 2001",
          R"({"task":"beam","edition":"2001","criteria":{"Span":"12","UNIF":"160","Dur":"1.15","Combo1":8},)"
          R"("member":{"SpeciesText":"Peeled lodgepole, No. 2","Fb":"900","Fv":"130","E":"1.1","FcPerp":"425",)"
          R"("Roundoption":true,"Diam":"8"}})",
          "",
          {{"Fb', psi", "900 x 1.15 x 1.18", "adjusted.FbAdj"}}}}};
}

Example WoodBearing()
{
    return {
        "Bearing areas on the Data Record",
        "NDS 3.10.2: R / Fc-perp', shown in tenths of a square inch, so a figure may lie half a tenth off.",
        {{"F1, 2x10 DF-L #2",
          R"({"task":"beam","record":true,"criteria":{"Span":"13.5","UNIF":"52","LUNIF":"40","Rep":true,"Ctr16":true},)"
          R"("member":{"BreadthText":"2x","DepthText":"10","SpeciesText":"DF-L #2"}})",
          "",
          {{"R1 area, in2", "490.75 / 625", "record.Label71", 6.5}}},
         {"R1, glulam 5-1/8x18",
          R"({"task":"beam","record":true,"criteria":{"Span":"24","UNIF":"560","LUNIF":"350","Dur":"1.15",)"
          R"("UBLtext":"2"},"member":{"BreadthText":"5-1/8x","DepthText":"18","SpeciesText":"GLB 24F-V4 DF/DF"}})",
          "",
          {{"R1 area, in2", "6989.0 / 650", "record.Label71", 0.5},
           {"R2 area, in2", "6989.0 / 650", "record.Label133", 0.5}}},
         {"4x8 HF #2, wet",
          R"({"task":"beam","record":true,"criteria":{"Span":"8","UNIF":"1000","Wet":true,"NoWeight":true},)"
          R"("member":{"BreadthText":"4x","DepthText":"8","SpeciesText":"HF #2"}})",
          "",
          {{"R1 area, in2", "4000 / (405 x 0.67)", "record.Label71", 0.4}}}}};
}

}  // namespace

Chapter MemberChapter()
{
    return {"Wood members from load to verdict",
            "Each begins at the loads and ends at what the test report shows.",
            {TimberGirder(), GlulamRidge(), CompositeGirder(), RoundBeam(), WoodBearing()}};
}

}  // namespace kordavan::Verification
