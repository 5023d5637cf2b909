#include "cli/CommandTable.hpp"

#include "cli/AddCommand.hpp"
#include "cli/ArticleCommands.hpp"
#include "cli/ArticlePageCommand.hpp"
#include "cli/CollectionsCommand.hpp"
#include "cli/DetectCommand.hpp"
#include "cli/DiscoverCommand.hpp"
#include "cli/EditCommands.hpp"
#include "cli/ListCommand.hpp"
#include "cli/MenuCommand.hpp"
#include "cli/MoveCommand.hpp"
#include "cli/NormaliseCommand.hpp"
#include "cli/OPMLCommands.hpp"
#include "cli/OpenCommand.hpp"
#include "cli/OpenUnreadCommand.hpp"
#include "cli/OutlineCommand.hpp"
#include "cli/ParseCommand.hpp"
#include "cli/PreferenceCommand.hpp"
#include "cli/ReachabilityCommand.hpp"
#include "cli/ResetCommand.hpp"
#include "cli/SavedArticleCommands.hpp"
#include "cli/StatusCommand.hpp"
#include "cli/TreeCommand.hpp"
#include "cli/UpdateCommand.hpp"

#include <algorithm>

namespace brindle {

namespace {

void appendAligned(std::string& text, std::string left, std::string_view right) {
    constexpr std::size_t column = 26;
    text += "  " + left;
    text.append(left.size() + 2 < column ? column - left.size() - 2 : 2, ' ');
    text += right;
    text += '\n';
}

std::string optionList(const std::vector<Option>& options) {
    std::string text;
    for (const Option& option : options) {
        std::string left = "--" + std::string(option.name);
        if (!option.valueName.empty())
            left += ' ' + std::string(option.valueName);
        appendAligned(text, std::move(left), option.help);
    }
    return text;
}

} // namespace

const std::vector<Command>& commandTable() {
    static const std::vector<Command> commands = {
        parseCommand(),
        detectCommand(),
        treeCommand(),
        discoverCommand(),
        normaliseCommand(),
        reachabilityCommand(),
        addCommand(),
        openCommand(),
        addGroupCommand(),
        addSeparatorCommand(),
        editCommand(),
        removeCommand(),
        moveCommand(),
        updateCommand(),
        listCommand(),
        articlesCommand(),
        searchCommand(),
        markCommand(),
        openUnreadCommand(),
        articlePageCommand(),
        outlineCommand(),
        menuCommand(),
        statusCommand(),
        collectionsCommand(),
        keepCommand(),
        unkeepCommand(),
        savedCommand(),
        importCommand(),
        exportCommand(),
        resetCommand(),
        preferenceCommand(),
    };
    return commands;
}

const Command* findCommand(std::string_view name) {
    const auto& commands = commandTable();
    const auto found = std::find_if(commands.begin(), commands.end(), [&](const Command& command) { return command.name == name; });
    return found == commands.end() ? nullptr : &*found;
}

std::string programHelp() {
    std::string text = "usage: brindle-cli [global options] COMMAND [options] [arguments]\n\nCommands:\n";
    for (const Command& command : commandTable())
        appendAligned(text, std::string(command.name), command.help.substr(0, command.help.find('.')));
    text += "\nGlobal options:\n" + optionList(Settings::options());
    text += "\nExit status: 0 done, 1 the work failed, 2 wrong usage.\n";
    return text;
}

std::string commandHelp(const Command& command) {
    std::string text = "usage: brindle-cli [global options] " + std::string(command.name);
    if (!command.synopsis.empty())
        text += ' ' + std::string(command.synopsis);
    text += "\n\n" + std::string(command.help) + '\n';
    if (!command.options.empty())
        text += "\nOptions:\n" + optionList(command.options);
    return text;
}

} // namespace brindle
