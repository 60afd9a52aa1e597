#pragma once

#include "forms/RecordForm.h"

namespace kordavan {

/// The report of a notch check, as its last run left it.
class NotchReport : public RecordForm {
    Q_OBJECT

public:
    explicit NotchReport(Walk& walk);

    RecordHeading& Heading() override;
    void PrepareHeading() override;
    void TakeHeading() override;

    /// Nothing to do: the page reads the note clipboard itself.
    void TakeNotes() override {}

    RecordPage HeadedPage(bool hasNotes) override;
    PagePicture Picture() override;
    std::string_view IdCaption() const override;
    Screen ShownOn() const override;

    /// Refused: a notch has no file.
    Outcome SaveHeaded() override;

protected:
    void FillRecord() override;
    RecordPage Page() override;
    void GoBack() override;

private:
    void BuildMenus();
};

}  // namespace kordavan
