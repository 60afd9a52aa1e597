#pragma once

#include <array>

#include "design/Session.h"
#include "forms/BesideForm.h"
#include "forms/Bindings.h"

class QFrame;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace kordavan {

/// The note clipboard: seven lines of one ruled page, for the foot of a record. It stands beside the form in
/// front; what is typed is in the session at once.
class Form21 : public BesideForm {
    Q_OBJECT

public:
    explicit Form21(Walk& walk);

    void Activate() override;

protected:
    QAbstractButton* DefaultCommand() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct NoteLine {
        QLineEdit* Box = nullptr;
        QLabel* Left = nullptr;  // count of the characters that still fit
        QFrame* Rule = nullptr;
    };

    void AddPage();
    void AddLine(QGridLayout& page, std::size_t index);
    void AddCommands();
    void ShowLeft(std::size_t index);
    void ShowFocus(NoteLine& line, bool hasFocus);
    bool StepFrom(std::size_t index, int key);
    void Clear();

    Bindings boxes;
    std::array<NoteLine, ReportNoteCount> lines;
    QPushButton* clear = nullptr;
    QPushButton* ok = nullptr;
};

}  // namespace kordavan
