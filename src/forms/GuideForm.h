#pragma once

#include <QPointer>

#include "forms/BesideForm.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace kordavan {

class GuideBrowser;

/// The user guide beside the form that it was asked from: its contents, and a page. It opens anew each time.
class GuideForm : public BesideForm {
    Q_OBJECT

public:
    explicit GuideForm(Walk& walk);

    /// Shows the place of a page; closing the guide leads back to the window that asked for it.
    void Open(GuidePage page, QWidget& from);

    QSize sizeHint() const override;

protected:
    QAbstractButton* DefaultCommand() override;
    void CloseAsked() override;
    void changeEvent(QEvent* event) override;

private:
    void MakeContents();
    void ColorHeadings();
    void MakeFoot();
    void MakeMenus();
    QPushButton* AddStep(const ControlText& text, std::string_view caption, void (GuideForm::*run)());
    void GoBackward();
    void GoForward();
    void GoToContents();
    void FindNext();
    void FindPrevious();
    void Find(bool isBackward);
    void OpenChosen();
    void ShowWhere();

    GuideBrowser* browser;
    QListWidget* contents;
    QLineEdit* words = nullptr;
    QLabel* findLine = nullptr;
    QPushButton* backward = nullptr;
    QPushButton* forward = nullptr;
    QPushButton* findNext = nullptr;
    QPointer<QWidget> asker;
};

}  // namespace kordavan
