#include "tests/cli/CommandLineRun.hpp"
#include "tests/support/Folders.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace brindle {

namespace {

std::string contents(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> environmentWith(const std::vector<std::pair<std::string, std::string>>& changes) {
    std::vector<std::string> variables;
    for (char** variable = environ; *variable; ++variable) {
        const std::string text = *variable;
        const auto isChanged = [&](const auto& change) { return text.starts_with(change.first + '='); };
        if (std::none_of(changes.begin(), changes.end(), isChanged))
            variables.push_back(text);
    }
    for (const auto& [name, value] : changes)
        variables.push_back(name + '=' + value);
    return variables;
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> list;
    for (std::string& text : texts)
        list.push_back(text.data());
    list.push_back(nullptr);
    return list;
}

} // namespace

std::vector<std::string> CommandLineRun::messages() const {
    std::vector<std::string> found;
    std::istringstream lines(errors);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("brindle-cli: "))
            found.push_back(line);
    }
    return found;
}

std::vector<std::string> keys(const nlohmann::ordered_json& object) {
    std::vector<std::string> found;
    for (const auto& member : object.items())
        found.push_back(member.key());
    return found;
}

CommandLineCall CommandLineTest::start(const std::vector<std::string>& arguments) {
    const std::string number = std::to_string(++_callCount);
    const std::string inputFile = file("stdin" + number, input);
    const std::string outputFile = outputPath.empty() ? (_folder / ("stdout" + number)).string() : outputPath;
    const std::string errorFile = errorPath.empty() ? (_folder / ("stderr" + number)).string() : errorPath;
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    const std::array<const std::string*, 3> files = {&inputFile, &outputFile, &errorFile};
    for (int descriptor = 0; descriptor < 3; ++descriptor) {
        const int mode = descriptor == 0 ? O_RDONLY : O_WRONLY | O_CREAT | O_TRUNC;
        ::posix_spawn_file_actions_addopen(&actions, descriptor, files[static_cast<std::size_t>(descriptor)]->c_str(), mode, 0600);
    }
    for (const int descriptor : closedDescriptors)
        ::posix_spawn_file_actions_addclose(&actions, descriptor);
    std::vector<std::string> words = {testsupport::buildFolder() + "/bin/brindle-cli"};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> variables = environmentWith(environment);
    pid_t process = 0;
    const int error = ::posix_spawn(&process, words[0].c_str(), &actions, nullptr, pointers(words).data(), pointers(variables).data());
    ::posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        ADD_FAILURE() << words[0] << ": " << std::strerror(error);
        return {};
    }
    return {process, outputPath.empty() ? outputFile : std::string(), errorPath.empty() ? errorFile : std::string()};
}

CommandLineRun CommandLineTest::end(const CommandLineCall& call) {
    CommandLineRun result;
    if (call.process < 0)
        return result;
    int status = 0;
    while (::waitpid(call.process, &status, 0) < 0 && errno == EINTR) {
    }
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    result.output = call.outputFile.empty() ? std::string() : contents(call.outputFile);
    result.errors = call.errorFile.empty() ? std::string() : contents(call.errorFile);
    return result;
}

CommandLineRun CommandLineTest::call(const std::vector<std::string>& arguments) {
    return end(start(arguments));
}

CommandLineCall CommandLineTest::begin(const std::vector<std::string>& arguments) {
    std::vector<std::string> words = {
        "--support-dir", supportFolder().string(), "--now", std::string(now), "--locale", "en_US", "--timezone", "GMT"};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return start(words);
}

CommandLineRun CommandLineTest::run(const std::vector<std::string>& arguments) {
    return end(begin(arguments));
}

nlohmann::ordered_json CommandLineTest::runJSON(const std::vector<std::string>& arguments, int status) {
    std::vector<std::string> words = {"--json"};
    words.insert(words.end(), arguments.begin(), arguments.end());
    const CommandLineRun result = run(words);
    EXPECT_EQ(result.status, status) << result.errors;
    EXPECT_FALSE(result.json().is_discarded()) << result.output;
    return result.json();
}

void CommandLineTest::expectError(const std::vector<std::string>& arguments, int status, std::string_view part) {
    const CommandLineRun result = run(arguments);
    EXPECT_EQ(result.status, status) << result.errors;
    EXPECT_EQ(result.output, "");
    const auto messages = result.messages();
    ASSERT_EQ(messages.size(), 1U) << result.errors;
    EXPECT_NE(messages[0].find(part), std::string::npos) << messages[0];
}

std::string CommandLineTest::file(std::string_view name, std::string_view bytes) {
    const std::filesystem::path path = _folder / name;
    std::ofstream(path, std::ios::binary) << bytes;
    return path.string();
}

} // namespace brindle
