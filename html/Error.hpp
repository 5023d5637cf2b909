#pragma once

#include <stdexcept>

namespace brindle::html {

/// What the toolkit raises for a query that makes no sense or an internal failure. Errors in markup are never raised.
/// To be caught by the direct caller.
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace brindle::html
