#pragma once

#include "Brindle/library/FeedItem.hpp"
#include "platform/Alert.hpp"
#include "platform/Button.hpp"
#include "platform/TableView.hpp"
#include "platform/Window.hpp"

#include <memory>
#include <set>
#include <string_view>
#include <vector>

namespace brindle {

class NewFeedItemViewController;

/// A row of the picker.
class FeedsPickerCell : public TableCellView {
public:
    Button checkBox{Button::Kind::checkBox};
};

/// Lets a person choose among the feeds that a page announces. Closing its window is a cancel. Thread: main.
class FeedsPickerViewController : public TableViewDataSource,
                                  public WindowDelegate,
                                  public std::enable_shared_from_this<FeedsPickerViewController> {
public:
    static constexpr std::string_view feedColumn = "FeedCell";
    static constexpr double rowHeight = 24; ///< points

    static std::shared_ptr<FeedsPickerViewController> make(std::vector<std::shared_ptr<FeedItem>> feedItems,
        std::weak_ptr<NewFeedItemViewController> delegate, std::shared_ptr<AlertPresenter> alerts);

    const std::vector<std::shared_ptr<FeedItem>> feedItems; ///< in page order
    std::weak_ptr<TableView> feedsTableView;
    std::set<std::shared_ptr<FeedItem>> selectedFeedItems; ///< whose boxes are on when they are made
    std::weak_ptr<Window> window;                          ///< where the picker is

    /// Before the window is first shown.
    void viewDidLoad();
    void handleOK();
    void handleCancel();

    std::size_t numberOfRows() const override { return feedItems.size(); }
    std::shared_ptr<TableCellView> viewFor(std::string_view column, std::size_t row) const override;
    double heightOfRow(std::size_t) const override { return rowHeight; }
    bool shouldSelectRow(std::size_t) const override { return true; }
    void tableViewSelectionDidChange() override {}
    void windowWillClose() override { end({}); }

private:
    FeedsPickerViewController(std::vector<std::shared_ptr<FeedItem>> items, std::weak_ptr<NewFeedItemViewController> delegate,
        std::shared_ptr<AlertPresenter> alerts);
    void finish(const std::vector<std::shared_ptr<FeedItem>>& picked);
    void end(const std::vector<std::shared_ptr<FeedItem>>& picked);

    const std::weak_ptr<NewFeedItemViewController> _delegate;
    const std::shared_ptr<AlertPresenter> _alerts;
    mutable std::vector<std::shared_ptr<FeedsPickerCell>> _cells; ///< by row; null for those not yet made
    bool _hasEnded = false;
};

} // namespace brindle
