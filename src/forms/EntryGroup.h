#pragma once

#include <QGroupBox>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "core/Message.h"
#include "design/CriteriaScreen.h"
#include "forms/Bindings.h"
#include "forms/HelpButton.h"
#include "forms/Kit.h"
#include "forms/NumericBox.h"

class QCheckBox;
class QGridLayout;
class QPushButton;
class QRadioButton;

namespace kordavan {

class Form;

/// What the groups of a form share.
struct GroupContext {
    Form& Owner;
    Bindings& Boxes;
    const NumericBoxContext& Numbers;
    Session& Beam;
    std::function<Outcome(const SessionChange&)> Apply;  // makes a change and shows what came of it
};

inline constexpr int LoadDigits = 6;
inline constexpr int DistanceDigits = 5;

/// Entries of a form that belong together, under a heading.
class EntryGroup : public QGroupBox {
    Q_OBJECT

public:
    EntryGroup(const GroupContext& context, std::string_view name, std::string_view heading);

protected:
    /// A numeric box under the rule of its name, bound to a text.
    NumericBox* AddNumber(const ControlText& text, int digits, std::string& bound);
    NumericBox* AddNumber(std::string_view array, std::size_t index, std::string_view tip, int digits,
                          std::string& bound);
    QCheckBox* AddCheck(const ControlText& text, std::string_view caption, bool& bound);

    /// The told help of a button of the criteria form.
    HelpButton* AddHelp(std::string_view button, std::initializer_list<std::string_view> boxes);

    /// A button that changes the entries.
    QPushButton* AddCommand(const ControlText& text, std::string_view caption, const SessionChange& change);

    /// Makes a change of the entries, which is marked.
    Outcome Edit(const SessionChange& change);

    /// The same of a change that cannot be refused.
    void Change(const std::function<void(Session&)>& change);

    void paintEvent(QPaintEvent* event) override;

    const GroupContext& Shared() const { return shared; }

    /// The grid of the group, tight as a table.
    QGridLayout& Grid() { return *grid; }

private:
    GroupContext shared;
    QGridLayout* grid;
};

}  // namespace kordavan
