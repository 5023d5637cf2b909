#pragma once

namespace brindle::desktop {

/// Whether the toolkit can load something to play media with, and heeds the user's choice of one ("QT_MEDIA_BACKEND"). Where it can't, its
/// players, outputs and video widgets end the program as soon as they are made. Of several, one that can be loaded is named to the toolkit
/// if another can't. Thread: main.
bool hasMediaBackend();

} // namespace brindle::desktop
