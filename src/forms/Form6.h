#pragma once

#include "forms/RecordForm.h"

namespace kordavan {

/// The Data Record: one sheet that states the member, its criteria, loads and results.
class Form6 : public RecordForm {
    Q_OBJECT

public:
    explicit Form6(Walk& walk);

    RecordHeading& Heading() override;
    void PrepareHeading() override;
    void TakeHeading() override;
    void TakeNotes() override;
    RecordPage HeadedPage(bool hasNotes) override;

    /// The loads of the page; those of a record of text alone are not known.
    PagePicture Picture() override;

    std::string_view IdCaption() const override;
    Screen ShownOn() const override;
    Outcome SaveHeaded() override;

    /// Offers to save the criteria too.
    void FollowSaving() override;

protected:
    /// Fills the sheet anew, unless it was loaded from a file.
    void FillRecord() override;
    RecordPage Page() override;
    void GoBack() override;

private:
    void BuildMenus();
    void BuildFileMenu();
    RecordPage LayOut(const DataSheet& sheet, bool hasNotes);
    void OnNewBeam();
    void OpenRecord();
    void SaveRecord();
    void GoToCriteria();
};

}  // namespace kordavan
