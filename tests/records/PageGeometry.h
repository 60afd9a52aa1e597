#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "design/DataSheet.h"
#include "records/RecordPage.h"

namespace kordavan {

inline const ReportNoteLines FullNotes{"n1", "n2", "n3", "n4", "n5", "n6", "n7"};

inline std::vector<std::string> TextsOf(const RecordPage& page)
{
    std::vector<std::string> texts;
    for (const PageText& text : page.Texts) {
        texts.push_back(text.Text);
    }
    return texts;
}

inline void ExpectWithinMargins(const RecordPage& page)
{
    for (const PageText& text : page.Texts) {
        EXPECT_GE(text.Area.Left, 36) << text.Text;
        EXPECT_LE(text.Area.Left + text.Area.Width, page.Width - 36 + 1e-9) << text.Text;
        EXPECT_LE(text.Area.Top + text.Area.Height, page.Height - 36) << text.Text;
    }
}

inline bool AreApart(const PageRect& one, const PageRect& other)
{
    return one.Left + one.Width <= other.Left + 1e-9 || other.Left + other.Width <= one.Left + 1e-9 ||
           one.Top + one.Height <= other.Top + 0.1 || other.Top + other.Height <= one.Top + 0.1;
}

/// No text lies on another, nor in the room of the picture.
inline void ExpectTextsApart(const RecordPage& page)
{
    for (std::size_t a = 0; a < page.Texts.size(); ++a) {
        for (std::size_t b = a + 1; b < page.Texts.size(); ++b) {
            EXPECT_TRUE(AreApart(page.Texts[a].Area, page.Texts[b].Area))
                << page.Texts[a].Text << " and " << page.Texts[b].Text;
        }
        EXPECT_TRUE(!page.Diagram || AreApart(page.Texts[a].Area, *page.Diagram)) << page.Texts[a].Text;
    }
}

/// The numbers of the cells on a page, each of which is there once.
inline std::set<std::size_t> CellsOnce(const RecordPage& page)
{
    std::set<std::size_t> cells;
    for (const PageText& text : page.Texts) {
        EXPECT_TRUE(text.Label == 0 || cells.insert(text.Label).second) << text.Label;
    }
    return cells;
}

}  // namespace kordavan
