#pragma once

#include "foundation/URLSession.hpp"

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <tl/expected.hpp>

namespace brindle {

/// One GET of an address for its whole answer. Redirects are followed, whoever asks for a password gets none. Thread: main.
class URLFetch {
public:
    struct Answer {
        int statusCode = 0;
        std::string body;
    };

    using Completion = std::function<void(tl::expected<Answer, URLError> answer)>;

    static constexpr int maximumRedirections = 20;

    /// Calls `completion` once, on the main thread and never before this returns. The answer has to be there, whole, within `timeout`, and
    /// its body no larger than `maximumBody` bytes.
    static void begin(const URL& url, std::chrono::milliseconds timeout, std::size_t maximumBody, Completion completion);

private:
    class Events;
};

} // namespace brindle
