#include "Chapters.h"
#include "Steps.h"

namespace kordavan::Verification {

namespace {

Example FloorJoist()
{
    return {
        "Floor joist F1: 2x10 DF-L #2 at 16 in., 13.5 ft, 40 psf live and 12 psf dead",
        "Simple beam, uniform load: American Wood Council, Design Aid No. 6, and AISC Manual, 9th edition, Beam "
        "Diagrams and Formulas. A spacing of 16 in. counts as 1.3333 ft, and wood of 35 lb per cubic foot as 0.243 lb "
        "per square inch and foot; both are the program's own digits. Deflections: the program writes 5/384 as 0.013, "
        "which is 0.16 % less.",
        {{"",
          R"({"task":"beam","criteria":{"Span":"13.5","UNIF":"52","LUNIF":"40","Rep":true,"Ctr16":true},)"
          R"("member":{"BreadthText":"2x","DepthText":"10","SpeciesText":"DF-L #2"}})",
          "L = 13.5 ft, b = 1.5 in., d = 9.25 in., E = 1600000 psi",
          {{"Total load, plf", "w = 52 x 16 / 12", "criteria.UNIF", 0.003},
           {"Live load, plf", "wL = 40 x 16 / 12", "criteria.LUNIF", 0.003},
           {"Self-weight, plf", "s = b x d / 144 x 35", "analysis.SelfWeightPlf", 0.03},
           {"Reactions, lb", "R = (w + s) x L / 2", "analysis.R1Total", 0.005},
           {"Moment, ft-lb", "M = (w + s) x L^2 / 8", "analysis.MaxMomentFtLb", 0.005},
           {"Fb', psi", "Fb' = 900 x 1.1 x 1.15", "adjusted.FbAdj"},
           {"Section required, in3", "M x 12 / Fb'", "analysis.SectionRequired", 0.005},
           {"Section of the joist, in3", "b x d^2 / 6", "test.SectionProp"},
           {"Shear stress, psi", "1.5 x R / (b x d)", "test.ActualShearStress", 0.005},
           {"Area required, in2", "1.5 x R / 180", "analysis.AreaRequired", 0.005},
           {"Moment of inertia, in4", "I = b x d^3 / 12"},
           {"Live deflection, in.", "DL = 5 x wL / 12 x (12 x L)^4 / (384 x E x I)", "analysis.LiveDeflIn",
            0.2},
           {"Dead deflection with creep, in.", "DD = DL x (w - wL + s) / wL x 1.5", "analysis.DeadDeflIn",
            0.2},
           {"Total deflection, in.", "DL + DD", "analysis.TotalDeflIn", 0.2}}}}};
}

Example PointLoads()
{
    return {
        "Point loads on a 10 ft span, weight of the beam left out, 6x12 DF-L #1",
        "AISC Manual, 9th edition, Beam Diagrams and Formulas: concentrated load at centre, at any point, two equal loads "
        "symmetrically placed, two unequal loads. The loads stand on stations, so the moments are exact. A deflection "
        "by the equivalent uniform load differs; how far is told at the end of this manual.",
        {{"1000 lb at midspan",
          R"({"task":"beam","criteria":{"Span":"10","PT":["1000"],"LPT":["1000"],"DIS":["5"],"NoWeight":true},)"
          R"("member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "P = 1000 lb, L = 10 ft, EI = 1115308333 lb-in2",
          {{"R1, lb", "P / 2", "analysis.R1Total"},
           {"Moment, ft-lb", "P x L / 4", "analysis.MaxMomentFtLb"},
           {"Deflection, in.", "P x (12 x L)^3 / (48 x EI)", "analysis.LiveDeflIn", 1.0}}},
         {"3200 lb at 4 ft",
          R"({"task":"beam","criteria":{"Span":"10","PT":["3200"],"LPT":["3200"],"DIS":["4"],"NoWeight":true},)"
          R"("member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "P = 3200 lb, a = 4 ft, L = 10 ft, EI = 1115308333 lb-in2",
          {{"R1, lb", "P x (L - a) / L", "analysis.R1Total"},
           {"R2, lb", "P x a / L", "analysis.R2Total"},
           {"Moment, ft-lb", "P x a x (L - a) / L", "analysis.MaxMomentFtLb"},
           {"Deflection, in.", "P x a x ((L^2 - a^2) / 3)^1.5 / (3 x L) x 1728 / EI", "analysis.LiveDeflIn",
            1.0}}},
         {"1000 lb at 2 and 8 ft",
          R"({"task":"beam","criteria":{"Span":"10","PT":["1000","1000"],"LPT":["1000","1000"],"DIS":["2","8"],)"
          R"("NoWeight":true},"member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "P = 1000 lb, a = 2 ft, L = 10 ft, EI = 1115308333 lb-in2",
          {{"R1, lb", "P", "analysis.R1Total"},
           {"Moment, ft-lb", "P x a", "analysis.MaxMomentFtLb"},
           {"Deflection, in.", "P x a x (3 x L^2 - 4 x a^2) x 1728 / (24 x EI)", "analysis.LiveDeflIn", 12}}},
         {"1000 lb at 3, 600 lb at 8 ft",
          R"({"task":"beam","criteria":{"Span":"10","PT":["1000","600"],"DIS":["3","8"],"NoWeight":true},)"
          R"("member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "L = 10 ft",
          {{"R1, lb", "R1 = (1000 x 7 + 600 x 2) / L", "analysis.R1Total"},
           {"R2, lb", "R2 = (1000 x 3 + 600 x 8) / L", "analysis.R2Total"},
           {"Moment at 3 ft, ft-lb", "R1 x 3", "analysis.MaxMomentFtLb"}}}}};
}

Example PartialLoads()
{
    return {
        "Partial uniform loads on a 10 ft span, weight of the beam left out",
        "AISC Manual, 9th edition, Beam Diagrams and Formulas: uniform load partially distributed, at one end, at each "
        "end. A peak between two of the 201 stations is missed by a hair.",
        {{"200 plf from 2 to 6 ft",
          R"({"task":"beam","criteria":{"Span":"10","PAR":["200"],"BEGP":["2"],"ENDP":["6"],"NoWeight":true},)"
          R"("member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "w = 200 plf, L = 10 ft, a = 2 ft, b = 4 ft, c = 4 ft",
          {{"R1, lb", "R1 = w x b / (2 x L) x (2 x c + b)", "analysis.R1Total"},
           {"R2, lb", "w x b / (2 x L) x (2 x a + b)", "analysis.R2Total"},
           {"Moment, ft-lb", "R1 x (a + R1 / (2 x w))", "analysis.MaxMomentFtLb", 0.01}}},
         {"300 plf from 0 to 3 ft",
          R"({"task":"beam","criteria":{"Span":"10","PAR":["300"],"BEGP":["0"],"ENDP":["3"],"NoWeight":true},)"
          R"("member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "w = 300 plf, L = 10 ft, a = 3 ft",
          {{"R1, lb", "R1 = w x a / (2 x L) x (2 x L - a)", "analysis.R1Total"},
           {"R2, lb", "w x a^2 / (2 x L)", "analysis.R2Total"},
           {"Moment, ft-lb", "R1^2 / (2 x w)", "analysis.MaxMomentFtLb", 0.01}}},
         {"400 plf to 2 ft, 100 plf from 7 ft",
          R"({"task":"beam","criteria":{"Span":"10","PAR":["400","100"],"BEGP":["0","7"],"ENDP":["2","10"],)"
          R"("NoWeight":true},"member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "L = 10 ft",
          {{"R1, lb", "R1 = (400 x 2 x 9 + 100 x 3 x 1.5) / L", "analysis.R1Total"},
           {"R2, lb", "(400 x 2 x 1 + 100 x 3 x 8.5) / L", "analysis.R2Total"},
           {"Moment, ft-lb", "R1^2 / (2 x 400)", "analysis.MaxMomentFtLb", 0.01}}}}};
}

Example TriangularLoad()
{
    return {
        "Hip over a bay of 10 by 10 ft, 40 psf on two quarters of its plan: a load that rises from 0",
        "AISC Manual, 9th edition, Beam Diagrams and Formulas: load increasing uniformly to one end. The tool works "
        "with a uniform load of equal moment, so the deflection comes out 2.3 % high, on the safe side. The span is "
        "the diagonal of the bay, rounded to 14.14 ft.",
        {{"",
          R"({"task":"beam","criteria":{"IncButton":true,"IncTL":"40","IncLL":"40","Trib1":"10","Trib2":"10",)"
          R"("Areas":[true,true],"CalctheSpan":true,"NoWeight":true},)"
          R"("member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "L = 14.14 ft, EI = 1115308333 lb-in2",
          {{"Whole load, lb", "W = 40 x 10 x 10 x 2 / 4", "analysis.IncreasingTotalLoad"},
           {"R1, lb", "W / 3", "analysis.R1Total"},
           {"R2, lb", "2 x W / 3", "analysis.R2Total"},
           {"Moment, ft-lb", "2 x W x L / (9 x sqrt(3))", "analysis.MaxMomentFtLb", 0.01},
           {"Deflection, in.", "0.01304 x W x (12 x L)^3 / EI", "analysis.LiveDeflIn", 2.5}}}}};
}

Example Overhangs()
{
    return {
        "Overhanging beams of 10 ft with 4 ft over the second support, weight left out",
        "AISC Manual, 9th edition, Beam Diagrams and Formulas: beam overhanging one support, load at end of overhang, "
        "uniform load between supports, uniform load on the overhang. A lift of the span has a minus. The tip under a "
        "partial load comes out far too low (chapter 11); half of that load entered as a point load at the tip gives the "
        "same moment and, a little high, the tip.",
        {{"1000 lb at the tip",
          R"({"task":"beam","criteria":{"Span":"10","OHbutton":true,"PT":["","","","","1000"],)"
          R"("LPT":["","","","","1000"],"DIS":["","","","","4"],"NoWeight":true,"UBLtext":"0","CantUBLtext":"0"},)"
          R"("member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "P = 1000 lb, L = 10 ft, a = 4 ft, EI = 1115308333 lb-in2",
          {{"R1, lb (uplift)", "-P x a / L", "analysis.R1Total"},
           {"R2, lb", "P x (L + a) / L", "analysis.R2Total"},
           {"Moment at R2, ft-lb", "P x a", "analysis.OverhangMomentTotal"},
           {"Deflection of the tip, in.", "P x a^2 x (L + a) x 1728 / (3 x EI)", "analysis.TipLiveDeflIn"},
           {"Lift of the span, in.", "-P x a x L^2 x 1728 / (9 x sqrt(3) x EI)", "analysis.LiveDeflIn",
            0.02}}},
         {"200 plf between supports",
          R"({"task":"beam","criteria":{"Span":"10","OHbutton":true,"UNIF":"200","LUNIF":"200",)"
          R"("PT":["","","","","1"],"DIS":["","","","","4"],"NoWeight":true,"UBLtext":"0","CantUBLtext":"0"},)"
          R"("member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "w = 200 plf, L = 10 ft, a = 4 ft, EI = 1115308333 lb-in2",
          {{"R1 of the live load, lb", "w x L / 2", "analysis.R1Live"},
           {"Deflection of the span, in.", "5 x w / 12 x (12 x L)^4 / (384 x EI)", "analysis.LiveDeflIn",
            0.2},
           {"Lift of the tip, in.", "-w x L^3 x a x 1728 / (24 x EI)", "analysis.TipLiveDeflIn"}}},
         {"100 plf on the overhang",
          R"({"task":"beam","criteria":{"Span":"10","OHbutton":true,"PAR":["","","","100"],"BEGP":["","","","0"],)"
          R"("ENDP":["","","","4"],"NoWeight":true,"UBLtext":"0","CantUBLtext":"0"},)"
          R"("member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "w = 100 plf, L = 10 ft, a = 4 ft",
          {{"R1, lb (uplift)", "-w x a^2 / (2 x L)", "analysis.R1Total"},
           {"R2, lb", "w x a / (2 x L) x (2 x L + a)", "analysis.R2Total"},
           {"Moment at R2, ft-lb", "w x a^2 / 2", "analysis.OverhangMomentTotal"}}},
         {"The same tip, its load entered by half at the tip",
          R"({"task":"beam","criteria":{"Span":"10","OHbutton":true,"PT":["","","","","200"],)"
          R"("LPT":["","","","","200"],"DIS":["","","","","4"],"NoWeight":true,"UBLtext":"0","CantUBLtext":"0"},)"
          R"("member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "w = 100 plf, L = 10 ft, a = 4 ft, EI = 1115308333 lb-in2",
          {{"Moment at R2, ft-lb", "w x a^2 / 2", "analysis.OverhangMomentTotal"},
           {"Deflection of the tip, in.", "w x a^3 x (4 x L + 3 x a) x 1728 / (24 x EI)",
            "analysis.TipLiveDeflIn", 8}}}}};
}

Example DeckBeam()
{
    return {
        "Deck beam D1: 4x8 HF #2, 8 ft with a 3 ft overhang, 220 plf, wet, incised",
        "Statics as above, weight included; NDS 2018, 3.3.3, 4.3 and Supplement Table 4A. On an overhanging beam the "
        "program adds to the peak what the weight of the beam from the support to the peak makes, w x^2 / 2, one "
        "station short; the exact moment of the weight stands beside it and is larger here. See the end of this manual.",
        {{"",
          R"({"task":"beam","criteria":{"Span":"8","OHbutton":true,"UNIF":"220","LUNIF":"160",)"
          R"("PAR":["","","","220"],"LPAR":["","","","160"],"BEGP":["","","","0"],"ENDP":["","","","3"],)"
          R"("Wet":true,"Incised":true,"UBLtext":"1.33","CantUBLtext":"1.33"},)"
          R"("member":{"BreadthText":"4x","DepthText":"8","SpeciesText":"HF #2"}})",
          "w = 220 plf, L = 8 ft, a = 3 ft, b = 3.5 in., d = 7.25 in., lu = 15.96 in.",
          {{"Self-weight, plf", "s = b x d x 35 / 144", "analysis.SelfWeightPlf", 0.03},
           {"R1 applied, lb", "R1 = (w x L^2 / 2 - w x a^2 / 2) / L", "analysis.R1Applied"},
           {"R2 applied, lb", "w x (L + a) - R1", "analysis.R2Applied"},
           {"R1 with weight, lb", "R1 + s x (L^2 - a^2) / (2 x L)", "analysis.R1Total", 0.002},
           {"R2 with weight, lb", "w x (L + a) - R1 + s x (L + a)^2 / (2 x L)", "analysis.R2Total", 0.002},
           {"Moment at R2, ft-lb", "(w + s) x a^2 / 2", "analysis.OverhangMomentTotal", 0.002},
           {"Peak in the span, loads alone, ft-lb", "R1^2 / (2 x w)", "analysis.MaxMomentApplied", 0.01},
           {"The same with weight, exact", "(R1 + s x (L^2 - a^2) / (2 x L))^2 / (2 x (w + s))",
            "analysis.MaxMomentFtLb", 0.2},
           {"Fb x CF, psi: not above 1150, so wet factor 1.0", "850 x 1.3"},
           {"Fb* with incising, psi", "Fb* = 850 x 1.3 x 0.8", "adjusted.FbStar"},
           {"Le, in., as lu / d is below 7", "Le = 2.06 x lu", "stability.LeIn"},
           {"Rb", "Rb = sqrt(Le x d / b^2)", "stability.Rb"},
           {"E', million psi", "1.3 x 0.9 x 0.95", "adjusted.EAdj"},
           {"Emin' by NDS Appendix D, psi", "Em = 1300000 x (1 - 1.645 x 0.25) x 1.03 / 1.66 x 0.9 x 0.95"},
           {"FbE, psi", "FbE = 1.2 x Em / Rb^2", "stability.FbE", 0.01},
           {"FbE / Fb*", "A = FbE / Fb*", "stability.FbEOverFbStar", 0.01},
           {"CL", CLStep, "factors.CL"},
           {"Fb', psi", "Fb* x CL", "adjusted.FbAdj"},
           {"Fv', psi", "150 x 0.97 x 0.8", "adjusted.FvAdj"}}}}};
}

Example ContinuousBeams()
{
    return {
        "Girders over equal spans: G1 over two of 7.5 ft, G2 over three of 9 ft, weight included",
        "American Wood Council, Design Aid No. 6, and AISC Manual, 9th edition: continuous beams, two and three equal "
        "spans, all loaded. Deflections: the greatest in an end span, 0.0054 w L^4 / EI over two and 0.0069 over three "
        "spans.",
        {{"G1: 4x10 DF-L #2",
          R"({"task":"beam","criteria":{"Span":"7.5","Multibutton":true,"TwoSpan":true,"UNIF":"520","LUNIF":"400"},)"
          R"("member":{"BreadthText":"4x","DepthText":"10","SpeciesText":"DF-L #2"}})",
          "w = 520 plf, L = 7.5 ft, b = 3.5 in., d = 9.25 in., E = 1600000 psi",
          {{"Load with weight, plf", "q = w + b x d x 0.243"},
           {"R1, lb", "3 / 8 x q x L", "analysis.R1Total"},
           {"R2, lb", "10 / 8 x q x L", "analysis.R2Total"},
           {"Moment at R2, ft-lb", "M = q x L^2 / 8", "analysis.MaxMomentFtLb"},
           {"Shear at R2, lb", "V = 5 / 8 x q x L", "analysis.ShearMax"},
           {"Section required, in3", "M x 12 / (900 x 1.2)", "analysis.SectionRequired"},
           {"Area required, in2", "1.5 x V / 180", "analysis.AreaRequired"},
           {"Live deflection, in.", "0.0054 x 400 / 12 x (12 x L)^4 / (E x b x d^3 / 12)",
            "analysis.LiveDeflIn", 0.2}}},
         {"G2: 6x8 DF-L #1",
          R"({"task":"beam","criteria":{"Span":"9","Multibutton":true,"ThreeSpan":true,"UNIF":"416","LUNIF":"320"},)"
          R"("member":{"BreadthText":"6x","DepthText":"8","SpeciesText":"DF-L #1"}})",
          "w = 416 plf, L = 9 ft, b = 5.5 in., d = 7.5 in., E = 1600000 psi",
          {{"Load with weight, plf", "q = w + b x d x 0.243"},
           {"R1, lb", "0.4 x q x L", "analysis.R1Total"},
           {"R2, lb", "1.1 x q x L", "analysis.R2Total"},
           {"Moment at R2, ft-lb", "q x L^2 / 10", "analysis.MaxMomentFtLb"},
           {"Shear at R2, lb", "0.6 x q x L", "analysis.ShearMax"},
           {"Live deflection, in.", "0.0069 x 320 / 12 x (12 x L)^4 / (E x b x d^3 / 12)",
            "analysis.LiveDeflIn", 0.3}}}}};
}

Example SlopedRafter()
{
    return {
        "Rafter R2: 2x8 SPF #2 at 24 in., 11 ft level, slope 8 in 12, 20 psf snow and 17 psf dead",
        "A dead load per foot of slope weighs more per foot of plan by 1 / cos; the weight of the rafter likewise.",
        {{"",
          R"({"task":"beam","criteria":{"Span":"11","UNIF":"37","LUNIF":"20","Rep":true,"ctr24":true,"Dur":"1.25",)"
          R"("Roofbutton":true,"Pitchtext":"8","Combo1":4},)"
          R"("member":{"BreadthText":"2x","DepthText":"8","SpeciesText":"SPF #2"}})",
          "L = 11 ft, b = 1.5 in., d = 7.25 in.",
          {{"Length of slope over plan", "f = 1 / cos(atan(8 / 12))", "criteria.SlopeFactor"},
           {"Total load, plf", "w = 2 x (20 + 17 x f)", "criteria.UNIF", 0.01},
           {"Self-weight, plf", "s = b x d x 0.243 x f", "analysis.SelfWeightPlf"},
           {"Moment, ft-lb", "(w + s) x L^2 / 8", "analysis.MaxMomentFtLb", 0.01},
           {"Fb', psi", "875 x 1.2 x 1.15 x 1.25", "adjusted.FbAdj"}}}}};
}

Example ShearAtDepth()
{
    return {
        "Shear at the depth of the member from its support: 6x12 (d = 11.5 in.), 10 ft, weight left out",
        "NDS 3.4.3.1 leaves out uniform loads within d of a support; a point load within d is left out under NDS 1997 "
        "and counts by its distance over d since NDS 2001. The program takes the part that does not count off the reaction, which is "
        "the statical shear at d; the last row of each is the NDS with that load left out of its reaction too.",
        {{"300 plf, NDS 2018",
          R"({"task":"beam","criteria":{"Span":"10","UNIF":"300","Reducechk":true,"NoWeight":true},)"
          R"("member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "w = 300 plf, L = 10 ft, d = 0.95833333333 ft",
          {{"Shear at d, lb", "w x (L / 2 - d)", "analysis.ShearReduced"},
           {"Shear stress, psi", "1.5 x w x (L / 2 - d) / (5.5 x 11.5)", "test.ActualShearStress"}}},
         {"300 plf and 2000 lb at 0.5 ft, NDS 1997",
          R"({"task":"beam","edition":"1997","criteria":{"Span":"10","UNIF":"300","PT":["2000"],"DIS":["0.5"],)"
          R"("Reducechk":true,"NoWeight":true},"member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "w = 300 plf, P = 2000 lb, a = 0.5 ft, L = 10 ft, d = 0.95833333333 ft",
          {{"R1, lb", "R1 = w x L / 2 + P x (L - a) / L", "analysis.R1Total"},
           {"R2, lb", "R2 = w x L / 2 + P x a / L", "analysis.R2Total"},
           {"Shear at d, the larger end, lb", "max(R1 - P - w x d, R2 - w x d)", "analysis.ShearReduced"},
           {"NDS, load left out altogether, lb", "w x (L / 2 - d)", "analysis.ShearReduced", 10}}},
         {"300 plf and 4000 lb at 0.5 ft, NDS 2018",
          R"({"task":"beam","criteria":{"Span":"10","UNIF":"300","PT":["4000"],"DIS":["0.5"],)"
          R"("Reducechk":true,"NoWeight":true},"member":{"BreadthText":"6x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "w = 300 plf, P = 4000 lb, a = 0.5 ft, L = 10 ft, d = 0.95833333333 ft",
          {{"R1, lb", "R1 = w x L / 2 + P x (L - a) / L", "analysis.R1Total"},
           {"R1 less the part that does not count, lb", "R1 - P x (d - a) / d - w x d",
            "analysis.ShearReduced"},
           {"NDS, a / d of the load's own shear, lb", "w x (L / 2 - d) + P x (L - a) / L x a / d",
            "analysis.ShearReduced", 4}}}}};
}

}  // namespace

Chapter BeamChapter()
{
    return {
        "Beams: reactions, moments, shear, deflection",
        "Cantilevers without a backspan and loads that turn within a span are not among what the program does.",
        {FloorJoist(), PointLoads(), PartialLoads(), TriangularLoad(), Overhangs(), DeckBeam(),
         ContinuousBeams(), SlopedRafter(), ShearAtDepth()}};
}

}  // namespace kordavan::Verification
