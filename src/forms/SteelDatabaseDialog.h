#pragma once

#include <QDialog>
#include <string_view>
#include <vector>

class QListWidget;

namespace kordavan {

/// The sizes of a family of steel, one of which can be taken. It stands before its form until it is closed.
class SteelDatabaseDialog : public QDialog {
    Q_OBJECT

public:
    /// @param current  the size that the list opens on, where it has it
    SteelDatabaseDialog(QWidget& owner, const std::vector<std::string_view>& names, const QString& current);

Q_SIGNALS:
    /// A size has been taken; the list is closed.
    void Taken(const QString& name);

private:
    void TakeCurrent();

    QListWidget* list;
};

}  // namespace kordavan
