#include "batch/BatchRun.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <thread>

#include "batch/RequestLine.h"

namespace kordavan {
namespace {

/// Echoes the length of each line.
void AnswerLength(std::string_view line, rapidjson::StringBuffer& buffer)
{
    const std::string length = std::to_string(line.size());
    std::copy(length.begin(), length.end(), buffer.Push(length.size()));
}

struct Pipe {
    Pipe() { EXPECT_EQ(::pipe(ends), 0); }
    ~Pipe()
    {
        CloseReading();
        CloseWriting();
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    int Reading() const { return ends[0]; }
    int Writing() const { return ends[1]; }
    void CloseReading() { Close(ends[0]); }
    void CloseWriting() { Close(ends[1]); }

private:
    static void Close(int& end)
    {
        if (end >= 0) {
            ::close(end);
        }
        end = -1;
    }
    int ends[2] = {-1, -1};
};

std::string ReadAll(int input)
{
    std::string text;
    char bytes[4096];
    for (ssize_t count = 0; (count = ::read(input, bytes, sizeof bytes)) > 0;) {
        text.append(bytes, static_cast<std::size_t>(count));
    }
    return text;
}

std::string AnswerOfRun(const std::string& text, int jobs)
{
    Pipe input;
    Pipe output;
    std::thread writer([&] {
        EXPECT_EQ(::write(input.Writing(), text.data(), text.size()), static_cast<ssize_t>(text.size()));
        input.CloseWriting();
    });
    std::string answers;
    std::thread reader([&] { answers = ReadAll(output.Reading()); });
    LineBlocks lines(input.Reading());
    EXPECT_EQ(AnswerInput(lines, output.Writing(), jobs, AnswerLength), BatchEnd::Answered);
    output.CloseWriting();
    writer.join();
    reader.join();
    return answers;
}

TEST(BatchRun, AnswersEveryLineEvenAnEmptyOrAnUnfinishedOne)
{
    EXPECT_EQ(AnswerOfRun("one\n\nthree\r\nlast", 1), "3\n0\n5\n4\n");
    EXPECT_EQ(AnswerOfRun("", 1), "");
    EXPECT_EQ(AnswerOfRun("\n", 1), "0\n");
}

TEST(BatchRun, KeepsTheOrderOnSeveralThreads)
{
    std::string text;
    std::string expected;
    for (std::size_t k = 0; k < 20000; ++k) {
        const std::size_t length = k * 7919 % 61;
        text += std::string(length, 'x') + "\n";
        expected += std::to_string(length) + "\n";
    }
    EXPECT_EQ(AnswerOfRun(text, 4), expected);
}

TEST(BatchRun, KeepsOnlyTheBeginningOfAnEndlessLine)
{
    const std::string answers = AnswerOfRun(std::string(5 << 20, 'x') + "\nnext\n", 2);
    const std::size_t length = std::stoul(answers);
    EXPECT_GT(length, MostLineBytes);
    EXPECT_LT(length, 2 * MostLineBytes);
    EXPECT_EQ(answers.substr(answers.find('\n')), "\n4\n");
}

TEST(BatchRun, AnswersALineBeforeTheNextOneComes)
{
    Pipe input;
    Pipe output;
    std::thread worker([&] {
        LineBlocks lines(input.Reading());
        AnswerInput(lines, output.Writing(), 2, AnswerLength);
    });
    ASSERT_EQ(::write(input.Writing(), "abc\n", 4), 4);
    char answer[2];
    ASSERT_EQ(::read(output.Reading(), answer, 2), 2);  // would wait for ever if the answer were held back
    EXPECT_EQ(std::string(answer, 2), "3\n");
    input.CloseWriting();
    worker.join();
}

TEST(BatchRun, ReportsAnInputThatCannotBeRead)
{
    LineBlocks lines(-1);
    EXPECT_EQ(AnswerInput(lines, STDOUT_FILENO, 2, AnswerLength), BatchEnd::InputFailed);
}

}  // namespace
}  // namespace kordavan
