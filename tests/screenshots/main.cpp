#include "Brindle/browser/BrowserActions.hpp"
#include "Brindle/browser/FeedsBrowserWindowController.hpp"
#include "Brindle/menu/MenuActions.hpp"
#include "Brindle/shell/FeedsPickerViewController.hpp"
#include "desktop/system/ColorScheme.hpp"
#include "desktop/system/StatusIcon.hpp"
#include "desktop/toolkit/MenuView.hpp"
#include "desktop/toolkit/Palettes.hpp"
#include "desktop/toolkit/Text.hpp"
#include "foundation/Console.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "platform/ObjectSender.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/screenshots/Camera.hpp"
#include "tests/screenshots/SampleApplication.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QTableView>
#include <QTranslator>
#include <QTreeView>
#include <iostream>
#include <utility>
#include <vector>

/// Takes pictures of all windows over the sample feeds.
///
///     brindle-screenshots FOLDER light|dark LANGUAGE
namespace brindle::desktop {
namespace {

/// The tour of the program, window by window.
class Tour {
public:
    Tour(const std::filesystem::path& folder, const std::filesystem::path& resources, const QPalette& lightPalette)
        : _camera(folder), _lightPalette(lightPalette), _application(resources) {}

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
        takePanels();
        takeAlerts();
        takeStatusIcons();
        return _isWhole;
    }

private:
    void perform(std::string_view action, const std::shared_ptr<Object>& object = nullptr) {
        _application.delegate().responderChain()->perform({action, std::make_shared<ObjectSender>(object)});
    }
    std::shared_ptr<FeedItem> feed(std::size_t place) {
        return std::dynamic_pointer_cast<FeedItem>(_application.delegate().feedsManager()->feeds.at(place));
    }
    void fail(const std::string& message) {
        std::cerr << message << '\n';
        _isWhole = false;
    }
    void take(QWidget* window, const std::string& name) {
        if (!window || !window->isVisible())
            fail("no window for " + name);
        else
            _isWhole = _camera.take(*window, name) && _isWhole;
    }
    void takeAndClose(QWidget* window, const std::string& name) {
        take(window, name);
        if (window)
            window->close();
        Camera::settle();
    }
    void takeTitled(const std::string& title, const std::string& name) { takeAndClose(Camera::windowWithTitle(title), name); }

    void takeSplash() {
        const auto splash = _application.windows().makeSplashWindow();
        splash->show();
        takeTitled(localized("Welcome to Brindle"), "splash");
    }

    void takeBrowser() {
        perform(actions::showFeedsBrowser);
        Camera::settle();
        QWidget* const window = Camera::windowWithTitle(std::string(FeedsBrowserWindowController::windowTitle));
        if (!window)
            return fail("no window for browser");
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
        takeOtherColors(*window);
        auto* const search = window->findChild<QLineEdit*>();
        search->setText(QStringLiteral("zebra"));
        emit search->textEdited(search->text());
        takeAndClose(window, "browser-nothing-found");
        const auto& article = feed(4)->articles().front();
        perform(actions::showArticle, article);
        for (int pause = 0; pause < 3; ++pause)
            Camera::settle();
        takeTitled(article->entry->title, "article");
    }

    /// As when the desktop goes from light to dark, or back.
    void takeOtherColors(QWidget& window) {
        const QPalette before = QApplication::palette();
        QApplication::setPalette(isDark(before) ? _lightPalette : ColorScheme::darkPalette());
        take(&window, "browser-other-colors");
        QApplication::setPalette(before);
        Camera::settle();
    }

    /// The menu, the submenu of a feed, and that of its first article.
    void takeMenu() {
        std::shared_ptr<Menu> menu = _application.statusMenu();
        std::vector<std::unique_ptr<MenuView>> views;
        for (const char* const name : {"menu", "menu-feed", "menu-article"}) {
            if (!menu)
                return fail(std::string("no menu for ") + name);
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
        constexpr int tabs = 6;
        if (!bar || bar->count() != tabs)
            return fail("the preferences have not their six tabs");
        for (int tab = 0; tab < tabs; ++tab) {
            bar->setCurrentIndex(tab);
            take(window, "preferences-" + std::to_string(tab + 1));
        }
        window->close();
    }

    void takePlayer() {
        const auto player = _application.windows().makeMediaPlayer();
        player->setTitle("Radio");
        player->showWindow();
        takeTitled("Radio", "player");
    }

    void takePanels() {
        perform(browseractions::importOPML);
        auto* const question = Camera::window<QMessageBox>();
        take(question, "import-question");
        if (question)
            question->escapeButton()->click();
        perform(browseractions::exportOPML);
        takeAndClose(Camera::window<QFileDialog>(), "export-panel");
    }

    void takeAlerts() {
        _application.environment().alerts->runModal(
            {localized("URL cannot be empty"), localized("Please provide a valid URL of the feed.")}, {});
        takeAndClose(Camera::window<QMessageBox>(), "alert");
        _application.environment().application->orderFrontStandardAboutPanel();
        Camera::settle();
        takeTitled(localized("aboutMenuTitle"), "about");
    }

    /// On a bar of the desktop: with no number, a small and a large one, and paused.
    void takeStatusIcons() {
        constexpr int gap = 8;
        constexpr int row = 56;
        const Image icon = Image::named("menu_feed");
        const std::vector<std::pair<Image, std::string>> states = {{icon, ""}, {icon, "7"}, {icon, "128"}, {icon.slashed(), "12"}};
        QImage picture(240, row * static_cast<int>(states.size()), QImage::Format_ARGB32_Premultiplied);
        picture.fill(QApplication::palette().color(QPalette::Window));
        QPainter painter(&picture);
        int top = gap;
        for (const auto& [image, number] : states) {
            int left = gap;
            for (const int side : {16, 22, 24, 32, 48}) {
                painter.drawImage(left, top, statusicon::drawing(image, number, side));
                left += side + gap;
            }
            top += row;
        }
        painter.end();
        _isWhole = _camera.save(picture, "status-icons") && _isWhole;
    }

    const Camera _camera;
    const QPalette _lightPalette;
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
    const QPalette lightPalette = QApplication::palette();
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
    return Tour(folder, resources, lightPalette).run() ? 0 : 1;
}

} // namespace
} // namespace brindle::desktop

int main(int argc, char** argv) {
    return brindle::desktop::start(argc, argv);
}
