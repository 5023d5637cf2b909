#pragma once

#include "desktop/system/XDGFolders.hpp"
#include "platform/LoginItem.hpp"

#include <string>
#include <vector>

namespace brindle::desktop {

/// Starts the program at login by an entry in the user's autostart folder (Desktop Application Autostart Specification). Thread: main.
class AutostartLoginItem : public LoginItem {
public:
    /// `command` is what the entry starts, in the background: the program and its arguments.
    AutostartLoginItem(XDGFolders folders, std::vector<std::string> command) : _folders(std::move(folders)), _command(std::move(command)) {}

    [[nodiscard]] bool setEnabled(const std::string& bundleIdentifier, bool isEnabled) override;

    /// A word of a command as desktop entries quote it: for the command line, and that as a string of the file.
    static std::string quoted(std::string_view word);

private:
    const XDGFolders _folders;
    const std::vector<std::string> _command;
};

} // namespace brindle::desktop
