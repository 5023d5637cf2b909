#include "Brindle/menu/MenuActions.hpp"
#include "Brindle/shell/FeedsPickerViewController.hpp"
#include "desktop/system/ColorScheme.hpp"
#include "desktop/toolkit/MenuView.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/Console.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "platform/ObjectSender.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/screenshots/Camera.hpp"
#include "tests/screenshots/SampleApplication.hpp"

#include <QApplication>
#include <QComboBox>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QTableView>
#include <QTranslator>
#include <QTreeView>
#include <iostream>

/// Takes pictures of all windows over the sample feeds.
///
///     brindle-screenshots FOLDER light|dark LANGUAGE
namespace brindle::desktop {
namespace {

/// The tour of the program, window by window.
class Tour {
public:
    Tour(const std::filesystem::path& folder, const std::filesystem::path& resources) : _camera(folder), _application(resources) {}

    /// False where a picture is missing.
    bool run() {
        takeSplash();
        _application.start();
        takeBrowser();
        takeMenu();
        takeNewFeed();
        takePicker();
        takePreferences();
        takePlayer();
        takeAlerts();
        return _isWhole;
    }

private:
    void perform(std::string_view action, const std::shared_ptr<Object>& object = nullptr) {
        _application.delegate().responderChain()->perform({action, std::make_shared<ObjectSender>(object)});
    }
    std::shared_ptr<FeedItem> feed(std::size_t place) {
        return std::dynamic_pointer_cast<FeedItem>(_application.delegate().feedsManager()->feeds.at(place));
    }
    void take(QWidget* window, const std::string& name) {
        if (!window)
            std::cerr << "no window for " << name << '\n';
        _isWhole = window && _camera.take(*window, name) && _isWhole;
    }
    /// The window with that title, which is closed afterwards.
    void takeTitled(const std::string& title, const std::string& name) {
        QWidget* const window = Camera::windowWithTitle(title);
        take(window, name);
        if (window)
            window->close();
        Camera::settle();
    }

    void takeSplash() {
        const auto splash = _application.windows().makeSplashWindow();
        splash->show();
        takeTitled(localized("Welcome to Brindle"), "splash");
    }

    void takeBrowser() {
        perform(actions::showFeedsBrowser);
        Camera::settle();
        QWidget* const window = Camera::window();
        if (!window)
            return take(window, "browser");
        window->resize(1000, 640);
        auto* const feeds = window->findChild<QTreeView*>();
        feeds->expandAll();
        for (QModelIndex row = feeds->model()->index(0, 0); row.isValid(); row = feeds->indexBelow(row)) {
            if (row.data().toString().contains(toQString(feed(2)->name())))
                feeds->setCurrentIndex(row);
        }
        Camera::settle();
        auto* const articles = window->findChild<QTableView*>();
        articles->setFocus();
        articles->selectRow(0);
        for (int pause = 0; pause < 5; ++pause)
            Camera::settle(); // the engine starts
        take(window, "browser");
        window->close();
        perform(actions::showArticle, feed(4)->articles().front());
        for (int pause = 0; pause < 3; ++pause)
            Camera::settle();
        take(Camera::window(), "article");
        if (QWidget* const article = Camera::window())
            article->close();
    }

    /// The menu, the submenu of a feed, and that of its first article.
    void takeMenu() {
        std::shared_ptr<Menu> menu = _application.statusMenu();
        std::vector<std::unique_ptr<MenuView>> views;
        for (const char* const name : {"menu", "menu-feed", "menu-article"}) {
            if (!menu)
                break;
            views.push_back(std::make_unique<MenuView>(menu, _application.delegate().responderChain()));
            views.back()->popup({20, 20});
            take(views.back().get(), name);
            std::shared_ptr<Menu> next;
            for (const auto& item : menu->items()) {
                const bool isWanted = item->submenu() && (views.size() > 1 || item->title().find(feed(2)->name()) != std::string::npos);
                if (isWanted && !next)
                    next = item->submenu();
            }
            views.back()->close();
            menu = next;
        }
    }

    void takeNewFeed() {
        perform(actions::newFeed);
        takeTitled(localized("New Feed"), "new-feed");
        _application.delegate().editFeedItem(feed(2));
        takeTitled(localized("Edit Feed"), "edit-feed");
        perform(actions::newGroup);
        takeTitled(localized("New Feed Group"), "new-group");
    }

    void takePicker() {
        const auto controller = _application.windows().makeNewFeedWindow(
            {_application.delegate().feedsManager(), _application.environment().alerts, _application.sharedDelegate()});
        controller->showWindow();
        const auto& pane = controller->newFeedItemViewController();
        pane->showFeedsPicker(
            FeedsPickerViewController::make({_application.makeFeed("Articles", "https://example.org/a"),
                                                _application.makeFeed("Comments on all articles", "https://example.org/b"),
                                                _application.makeFeed("Podcast", "https://example.org/c")},
                pane, _application.environment().alerts));
        takeTitled(localized("Choose Feeds"), "picker");
    }

    void takePreferences() {
        perform(actions::showPreferences);
        QWidget* const window = Camera::windowWithTitle(localized("General"));
        auto* const bar = window ? window->findChild<QTabBar*>() : nullptr;
        for (int tab = 0; bar && tab < bar->count(); ++tab) {
            bar->setCurrentIndex(tab);
            take(window, "preferences-" + std::to_string(tab + 1));
        }
        if (window)
            window->close();
    }

    void takePlayer() {
        const auto player = _application.windows().makeMediaPlayer();
        player->setTitle("Radio");
        player->showWindow();
        takeTitled("Radio", "player");
    }

    void takeAlerts() {
        _application.environment().alerts->runModal(
            {localized("URL cannot be empty"), localized("Please provide a valid URL of the feed.")}, {});
        QWidget* const alert = Camera::window();
        take(alert, "alert");
        if (alert)
            alert->close();
        _application.environment().application->orderFrontStandardAboutPanel();
        Camera::settle();
        take(Camera::window(), "about");
    }

    const Camera _camera;
    SampleApplication _application;
    bool _isWhole = true;
};

int start(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "usage: brindle-screenshots FOLDER light|dark LANGUAGE\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    const std::string language = argv[3];
    QApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    const QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("Brindle"));
    QApplication::setQuitOnLastWindowClosed(false);
    if (argv[2] == std::string("dark"))
        QApplication::setPalette(ColorScheme::darkPalette());
    std::filesystem::create_directories(folder);
    const std::filesystem::path resources =
        std::filesystem::path(fromQString(QCoreApplication::applicationDirPath())).parent_path() / "share" / "brindle";
    static_cast<void>(LocalizedStrings::load(resources / "localisation", {language}));
    QTranslator own;
    if (own.load(QLocale(toQString(language)), QStringLiteral("qtbase"), QStringLiteral("_"),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&own);
    return Tour(folder, resources).run() ? 0 : 1;
}

} // namespace
} // namespace brindle::desktop

int main(int argc, char** argv) {
    return brindle::desktop::start(argc, argv);
}
