#pragma once

#include <optional>
#include <string>

#include "columns/ColumnProblem.h"
#include "columns/ColumnResult.h"
#include "columns/ColumnSheet.h"
#include "columns/SteelColumnResult.h"
#include "columns/StudProblem.h"
#include "columns/StudResult.h"
#include "core/NdsEdition.h"
#include "design/DataSheet.h"

namespace kordavan {

/// The three faces of the column screen.
enum class ColumnFace { Wood, Steel, Studs };

/// A wood size with its factors and stresses, as last tested, and what it was tested for.
struct WoodColumnTest {
    ColumnProblem Problem;
    Edition Nds = Edition::None;
    ColumnResult Result;
};

/// What all three kinds of column are documented by.
struct ColumnIdentity {
    std::string ColumnProj;
    std::string columnID;
    std::string ColumnDescription;

    bool operator==(const ColumnIdentity&) const = default;
};

/// The heading that was entered to print a column's record, which heads no other column.
struct EnteredHeading {
    ColumnIdentity Column;
    RecordHeading Heading;
};

/// The columns at work beside a beam, from their entries to the sizes tested last.
struct ColumnSession {
    ColumnFace Face = ColumnFace::Wood;
    ColumnIdentity Identity;
    ColumnEntry Entry;
    StudEntry Stud;
    std::optional<Edition> ValuesOf;  // the edition in force that picked base values followed last

    ColumnProblem Problem;  // the entries as the last accepted calculation read them
    ColumnFactors Carried;  // left by the last candidate
    ColumnGrid Grid;
    std::string ColD1Text;  // the size to test, net in.
    std::string ColD2Text;
    std::optional<WoodColumnTest> WoodTest;

    SteelColumnProblem SteelProblem;
    SteelColumnPicks SteelPicks;
    std::string StlColSizeText;
    std::string StlColGrade;
    std::optional<SteelColumnTest> SteelTest;

    std::optional<StudTest> StudRun;
    StudEntry KeptStud;  // the stud as last saved or loaded

    RecordHeading Heading;  // of the record to be printed, as its boxes hold it
    std::optional<EnteredHeading> HeaderChanged;
    ColumnRecordOnShow WoodRecord;
    ColumnRecordOnShow SteelRecord;
};

}  // namespace kordavan
