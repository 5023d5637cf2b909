#include "Brindle/shell/NewFeedGroupViewController.hpp"

#include "Brindle/browser/ChangeNotices.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <iterator>

namespace brindle {

void NewFeedGroupViewController::prepare() {
    assertMainThread();
    setTitle(feedGroup ? localized("Edit Feed Group") : localized("New Feed Group"));
    nameTextField.setEditable(true);
    nameTextField.setStringValue(feedGroup ? feedGroup->name() : std::string());
}

/// Kept as is: the library is not saved here; the group reaches the file when the library is saved next.
void NewFeedGroupViewController::handleOK() {
    assertMainThread();
    const std::string& name = nameTextField.stringValue();
    if (name.empty())
        return _environment.alerts->beginSheet({localized("Name cannot be empty"), localized("Please provide a name to the group.")}, {});
    const std::shared_ptr<FeedGroup> group = feedGroup ? feedGroup : FeedGroup::make({});
    group->setName(name);
    if (!feedGroup)
        _environment.feedsManager->addFeed(group, std::ssize(_environment.feedsManager->feeds));
    notices::post(feedGroup ? notices::didUpdateFeed : notices::didAddFeed, group);
    _environment.refreshInterface();
    dismiss();
}

} // namespace brindle
