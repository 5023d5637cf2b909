#pragma once

#include "desktop/system/XDGFolders.hpp"
#include "platform/LaunchServices.hpp"

namespace brindle::desktop {

/// Which program opens which addresses, by the lists that desktops keep of it (Association between MIME types and applications; the type of
/// an address is "x-scheme-handler/" and its scheme). A program's identifier is the name of its desktop entry without the extension.
/// Thread: main.
class XDGLaunchServices : public LaunchServices {
public:
    explicit XDGLaunchServices(XDGFolders folders) : _folders(std::move(folders)) {}

    /// Only of programs whose desktop entries are there.
    std::optional<std::string> defaultHandler(std::string_view scheme) const override;
    void setDefaultHandler(std::string_view scheme, const std::string& bundleIdentifier) override;
    /// Whether there is a desktop entry of this name, extension included.
    bool isInstalled(const std::string& desktopEntry) const;

private:
    std::vector<std::filesystem::path> lists() const;
    std::optional<std::string> installedEntry(const std::vector<std::string>& desktopEntries) const;
    std::optional<std::string> associatedEntry(std::string_view type) const;

    const XDGFolders _folders;
};

} // namespace brindle::desktop
