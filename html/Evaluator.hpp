#pragma once

#include <string>
#include <string_view>

namespace brindle::html {

class Element;

/// Decides which elements a search wants.
class Evaluator {
public:
    Evaluator() = default;
    Evaluator(const Evaluator&) = delete;
    Evaluator& operator=(const Evaluator&) = delete;
    virtual ~Evaluator() = default;

    virtual bool matches(const Element& element) const = 0;
};

/// Wants the elements whose tag has one normal name.
class TagEvaluator final : public Evaluator {
public:
    /// White space around the name is taken off. Throws `Error` for an empty name; a name of only white space matches nothing.
    explicit TagEvaluator(std::string_view tagName);

    bool matches(const Element& element) const override;

    const std::string& tagName() const noexcept { return _tagName; }
    const std::string& normalName() const noexcept { return _normalName; }

private:
    std::string _tagName;
    std::string _normalName;
};

} // namespace brindle::html
