#pragma once

#include "SyndicatedParser/IconDiscovery.hpp"
#include "foundation/DispatchQueue.hpp"

#include <memory>
#include <string>
#include <vector>

namespace brindle {

/// Finds at once what a test gives it. What it was asked for is logged on the main thread, before the answer.
class IconDiscoveryFake : public IconDiscovery, public std::enable_shared_from_this<IconDiscoveryFake> {
public:
    void discoverIcon(const URL& root, std::function<void(std::optional<std::string> bytes)> completion) override {
        DispatchQueue::main().async([self = shared_from_this(), root, completion = std::move(completion)] {
            self->roots.push_back(root.absoluteString());
            completion(self->bytes);
        });
    }

    std::optional<std::string> bytes;
    std::vector<std::string> roots;
};

} // namespace brindle
