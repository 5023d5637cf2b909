#include "Brindle/shell/FeedsPickerViewController.hpp"

#include "Brindle/shell/NewFeedItemViewController.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <utility>

namespace brindle {

std::shared_ptr<FeedsPickerViewController> FeedsPickerViewController::make(std::vector<std::shared_ptr<FeedItem>> feedItems,
    std::weak_ptr<NewFeedItemViewController> delegate, std::shared_ptr<AlertPresenter> alerts) {
    return std::shared_ptr<FeedsPickerViewController>(
        new FeedsPickerViewController(std::move(feedItems), std::move(delegate), std::move(alerts)));
}

FeedsPickerViewController::FeedsPickerViewController(
    std::vector<std::shared_ptr<FeedItem>> items, std::weak_ptr<NewFeedItemViewController> delegate, std::shared_ptr<AlertPresenter> alerts)
    : feedItems(std::move(items)), _delegate(std::move(delegate)), _alerts(std::move(alerts)), _cells(feedItems.size()) {}

void FeedsPickerViewController::viewDidLoad() {
    assertMainThread();
    if (const auto shown = window.lock())
        shown->setDelegate(weak_from_this());
    const auto table = feedsTableView.lock();
    if (!table)
        return;
    table->setDataSource(weak_from_this());
    table->reloadData();
}

/// A row keeps its cell, and with it what a person has ticked, however often the table asks.
std::shared_ptr<TableCellView> FeedsPickerViewController::viewFor(std::string_view column, std::size_t row) const {
    if (column != feedColumn)
        return nullptr;
    std::shared_ptr<FeedsPickerCell>& cell = _cells[row];
    if (!cell) {
        cell = std::make_shared<FeedsPickerCell>();
        cell->checkBox.setTitle(feedItems[row]->name());
        cell->checkBox.setState(selectedFeedItems.contains(feedItems[row]));
    }
    return cell;
}

void FeedsPickerViewController::handleOK() {
    assertMainThread();
    std::vector<std::shared_ptr<FeedItem>> picked;
    for (std::size_t row = 0; row < feedItems.size(); ++row) {
        if (_cells[row] && _cells[row]->checkBox.state())
            picked.push_back(feedItems[row]);
    }
    if (picked.empty())
        return _alerts->runModal({localized("No feed selected!"), localized("Please select a feed to continue.")}, {});
    finish(picked);
}

void FeedsPickerViewController::handleCancel() {
    assertMainThread();
    finish({});
}

void FeedsPickerViewController::finish(const std::vector<std::shared_ptr<FeedItem>>& picked) {
    const auto self = shared_from_this(); // who shows the picker may let go of it
    end(picked);
    if (const auto shown = window.lock())
        shown->close();
}

void FeedsPickerViewController::end(const std::vector<std::shared_ptr<FeedItem>>& picked) {
    const auto delegate = _delegate.lock();
    if (!std::exchange(_hasEnded, true) && delegate)
        delegate->commitPicked(picked);
}

} // namespace brindle
