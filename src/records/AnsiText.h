#pragma once

#include <string>
#include <string_view>

namespace kordavan {

/// A text of record files, one byte a character in Windows ANSI (code page 1252), as UTF-8. The five bytes
/// that the code page leaves open stand for the control characters of the same number.
std::string TextOfAnsi(std::string_view ansi);

/// A UTF-8 text in Windows ANSI; a character that the code page has not becomes a '?'.
std::string AnsiOfText(std::string_view text);

}  // namespace kordavan
