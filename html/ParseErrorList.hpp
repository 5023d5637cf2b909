#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "html/ParseError.hpp"

namespace brindle::html {

/// The errors of one parse, up to a limit. With a limit of 0 nothing is kept and reporting costs next to nothing.
class ParseErrorList {
public:
    explicit ParseErrorList(std::size_t limit) noexcept : _limit(limit) {}

    std::size_t limit() const noexcept { return _limit; }
    bool isFull() const noexcept { return _errors.size() >= _limit; }

    void report(ParseErrorCode code, std::size_t offset) {
        if (!isFull()) {
            _errors.push_back({code, offset, 1, 1});
        }
    }

    /// Takes in what another list has, in the order of the text and up to the limit; errors of `other` come first at the same place.
    void merge(const ParseErrorList& other);

    /// The errors with their lines and columns in `text`.
    std::vector<ParseError> located(std::string_view text) &&;

private:
    std::size_t _limit;
    std::vector<ParseError> _errors;
};

} // namespace brindle::html
