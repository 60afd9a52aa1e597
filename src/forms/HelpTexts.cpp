#include "forms/HelpTexts.h"

#include <algorithm>
#include <array>

namespace kordavan {

namespace {

constexpr std::array CriteriaHelps{
    HelpText{"Command3D5", "Beam span",
             "BEAM SPAN\n\n"
             "Beam Span is the clear distance between supports of the beam or joist plus 1/2 the required "
             "bearing area at each end, or to the center of the support when the beam is continuous over the "
             "support.  The MINIMUM bearing length is 1-1/2 inches at each end. The span length entered on "
             "the criteria form may need to be increased and the beam calculation re-run if the required "
             "bearing area shown on the data record is larger than anticipated.\n\n"
             "Please enter the span in feet plus decimal fractions.\n"
             "Example: 13 feet 3 inches should be entered as 13.25\n\n"
             "Note: For sloping rafters enter the horizontal span, not the actual length of the rafter."},
    HelpText{"Command3D3", "Deflection limits",
             "MAX ALLOWABLE DEFLECTION\n\n"
             "ROOF members supporting plaster\n"
             "Live load only   L / 360,  Total load  L / 240\n\n"
             "FLOOR members\n"
             "Live load only  L / 360,  Total load  L / 240\n\n"
             "Kordavan recommends using a default deflection limit of L / 360 for total load when live loads "
             "are NOT being evaluated.\n\n"
             "Other recommended live load factors are:\n"
             "CEILINGS (of materials other than plaster)\n"
             "L / 240\n"
             "ROOFS, slope 3:12 or less\n"
             "ROOFS, slope 3:12 or more\n"
             "L / 180\n"
             "Industrial buildings, no appearance factor\n\n"
             "Consult your building code or wood use manual for recommended deflection limits."},
    HelpText{"Command3D4", "Duration of load",
             "DURATION OF LOAD\n"
             "is an adjustment that allows increases to the Fb and Fv due to the fact that wood is able to "
             "carry much greater loads for short durations than for long durations of loading.\n\n"
             "FACTORS\n"
             "0.90  Permanent  (i.e. dead loads)\n"
             "1.00  Normal Load (10 yrs)  (i.e. floor loads)\n"
             "1.15  Snow Load (2 months)  (i.e. roof live load)\n"
             "1.25  Seven Day (no snow)  (i.e. roof live load)\n"
             "1.33 Wind and Earthquake\n"
             "2.0  Impact\n\n"
             "Note: Increases are not cumulative, combination loads should be tested separately to see which "
             "condition governs and very high dead loading should be tested for permanent (0.9) duration of "
             "load.\n\n"
             "Consult your local building code for appropriate duration load factors."},
    HelpText{"Command3D18", "Shear reduction",
             "AUTOMATIC SHEAR REDUCTION\n\n"
             "If the 'Reduce Shear Loads' Checkbox is checked, Kordavan will automatically reduce the shear "
             "on the member by neglecting the loads located at the beam ends that are within a distance "
             "equal to the depth of member.\n\n"
             " Please Note:\n"
             "Only use this reduction if the loads to be neglected are applied to the top of the member. If "
             "the member is Side Loaded at these locations do not check this box."},
    HelpText{"Command3D7", "Wet use and incising",
             "WET USE FACTOR, Cm\n"
             "For beam use under conditions that increase the wood moisture content above 19% for visually "
             "graded sawn lumber or 16% for glu-lams.  Generally, if wood is not inside a covered structure, "
             "it may be prone to a high moisture content, but this depends upon the climate in your locale "
             "and the opinion of your building official.\n\n"
             "INCISING FACTOR, Ci\n"
             "Applicable when structural sawn lumber is incised to increase penetration of preservatives "
             "with incisions cut parallel to grain, a maximum depth of 3/4 inch, a maximum length of 3/8 "
             "inch, and a maximum density of incisions of 357 per square foot. Incising factors shall be "
             "determined by test for incising patterns exceeding these limits."},
    HelpText{"Command3D9", "Repetitive use",
             "REPETITIVE USE\n\n"
             "When this checkbox is checked, Kordavan automatically increases the beam Fb value by 15% (4% "
             "for SCL's) if they meet the following requirements:\n\n"
             "Code definition of Repetitive Use:   Applies to joists and rafters not over 4 inches in "
             "thickness, spaced not more than 24 inches apart and not less than 3 in number, joined by "
             "transverse load distributing elements such as floor or roof sheathing.\n\n"
             "The Repetitive Use increase does not apply to Glu-lams or 6x+ members.\n\n"
             "Loads entered for repetitive members should be based on lbs. per lineal foot, i.e. 12 in. o.c. "
             " Then set the spacing to 16 in. o.c., 19.2 in. o.c., or 24 in. o.c. using the REP SPACING "
             "BUTTONS. For 3 members not spaced (as in a built-up condition) select Not Spaced.  Kordavan "
             "will automatically multiply the loads by the appropriate factor to increase the load."},
    HelpText{
        "Command3D8", "Slope adjustment",
        "SLOPE ADJUSTMENT OF DEAD LOADS\n\n"
        "Use this tool only when sizing rafters. Do not use it for members that are supporting rafters.\n\n"
        "If the slope adjust checkbox is checked, Kordavan will automatically increase the dead loads and "
        "the beam weight based on the increased length of the span as determined by the roof pitch entered "
        "by the user. The pitch should be entered in inches. Enter the amount of vertical rise per 12 inches "
        "of horizontal run. \n\n"
        "Special note: When entering total loads you do not need to include the wood member weight.  It will "
        "be automatically added by Kordavan. This is true for all members sized in Kordavan, whether or not "
        "the slope adjust checkbox is checked."},
    HelpText{"Command3D14", "Uniform load",
             "UNIFORM LOAD\n"
             "is a continuous load along the entire length of the beam span.  A uniform load on an overhang "
             "must be entered as a partial uniform load in a blue box.  Enter your loads in pounds per "
             "lineal foot, or click the 'Calc PSF' button below to enter PSF times a tributary length.\n\n"
             "'LL' is the Live Load (an optional entry), and 'LL+DL' is the total load (the combined live "
             "load and dead load).  Note! You do not need to include the beam self-weight.  Kordavan will "
             "add it in for you unless you select the 'neglect beam self-weight' checkbox.\n\n"
             "The letter 'A' to the left of the load entry box is identificaton corresponding to the load "
             "'A' on the loading diagram and the printed list of loads.\n\n"
             "When the 'Hips and Valleys' button is selected, these uniform load boxes display the "
             "'Equivalent Tabular Load' or 'ETL'."},
    HelpText{"Command3D19", "Uniform load from psf",
             "PSF load entries are multiplied by the the tributary length in feet.  The result is inserted "
             "in the Uniform Load (PLF) boxes above.\n\n"
             "This is just a quick calculator.\n\n"
             "NOTE: To adjust the loads for JOIST or RAFTER SPACING, use the automatic spacing option "
             "buttons above (located under repetitive use) and all loads will automatically be multiplied by "
             "the spacing factor of 1.33, 1.66, or 2.0"},
    HelpText{
        "Command3D16", "Entering and clearing loads",
        "ENTERING LOADS\n"
        "For a diagram on how to enter loads and distances click on the quick-help buttons next to 'Simple "
        "Span' or 'Overhanging' above.\n\n"
        "CLEARING LOAD ENTRY BOXES\n"
        "To clear a specific load entry, click on the LETTER to the left of the load entry box.  To clear "
        "ALL the partial uniform or ALL the point loads, DOUBLE CLICK within the respective group box frame "
        "in the periphery.\n\n"
        "With a little experimentation you'll see how this works.\n\n"
        "If you wish to clear ALL the loads, but retain the info in the upper part of the form, simply "
        "change the loading condition, then change it back again.  Example: You have simple span selected. "
        "Click on Overhanging, then click on simple span again and all the loads will be erased."},
    HelpText{"Command3D24", "Partial loads from psf",
             "CALC PSF TIMES TRIBUTARY LENGTH\n\n"
             "PSF load entries are multiplied by the the tributary length in feet.  The result is inserted "
             "in the Partial Uniform Load (PLF) boxes to the right.\n\n"
             "This is just a quick calculator."},
    HelpText{
        "Command3D30", "Multiple spans",
        "Multiple Spans\n\n"
        "This button allows you to size continuous members, with two or three equal spans and only a uniform "
        "load.  Minor modifications to the formulas give an accurate representation of the horizontal shear "
        "as it passes over the interior supports. The maximum moment and reactions are adjusted as well.\n\n"
        "Please note that the glu-lam choices on form 2 default to balanced top and bottom laminations (the "
        "same as overhanging beams)."},
    HelpText{"Command3D31", "Multiple spans, the frame",
             "Multiple Spans\n\n"
             "Select continuous members, with two or three equal spans, and a uniform load only.\n\n"
             "Please note that the glu-lam choices on form 2 default to balanced top and bottom laminations "
             "(the same as overhanging beams)."},
    HelpText{"DepthDesHelp", "Steel depth",
             "If you would like to set a maximum desired depth for the steel beam candidates in Form 2, "
             "place a maximum depth in inches in the box to the left.  By clicking on the arrow, a drop down "
             "list will show you all of the available depths from which you may choose.\n\n"
             "Your maximum depth selection does not affect the calculations.  This is just a filter to help "
             "you quickly choose a beam with an appropriate depth in the Selection Form 2."},
    HelpText{
        "UBL3DHelp", "Lateral bracing",
        "LATERAL BRACING REQUIREMENTS\n\n"
        "Full lateral support is assumed if the depth to breadth ratio and method of bracing support meets "
        "the requirements NDS 4.4.1.  You may enter a zero or simply leave the 'unbraced' box blank.\n\n"
        "If your member does not meet the requirements above, please enter your planned maximum unbraced "
        "length between lateral supports of the beam compression edge or flange.  Enter the length in feet "
        "(and decimal fraction, if any). Normally, to be of concern, these would be unbraced lengths greater "
        "than two feet.\n\n"
        "  For overhanging members, enter the Backspan unbraced length in the WHITE box and the Overhang "
        "unbraced length in the BLUE box.\n\n"
        "Steel Tube shapes do not have lateral bracing requirements other than support at bearing points, "
        "and this box is set to 'Any' and disabled. Steel flitch plates, structural composite lumber, and "
        "multiple span members are only analyzed for full lateral bracing of the compression edge and this "
        "box is automatically set to 'zero' and disabled."},
};

}  // namespace

const HelpText* FindCriteriaHelp(std::string_view button)
{
    const auto* const found = std::find_if(CriteriaHelps.begin(), CriteriaHelps.end(),
                                           [button](const HelpText& help) { return help.Button == button; });
    return found == CriteriaHelps.end() ? nullptr : found;
}

namespace HelpTexts {

const HelpText QuickPickWidths{
    "QPWidth", "Breadths",
    "2x is for beams or joists less than 2 inches nominal in breadth.\n\n"
    "(2) 2x, {or more, etc.} is for two 2x beams or joists, built-up {nailed together} to act as a single "
    "structural member.\n\n"
    "4x is for widths that are 2 inches to 4 inches in thickness {a single member}.\n\n"
    "6x+, is for breadths that are 5 inches and greater in thickness {a single member}."};

const HelpText GlulamBeams{
    "Command3D1", "Glu-lam beams",
    "Glu-Lam Beams\n\n"
    "All species groups display DF/DF glu-lam combinations except the Southern Pine group which displays the "
    "SP/SP (SouthernPine) combination. Please use the Custom Values Form (accesed via Form 1 at the end of "
    "the Species Selection drop down box) for sizing So. Pine Glu-Lams with 1-1/2 inch increments.\n\n"
    "If you want to use a different grade, species combination or a specialty size such as those available "
    "as 'Glu-Lam Header' products, use the CUSTOM VALUES species group. You may enter your own values as "
    "supplied by the manufacturer.\n\n"
    "Overhanging beams automatically switch to glu-lam beam combinations which have equal high strength "
    "laminations on the top and bottom.  They are also zero camber."};

const HelpText UnbalancedLoads{
    "unbalancedbutton", "Unbalanced loads",
    "UNBALANCED LOADS\n\n"
    "Overhanging beams should be tested for unbalanced loads in three variations.\n"
    "1. Backspan and overhang with full dead and live loads applied.\n"
    "2. Same as No.1 but with live loads removed from the backspan.\n"
    "3. Same as No.1 but with live loads removed from the overhang.\n\n"
    "Compare the moment, shear, and deflection for the critical case.  Also be aware of a possible UPLIFT "
    "condition at the left reaction R1."};

const HelpText ReadingTheReport{
    "Command3D1", "Reading the report",
    "READING THE REPORT\n\n"
    "The CRITICAL column is what the loads require or what the limits allow, the ACTUAL column is what the "
    "member has or does.\n\n"
    "Section: required and actual section modulus. Shear: required and actual area. Deflection: allowable "
    "and actual inches, with the long term creep of the dead load.\n\n"
    "The RATIO is the part of its capacity that the member uses. A check passes up to its limit itself; a "
    "member just over it may show 100% and is a Fail."};

}  // namespace HelpTexts

}  // namespace kordavan
