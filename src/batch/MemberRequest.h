#pragma once

#include "batch/Json.h"
#include "core/SpeciesGroup.h"
#include "design/Member.h"

namespace kordavan {

/// Reads the member of a request by the fields that its material group has.
void ReadMember(const JsonValue& member, const FieldPath& path, SpeciesGroup group, MemberEntry& entry);

}  // namespace kordavan
