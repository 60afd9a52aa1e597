#pragma once

#include <string>
#include <string_view>

#include "forms/Form.h"
#include "forms/PrintSource.h"

class QAction;
class QPushButton;

namespace kordavan {

class RecordSheet;

/// What the screens of records have in common: the sheet, the command that prints it, and what can be done
/// with its page.
class RecordForm : public Form, public PrintSource {
    Q_OBJECT

public:
    /// Fills the record and shows it.
    void Activate() override;
    void ShowNotes() override;

protected:
    RecordForm(Walk& walk, std::string_view name);

    /// Fills the record again where it can be.
    virtual void FillRecord() = 0;

    /// The page as it stands.
    virtual RecordPage Page() = 0;

    void ShowSheet();

    /// The commands of the page and the end of the program, at the end of the File menu.
    void AddPageCommands(QMenu& file);

    /// The way back: a command of the Go to menu, and one in the bar itself, which follows its other menus.
    void AddBackCommand(QMenu& goTo, std::string_view tip, std::string_view caption);
    void AddBackToBar();
    void EnableBack(bool isEnabled);
    bool CanGoBack() const;

    QAbstractButton* DefaultCommand() override;

private:
    void CopyRecord();
    void SaveAsPdf();
    void GoToPrint();

    RecordSheet* shown;
    QPushButton* print;
    QAction* back = nullptr;
    QAction* backInBar = nullptr;
};

}  // namespace kordavan
