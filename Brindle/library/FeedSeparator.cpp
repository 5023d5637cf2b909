#include "Brindle/library/FeedSeparator.hpp"

namespace brindle {

std::shared_ptr<FeedSeparator> FeedSeparator::make() {
    return std::shared_ptr<FeedSeparator>(new FeedSeparator);
}

std::vector<std::string_view> FeedSeparator::archiveClasses() const {
    return {"FeedSeparator", "Feed"};
}

void FeedSeparator::encode(Coder&) const {}

} // namespace brindle
