#include "batch/BatchRun.h"

#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace kordavan {

namespace {

bool WriteAll(int output, const char* bytes, std::size_t count)
{
    while (count > 0) {
        const ssize_t written = ::write(output, bytes, count);
        if (written < 0 && errno != EINTR) {
            return false;
        }
        if (written > 0) {
            bytes += written;
            count -= static_cast<std::size_t>(written);
        }
    }
    return true;
}

/// Threads take turns at reading a block and, in the same order, at writing its answers.
class OrderedRun {
public:
    OrderedRun(LineBlocks& lines, int outputDescriptor, LineAnswer lineAnswer)
        : input(lines), output(outputDescriptor), answer(lineAnswer)
    {
    }

    void Work()
    {
        std::string lines;
        rapidjson::StringBuffer answers;
        std::size_t number = 0;
        while (TakeBlock(lines, number)) {
            answers.Clear();
            std::string_view rest = lines;
            while (!rest.empty()) {
                answer(TakeLine(rest), answers);
                answers.Put('\n');
            }
            WriteInTurn(answers, number);
        }
    }

    bool OutputFailed() const { return outputFailed; }

private:
    bool TakeBlock(std::string& lines, std::size_t& number)
    {
        const std::lock_guard lock(readTurn);
        if (stopReading || !input.Next(lines)) {
            stopReading = true;
            return false;
        }
        number = blocksRead++;
        return true;
    }

    void WriteInTurn(const rapidjson::StringBuffer& answers, std::size_t number)
    {
        std::unique_lock lock(writeTurn);
        turnCame.wait(lock, [&] { return blocksWritten == number; });
        if (!outputFailed && !WriteAll(output, answers.GetString(), answers.GetSize())) {
            outputFailed = true;
            stopReading = true;
        }
        ++blocksWritten;
        turnCame.notify_all();
    }

    LineBlocks& input;
    int output;
    LineAnswer answer;

    std::mutex readTurn;
    std::atomic<bool> stopReading = false;
    std::size_t blocksRead = 0;

    std::mutex writeTurn;
    std::condition_variable turnCame;
    std::size_t blocksWritten = 0;
    bool outputFailed = false;
};

}  // namespace

BatchEnd AnswerInput(LineBlocks& input, int outputDescriptor, int jobs, LineAnswer answer)
{
    OrderedRun run(input, outputDescriptor, answer);
    {
        std::vector<std::jthread> helpers;
        for (int helper = 1; helper < jobs; ++helper) {
            helpers.emplace_back([&run] { run.Work(); });
        }
        run.Work();
    }
    if (run.OutputFailed()) {
        return BatchEnd::OutputFailed;
    }
    return input.HasFailed() ? BatchEnd::InputFailed : BatchEnd::Answered;
}

}  // namespace kordavan
