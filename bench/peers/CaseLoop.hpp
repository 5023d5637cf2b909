#pragma once

#include "bench/DriverLoop.hpp"

#include <charconv>
#include <cstddef>
#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

// What a parser's driver adds to the loop of bench/DriverLoop.hpp so that its trees can be compared:
//
//     PROGRAM --cases
//
// A case comes in as the line "BYTES CONTEXT" and that many bytes of UTF-8; CONTEXT is empty for a document, else the element whose content
// the bytes are, such as "td" or "svg path". The answer is the line BYTES and the tree in the form of the html5lib suite, or the line "-"
// for what the parser has no means for.

namespace brindle::bench {

struct MarkupCase {
    std::string markup;
    std::string context;
};

/// The tree of a case; nothing where the parser can't read such content.
using TreeOfCase = std::function<std::optional<std::string>(const MarkupCase&)>;

/// The next case of standard input; nothing at its end, and where it breaks the protocol.
inline std::optional<MarkupCase> nextCase() {
    constexpr std::size_t largestCase = std::size_t{1} << 24;
    std::string head;
    if (!std::getline(std::cin, head))
        return std::nullopt;
    std::size_t size = 0;
    const auto [end, error] = std::from_chars(head.data(), head.data() + head.size(), size);
    if (error != std::errc{} || end == head.data() + head.size() || *end != ' ' || size > largestCase)
        return std::nullopt;
    MarkupCase given{std::string(size, '\0'), std::string(end + 1)};
    if (!std::cin.read(given.markup.data(), static_cast<std::streamsize>(size)))
        return std::nullopt;
    return given;
}

/// The whole of a parser's driver: its exit status.
inline int runPeer(int argc, char** argv, std::string_view name, const ParseDocument& parse, const TreeOfCase& treeOf) {
    if (argc != 2 || std::string_view(argv[1]) != "--cases")
        return runDriver(argc, argv, name, parse);
    while (const std::optional<MarkupCase> given = nextCase()) {
        if (const std::optional<std::string> tree = treeOf(*given))
            std::cout << tree->size() << "\n" << *tree << std::flush;
        else
            std::cout << "-\n" << std::flush;
    }
    return 0;
}

} // namespace brindle::bench
