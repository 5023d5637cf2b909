#pragma once

#include "Brindle/shell/AddFeedFlow.hpp"
#include "Brindle/shell/NewFeedEnvironment.hpp"
#include "Brindle/shell/NewFeedPane.hpp"
#include "platform/ImageView.hpp"
#include "platform/PopUpButton.hpp"
#include "platform/ProgressIndicator.hpp"
#include "platform/TextField.hpp"

#include <functional>
#include <memory>
#include <string_view>

namespace brindle {

class FeedsPickerViewController;

/// The pane that adds a feed, or changes the name and the refresh rate of one. Thread: main.
class NewFeedItemViewController : public NewFeedPane,
                                  public AddFeedFlowDelegate,
                                  public std::enable_shared_from_this<NewFeedItemViewController> {
public:
    /// The name of the image that tells of a failure; the system's.
    static constexpr std::string_view cautionImageName = "NSImageNameCaution";

    static std::shared_ptr<NewFeedItemViewController> make(NewFeedEnvironment environment);

    std::shared_ptr<FeedItem> feedItem; ///< the feed to change; null when one is added

    TextField nameTextField; ///< may stay empty
    TextField urlTextField;
    PopUpButton refreshRatePopupButton; ///< an item's tag is its rate in minutes
    ProgressIndicator progressIndicator;
    ImageView statusImageView;

    /// Shows the picker in a window of its own, which it is given. May be empty: then what a page announces is not offered.
    std::function<void(const std::shared_ptr<FeedsPickerViewController>&)> showFeedsPicker;

    /// The candidate while it is fetched, or null.
    const std::shared_ptr<FeedItem>& newFeedItem() const { return _flow->newFeedItem(); }
    const AddFeedFlow::FeedItems& discoveredFeedItems() const { return _flow->discoveredFeedItems(); }

    void handleOK() override;
    /// What was picked of a page's feeds enters the library, and the pane closes; with none it only closes.
    void commitPicked(const AddFeedFlow::FeedItems& feeds);

    void addFeedFlowDidFail(AddFeedFlow& flow, Failure failure, const Alert& alert) override;
    void addFeedFlowDidDiscoverFeedItems(AddFeedFlow& flow) override;
    void addFeedFlowDidCommit(AddFeedFlow& flow, const std::vector<std::shared_ptr<FeedItem>>& feeds) override;
    void addFeedFlowDidEnd(AddFeedFlow& flow) override;

private:
    explicit NewFeedItemViewController(NewFeedEnvironment environment);

    void prepare() override;
    void cancel() override;
    void buildRefreshRates();
    void selectRefreshRate(std::int64_t minutes);
    void changeFeedItem();
    void showStopped(bool failed);

    const NewFeedEnvironment _environment;
    std::shared_ptr<AddFeedFlow> _flow;
};

} // namespace brindle
