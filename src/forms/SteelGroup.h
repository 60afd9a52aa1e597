#pragma once

#include "forms/EntryGroup.h"

namespace kordavan {

/// Family, grade and greatest depth of a steel beam.
class SteelGroup : public EntryGroup {
    Q_OBJECT

public:
    explicit SteelGroup(const GroupContext& context);

private:
    void AddFamilies(const BeamProblem& problem);
    void AddFilters(BeamProblem& problem);
};

}  // namespace kordavan
