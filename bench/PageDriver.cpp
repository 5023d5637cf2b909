#include "bench/DriverLoop.hpp"
#include "html/Error.hpp"
#include "html/Parser.hpp"

// The HTML builder as a program of its own, for comparisons with other parsers: the tree of each page of a list. It counts the nodes that
// a document starts with, so that the work can't be left out.

namespace {

std::optional<std::size_t> rootNodesOf(const std::string& page) {
    try {
        std::size_t nodes = 0;
        const auto document = brindle::html::parse(page);
        for (const brindle::html::Node* node = document->firstChild(); node != nullptr; node = node->nextSibling())
            ++nodes;
        return nodes;
    } catch (const brindle::html::Error&) {
        return std::nullopt;
    }
}

} // namespace

int main(int argc, char** argv) {
    return brindle::bench::runDriver(argc, argv, "PageDriver", rootNodesOf);
}
