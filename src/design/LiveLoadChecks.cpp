#include "design/LiveLoadChecks.h"

#include <cstddef>
#include <string>

namespace kordavan {

Message AttentionRefusal(std::string_view text, std::string_view focus)
{
    std::string lines = "Attention:\n";
    lines += text;
    return Marked(Refusal(lines, focus), MessageIcon::Warning);
}

std::optional<Message> LiveAboveTotal(const LoadNumbers& loads)
{
    for (std::size_t k = 0; k < PointSlotCount; ++k) {
        if (loads.LPT[k] > loads.PT[k]) {
            return AttentionRefusal(
                "A point Live load is Larger than the point Total load.  Please re-check your point load "
                "entries.",
                BoxName("PT", k));
        }
    }
    for (std::size_t k = 0; k < PartialSlotCount; ++k) {
        if (loads.LPAR[k] > loads.PAR[k]) {
            return AttentionRefusal(
                "A live partial uniform load is larger than a partial uniform total load.  Please re-check "
                "your load entries.",
                BoxName("PAR", k));
        }
    }
    if (loads.LUNIF > loads.UNIF) {
        return AttentionRefusal(
            "The Live uniform load is larger than the Total uniform load.  Please re-check your load "
            "entries.",
            "UNIF");
    }
    return std::nullopt;
}

}  // namespace kordavan
