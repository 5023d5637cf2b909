#pragma once

#include "platform/Workspace.hpp"

namespace brindle::desktop {

/// Opens addresses by the desktop's default programs. Feeds are written by strangers: addresses of files on this machine are not opened.
/// Thread: main.
class QtWorkspace : public Workspace {
public:
    void openURL(const URL& url) override;
};

} // namespace brindle::desktop
