#include <fcntl.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cerrno>
#include <csignal>
#include <exception>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "batch/AnswerLine.h"
#include "batch/BatchRun.h"
#include "batch/ReadableReport.h"
#include "core/Version.h"

namespace {

constexpr int ExitFault = 2;
constexpr int MostJobs = 64;

/// Answers one input; false when it, or the output, has failed.
bool AnswerOne(int input, const std::string& name, int jobs, kordavan::LineAnswer answer)
{
    kordavan::LineBlocks lines(input);
    switch (kordavan::AnswerInput(lines, STDOUT_FILENO, jobs, answer)) {
        case kordavan::BatchEnd::Answered:
            return true;
        case kordavan::BatchEnd::InputFailed:
            std::cerr << "kordavan-batch: " << name << " cannot be read\n";
            return false;
        case kordavan::BatchEnd::OutputFailed:
            std::cerr << "kordavan-batch: the answers cannot be written\n";
            return false;
    }
    return false;
}

bool AnswerFile(const std::string& name, int jobs, kordavan::LineAnswer answer)
{
    const int input = ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
    if (input < 0) {
        std::cerr << "kordavan-batch: " << name << ": " << std::generic_category().message(errno) << '\n';
        return false;
    }
    const bool answered = AnswerOne(input, name, jobs, answer);
    ::close(input);
    return answered;
}

int Run(int argc, char** argv)
{
    CLI::App app{"Checks structural members: one JSON request a line in, one JSON answer a line out."};
    app.set_version_flag("--version", std::string(kordavan::VersionText));
    int jobs = 1;
    app.add_option("--jobs", jobs, "Number of threads")
        ->check(CLI::Range(1, MostJobs))
        ->capture_default_str();
    bool readable = false;
    app.add_flag("--report", readable, "Print readable reports in place of JSON answers");
    std::vector<std::string> files;
    app.add_option("FILE", files, "Files of requests; standard input without any");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& stop) {
        return app.exit(stop) == 0 ? 0 : ExitFault;
    }

    const kordavan::LineAnswer answer = readable ? kordavan::ReportLine : kordavan::AnswerLine;
    bool allAnswered = true;
    for (const std::string& file : files) {
        allAnswered = AnswerFile(file, jobs, answer) && allAnswered;
    }
    if (files.empty()) {
        allAnswered = AnswerOne(STDIN_FILENO, "standard input", jobs, answer);
    }
    return allAnswered ? 0 : ExitFault;
}

}  // namespace

int main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN);
    try {
        return Run(argc, argv);
    } catch (const std::exception& fault) {
        std::cerr << "kordavan-batch: " << fault.what() << '\n';
        return ExitFault;
    }
}
