#include "Chapters.h"

namespace kordavan::Verification {

namespace {

/// A notch of a sawn or glued member; what follows is added to the request.
std::string NotchRequest(const std::string& edition, const std::string& fields)
{
    return R"({"task":"notch","edition":")" + edition +
           R"(","notch":{"MaxVtextbox":"900","Species":"DF-L #2",)" + fields + "}}";
}

const std::string Sawn =
    R"("MemberListBox":0,"breadthtextbox":"3.5","depthtextbox":"9.25","Fvtextbox":"180",)";
const std::string Glulam =
    R"("MemberListBox":2,"breadthtextbox":"5.125","depthtextbox":"24","Fvtextbox":"240",)";
const std::string Log = R"("MemberListBox":1,"breadthtextbox":"8","depthtextbox":"8","Fvtextbox":"130",)";

Example TensionNotch()
{
    return {
        "Notch on the tension side, 4x10 (d = 9.25, dn = 7.5 in.), V = 900 lb",
        "NDS 1997, 3.4.4; NDS 2001 and 2005, 3.4.3.2, equation 3.4-3. The program takes the years 2012 and later by the "
        "rule of the year that its list leads to.",
        {{"NDS 1997",
          NotchRequest("2018", Sawn + R"("NotchListBox":0,"dnTextbox":"7.5","NDSyearList":2)"),
          "V = 900 lb, b = 3.5 in., d = 9.25 in., dn = 7.5 in.",
          {{"fv, psi", "fv = 3 x V / (2 x b x dn) x d / dn", "result.CriticalFv"},
           {"Ratio, %", "fv / 180 x 100", "result.RatioPercent"},
           {"Least dn, in.", "0.75 x d", "result.MinimumDn"}}},
         {"NDS 2001",
          NotchRequest("2018", Sawn + R"("NotchListBox":0,"dnTextbox":"7.5","NDSyearList":1)"),
          "V = 900 lb, b = 3.5 in., d = 9.25 in., dn = 7.5 in.",
          {{"Vr', lb", "Vr = 2 / 3 x 180 x b x dn x (dn / d)^2", "result.AllowableV"},
           {"Ratio, %", "V / Vr x 100", "result.RatioPercent"}}},
         {"NDS 2005, wet, snow, no splits",
          NotchRequest(
              "2005",
              Sawn + R"("NotchListBox":0,"dnTextbox":"7.5","WetUseCheckbox":true,"NoSplitCheckbox":true,)"
                     R"("DurListbox":1)"),
          "b = 3.5 in., d = 9.25 in., dn = 7.5 in.",
          {{"Fv', psi", "Fv' = 180 x 0.97 x 2 x 1.15", "result.AdjustedFv"},
           {"Vr', lb", "2 / 3 x Fv' x b x dn x (dn / d)^2", "result.AllowableV"}}},
         {"8 in. log, dn = 6.5, NDS 2005",
          NotchRequest("2005", Log + R"("NotchListBox":0,"dnTextbox":"6.5")"),
          "d = 8 in., dn = 6.5 in.",
          {{"Half chord of the cut, in.", "c = sqrt(4^2 - 2.5^2)"},
           {"Area at the notch, in2", "An = pi x 4^2 - (4^2 x atan(c / 2.5) - c x 2.5)",
            "result.AreaAtNotch"},
           {"Vr', lb", "2 / 3 x 130 x An x (dn / d)^2", "result.AllowableV"}}},
         {"Glulam, d = 24 in., dn = 22, NDS 2005",
          NotchRequest("2005", Glulam + R"("NotchListBox":0,"dnTextbox":"22")"),
          "b = 5.125 in., d = 24 in., dn = 22 in.",
          {{"Least dn, in.", "min(0.9 x d, d - 3)", "result.MinimumDn"},
           {"Vr', lb", "2 / 3 x 240 x b x dn x (dn / d)^2", "result.AllowableV"}}}}};
}

