#include "FuzzKit.h"
#include "records/RecentFiles.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kordavan;
    static const ScratchFolder folder;
    const std::string list = folder.Put(RecentFilesName, InputBytes(data, size));
    const std::vector<std::string> files = ReadRecentFiles(list);
    MustHold(files.size() <= MostRecentFiles, "the list has an end");
    const std::string latest = files.empty() ? "beam.CRI" : files.back();
    const std::vector<std::string> longer = AddRecentFile(list, latest);
    MustHold(longer.front() == latest, "the latest file comes first");
    MustHold(ReadRecentFiles(list) == longer, "a saved list reads as it was");
    return 0;
}
