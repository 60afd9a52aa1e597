#pragma once

#include <string>
#include <string_view>

namespace kordavan {

/// Reads lines from a file descriptor block by block, as they come; memory stays bounded whatever the input.
class LineBlocks {
public:
    explicit LineBlocks(int fileDescriptor) : input(fileDescriptor) {}

    /// The next whole lines, each with its line break (the last of the input is given one); false at the end.
    /// Waits for no more than one line. Of a line longer than `MostLineBytes` only so much is kept that it is
    /// seen to be longer.
    bool Next(std::string& lines);

    /// True when reading has ended because the input could not be read.
    bool HasFailed() const { return failed; }

private:
    bool Fill();
    void KeepFromGrowing();

    int input;
    std::string pending;
    std::string chunk;
    bool ended = false;
    bool failed = false;
};

/// Takes the first line off a block of lines, without its line break.
std::string_view TakeLine(std::string_view& lines);

}  // namespace kordavan
