#include "records/RecoveryOffer.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "records/RecordFile.h"

namespace kordavan {

namespace {

namespace fs = std::filesystem;

std::string RecoveryFaultText(RecoveryFault fault)
{
    switch (fault) {
        case RecoveryFault::Foreign:
            return "it is none of Kordavan's.";
        case RecoveryFault::Newer:
            return "it was made by a newer version of Kordavan.";
        case RecoveryFault::Broken:
        case RecoveryFault::None:
            break;
    }
    return "it is damaged.";
}

/// So that it is not met at every start, and yet is not lost to who can read it.
void SetAside(const std::string& path, const std::string& fault, UserPort& user)
{
    const fs::path copy(path);
    const fs::path aside =
        copy.parent_path() / (copy.stem().string() + " set aside" + copy.extension().string());
    std::error_code failure;
    fs::rename(copy, aside, failure);
    const std::string kept = failure ? path : aside.string();
    user.Tell(Marked(Alert("Kordavan did not end properly the last time. Its recovery copy of the entries "
                           "cannot be used: " +
                           fault + "\nNothing was taken from it. It is kept as\n    " + kept),
                     MessageIcon::Warning));
}

std::string RecoveryQuestion(const RecoveryRead& read)
{
    std::string text =
        "Kordavan did not end properly the last time. The entries were kept on " + read.Note.Made + ".\n";
    if (!read.Beam.Problem.Proj.empty()) {
        text += "Project: " + read.Beam.Problem.Proj + "\n";
    }
    return text + "\nDo you wish to have them back? With No they are deleted.";
}

}  // namespace

std::optional<std::string> OfferRecovery(const std::string& path, const WorkAtHand& work, UserPort& user)
{
    const FileRead file = ReadRecordFile(path);
    if (!file.Bytes) {
        SetAside(path, file.Fault, user);
        return std::nullopt;
    }
    RecoveryRead read = ReadRecoveryCopy(*file.Bytes, work);
    if (read.Fault != RecoveryFault::None) {
        SetAside(path, RecoveryFaultText(read.Fault), user);
        return std::nullopt;
    }
    if (!user.Ask(Question(RecoveryQuestion(read)))) {
        std::error_code ignored;
        fs::remove(path, ignored);
        return std::nullopt;
    }
    work.Beam = std::move(read.Beam);
    work.Columns = std::move(read.Columns);
    work.Notch = std::move(read.Notch);
    return std::move(read.Note.Screen);
}

}  // namespace kordavan
