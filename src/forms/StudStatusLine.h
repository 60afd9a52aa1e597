#pragma once

#include <QWidget>

#include "columns/ColumnScreen.h"

class QLabel;

namespace kordavan {

class NoteLine;
class StatusSign;

/// What came of the last run of the stud check, and whether the entries are still those of that run.
class StudStatusLine : public QWidget {
    Q_OBJECT

public:
    StudStatusLine();

    void ShowScreen(const ColumnScreen& screen);

protected:
    void changeEvent(QEvent* event) override;

private:
    StatusSign* sign;
    QLabel* status;
    QLabel* changed;
    QLabel* warning = nullptr;
    NoteLine* note;
    bool fails = false;
};

}  // namespace kordavan
