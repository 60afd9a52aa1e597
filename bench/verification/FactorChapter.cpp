#include "Chapters.h"

namespace kordavan::Verification {

namespace {

Example SizeFactors()
{
    return {
        "Size, duration and repetitive factors of sawn lumber",
        "NDS 4.3 and Supplement Tables 4A, 4B and 4D. Southern Pine is printed by size: its values are the table's own "
        "before and after the lowering of 2012. A timber deeper than 12 in. takes (12 / d)^(1/9) of its net depth in the "
        "NDS and of its nominal depth here, which is 0.4 % lower.",
        {{"2x6 SPF #2",
          R"({"task":"beam","criteria":{"Span":"8","UNIF":"50","Combo1":4},)"
          R"("member":{"BreadthText":"2x","DepthText":"6","SpeciesText":"SPF #2"}})",
          "",
          {{"Fb', psi", "875 x 1.3", "adjusted.FbAdj"}, {"Fv', psi", "135", "adjusted.FvAdj"}}},
         {"2x8 DF-L #2, snow, repetitive",
          R"({"task":"beam","criteria":{"Span":"8","UNIF":"50","Dur":"1.15","Rep":true,"Ctr0":true},)"
          R"("member":{"BreadthText":"2x","DepthText":"8","SpeciesText":"DF-L #2"}})",
          "",
          {{"Fb', psi", "900 x 1.2 x 1.15 x 1.15", "adjusted.FbAdj"},
           {"Fv', psi", "180 x 1.15", "adjusted.FvAdj"}}},
         {"4x12 DF-L #1, dead load alone",
          R"({"task":"beam","criteria":{"Span":"8","UNIF":"50","Dur":"0.9"},)"
          R"("member":{"BreadthText":"4x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "",
          {{"Fb', psi", "1000 x 1.1 x 0.9", "adjusted.FbAdj"}}},
         {"6x14 DF-L #1 (d = 13.5)",
          R"({"task":"beam","criteria":{"Span":"8","UNIF":"50"},)"
          R"("member":{"BreadthText":"6x","DepthText":"14","SpeciesText":"DF-L #1"}})",
          "",
          {{"Fb', psi", "1350 x (12 / 13.5)^(1 / 9)", "adjusted.FbAdj", 0.5}}},
         {"6x6 DF-L #1, a post",
          R"({"task":"beam","criteria":{"Span":"8","UNIF":"50"},)"
          R"("member":{"BreadthText":"6x","DepthText":"6","SpeciesText":"DF-L #1"}})",
          "",
          {{"Fb', psi", "1200", "adjusted.FbAdj"}}},
         {"2x10 So. Pine #2, NDS 2005",
          R"({"task":"beam","edition":"2005","criteria":{"Span":"8","UNIF":"50","Combo1":5},)"
          R"("member":{"BreadthText":"2x","DepthText":"10","SpeciesText":"So. Pine #2"}})",
          "",
          {{"Fb', psi", "1050", "adjusted.FbAdj"}, {"E', million psi", "1.6", "adjusted.EAdj"}}},
         {"2x10 So. Pine #2, NDS 2018",
          R"({"task":"beam","criteria":{"Span":"8","UNIF":"50","Combo1":5},)"
          R"("member":{"BreadthText":"2x","DepthText":"10","SpeciesText":"So. Pine #2"}})",
          "",
          {{"Fb', psi", "800", "adjusted.FbAdj", 0.01}, {"E', million psi", "1.4", "adjusted.EAdj"}}}}};
}

Example ServiceFactors()
{
    return {
        "Wet use and incising",
        "NDS 4.3.3 and 4.3.8, Supplement Tables 4A, 4D and 5A. Fb stays whole where Fb x CF is not above 1150 psi.",
        {{"2x6 DF-L #2, wet",
          R"({"task":"beam","criteria":{"Span":"8","UNIF":"50","Wet":true},)"
          R"("member":{"BreadthText":"2x","DepthText":"6","SpeciesText":"DF-L #2"}})",
          "",
          {{"Fb' (900 x 1.3 is above 1150), psi", "900 x 1.3 x 0.85", "adjusted.FbAdj"},
           {"Fv', psi", "180 x 0.97", "adjusted.FvAdj"},
           {"E', million psi", "1.6 x 0.9", "adjusted.EAdj"},
           {"Fc-perp', psi", "625 x 0.67", "adjusted.FcPerpAdj"}}},
         {"2x12 DF-L #1, wet",
          R"({"task":"beam","criteria":{"Span":"8","UNIF":"50","Wet":true},)"
          R"("member":{"BreadthText":"2x","DepthText":"12","SpeciesText":"DF-L #1"}})",
          "",
          {{"Fb' (1000 is not), psi", "1000 x 1.0", "adjusted.FbAdj"}}},
         {"5-1/8x12 glulam 24F-V4, wet",
          R"({"task":"beam","criteria":{"Span":"12","UNIF":"50","Wet":true},)"
          R"("member":{"BreadthText":"5-1/8x","DepthText":"12","SpeciesText":"GLB 24F-V4 DF/DF"}})",
          "",
          {{"Fb', psi", "2400 x 0.8", "adjusted.FbAdj"},
           {"Fv', psi", "240 x 0.875", "adjusted.FvAdj"},
           {"E', million psi", "1.8 x 0.833", "adjusted.EAdj"},
           {"Fc-perp', psi", "650 x 0.53", "adjusted.FcPerpAdj"}}},
         {"4x8 HF #2, incised, NDS 1997",
          R"({"task":"beam","edition":"1997","criteria":{"Span":"8","UNIF":"50","Incised":true},)"
          R"("member":{"BreadthText":"4x","DepthText":"8","SpeciesText":"HF #2"}})",
          "",
          {{"Fb', psi", "850 x 1.3 x 0.85", "adjusted.FbAdj"},
           {"Fv', psi", "75 x 1.0", "adjusted.FvAdj"},
           {"E', million psi", "1.3 x 0.95", "adjusted.EAdj"}}},
         {"4x8 HF #2, incised, NDS 2001",
          R"({"task":"beam","edition":"2001","criteria":{"Span":"8","UNIF":"50","Incised":true},)"
          R"("member":{"BreadthText":"4x","DepthText":"8","SpeciesText":"HF #2"}})",
          "",
          {{"Fb', psi", "850 x 1.3 x 0.8", "adjusted.FbAdj"},
           {"Fv', psi", "150 x 0.8", "adjusted.FvAdj"},
           {"E', million psi", "1.3 x 0.95", "adjusted.EAdj"}}}}};
}

Example VolumeFactors()
{
    return {
        "Volume factor of glulams",
        "NDS 5.3.6: exponent 1 / 10, in Southern Pine 1 / 20; under NDS 1997 a load constant KL of 1.09 for one point "
        "load at midspan and 0.96 for two at the thirds. Never above 1.",
        {{"6-3/4x24 24F-V4 DF, 32 ft",
          R"({"task":"beam","criteria":{"Span":"32","UNIF":"400"},)"
          R"("member":{"BreadthText":"6-3/4x","DepthText":"24","SpeciesText":"GLB 24F-V4 DF/DF"}})",
          "",
          {{"CV", "(21 / 32)^0.1 x (12 / 24)^0.1 x (5.125 / 6.75)^0.1", "factors.Cv"}}},
         {"6-3/4x24-3/4 24F-V3 SP, 32 ft",
          R"({"task":"beam","criteria":{"Span":"32","UNIF":"400","Combo1":5},)"
          R"("member":{"BreadthText":"6-3/4x","DepthText":"24-3/4","SpeciesText":"GLB 24F-V3 SP/SP"}})",
          "",
          {{"CV", "(21 / 32)^0.05 x (12 / 24.75)^0.05 x (5.125 / 6.75)^0.05", "factors.Cv"}}},
         {"5-1/8x9, 10 ft",
          R"({"task":"beam","criteria":{"Span":"10","UNIF":"400"},)"
          R"("member":{"BreadthText":"5-1/8x","DepthText":"9","SpeciesText":"GLB 24F-V4 DF/DF"}})",
          "",
          {{"CV", "min(1, (21 / 10)^0.1 x (12 / 9)^0.1)", "factors.Cv"}}},
         {"6-3/4x24, 30 ft, one load, NDS 1997",
          R"({"task":"beam","edition":"1997","criteria":{"Span":"30","PT":["4000"],"DIS":["15"]},)"
          R"("member":{"BreadthText":"6-3/4x","DepthText":"24","SpeciesText":"GLB 24F-V4 DF/DF"}})",
          "",
          {{"CV", "min(1, 1.09 x (21 / 30 x 12 / 24 x 5.125 / 6.75)^0.1)", "factors.Cv"}}},
         {"6-3/4x24, 30 ft, two loads, NDS 1997",
          R"({"task":"beam","edition":"1997","criteria":{"Span":"30","PT":["4000","4000"],"DIS":["10","20"]},)"
          R"("member":{"BreadthText":"6-3/4x","DepthText":"24","SpeciesText":"GLB 24F-V4 DF/DF"}})",
          "",
          {{"CV", "0.96 x (21 / 30 x 12 / 24 x 5.125 / 6.75)^0.1", "factors.Cv"}}}}};
}

}  // namespace

Chapter FactorChapter()
{
    return {"Adjustment factors",
            "Values before adjustment are those of the NDS Supplement.",
            {SizeFactors(), ServiceFactors(), VolumeFactors()}};
}

}  // namespace kordavan::Verification
