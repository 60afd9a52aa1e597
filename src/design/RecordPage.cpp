#include "design/RecordPage.h"

#include <algorithm>
#include <cmath>

namespace kordavan {

namespace {

/// Width of a column of plain text on the page, in points.
constexpr double ColumnPoints = 4.6;

std::size_t ColumnOf(double points)
{
    return static_cast<std::size_t>(std::max(0.0, std::round(points / ColumnPoints)));
}

/// Where a text begins on its line so that it ends, stands or begins as on the page.
std::size_t FirstColumn(const PageText& text, double leftEdge)
{
    const std::size_t left = ColumnOf(text.Area.Left - leftEdge);
    const std::size_t width = ColumnOf(text.Area.Width);
    const std::size_t length = text.Text.size();
    if (text.Align == PageAlign::Left || length >= width) {
        return left;
    }
    return text.Align == PageAlign::Right ? left + width - length : left + (width - length) / 2;
}

/// Texts keep at least two blanks between them.
void Put(const PageText& text, double leftEdge, std::string& line)
{
    constexpr std::size_t leastGap = 2;
    const std::size_t least = line.empty() ? 0 : line.size() + leastGap;
    line.resize(std::max(FirstColumn(text, leftEdge), least), ' ');
    line += text.Text;
}

}  // namespace

std::string PlainTextOf(const RecordPage& page)
{
    constexpr double sameLine = 2;
    std::vector<const PageText*> texts;
    double leftEdge = page.Width;
    for (const PageText& text : page.Texts) {
        if (!text.Text.empty()) {
            texts.push_back(&text);
            leftEdge = std::min(leftEdge, text.Area.Left);
        }
    }
    std::stable_sort(texts.begin(), texts.end(), [](const PageText* a, const PageText* b) {
        return a->Area.Top + sameLine < b->Area.Top;
    });
    std::string all;
    std::size_t next = 0;
    while (next < texts.size()) {
        const double top = texts[next]->Area.Top;
        auto end = next;
        while (end < texts.size() && texts[end]->Area.Top <= top + sameLine) {
            ++end;
        }
        std::sort(texts.begin() + static_cast<std::ptrdiff_t>(next),
                  texts.begin() + static_cast<std::ptrdiff_t>(end),
                  [](const PageText* a, const PageText* b) { return a->Area.Left < b->Area.Left; });
        std::string line;
        for (; next < end; ++next) {
            Put(*texts[next], leftEdge, line);
        }
        all += line + "\n";
    }
    return all;
}

}  // namespace kordavan
