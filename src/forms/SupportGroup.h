#pragma once

#include "core/BeamProblem.h"
#include "forms/EntryGroup.h"

namespace kordavan {

/// The four support conditions, each with its help.
class SupportGroup : public EntryGroup {
    Q_OBJECT

public:
    explicit SupportGroup(const GroupContext& context);

Q_SIGNALS:
    /// The diagram of how to enter loads is asked for.
    void DiagramAsked(SupportCondition support);

private:
    HelpButton* MakeDiagramHelp(std::string_view name, std::string_view option, SupportCondition support);
};

}  // namespace kordavan
