#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "batch/AnswerWriter.h"

namespace kordavan {

/// A figure of a record, and its name in an answer.
template <typename Record>
struct FloatMember {
    std::string_view Name;
    float Record::*Value;
};

template <typename Record, std::size_t Count>
void WriteFields(const Record& record, const std::array<FloatMember<Record>, Count>& fields,
                 AnswerWriter& answer)
{
    for (const FloatMember<Record>& field : fields) {
        answer.Field(field.Name, record.*field.Value);
    }
}

}  // namespace kordavan
