#pragma once

#include "Brindle/library/Feed.hpp"

#include <memory>

namespace brindle {

/// A line between entries of the tree. Thread: main.
class FeedSeparator : public Feed {
public:
    static std::shared_ptr<FeedSeparator> make();

    std::vector<std::string_view> archiveClasses() const override;
    /// Writes nothing.
    void encode(Coder& coder) const override;

private:
    FeedSeparator() : Feed(Kind::separator, {}) {}
};

} // namespace brindle
