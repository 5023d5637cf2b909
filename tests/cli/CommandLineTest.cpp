#include "cli/CommandTable.hpp"
#include "tests/cli/CommandLineRun.hpp"

#include <array>
#include <unistd.h>

namespace brindle {

TEST_F(CommandLineTest, PrintsItsUsageAndEveryCommandForHelp) {
    const CommandLineRun result = call({"--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(result.output.starts_with("usage: brindle-cli [global options] COMMAND [options] [arguments]\n"));
    for (const Command& command : commandTable())
        EXPECT_NE(result.output.find("\n  " + std::string(command.name) + ' '), std::string::npos) << command.name;
}

TEST_F(CommandLineTest, PrintsTheUsageAndTheOptionsOfEachCommandForItsHelp) {
    for (const Command& command : commandTable()) {
        const CommandLineRun result = call({std::string(command.name), "--help"});
        EXPECT_EQ(result.status, 0) << command.name;
        EXPECT_TRUE(result.output.starts_with("usage: brindle-cli [global options] " + std::string(command.name))) << result.output;
        for (const Option& option : command.options)
            EXPECT_NE(result.output.find("\n  --" + std::string(option.name)), std::string::npos) << option.name;
    }
}

TEST_F(CommandLineTest, PrintsItsVersion) {
    const CommandLineRun result = call({"--version"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "brindle-cli " BRINDLE_VERSION "\n");
}

TEST_F(CommandLineTest, RefusesWrongUsageWithOneLineAndStatusTwo) {
    expectError({}, 2, "no command given");
    expectError({"lst"}, 2, "unknown command 'lst'");
    expectError({"--frob", "list"}, 2, "unknown option --frob");
    expectError({"list", "--frob"}, 2, "unknown option --frob");
    expectError({"list", "-j"}, 2, "unknown option -j");
    expectError({"update", "--timeout"}, 2, "option --timeout needs a value");
    expectError({"list", "--json=yes"}, 2, "option --json takes no value");
    expectError({"remove"}, 2, "missing argument");
    expectError({"list", "all"}, 2, "too many arguments");
}

TEST_F(CommandLineTest, KeepsAMessageOnOneLine) {
    expectError({"a\nb\x1b[31m"}, 2, "unknown command 'a b [31m'");
}

TEST_F(CommandLineTest, TakesOptionsBeforeBetweenAndBehindTheArguments) {
    const std::string expected = "http://a.test/b\n";
    EXPECT_EQ(run({"normalise", "--base", "http://a.test/", "url", "b"}).output, expected);
    EXPECT_EQ(run({"normalise", "url", "--base=http://a.test/", "b"}).output, expected);
    EXPECT_EQ(run({"normalise", "url", "b", "--base", "http://a.test/"}).output, expected);
    EXPECT_EQ(run({"normalise", "url", "b", "--base", "http://a.test/", "--json"}).json()["result"], "http://a.test/b");
}

TEST_F(CommandLineTest, TakesAllBehindTwoDashesAsArguments) {
    EXPECT_EQ(run({"normalise", "entities", "--", "--json"}).output, "--json\n");
}

TEST_F(CommandLineTest, RefusesATimeALocaleAndAZoneThatAreNone) {
    for (const char* time : {"", "2020", "2020-01-01", "2020-01-01T00:00:00", "2020-01-01T00:00:00.Z", "2020-02-30T00:00:00Z", "now"})
        expectError({"--now", time, "list"}, 2, "--now takes a time");
    expectError({"--locale", "zz_zz_zz", "list"}, 2, "unknown locale");
    expectError({"--timezone", "Atlantis/Centre", "list"}, 2, "unknown time zone");
    expectError({"--support-dir", "", "list"}, 2, "--support-dir");
}

TEST_F(CommandLineTest, LetsTheClockStandStillAtTheGivenTime) {
    const std::string document = file("a.xml", "<feed><entry><title>t</title></entry></feed>");
    EXPECT_EQ(runJSON({"parse", document})[0]["feed"]["dateUpdated"], now);
    EXPECT_EQ(runJSON({"--now", "2021-01-01T02:00:00.25+02:00", "parse", document})[0]["feed"]["dateUpdated"], "2021-01-01T00:00:00.250Z");
    EXPECT_EQ(runJSON({"--now", "2021-01-01T00:00:00Z", "parse", document})[0]["feed"]["dateUpdated"], "2021-01-01T00:00:00.000Z");
}

TEST_F(CommandLineTest, ReadsDatesInTheGivenTimeZone) {
    EXPECT_EQ(run({"--timezone", "Europe/Berlin", "normalise", "date", "2020-01-01T00:00:00Z"}).output, "2019-12-31T23:00:00.000Z\n");
}

TEST_F(CommandLineTest, ReadsDatesInTheGivenLocale) {
    const std::vector<std::string> english = {"normalise", "date", "Tue, 03 Mar 2020 00:00:00 GMT"};
    EXPECT_EQ(run(english).output, "2020-03-03T00:00:00.000Z\n");
    EXPECT_EQ(run({"--locale", "fr_FR", english[0], english[1], english[2]}).output, "");
}

TEST_F(CommandLineTest, FailsWhenItsOutputIsFull) {
    outputPath = "/dev/full";
    const CommandLineRun result = call({"--help"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "brindle-cli: Could not write standard output: No space left on device\n");
}

TEST_F(CommandLineTest, FailsWhenTheReaderOfItsOutputIsGone) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    // Opening a descriptor by its path needs no reader, once the pipe is there.
    outputPath = "/proc/self/fd/" + std::to_string(ends[1]);
    ::close(ends[0]);
    const CommandLineRun result = call({"--help"});
    ::close(ends[1]);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "brindle-cli: Could not write standard output: Broken pipe\n");
}

TEST_F(CommandLineTest, FailsWhenItsOutputIsClosed) {
    closedDescriptors = {1};
    const CommandLineRun result = call({"--help"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.messages().size(), 1U);
}

TEST_F(CommandLineTest, WritesNoResultIntoTheLibraryWhenItsOutputIsClosed) {
    closedDescriptors = {0, 1, 2};
    EXPECT_EQ(run({"add-group", "News"}).status, 1);
    closedDescriptors = {};
    EXPECT_EQ(runJSON({"list"})[0]["name"], "News");
}

TEST_F(CommandLineTest, FailsForAFileThatCannotBeRead) {
    const std::string missing = folder() / "missing.xml";
    for (const char* command : {"parse", "detect", "tree", "discover"})
        expectError({command, missing}, 1, "Could not read " + missing + ": No such file or directory");
    expectError({"parse", folder().path().string()}, 1, "Is a directory");
}

TEST_F(CommandLineTest, PrintsConsoleLinesOnStandardErrorOnly) {
    const CommandLineRun result = run({"normalise", "url", "b"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "b\n");
    EXPECT_EQ(result.errors, "Can't sanatize URL. Base URL is missing!\n");
}

} // namespace brindle
