#pragma once

#include "forms/RecordForm.h"

namespace kordavan {

/// The record of a stud under axial load and wind, as its last run left it.
class Form28 : public RecordForm {
    Q_OBJECT

public:
    explicit Form28(Walk& walk);

    RecordHeading& Heading() override;
    void PrepareHeading() override;
    void TakeHeading() override;

    /// Nothing to do: the page reads the note clipboard itself.
    void TakeNotes() override {}

    RecordPage HeadedPage(bool hasNotes) override;
    PagePicture Picture() override;
    std::string_view IdCaption() const override;
    Screen ShownOn() const override;

    /// Saves the entries of the stud face, which the record is made of.
    Outcome SaveHeaded() override;

protected:
    void FillRecord() override;
    RecordPage Page() override;
    void GoBack() override;

private:
    void BuildMenus();
};

}  // namespace kordavan
