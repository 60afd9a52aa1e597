#pragma once

#include <optional>

#include "design/DataSheet.h"
#include "forms/Bindings.h"
#include "forms/Form.h"
#include "forms/PrintSource.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace kordavan {

class PagePreview;

/// Between a record and its printer: the heading of the page, and the page as it will print.
class Form7 : public Form {
    Q_OBJECT

public:
    explicit Form7(Walk& walk);

    void Activate() override;
    void ShowNotes() override;

    /// The record to print from now on; to be told before the form is shown.
    void PrintFrom(PrintSource& record) { source = &record; }

protected:
    QAbstractButton* DefaultCommand() override;
    void GoBack() override;

private:
    void BuildHeading(QGridLayout& grid);
    void BuildFoot();
    void BuildMenus();
    void Refresh();
    void OnClear();
    void OnPrint();
    void OnSave();
    void OnPdf();
    void OnSetup();
    void OnFont();
    void RememberPrinter();

    Bindings boxes;
    PrintSource* source = nullptr;
    RecordHeading heading;                    // as the boxes hold it
    std::optional<std::string> usualPrinter;  // before the person chose another for this page
    bool isEdited = false;
    PagePreview* preview = nullptr;
    QLabel* idCaption = nullptr;
    QLabel* panel = nullptr;
    QPushButton* print = nullptr;
};

}  // namespace kordavan
