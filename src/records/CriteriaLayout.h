#pragma once

#include <array>

#include "records/PackedRecord.h"

namespace kordavan {

inline constexpr std::array CriteriaRecordFields{
    IntegerField("RecordTag", 0),
    TextField("Proj", 2, 35),
    TextField("Descrip", 37, 30),
    TextField("ID", 67, 25),
    FloatField("Span", 92),
    FloatField("Dur", 96),
    IntegerField("MaxDefl", 100),
    IntegerField("LMaxDefl", 102),
    IntegerField("Combo1", 104),
    FlagField("INGRADE", 106),
    FlagField("Wet", 108),
    FlagField("Rep", 110),
    FlagField("Ctr12", 112),
    FlagField("Ctr16", 114),
    FlagField("Ctr19", 116),
    FlagField("ctr24", 118),
    FlagField("SimpleSpanbutton", 120),
    FlagField("Multibutton", 122),
    FlagField("TwoSpan", 124),
    FlagField("OHbutton", 126),
    FlagField("IncButton", 128),
    FloatField("UNIF", 130),
    FloatField("LUNIF", 134),
    FloatField("PT", 138, 6),
    FloatField("LPT", 162, 6),
    FloatField("DIS", 186, 6),
    FloatField("PAR", 210, 5),
    FloatField("LPAR", 230, 5),
    FloatField("ENDP", 250, 5),
    FloatField("BEGP", 270, 5),
    FloatField("IncLL", 290),
    FloatField("IncTL", 294),
    FloatField("Trib1", 298),
    FloatField("Trib2", 302),
    ReservedBytes(306, 8),
    FloatField("IncUnifTL", 314),
    FloatField("IncUnifLL", 318),
    TextField("Heading1", 322, 110),
    TextField("Heading2", 432, 110),
    TextField("Initialbox", 542, 8),
    FlagField("Roofbutton", 550),
    FloatField("Pitchtext", 552),
    FloatField("UBLtext", 556),
    FlagField("WFbutton", 560),
    FlagField("SFbutton", 562),
    FlagField("CFbutton", 564),
    FlagField("MCbutton", 566),
    FlagField("TUbutton", 568),
    FlagField("PLbutton", 570),
    FlagField("DblPLbutton", 572),
    TextField("MemberChoice", 574, 100),
    TextField("MemberStatus", 674, 8),
    TextField("RecordDate", 682, 12),
    FloatField("CantUBLtext", 694),
    FlagField("Incised", 698),
    FlagField("Nds1997", 700),
    FlagField("ksi50", 702),
    TextField("ReportNotes", 704, 85, 7),
    FlagField("Nds2001", 1299),
    FlagField("Nds2005", 1301),
    TextField("ChoiceBreadth", 1303, 20),
    TextField("ChoiceDepth", 1323, 20),
    TextField("ChoiceSpecies", 1343, 40),
    TextField("SteelChoice", 1383, 40),
    TextField("Custom.Combo1", 1423, 60),
    TextField("Custom.Text1", 1483, 4),
    TextField("Custom.Text2", 1487, 4),
    TextField("Custom.Text4", 1491, 4),
    TextField("Custom.Text3", 1495, 4),
    TextField("Custom.Text6", 1499, 10),
    TextField("Custom.Text7", 1509, 10),
    TextField("Custom.Text5", 1519, 60),
    FlagField("WidGLBHDR", 1579),
    FlagField("WidGLB", 1581),
    FlagField("SPG", 1583),
    FlagField("Wid2x", 1585),
    FlagField("Wid4x", 1587),
    FlagField("MSRCheckbox", 1589),
    FlagField("MELCheckbox", 1591),
    FlagField("Wid6x", 1593),
    FlagField("Rectoption", 1595),
    FlagField("Roundoption", 1597),
    TextField("Diam", 1599, 6),
    FlagField("NoWeight", 1605),
    FlagField("Nds2012", 1607),
    FlagField("Nds2015", 1609),
    FlagField("Nds2018", 1611),
};

/// The record of a beam criteria file.
inline constexpr RecordLayout CriteriaLayout{.Size = 1613, .Fields = CriteriaRecordFields};
static_assert(CriteriaLayout.IsWhole());

/// The tags of criteria files, from the oldest on; each restores what those before restore, and more. Only
/// the last is written.
inline constexpr std::array<std::int16_t, 4> CriteriaTags{-11, -12, -13, -2007};
inline constexpr std::int16_t CriteriaTagWritten = CriteriaTags.back();

/// Generations of the criteria file, by the place of their tags.
enum class CriteriaGeneration { First, WithStatus, WithEdition, WithChoice };

/// The generation of a tag, or none for a tag that is no criteria file's.
constexpr const std::int16_t* FindCriteriaTag(int tag)
{
    for (const std::int16_t& known : CriteriaTags) {
        if (known == tag) {
            return &known;
        }
    }
    return nullptr;
}

}  // namespace kordavan
