#pragma once

#include <optional>

#include "design/LoadPicture.h"
#include "forms/Bindings.h"
#include "forms/Form.h"
#include "records/RecordPage.h"

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
    void ShowNotes() override { Refresh(); }

    /// The loads of the record to print; none for a record of text alone.
    void SetLoads(const std::optional<LoadPicture>& newLoads) { loads = newLoads; }

protected:
    QAbstractButton* DefaultCommand() override;
    void GoBack() override;

private:
    void BuildHeading(QGridLayout& grid);
    void BuildFoot();
    void BuildMenus();
    void Refresh();
    RecordPage Page(bool hasNotes);
    void OnClear();
    void OnPrint();
    void OnSave();
    void OnPdf();
    void OnSetup();
    void OnFont();
    void RememberPrinter();

    Bindings boxes;
    std::optional<LoadPicture> loads;
    std::optional<std::string> usualPrinter;  // before the person chose another for this page
    bool isEdited = false;
    PagePreview* preview = nullptr;
    QLabel* panel = nullptr;
    QPushButton* print = nullptr;
};

}  // namespace kordavan
