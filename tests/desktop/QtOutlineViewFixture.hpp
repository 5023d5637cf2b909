#pragma once

#include "Brindle/browser/ChangeNotices.hpp"
#include "desktop/windows/QtOutlineView.hpp"
#include "tests/browser/OutlineFixture.hpp"

#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <memory>
#include <string>
#include <vector>

namespace brindle::desktop {

/// The outline of the browser on a tree that the test makes, shown by the widget; its selections are logged.
class QtOutlineViewTest : public BrowserTest, public FeedsOutlineViewDataControllerDelegate {
protected:
    QtOutlineViewTest() {
        for (const std::string_view key : {preference::showTodayCollectionInFeedsBrowser, preference::showUnreadCollectionInFeedsBrowser,
                 preference::showSavedArticlesCollectionInFeedsBrowser})
            set(key, false);
        keep = std::shared_ptr<FeedsOutlineViewDataControllerDelegate>(this, [](auto*) {});
        controller->delegate = keep;
        controller->outlineView = view;
    }

    void show() {
        controller->configure();
        controller->reload();
        parent.resize(300, 500);
        tree().resize(300, 500);
        parent.show();
        tree().setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&parent));
    }
    OutlineTree& tree() const { return view->widget(); }
    void outlineSelectionDidChange(const OutlineItem& item) override { selections.push_back(item ? rowName(item) : "none"); }
    std::vector<std::string> rows() const {
        std::vector<std::string> found;
        for (std::size_t row = 0; view->itemAtRow(row); ++row)
            found.push_back(rowName(view->itemAtRow(row)));
        return found;
    }
    void move(const std::shared_ptr<Feed>& feed, const OutlineItem& target, std::ptrdiff_t index) const {
        controller->draggingSessionWillBegin({feed});
        controller->acceptDrop(Pasteboard{{*controller->pasteboardWriter(feed)}}, target, index);
        controller->draggingSessionEnded();
    }
    /// Runs the event loop until it has had nothing to do.
    static void sleepOnce() {
        QEventLoop loop;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
        timer.start(1);
        loop.exec();
    }
    QRect rectOf(const std::shared_ptr<Feed>& feed) const { return tree().visualRect(tree().outline().indexOf(feed)); }
    /// What a drop of `dragged` at a point comes to: the name of the item and the index; empty where none is allowed.
    std::string drop(const std::shared_ptr<Feed>& dragged, const QPoint& point) const {
        controller->draggingSessionWillBegin({dragged});
        const auto found = tree().dropAt(point, Pasteboard{{*controller->pasteboardWriter(dragged)}});
        controller->draggingSessionEnded();
        return found ? rowName(found->item) + " " + std::to_string(found->index) : "";
    }

    std::shared_ptr<FeedsOutlineViewDataController> controller = FeedsOutlineViewDataController::make(manager, collections, defaults, host);
    std::shared_ptr<FeedsOutlineViewDataControllerDelegate> keep;
    QWidget parent;
    std::shared_ptr<QtOutlineView> view = std::make_shared<QtOutlineView>(&parent, QStringLiteral("Feeds"));
    std::vector<std::string> selections;
};

} // namespace brindle::desktop
