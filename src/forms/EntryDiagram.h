#pragma once

#include <QWidget>

#include "forms/BesideForm.h"

class QPushButton;

namespace kordavan {

enum class EntryDiagramKind { SimpleSpan, Overhanging, HipValley };

/// A picture of a beam with a load of each kind, on which every value wears the caption of the box that takes
/// it.
class Diagram : public QWidget {
    Q_OBJECT

public:
    explicit Diagram(EntryDiagramKind kind);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    EntryDiagramKind kind;
};

/// How loads are entered for one support condition: a diagram with a few lines of text, beside the criteria.
class EntryDiagram : public BesideForm {
    Q_OBJECT

public:
    EntryDiagram(Walk& walk, EntryDiagramKind kind);

protected:
    QAbstractButton* DefaultCommand() override;

private:
    QPushButton* close;
};

}  // namespace kordavan
