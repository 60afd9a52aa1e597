#include "batch/LineBlocks.h"

#include <unistd.h>

#include <cerrno>
#include <cstddef>

#include "batch/RequestLine.h"

namespace kordavan {

namespace {

constexpr std::size_t ChunkBytes = 1 << 16;

}  // namespace

bool LineBlocks::Next(std::string& lines)
{
    lines.clear();
    while (!ended) {
        if (!Fill()) {
            ended = true;
            break;
        }
        const std::size_t lastBreak = pending.rfind('\n');
        if (lastBreak != std::string::npos) {
            lines.assign(pending, 0, lastBreak + 1);
            pending.erase(0, lastBreak + 1);
            return true;
        }
        KeepFromGrowing();
    }
    if (pending.empty()) {
        return false;
    }
    lines.swap(pending);
    pending.clear();
    lines.push_back('\n');
    return true;
}

bool LineBlocks::Fill()
{
    chunk.resize(ChunkBytes);
    ssize_t count = 0;
    do {
        count = ::read(input, chunk.data(), chunk.size());
    } while (count < 0 && errno == EINTR);
    failed = count < 0;
    if (count <= 0) {
        return false;
    }
    pending.append(chunk, 0, static_cast<std::size_t>(count));
    return true;
}

void LineBlocks::KeepFromGrowing()
{
    if (pending.size() > MostLineBytes + 1) {
        pending.resize(MostLineBytes + 1);
    }
}

std::string_view TakeLine(std::string_view& lines)
{
    const std::size_t end = lines.find('\n');
    std::string_view line = lines.substr(0, end);
    lines.remove_prefix(end == std::string_view::npos ? lines.size() : end + 1);
    if (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
    }
    return line;
}

}  // namespace kordavan
