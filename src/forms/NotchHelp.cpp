#include "forms/NotchHelp.h"

namespace kordavan::NotchHelp {

const HelpText Shear{
    "ShearHelp", "Shear V",
    "SHEAR V\n\n"
    "The shear at the notch in pounds: for a notch at a support, the reaction. No load may be left out: the "
    "loads within a depth of the support, which a beam without a notch may neglect, count here."};

const HelpText Member{
    "MemberHelp", "Member and sizes",
    "MEMBER AND SIZES\n\n"
    "Net sizes in inches: breadth b and depth d of the whole member, without its notch. For a log, d is its "
    "diameter. b is needed for a log with a compression notch too; left empty, it is taken as d."};

const HelpText BaseFv{
    "FvHelp", "Species and base Fv",
    "SPECIES AND BASE Fv\n\n"
    "A species and grade of the list fills in its base shear value parallel to grain, as published for the "
    "NDS year in force here, before any adjustment. The values of NDS 1997 are about half those of later "
    "years, so a value that was filled in follows the year, the member and its size. It may be typed over, and "
    "any name typed: then nothing changes it."};

const HelpText RemainingDepth{
    "dnHelp", "dn, the depth that remains",
    "DEPTH AT THE NOTCH, dn\n\n"
    "The depth in inches that remains at the notch; not the depth of the cut.\n\n"
    "MINIMUM dn\n"
    "The least depth that may remain.\n"
    "Sawn members and logs: 3/4 d for any notch.\n"
    "Glulams: 9/10 d for a tension notch, or d - 3 in. where that is less under NDS 2001 and 2005; 3/5 d for "
    "a compression notch; 1/3 d for a tapered notch.\n\n"
    "Notches also may not lie in the middle third of a span (NDS 4.4.3, 5.4.5)."};

const HelpText Types{
    "TypesHelp", "Types of notch",
    "TYPES OF NOTCH\n\n"
    "Tension Notch: cut from below, at the support.\n\n"
    "Compression Notch: cut from above. e is the distance from the inner edge of the support to the end of "
    "the notch; zero or blank where the notch ends at the support. Up to e = dn the depth grows with a "
    "smaller e; beyond that dn alone counts.\n\n"
    "Tapered Notch: the level seat of a rafter on a wall. rd is the depth of the rafter, rp its pitch, as a "
    "rise in 12 up to 24 and as an angle in degrees above that, t the breadth of the wall. The notch may not "
    "extend into the middle third of the span, which gives the least span."};

const HelpText Use{
    "UseHelp", "Wet use, splits, duration of load",
    "WET USE\n"
    "0.97 on Fv of sawn lumber and of logs under 5 in., 0.875 on that of glulams.\n\n"
    "NO SPLITS\n"
    "Ch of 2 on Fv, for an end that cannot split. The shear values of NDS 1997 allow for splits. Those of "
    "later editions do not rise: leave the box empty with them.\n\n"
    "DURATION OF LOAD, CD\n"
    "Normal 1.0, Snow 1.15, No Snow 1.25 (roof live load without snow), Permanent DL 0.9 (dead load alone)."};

const HelpText Year{
    "YearHelp", "NDS year",
    "NDS YEAR\n\n"
    "The check opens with the edition in force in the program. A click on a line of the list goes by its "
    "place, by a list older than the one shown: the first line puts NDS 2005 in force, the second NDS 2001, the "
    "third NDS 1997, and the last none. The line under the lists always tells what is in force.\n\n"
    "1997: stress at the notch. 2001 and 2005: allowable reaction. 2012, 2015 and 2018 have no rule here."};

}  // namespace kordavan::NotchHelp
