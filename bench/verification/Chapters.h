#pragma once

#include "Example.h"

namespace kordavan::Verification {

Chapter BeamChapter();
Chapter FactorChapter();
Chapter StabilityChapter();
Chapter MemberChapter();
Chapter SteelBeamChapter();
Chapter SelectionChapter();
Chapter WoodColumnChapter();
Chapter StudChapter();
Chapter SteelColumnChapter();
Chapter NotchChapter();

}  // namespace kordavan::Verification
