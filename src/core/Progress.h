#pragma once

#include <functional>
#include <utility>

namespace kordavan {

/// How far a calculation has come, 0 to 100, for a gauge; nobody need look.
class Progress {
public:
    Progress() = default;
    explicit Progress(std::function<void(int)> whenReached) : hearer(std::move(whenReached)) {}

    void Reach(int percent) const
    {
        if (hearer) {
            hearer(percent);
        }
    }

private:
    std::function<void(int)> hearer;
};

}  // namespace kordavan
