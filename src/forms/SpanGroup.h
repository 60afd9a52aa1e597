#pragma once

#include "design/CriteriaScreen.h"
#include "forms/EntryGroup.h"

class QLabel;

namespace kordavan {

/// Span, unbraced lengths, duration of load and deflection limits.
class SpanGroup : public EntryGroup {
    Q_OBJECT

public:
    explicit SpanGroup(const GroupContext& context);

    void ShowScreen(const CriteriaScreen& screen);

private:
    void AddSpan(BeamProblem& problem);
    void AddUnbraced(BeamProblem& problem);
    void AddDuration(BeamProblem& problem);
    void AddDeflection(BeamProblem& problem);
    void AddLine(int line, QLabel* caption, QWidget* box, HelpButton* help);

    NumericBox* unbraced = nullptr;
    NumericBox* unbracedOverhang = nullptr;
    QLabel* unbracedLabel = nullptr;
    QLabel* overhangLabel = nullptr;
    QLabel* unbracedUnit = nullptr;
    QLabel* overhangUnit = nullptr;
};

}  // namespace kordavan
