#pragma once

#include <string>

namespace brindle {

/// A category of a feed or an entry.
class SyndicatedCategory {
public:
    const std::string& term() const { return _term; }
    const std::string& label() const { return _label; }

    /// Also becomes the label while that is empty.
    void setTerm(std::string term);
    void setLabel(std::string label);

private:
    std::string _term;
    std::string _label;
};

} // namespace brindle
