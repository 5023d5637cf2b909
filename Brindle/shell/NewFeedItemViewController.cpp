#include "Brindle/shell/NewFeedItemViewController.hpp"

#include "Brindle/browser/ChangeNotices.hpp"
#include "Brindle/shell/FeedsPickerViewController.hpp"
#include "foundation/FormattedText.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <array>
#include <utility>

namespace brindle {

namespace {

constexpr std::array<std::int64_t, 10> refreshRates = {5, 10, 15, 30, 60, 120, 240, 480, 720, 1440};

/// "Every 30 minutes".
std::string rateTitle(std::int64_t minutes) {
    constexpr std::int64_t hour = 60;
    const bool isHours = minutes >= hour && minutes % hour == 0;
    if (minutes == 1)
        return localized("Every minute");
    if (minutes == hour)
        return localized("Every hour");
    return isHours ? formatted(localized("Every %d hours"), {std::to_string(minutes / hour)})
                   : formatted(localized("Every %d minutes"), {std::to_string(minutes)});
}

} // namespace

std::shared_ptr<NewFeedItemViewController> NewFeedItemViewController::make(NewFeedEnvironment environment) {
    const std::shared_ptr<NewFeedItemViewController> controller(new NewFeedItemViewController(std::move(environment)));
    controller->_flow = AddFeedFlow::make(controller->_environment.feedsManager, controller);
    return controller;
}

NewFeedItemViewController::NewFeedItemViewController(NewFeedEnvironment environment) : _environment(std::move(environment)) {
    buildRefreshRates();
}

void NewFeedItemViewController::buildRefreshRates() {
    for (const std::int64_t minutes : refreshRates)
        refreshRatePopupButton.addItem(std::make_shared<MenuItem>(rateTitle(minutes)), minutes);
}

/// A rate that is not among those offered is offered from now on, so that "OK" doesn't change it.
void NewFeedItemViewController::selectRefreshRate(std::int64_t minutes) {
    if (refreshRatePopupButton.selectItem(minutes))
        return;
    refreshRatePopupButton.addItem(std::make_shared<MenuItem>(rateTitle(minutes)), minutes);
    refreshRatePopupButton.selectItem(minutes);
}

void NewFeedItemViewController::prepare() {
    assertMainThread();
    setTitle(feedItem ? localized("Edit Feed") : localized("New Feed"));
    nameTextField.setEditable(true);
    nameTextField.setStringValue(feedItem ? feedItem->name() : std::string());
    urlTextField.setStringValue(feedItem ? feedItem->url().absoluteString() : std::string());
    urlTextField.setEditable(!feedItem);
    selectRefreshRate(feedItem ? feedItem->updateRate : AddFeedFlow::defaultUpdateRate);
    showStopped(false);
    if (feedItem)
        feedItem->invalidateTimer();
    else if (const auto shown = window.lock())
        shown->makeFirstResponder(urlTextField);
}

void NewFeedItemViewController::handleOK() {
    assertMainThread();
    if (feedItem)
        return changeFeedItem();
    _flow->name = nameTextField.stringValue();
    _flow->updateRate = refreshRatePopupButton.selectedTag().value_or(AddFeedFlow::defaultUpdateRate);
    _flow->confirm(urlTextField.stringValue());
    progressIndicator.setAnimating(newFeedItem() != nullptr);
}

/// Kept as is: the address can't be changed, and is looked at all the same, so that a feed of another scheme can't be renamed here.
void NewFeedItemViewController::changeFeedItem() {
    if (!_flow->check(urlTextField.stringValue()))
        return;
    const std::shared_ptr<FeedItem> changed = feedItem;
    changed->setName(nameTextField.stringValue());
    changed->updateRate = refreshRatePopupButton.selectedTag().value_or(changed->updateRate);
    changed->scheduleUpdates(true);
    notices::post(notices::didUpdateFeed, changed);
    _environment.refreshInterface();
    dismiss();
}

void NewFeedItemViewController::commitPicked(const AddFeedFlow::FeedItems& feeds) {
    _flow->commit(feeds);
    showStopped(false);
    dismiss();
}

void NewFeedItemViewController::cancel() {
    _flow->stop();
    showStopped(false);
    if (feedItem)
        feedItem->scheduleUpdates(false);
}

void NewFeedItemViewController::showStopped(bool failed) {
    progressIndicator.setAnimating(false);
    statusImageView.setImage(failed ? std::optional(Image::named(std::string(cautionImageName))) : std::nullopt);
}

void NewFeedItemViewController::addFeedFlowDidFail(AddFeedFlow&, Failure failure, const Alert& alert) {
    const brindle::Alert shown = {alert.title, alert.text};
    if (failure == Failure::unreadableFeed || failure == Failure::noFeedDiscovered)
        showStopped(true);
    if (failure == Failure::noFeedDiscovered)
        _environment.alerts->runModal(shown, {});
    else
        _environment.alerts->beginSheet(shown, {});
}

void NewFeedItemViewController::addFeedFlowDidDiscoverFeedItems(AddFeedFlow& flow) {
    if (showFeedsPicker)
        showFeedsPicker(FeedsPickerViewController::make(flow.discoveredFeedItems(), weak_from_this(), _environment.alerts));
}

void NewFeedItemViewController::addFeedFlowDidCommit(AddFeedFlow&, const std::vector<std::shared_ptr<FeedItem>>&) {
    showStopped(false);
    _environment.refreshInterface();
}

void NewFeedItemViewController::addFeedFlowDidEnd(AddFeedFlow&) {
    dismiss();
}

} // namespace brindle
