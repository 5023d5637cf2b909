#pragma once

#include "desktop/windows/MediaPlayerView.hpp"
#include "desktop/windows/QtWindow.hpp"

#include <memory>

namespace brindle::desktop {

/// The window that plays enclosures: as large as what it plays. Escape closes it. Thread: main.
class MediaPlayerWindow : public QtWindow {
    Q_OBJECT

public:
    explicit MediaPlayerWindow(WindowEnvironment environment);

    const std::shared_ptr<MediaPlayerView>& playerView() const { return _playerView; }

private:
    const std::shared_ptr<MediaPlayerView> _playerView;
};

} // namespace brindle::desktop
