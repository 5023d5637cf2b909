#pragma once

#include "tests/support/TemporaryFolder.hpp"

#include <filesystem>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace brindle {

/// What became of one call of the program.
struct CommandLineRun {
    int status = -1; ///< the exit status; 128 and the signal where one ended it
    std::string output;
    std::string errors;

    nlohmann::ordered_json json() const { return nlohmann::ordered_json::parse(output, nullptr, false); }
    /// The lines of standard error that are the program's own messages.
    std::vector<std::string> messages() const;
};

/// A call of the program that is under way.
struct CommandLineCall {
    pid_t process = -1;     ///< -1 where it could not be started
    std::string outputFile; ///< empty where standard output goes elsewhere
    std::string errorFile;  ///< empty where standard error goes elsewhere
};

/// An object's keys in their order.
std::vector<std::string> keys(const nlohmann::ordered_json& object);

/// Calls the real program on a library of its own, with a clock that stands still at `now`, in the time zone GMT and the locale en_US.
class CommandLineTest : public ::testing::Test {
protected:
    static constexpr std::string_view now = "2020-02-03T04:05:06.789Z";

    /// Calls the program with the arguments alone.
    CommandLineRun call(const std::vector<std::string>& arguments);
    /// Calls the program with the fixture's global options in front.
    CommandLineRun run(const std::vector<std::string>& arguments);
    /// As `run` without waiting; `end` waits for what `begin` gave.
    CommandLineCall begin(const std::vector<std::string>& arguments);
    static CommandLineRun end(const CommandLineCall& call);
    /// As `run` with `--json`; fails the test where standard output is no JSON.
    nlohmann::ordered_json runJSON(const std::vector<std::string>& arguments, int status = 0);

    /// Expects that a call fails with `status`, prints no result, and gives one message that holds `part`.
    void expectError(const std::vector<std::string>& arguments, int status, std::string_view part);

    /// Writes a file into the test's folder and gives its path.
    std::string file(std::string_view name, std::string_view bytes);
    std::filesystem::path supportFolder() const { return _folder / "support"; }
    const TemporaryFolder& folder() const { return _folder; }

    std::string input;                                            ///< the program's standard input
    std::string outputPath;                                       ///< where standard output goes instead of the result
    std::string errorPath;                                        ///< where standard error goes instead
    std::vector<int> closedDescriptors;                           ///< standard streams that the program gets closed
    std::vector<std::pair<std::string, std::string>> environment; ///< changes to the environment

private:
    CommandLineCall start(const std::vector<std::string>& arguments);

    TemporaryFolder _folder;
    int _callCount = 0; ///< names each call's files
};

} // namespace brindle
