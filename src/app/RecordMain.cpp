#include <CLI/CLI.hpp>
#include <QApplication>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <string>
#include <vector>

#include "batch/BeamRun.h"
#include "batch/LocalDay.h"
#include "batch/RequestLine.h"
#include "core/Version.h"
#include "design/LoadPicture.h"
#include "forms/Kit.h"
#include "forms/RecordPdf.h"
#include "records/DataRecordPage.h"
#include "records/DataSheetFill.h"

namespace {

using namespace kordavan;

constexpr int ExitFault = 2;

/// The identification of the beam, fit for a file name; a second beam of the same one has its line behind it.
std::string FileNameOf(const BeamRun& run, std::size_t line, std::set<std::string>& taken)
{
    std::string name = run.Work.Problem.ID.empty() ? "beam" : run.Work.Problem.ID;
    for (char& c : name) {
        c = c == '/' || c == '\\' || c == '\0' ? '-' : c;
    }
    while (!taken.insert(name).second) {
        name += "-" + std::to_string(line);
    }
    return name + ".pdf";
}

/// Writes the Data Record of one request; false where there is none, which is told.
bool WriteRecordOf(const std::string& request, std::size_t line, const std::filesystem::path& folder,
                   std::set<std::string>& taken)
{
    rapidjson::Document document;
    ParseRequest(request, document);
    BeamRun run;
    RunBeam(document, run);
    if (!run.Tested) {
        std::cerr << "kordavan-record: line " << line << ": no member was tested\n";
        return false;
    }
    const DataSheet sheet = FillDataRecord(run.Work, LocalToday(), run.User);
    const std::string path = folder / FileNameOf(run, line, taken);
    const std::string fault = SavePdf(path, {.Page = LayOutDataRecord(sheet, {}),
                                             .Picture = PictureOfCalculated(run.Work.Numbers),
                                             .Family = Text(std::string_view("Arial"))});
    if (fault.empty()) {
        std::cout << path << '\n';
    } else {
        std::cerr << "kordavan-record: " << path << ": " << fault << '\n';
    }
    return fault.empty();
}

bool WriteRecordsOf(const std::string& file, const std::filesystem::path& folder,
                    std::set<std::string>& taken)
{
    std::ifstream requests(file);
    if (!requests) {
        std::cerr << "kordavan-record: " << file << " cannot be read\n";
        return false;
    }
    bool allWritten = true;
    std::string request;
    for (std::size_t line = 1; std::getline(requests, request); ++line) {
        try {
            allWritten = WriteRecordOf(request, line, folder, taken) && allWritten;
        } catch (const InvalidRequest& fault) {
            std::cerr << "kordavan-record: line " << line << ": " << fault.what() << '\n';
            allWritten = false;
        }
    }
    return allWritten;
}

int Run(int argc, char** argv)
{
    CLI::App app{"Writes the Data Record of each beam request as a PDF file named by its ID."};
    app.set_version_flag("--version", std::string(VersionText));
    std::string folder = ".";
    app.add_option("--folder", folder, "Where the files are written")->check(CLI::ExistingDirectory);
    std::vector<std::string> files;
    app.add_option("FILE", files, "Files of requests, one a line")->required();
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& stop) {
        return app.exit(stop) == 0 ? 0 : ExitFault;
    }
    bool allWritten = true;
    std::set<std::string> taken;
    for (const std::string& file : files) {
        allWritten = WriteRecordsOf(file, folder, taken) && allWritten;
    }
    return allWritten ? 0 : ExitFault;
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    try {
        const QApplication fonts(argc, argv);
        return Run(argc, argv);
    } catch (const std::exception& fault) {
        std::cerr << "kordavan-record: " << fault.what() << '\n';
        return ExitFault;
    }
}
