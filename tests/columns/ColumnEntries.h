#pragma once

#include "columns/ColumnSession.h"

namespace kordavan {

/// A 4x column of DF-L #2, 8 ft high, unbraced in both planes.
inline ColumnEntry WorkingColumn()
{
    ColumnEntry entry;
    entry.cReacText = "7000";
    entry.cHTtext = "8";
    entry.cD1text = "8";
    entry.cD2text = "8";
    entry.ColSpeciesCombo = "DF-L #2";
    entry.cFcText = "1350";
    entry.cEtext = "1.6";
    return entry;
}

}  // namespace kordavan
