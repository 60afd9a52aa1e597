#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/RecordForm.h"
#include "records/ColumnRecordFile.h"

class QLabel;

namespace kordavan {

/// What the records of wood and steel columns differ in on the screen.
struct ColumnRecordScreen {
    std::string_view Form;
    std::string_view Title;
    ColumnRecordKind Kind;
    Screen ShownOn;
    Screen Selection;  // that the record was selected on
    std::string_view SaveCommand;
    std::string_view LoadCommand;
    GuidePage Page;
};

/// The record of a wood or steel column: one sheet of the size selected, or of a file.
class ColumnRecordForm : public RecordForm {
    Q_OBJECT

public:
    RecordHeading& Heading() override;
    void PrepareHeading() override;
    void TakeHeading() override;
    void TakeNotes() override;
    RecordPage HeadedPage(bool hasNotes) override;
    PagePicture Picture() override;
    std::string_view IdCaption() const override;
    Screen ShownOn() const override;
    Outcome SaveHeaded() override;
    void MarkKept() override;

protected:
    ColumnRecordForm(Walk& walk, const ColumnRecordScreen& screen);

    void FillRecord() override;
    RecordPage Page() override;

    /// To the selection; from a loaded record without one of our own behind it, to the criteria.
    void GoBack() override;

private:
    struct Place {
        bool WithNotes;
        std::string Path;
    };

    void BuildMenus();
    RecordPage LayOut(const ColumnSheet& sheet, bool hasNotes);
    ColumnRecordOnShow& Record();
    std::optional<Place> AskWhereToSave();
    Outcome SaveAt(const Place& place);
    void SaveRecord();
    void LoadRecord();
    void GoToCriteria();

    const ColumnRecordScreen& screen;
    QLabel* loadedLine;
};

}  // namespace kordavan
