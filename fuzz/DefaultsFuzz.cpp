#include "FuzzKit.h"
#include "records/DefaultsFile.h"
#include "records/RecordFile.h"

namespace kordavan {
namespace {

Session StartWith(const std::string& path, UserPort& user)
{
    Session session;
    LoadDefaults(session, path, user);
    MustHold(static_cast<std::size_t>(session.Problem.Combo1) < SpeciesGroups.size(), "a material exists");
    MustHold(EditionInForce(session.Nds) != Edition::None, "an edition is in force");
    return session;
}

}  // namespace
}  // namespace kordavan

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kordavan;
    static const ScratchFolder folder;
    const std::string path = folder.Put(DefaultsFileName, InputBytes(data, size));
    SteadyUser user;
    Session session = StartWith(path, user);
    const DefaultSettings settings = SettingsToShow(session);
    if (SaveDefaults(session, settings, path, user) != Outcome::Done) {
        MustHold(user.MessageCount > 0, "a refusal says why");
        return 0;
    }
    SteadyUser quiet;
    const Session again = StartWith(path, quiet);
    MustHold(quiet.MessageCount == 0, "saved choices are read without a word");
    MustHold(EditionInForce(again.Nds) == EditionInForce(session.Nds), "the edition stays in force");
    const std::string saved = ReadRecordFile(path).Bytes.value_or(std::string{});
    SaveDefaults(session, SettingsToShow(again), path, quiet);
    MustHold(ReadRecordFile(path).Bytes == saved, "saved choices read as they were");
    return 0;
}
