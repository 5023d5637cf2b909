#include "Brindle/library/Compaction.hpp"

#include "foundation/DispatchQueue.hpp"

#include <atomic>
#include <chrono>
#include <malloc.h>
#include <optional>

namespace brindle {

namespace {

using MonotonicTime = std::chrono::steady_clock::time_point;

constexpr std::chrono::seconds betweenReleases{10};

std::atomic<int> waiting = 0;

/// A run of updates leaves holes all over the heap, which the allocator keeps unless told.
void releaseFreedMemory() {
    static std::optional<MonotonicTime> last; // on the queue only
    const MonotonicTime now = std::chrono::steady_clock::now();
    if (last && now - *last < betweenReleases)
        return;
    last = now;
    ::malloc_trim(0);
}

} // namespace

void compactLater(const ColdBytes& document) {
    static const DispatchQueue queue("compaction");
    ++waiting;
    queue.async([document] {
        document.compress();
        if (--waiting == 0)
            releaseFreedMemory();
    });
}

} // namespace brindle
