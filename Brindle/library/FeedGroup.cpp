#include "Brindle/library/FeedGroup.hpp"

#include "foundation/Console.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace brindle {

std::shared_ptr<FeedGroup> FeedGroup::make(std::string name) {
    return std::shared_ptr<FeedGroup>(new FeedGroup(std::move(name)));
}

std::shared_ptr<FeedGroup> FeedGroup::decode(const Decoder& decoder) {
    const auto group = make(decoder.decodeText("groupName").value_or(std::string()));
    for (const std::shared_ptr<Coding>& element : decoder.decodeObjects("groupList").value_or(std::vector<std::shared_ptr<Coding>>())) {
        if (const auto feed = std::dynamic_pointer_cast<Feed>(element))
            group->add(feed, std::ssize(group->_feeds));
    }
    return group;
}

FeedGroup::~FeedGroup() {
    Console::print("Removing FeedGroup " + name());
    // Groups may be nested deeper than any stack: each group that dies with this one hands its children over to this list before its own
    // destructor runs.
    auto dying = std::move(_feeds);
    std::reverse(dying.begin(), dying.end());
    while (!dying.empty()) {
        const std::shared_ptr<Feed> feed = std::move(dying.back());
        dying.pop_back();
        if (feed->kind != Kind::group || feed.use_count() > 1)
            continue;
        auto& children = static_cast<FeedGroup&>(*feed)._feeds;
        // The list is a stack, so the first child goes on top.
        std::move(children.rbegin(), children.rend(), std::back_inserter(dying));
        children.clear();
    }
}

void FeedGroup::add(const std::shared_ptr<Feed>& feed, std::ptrdiff_t index) {
    const bool isInside = index >= 0 && index <= std::ssize(_feeds);
    _feeds.insert(isInside ? _feeds.begin() + index : _feeds.end(), feed);
    feed->parent = std::static_pointer_cast<FeedGroup>(shared_from_this());
}

void FeedGroup::remove(const std::shared_ptr<Feed>& feed) {
    const auto place = std::find(_feeds.begin(), _feeds.end(), feed);
    if (place == _feeds.end())
        return;
    feed->parent.reset();
    _feeds.erase(place);
}

void FeedGroup::removeAll() {
    const auto removed = std::exchange(_feeds, {});
    for (const std::shared_ptr<Feed>& feed : removed)
        feed->parent.reset();
}

std::vector<std::string_view> FeedGroup::archiveClasses() const {
    return {"FeedGroup", "Feed"};
}

void FeedGroup::encode(Coder& coder) const {
    coder.encode("groupName", name());
    coder.encode("groupList", std::vector<std::shared_ptr<const Coding>>(_feeds.begin(), _feeds.end()));
}

} // namespace brindle
