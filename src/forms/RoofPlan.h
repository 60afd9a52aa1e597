#pragma once

#include <QWidget>
#include <array>

#include "core/BeamProblem.h"

class QCheckBox;

namespace kordavan {

/// The roof over a hip or valley in plan, a white square on each of its quarters: those checked load the
/// member, which runs along the diagonal.
class RoofPlan : public QWidget {
    Q_OBJECT

public:
    RoofPlan();

    QCheckBox& Quarter(std::size_t index) { return *quarters[index]; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::array<QCheckBox*, PlanQuarterCount> quarters{};
};

}  // namespace kordavan
