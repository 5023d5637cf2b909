#include "SyndicatedParser/SyndicatedSessionError.hpp"

namespace brindle {

std::string SyndicatedSessionError::localizedDescription() const {
    if (error)
        return error->description;
    switch (kind) {
    case Case::connection:
        return "The connection to the server failed.";
    case Case::other:
        return "The feed could not be updated.";
    case Case::noData:
        return "The server sent an empty document.";
    case Case::noURL:
        return "The page announces a feed without an address.";
    case Case::invalidFeed:
        return "The document is not a feed that can be read.";
    }
    return {};
}

} // namespace brindle
