#pragma once

#include <functional>
#include <string>
#include <vector>

namespace brindle {

/// A question or a message that a person answers by a button. UTF-8, in the person's language.
struct Alert {
    /// The answer of the first button; the second has the next number, and so on.
    static constexpr int firstButtonReturn = 1000;

    std::string messageText;
    std::string informativeText;
    std::vector<std::string> buttons = {}; ///< the first is the default one; none: the system's "OK"

    friend bool operator==(const Alert&, const Alert&) = default;
};

/// Shows alerts. Thread: main.
class AlertPresenter {
public:
    using Answer = std::function<void(int response)>;

    virtual ~AlertPresenter() = default;
    /// Nothing else of the program answers until the person has; `answer` may be empty, and may come before this returns.
    virtual void runModal(const Alert& alert, Answer answer) = 0;
    /// As a sheet on the key window; where there is none, as `runModal`.
    virtual void beginSheet(const Alert& alert, Answer answer) = 0;
};

} // namespace brindle
