#pragma once

#include <rapidjson/stringbuffer.h>

#include <string_view>

#include "batch/LineBlocks.h"

namespace kordavan {

/// Appends the answer to one line, without a line break.
using LineAnswer = void (*)(std::string_view line, rapidjson::StringBuffer& buffer);

/// How a run over one input ended.
enum class BatchEnd { Answered, InputFailed, OutputFailed };

/// Answers every line of the input on so many threads, in order, writing as the answers come. Each thread
/// holds one block of lines at a time, so memory does not grow with the input.
BatchEnd AnswerInput(LineBlocks& input, int outputDescriptor, int jobs, LineAnswer answer);

}  // namespace kordavan
