#pragma once

#include <functional>
#include <memory>
#include <string>

namespace brindle {

/// A queue of blocks. A serial queue runs one block at a time, in order, on some thread of one small pool that all queues share, so that
/// queues are cheap (a block that is waited for may run on the thread that waits); the main queue runs its blocks on the main run loop.
/// Blocks that were posted run even when the queue's handle is gone. Thread: any; a value.
class DispatchQueue {
public:
    using Block = std::function<void()>;

    /// A new serial queue.
    explicit DispatchQueue(std::string label);

    static const DispatchQueue& main();

    void async(Block block) const;

    /// Runs `block` on the queue and waits for its end. Not from the queue itself, and not for the main queue.
    void sync(const Block& block) const;

    const std::string& label() const;

private:
    struct State;
    static void runNext(const std::shared_ptr<State>& state);
    static void goOn(const std::shared_ptr<State>& state);
    bool takeOver() const;

    std::shared_ptr<State> _state;
};

} // namespace brindle
