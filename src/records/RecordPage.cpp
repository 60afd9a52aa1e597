#include "records/RecordPage.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace kordavan {

namespace {

/// Width of a column of plain text on the page, in points.
constexpr double ColumnPoints = 4.6;

std::size_t ColumnOf(double points)
{
    return static_cast<std::size_t>(std::max(0.0, std::round(points / ColumnPoints)));
}

/// Letters of a UTF-8 text: its bytes but for those that continue a letter.
std::size_t LetterCount(std::string_view text)
{
    constexpr unsigned continuationMask = 0xC0;
    constexpr unsigned continuation = 0x80;
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & continuationMask) != continuation;
    }));
}

/// Where a text begins on its line so that it ends, stands or begins as on the page.
std::size_t FirstColumn(const PageText& text, double leftEdge)
{
    const std::size_t left = ColumnOf(text.Area.Left - leftEdge);
    const std::size_t width = ColumnOf(text.Area.Width);
    const std::size_t length = LetterCount(text.Text);
    if (text.Align == PageAlign::Left || length >= width) {
        return left;
    }
    return text.Align == PageAlign::Right ? left + width - length : left + (width - length) / 2;
}

/// Texts keep at least two blanks between them.
void Put(const PageText& text, double leftEdge, std::string& line)
{
    constexpr std::size_t leastGap = 2;
    const std::size_t written = LetterCount(line);
    const std::size_t least = line.empty() ? 0 : written + leastGap;
    line.append(std::max(FirstColumn(text, leftEdge), least) - written, ' ');
    line += text.Text;
}

}  // namespace

std::string PlainTextOf(const RecordPage& page)
{
    std::vector<const PageText*> texts;
    double leftEdge = page.Width;
    for (const PageText& text : page.Texts) {
        if (!text.Text.empty()) {
            texts.push_back(&text);
            leftEdge = std::min(leftEdge, text.Area.Left);
        }
    }
    std::stable_sort(texts.begin(), texts.end(), [](const PageText* a, const PageText* b) {
        return std::pair(a->Area.Top, a->Area.Left) < std::pair(b->Area.Top, b->Area.Left);
    });
    std::string all;
    std::string line;
    for (std::size_t k = 0; k < texts.size(); ++k) {
        Put(*texts[k], leftEdge, line);
        if (k + 1 == texts.size() || texts[k + 1]->Area.Top != texts[k]->Area.Top) {
            all += line + "\n";
            line.clear();
        }
    }
    return all;
}

}  // namespace kordavan
