#include "records/AnsiText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace kordavan {

namespace {

constexpr char32_t Unknown = U'?';
constexpr std::size_t FirstOwn = 0x80;  // from here to 0x9F the code page differs from Latin-1

// Code page 1252, bytes 0x80 to 0x9F; the Unicode Consortium's table CP1252.TXT.
constexpr std::array<char32_t, 32> OwnCharacters{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr bool IsOwnByte(std::size_t byte)
{
    return byte >= FirstOwn && byte < FirstOwn + OwnCharacters.size();
}

char AnsiOf(char32_t character)
{
    const auto* const own = std::find(OwnCharacters.begin(), OwnCharacters.end(), character);
    if (own != OwnCharacters.end()) {
        return static_cast<char>(FirstOwn + static_cast<std::size_t>(own - OwnCharacters.begin()));
    }
    const bool isLatin = character <= 0xFF && !IsOwnByte(character);
    return static_cast<char>(isLatin ? character : Unknown);
}

void AppendUtf8(char32_t character, std::string& text)
{
    constexpr char32_t continuation = 0x80;
    constexpr char32_t sixBits = 0x3F;
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | character >> 6U);
        text += static_cast<char>(continuation | (character & sixBits));
    } else {
        text += static_cast<char>(0xE0 | character >> 12U);
        text += static_cast<char>(continuation | (character >> 6U & sixBits));
        text += static_cast<char>(continuation | (character & sixBits));
    }
}

/// The first character that needs so many bytes; written in more than it needs, it is no UTF-8.
constexpr std::array<char32_t, 5> LeastOfLength{0, 0, 0x80, 0x800, 0x10000};

/// Takes one character off the front of a UTF-8 text; a byte that begins none is taken alone, as unknown.
char32_t TakeUtf8(std::string_view& text)
{
    const auto byteAt = [&text](std::size_t k) { return static_cast<unsigned char>(text[k]); };
    const unsigned first = byteAt(0);
    std::size_t length = 1;
    char32_t character = first;
    if (first >= 0xF8) {
        length = 1;
    } else if (first >= 0xF0) {
        length = 4;
        character = first & 0x07U;
    } else if (first >= 0xE0) {
        length = 3;
        character = first & 0x0FU;
    } else if (first >= 0xC0) {
        length = 2;
        character = first & 0x1FU;
    }
    const bool isAlone = length == 1 && first >= 0x80;
    bool isWhole = !isAlone && text.size() >= length;
    for (std::size_t k = 1; isWhole && k < length; ++k) {
        isWhole = (byteAt(k) & 0xC0U) == 0x80;
        character = character << 6U | (byteAt(k) & 0x3FU);
    }
    isWhole = isWhole && character >= LeastOfLength[length];
    text.remove_prefix(isWhole ? length : 1);
    return isWhole ? character : Unknown;
}

}  // namespace

std::string TextOfAnsi(std::string_view ansi)
{
    std::string text;
    for (const char each : ansi) {
        const std::size_t byte = static_cast<unsigned char>(each);
        AppendUtf8(IsOwnByte(byte) ? OwnCharacters[byte - FirstOwn] : static_cast<char32_t>(byte), text);
    }
    return text;
}

std::string AnsiOfText(std::string_view text)
{
    std::string ansi;
    while (!text.empty()) {
        ansi += AnsiOf(TakeUtf8(text));
    }
    return ansi;
}

}  // namespace kordavan
