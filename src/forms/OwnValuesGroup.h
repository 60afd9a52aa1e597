#pragma once

#include "design/OwnScreen.h"
#include "forms/EntryGroup.h"

class QLabel;
class QLineEdit;

namespace kordavan {

/// The reference design values of the user's own.
class OwnValuesGroup : public EntryGroup {
    Q_OBJECT

public:
    explicit OwnValuesGroup(const GroupContext& context);

    void ShowScreen(const OwnScreen& screen);

    QPushButton& EnterCommand() { return *enter; }

Q_SIGNALS:
    void LoadAsked();
    void SaveAsked();
    void EnterAsked();

private:
    void AddValues(MemberEntry& entry);
    NumericBox* AddValue(const ControlText& text, std::string_view caption, std::string_view unit,
                         std::string& bound, int line, int column);
    void AddName(MemberEntry& entry);
    void AddGrades(CustomEntry& custom);
    void AddCommands();

    QLabel* nameCaption = nullptr;
    QLineEdit* name = nullptr;
    std::vector<QWidget*> exponentParts;
    std::vector<QWidget*> grades;
    QLabel* warning = nullptr;
    QPushButton* load = nullptr;
    QPushButton* save = nullptr;
    QPushButton* loadFile = nullptr;
    QPushButton* saveFile = nullptr;
    QPushButton* enter = nullptr;
};

}  // namespace kordavan
