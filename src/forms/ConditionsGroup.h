#pragma once

#include <array>

#include "core/BeamProblem.h"
#include "forms/EntryGroup.h"

namespace kordavan {

/// Repetitive use with its spacings, and the conditions of service.
class ConditionsGroup : public EntryGroup {
    Q_OBJECT

public:
    explicit ConditionsGroup(const GroupContext& context);

    /// Spacing and pitch can be entered while their checks are on, incising where the material has it.
    void ShowScreen(const CriteriaScreen& screen, const BeamProblem& problem);

private:
    void AddRepetitive(BeamProblem& problem);
    void AddService(BeamProblem& problem);
    void AddPitch(BeamProblem& problem);

    std::array<QRadioButton*, 5> spacings{};
    QCheckBox* incised = nullptr;
    NumericBox* pitch = nullptr;
};

}  // namespace kordavan
