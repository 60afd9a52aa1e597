#include "FuzzKit.h"
#include "records/RecoveryCopy.h"
#include "records/ResumeWork.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kordavan;
    Session beam;
    ColumnSession columns;
    NotchSession notch;
    const WorkAtHand start{beam, columns, notch};
    RecoveryRead read = ReadRecoveryCopy(InputBytes(data, size), start);
    if (read.Fault != RecoveryFault::None) {
        return 0;
    }
    const std::string lines = EntryLines({read.Beam, read.Columns, read.Notch});
    RecoveryRead again = ReadRecoveryCopy(MakeRecoveryCopy(read.Note, lines), start);
    MustHold(again.Fault == RecoveryFault::None, "a copy that was made can be read");
    MustHold(EntryLines({again.Beam, again.Columns, again.Notch}) == lines, "a copy reads as it was");
    if (CalculateAgain(read.Beam) == Outcome::Done) {
        TestAgain(read.Beam);
    }
    CalculateAgain(read.Columns, Edition::Nds2018);
    return 0;
}