Example CompressionNotch()
{
    return {
        "Notch on the compression side, 4x10 (dn = 7.5 in.), V = 900 lb",
        "NDS 1997, 3.4.4; NDS 2001 and 2005, 3.4.3.2 (e): the depth in the formula is d - (d - dn) e / dn where e is not "
        "above dn.",
        {{"e = 4 in., NDS 1997",
          NotchRequest("2018", Sawn + R"("NotchListBox":1,"dnTextbox":"7.5","eTextbox":"4","NDSyearList":2)"),
          "V = 900 lb, b = 3.5 in., d = 9.25 in., dn = 7.5 in., e = 4 in.",
          {{"fv, psi", "3 x V / (2 x b x (d - (d - dn) / dn x e))", "result.CriticalFv"}}},
         {"e = 4 in., NDS 2005",
          NotchRequest("2005", Sawn + R"("NotchListBox":1,"dnTextbox":"7.5","eTextbox":"4")"),
          "V = 900 lb, b = 3.5 in., d = 9.25 in., dn = 7.5 in., e = 4 in.",
          {{"Vr', lb", "Vr = 2 / 3 x 180 x b x (d - (d - dn) / dn x e)", "result.AllowableV"},
           {"Ratio, %", "V / Vr x 100", "result.RatioPercent"}}},
         {"e = 9 in., NDS 2001",
          NotchRequest("2001", Sawn + R"("NotchListBox":1,"dnTextbox":"7.5","eTextbox":"9")"),
          "V = 900 lb, b = 3.5 in., dn = 7.5 in.",
          {{"fv, psi", "3 x V / (2 x b x dn)", "result.CriticalFv"}}},
         {"Glulam, d = 24 in.",
          NotchRequest("2005", Glulam + R"("NotchListBox":1,"dnTextbox":"20","eTextbox":"4")"),
          "b = 5.125 in., d = 24 in., dn = 20 in., e = 4 in.",
          {{"Least dn, in.", "0.6 x d", "result.MinimumDn"},
           {"Vr', lb", "2 / 3 x 240 x b x (d - (d - dn) / dn x e)", "result.AllowableV"}}}}};
}

Example TaperedNotch()
{
    return {"Tapered cut at a rafter seat, 4x10 (dn = 7.5 in.), slope 6 in 12, V = 900 lb",
            "NDS 1997, 3.4.4; NDS 2001 and 2005, 3.4.3.2: full section at the net depth.",
            {{"NDS 1997",
              NotchRequest("2018",
                           Sawn + R"("NotchListBox":2,"dnTextbox":"7.5","eTextbox":"4","rdTextbox":"7.25",)"
                                  R"("rpTextbox":"6","tTextbox":"5.5","NDSyearList":2)"),
              "V = 900 lb, b = 3.5 in., dn = 7.5 in.",
              {{"fv, psi", "3 x V / (2 x b x dn)", "result.CriticalFv"}}},
             {"NDS 2005",
              NotchRequest("2005",
                           Sawn + R"("NotchListBox":2,"dnTextbox":"7.5","eTextbox":"4","rdTextbox":"7.25",)"
                                  R"("rpTextbox":"6","tTextbox":"5.5")"),
              "V = 900 lb, b = 3.5 in., dn = 7.5 in.",
              {{"Vr', lb", "2 / 3 x 180 x b x dn", "result.AllowableV"},
               {"Roof angle, degrees", "atan(6 / 12) x 180 / pi", "result.TaperAngle"},
               TextRow("Verdict", "900 is below 3150 lb, 7.5 above 6.94 in.", "result.Status", "OK")}}}};
}

}  // namespace

Chapter NotchChapter()
{
    return {
        "Notch check",
        "Since NDS 2012 a notch is not computed until a year is clicked, and the list leads to the rules of 2005, 2001 and "
        "1997; the program says so beside the list.",
        {TensionNotch(), CompressionNotch(), TaperedNotch()}};
}

}  // namespace kordavan::Verification
