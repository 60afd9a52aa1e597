#pragma once

#include <optional>

#include "design/LoadPicture.h"
#include "forms/Form.h"
#include "records/RecordPage.h"

class QPushButton;

namespace kordavan {

class RecordSheet;

/// The Data Record: one sheet that states the member, its criteria, loads and results.
class Form6 : public Form {
    Q_OBJECT

public:
    explicit Form6(Walk& walk);

    /// Fills the sheet anew, unless it was loaded from a file.
    void Activate() override;
    void ShowNotes() override;

protected:
    QAbstractButton* DefaultCommand() override;
    void GoBack() override;

private:
    void BuildMenus();
    void BuildFileMenu();
    void ShowSheet();
    RecordPage Page();
    void OnNewBeam();
    void OpenRecord();
    void SaveRecord();
    void CopyRecord();
    void SaveAsPdf();
    void GoToCriteria();
    void GoToPrint();

    /// The loads of the page; those of a record of text alone are not known.
    std::optional<LoadPicture> Loads();

    RecordSheet* sheet = nullptr;
    QPushButton* print = nullptr;
    QAction* back = nullptr;
    QAction* backInBar = nullptr;
};

}  // namespace kordavan
