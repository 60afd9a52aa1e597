#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "records/DataSheetFill.h"
#include "records/RecordDay.h"
#include "support/ScriptedUser.h"

namespace kordavan {

using Cells = std::map<std::size_t, std::string>;

inline DataSheet Filled(const Session& session)
{
    ScriptedUser user;
    DataSheet sheet = FillDataRecord(session, Day, user);
    EXPECT_TRUE(user.Told.empty());
    return sheet;
}

inline void ExpectCells(const DataSheet& sheet, const Cells& cells)
{
    for (const auto& [label, text] : cells) {
        EXPECT_EQ(sheet[label], text) << "Label" << label;
    }
}

}  // namespace kordavan
