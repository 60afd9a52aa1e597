#include "forms/ColumnHelp.h"

namespace kordavan::ColumnHelp {

const HelpText AxialLoad{
    "LoadHelp", "Axial load",
    "AXIAL LOAD\n\n"
    "The load on the column in pounds. The column is taken as concentrically loaded: it carries no bending "
    "but that of a stud under wind, which has a face of its own.\n\n"
    "Import Reaction takes a reaction of the beam that was calculated last; Doubled is for a column under "
    "two equal beams that meet on it. Where other members bear on the column, add their loads by hand.\n\n"
    "HEIGHT\n"
    "The actual height of the column in feet and decimals. No unbraced length can be longer."};

const HelpText BucklingMode{
    "KeHelp", "Ke, buckling mode",
    "KE BUCKLING MODE\n\n"
    "The effective length of a column is Ke times its unbraced length. Ke depends on how the two ends of "
    "that length are held. The default of 1.0 is for ends that are free to turn but cannot move sideways, "
    "which is how most columns of light frame stand. Recommended values make up for ends that are never "
    "perfectly fixed.\n\n"
    "Ends cannot move sideways (theory, recommended)\n"
    "0.5,  0.65   both ends fixed against turning\n"
    "0.7,  0.80   one end fixed, the other free to turn\n"
    "1.0,  1.0    both ends free to turn\n\n"
    "One end can move sideways (theory, recommended)\n"
    "1.0,  1.2    both ends fixed against turning\n"
    "2.0,  2.10   base fixed, top free to turn: a post set firmly in the ground or in concrete that "
    "nothing holds at its top\n"
    "2.0,  2.4    base free to turn, top fixed against turning\n\n"
    "Source: NDS Appendix G. For K of a steel column AISC recommends the same values, but 2.0 in the last "
    "line.\n\n"
    "One value serves both planes. Where the ends differ from plane to plane, enter the larger one, or "
    "scale one unbraced length."};

const HelpText UnbracedLengths{
    "BracingHelp", "Unbraced lengths",
    "UNBRACED LENGTHS\n\n"
    "The greatest distance between points at which the column is held sideways, in feet, for each of the "
    "two planes in which it can buckle.\n\n"
    "Plane D1: the column bends across its thickness D1, the side that the plies of a built-up column share "
    "out. A wall that runs along this plane, or blocking in it, braces it.\n"
    "Plane D2: the column bends across its width D2.\n\n"
    "Enter 0 for a plane that is braced throughout, as by sheathing, and the full height for one that is "
    "not braced at all. A steel column is round or square, so one length stands for both planes: the longer "
    "one.\n\n"
    "D1 FULLY BRACED\n"
    "The plies of a built-up column slip a little on each other, and Kf lowers its strength in plane D1: "
    "0.6 when nailed, 0.75 when bolted. This box sets Kf to 1.0, as for plies that sheathing or blocking "
    "holds. It does nothing else: the unbraced length entered for D1 still counts. An unbraced length of 0 "
    "checks the box by itself."};

const HelpText Duration{
    "ColDurHelp", "Duration of load of a column",
    "DURATION OF LOAD, CD\n\n"
    "Wood carries more for a short time than for long. CD multiplies Fc, never E.\n\n"
    "0.90  permanent load (dead load)\n"
    "1.00  ten years (floor live load)\n"
    "1.15  two months (snow)\n"
    "1.25  seven days (roof live load without snow, construction)\n"
    "1.60  ten minutes (wind, earthquake)\n\n"
    "A combination of loads takes the factor of the shortest load in it. The combinations with fewer loads "
    "and lower factors are to be checked too, the dead load alone with 0.90 among them.\n\n"
    "Source: NDS 2.3.2."};

const HelpText Service{
    "ServiceHelp", "Wet use and incising of a column",
    "WET USE\n"
    "For wood whose moisture content will be above 19% in use, as of most posts in the open.\n\n"
    "INCISED\n"
    "For dimension lumber that is incised along the grain so that it takes up preservative. Incising lowers "
    "E and Fc.\n\n"
    "Source: NDS 4.1.4 and 4.3.8."};

const HelpText Types{
    "TypeHelp", "How a column is made up",
    "TYPE OF COLUMN\n\n"
    "Solid Sawn 6x+: timbers, 6x and larger. Choose Post and Timber or Beam and Stringer values for them.\n"
    "Solid Sawn 2x or 4x: one piece of dimension lumber.\n"
    "Nailed Built-up 2xs, Bolted Built-up 2xs: two to five 2x members of equal width, side by side over the "
    "full height of the column, with their wide faces in contact and fastened as NDS 15.3.3 (nails) or "
    "15.3.4 (bolts) requires. What lowers their strength in plane D1 is told beside the unbraced lengths."};

const HelpText Values{
    "ValuesHelp", "Base values of a column",
    "BASE VALUES\n\n"
    "Dimension Lumber: 2 to 4 in. thick.\n"
    "Post and Timber: 5x5 and larger, the width not more than 2 in. greater than the thickness.\n"
    "Beam and Stringer: 5 in. and thicker, the width more than 2 in. greater than the thickness.\n\n"
    "Choosing a species and grade fills in Fc parallel to grain and E, as published, before any adjustment. "
    "Either may be typed over; the name then only documents them. \"Custom\" empties both for values of "
    "your own, which can be kept in a file. Under NDS 1997 some values of Fc are others, and they follow "
    "the edition in force.\n\n"
    "Stud grade is for columns up to 10 ft high."};

const HelpText StudSize{
    "StudSizeHelp", "Size of a stud",
    "STUD\n\n"
    "Height in feet and decimals: 10.75 is 10 ft 9 in. The stud is taken as hinged at its base and its top, "
    "braced against buckling in the plane of the wall by its sheathing, and bending across the depth of the "
    "wall.\n\n"
    "Spacing in inches on centre turns the loads on the wall into those of one stud. Without a spacing, 12 "
    "in. is taken.\n\n"
    "Studs of two to four 2x stand for built-up studs whose plies act together."};

const HelpText StudValues{
    "StudValuesHelp", "Base values of a stud",
    "BASE VALUES OF A STUD\n\n"
    "Choosing a species and grade of dimension lumber fills in bending Fb, compression parallel to grain Fc "
    "and E, as published, before any adjustment. Each may be typed over; \"Custom\" empties them. Size "
    "factors go by the size above, and by whether the name is one of the Stud grades of the list.\n\n"
    "A Stud grade 8 in. deep is refused, as its values would be those of No. 3."};

const HelpText StudAxial{
    "StudAxialHelp", "Axial load of a stud",
    "AXIAL LOAD\n\n"
    "Load along the top of the wall in pounds per foot, and a load in pounds that bears on this stud alone. "
    "The stud carries the first over its spacing, and all of the second. One of the two may be left empty."};

const HelpText StudDuration{
    "StudDurHelp", "Duration of load of a stud",
    "DURATION OF LOAD\n\n"
    "Axial: the factor of Fc. 1.0 for floor load, 1.15 for snow, 1.25 for roof live load without snow, 1.6 "
    "where the wind itself brings the axial load; the button steps through them.\n"
    "Wind: the factor of Fb, 1.6.\n\n"
    "The allowable axial load that is compared with P by itself leaves the duration factor out, to be on "
    "the safe side; the interaction with bending has it."};

const HelpText StudWind{
    "WindHelp", "Wind on a stud",
    "WIND LOADS\n\n"
    "Up to three uniform loads across the wall in psf, each from a height to a height in feet above the base "
    "of the stud. Load A is required; B and C may be left empty. They may overlap, and add up where they "
    "do. A wind load over the whole height goes from 0 to the height of the stud.\n\n"
    "Enter suction as a load below zero; the sketch draws it the other way. The check works with the top "
    "of the last rise of the moment along the stud. Where that is not the greatest moment, as under suction "
    "or with two separate loads, a line beside the result says so: then check the wind from the other side, "
    "or the larger load by itself."};

const HelpText StudRepetitive{
    "StudRepHelp", "Repetitive use of studs",
    "REPETITIVE USE FACTOR, CR\n\n"
    "1.15 on Fb for three or more members 2 to 4 in. thick, not more than 24 in. apart, joined by sheathing "
    "or the like (NDS 4.3.9).\n\n"
    "IBC 2306.2.1 allows instead, for wind across the wall, 1.5 for 2x4, 1.4 for 2x6 and 1.3 for 2x8 studs "
    "that are not more than 16 in. apart, covered on the inside with at least 1/2 in. gypsum wallboard and "
    "on the outside with at least 3/8 in. wood structural panels, the joints of which fall on studs or "
    "blocking. It counts only together with the box above it, and only for 2x studs and those built up of "
    "2x.\n\n"
    "Later standards are lower for deeper studs (SDPWS: 1.50, 1.35 and 1.25); consult your building code."};

}  // namespace kordavan::ColumnHelp
