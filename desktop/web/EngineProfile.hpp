#pragma once

#include "desktop/web/PageScheme.hpp"

#include <QWebEngineProfile>

namespace brindle::desktop {

/// The one profile of all pages: keeps nothing on disk, downloads nothing. Thread: main.
class EngineProfile : public QWebEngineProfile {
    Q_OBJECT

public:
    /// Made at first use; dies with the application object, after all pages.
    static EngineProfile& shared();

    PageScheme& pages() const { return *_pages; }

private:
    explicit EngineProfile(QObject* parent);

    PageScheme* const _pages;
};

} // namespace brindle::desktop
