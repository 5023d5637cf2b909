#include "cli/CommandLine.hpp"

#include "cli/ArgumentParser.hpp"
#include "cli/CommandTable.hpp"
#include "cli/Output.hpp"
#include "cli/ResourceFolder.hpp"
#include "cli/Settings.hpp"
#include "cli/StandardError.hpp"
#include "foundation/Console.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/UserLocale.hpp"

#include <algorithm>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <string>
#include <unistd.h>
#include <vector>

namespace brindle {

namespace {

/// A standard stream that the caller closed would be the next file opened, and the result would be written into the library. Opened for the
/// wrong direction, each stream fails as a closed one does.
void occupyStandardStreams() {
    constexpr std::array<int, 3> modes = {O_WRONLY, O_RDONLY, O_RDONLY};
    for (int descriptor = 0; descriptor < 3; ++descriptor) {
        if (::fcntl(descriptor, F_GETFD) < 0)
            static_cast<void>(::open("/dev/null", modes[static_cast<std::size_t>(descriptor)]));
    }
}

/// What the arguments ask for, taken apart.
struct Request {
    const Command* command = nullptr; ///< null: none is named
    Arguments global;
    Arguments own;
};

void moveGlobalOptions(Arguments& from, Arguments& to) {
    std::vector<std::pair<std::string, std::string>> own;
    for (auto& option : from.options) {
        const auto& known = Settings::options();
        const bool isGlobal = std::any_of(known.begin(), known.end(), [&](const Option& each) { return each.name == option.first; });
        (isGlobal ? to.options : own).push_back(std::move(option));
    }
    from.options = std::move(own);
}

tl::expected<Request, CommandError> parseRequest(std::vector<std::string> words) {
    Request request;
    ArgumentParser parser(std::move(words));
    if (auto taken = parser.takeLeadingOptions(Settings::options(), request.global); !taken)
        return tl::unexpected(std::move(taken.error()));
    const auto name = parser.takeWord();
    if (!name)
        return request;
    request.command = findCommand(*name);
    if (!request.command)
        return wrongUsage("unknown command '" + *name + "'");
    std::vector<Option> known = Settings::options();
    known.insert(known.end(), request.command->options.begin(), request.command->options.end());
    if (auto taken = parser.takeAll(known, request.own); !taken)
        return wrongUsage(*name + ": " + taken.error().message);
    moveGlobalOptions(request.own, request.global);
    return request;
}

/// The texts of menus and messages in the user's language. Without their tables the program shows their keys, and works all the same.
void loadTexts() {
    static_cast<void>(LocalizedStrings::load(resourceFolder() / "localisation", {userLocale()}));
}

CommandResult runCommand(const Request& request, Output& output, StandardError& standardError) {
    if (!request.command)
        return wrongUsage("no command given; see brindle-cli --help");
    const Command& command = *request.command;
    const std::size_t count = request.own.plain.size();
    if (count < command.leastArguments || count > command.mostArguments) {
        const std::string synopsis = command.synopsis.empty() ? "" : ' ' + std::string(command.synopsis);
        const std::string fault = count < command.leastArguments ? "missing argument" : "too many arguments";
        return wrongUsage(fault + "; usage: brindle-cli " + std::string(command.name) + synopsis);
    }
    const auto settings = Settings::make(request.global);
    if (!settings)
        return tl::unexpected(settings.error());
    loadTexts();
    return command.run({request.own, *settings, output, standardError});
}

CommandResult run(std::vector<std::string> words, Output& output, StandardError& standardError) {
    const auto request = parseRequest(std::move(words));
    if (!request)
        return tl::unexpected(request.error());
    if (request->global.has("version")) {
        output.text("brindle-cli " BRINDLE_VERSION "\n");
        return ExitStatus::done;
    }
    if (request->global.has("help")) {
        output.text(request->command ? commandHelp(*request->command) : programHelp());
        return ExitStatus::done;
    }
    return runCommand(*request, output, standardError);
}

} // namespace

int runCommandLine(int argc, char** argv) {
    occupyStandardStreams();
    // A reader that went away is a write that fails, and is told as such.
    std::signal(SIGPIPE, SIG_IGN);
    // Lives as long as the console, which other threads use until the process is gone.
    const auto standardError = std::make_shared<StandardError>();
    Console::redirect([standardError](std::string_view line) { standardError->line(line); });
    Output output;
    CommandResult result = run(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc), output, *standardError);
    if (result && output.failure())
        result = failure(*output.failure());
    if (!result)
        standardError->message(result.error().message);
    return static_cast<int>(result ? *result : result.error().status);
}

} // namespace brindle
