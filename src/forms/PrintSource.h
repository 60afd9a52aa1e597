#pragma once

#include <string_view>

#include "design/DataSheet.h"
#include "forms/PagePicture.h"
#include "forms/Walk.h"
#include "records/RecordPage.h"

namespace kordavan {

/// What the box of a column's mark is called.
inline constexpr std::string_view ColumnIdCaption = "Column &ID";

/// A record as the print screen needs it: it is headed there, laid out, saved and left again.
class PrintSource {
public:
    PrintSource() = default;
    PrintSource(const PrintSource&) = delete;
    PrintSource& operator=(const PrintSource&) = delete;
    virtual ~PrintSource() = default;

    /// What the page is headed with, as it is being entered.
    virtual RecordHeading& Heading() = 0;

    /// Fills the heading, unless one was entered already.
    virtual void PrepareHeading() = 0;

    /// Heads the record by what is entered; an empty date becomes today's.
    virtual void TakeHeading() = 0;

    /// Puts the notes of the note clipboard on the record.
    virtual void TakeNotes() = 0;

    /// The page under the heading as it is entered.
    virtual RecordPage HeadedPage(bool hasNotes) = 0;

    virtual PagePicture Picture() = 0;

    /// What the box of the member's mark is called, with its mnemonic.
    virtual std::string_view IdCaption() const = 0;

    /// The screen to come back to.
    virtual Screen ShownOn() const = 0;

    /// Asks for a file, heads the record by what is entered and saves it. Refused when no file is chosen, or
    /// when it could not be saved, which is told.
    virtual Outcome SaveHeaded() = 0;

    /// What is asked once the record has been saved by itself.
    virtual void FollowSaving() {}

    /// The record has been saved or printed.
    virtual void MarkKept() {}
};

}  // namespace kordavan
