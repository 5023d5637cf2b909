#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindle::bench {

/// The lines of a tree in the form of the html5lib suite, one for each node and attribute. The nodes are given in the order of the
/// document, with their depth: 0 for those of the document itself.
class TreeText {
public:
    /// The name has "svg ", "math " or the like before it where the suite shows it.
    struct Attribute {
        std::string name;
        std::string value;

        auto operator<=>(const Attribute&) const = default;
    };

    void documentType(std::string_view name, std::string_view publicId, std::string_view systemId) {
        startLine(0).append("<!DOCTYPE ").append(name);
        if (!publicId.empty() || !systemId.empty())
            _lines.append(" \"").append(publicId).append("\" \"").append(systemId).append("\"");
        _lines += ">\n";
    }

    void element(std::size_t depth, std::string_view name, std::vector<Attribute> attributes) {
        startLine(depth).append("<").append(name).append(">\n");
        std::sort(attributes.begin(), attributes.end());
        for (const Attribute& attribute : attributes)
            startLine(depth + 1).append(attribute.name).append("=\"").append(attribute.value).append("\"\n");
    }

    /// What stands between a template and its content.
    void content(std::size_t depth) { startLine(depth).append("content\n"); }

    void comment(std::size_t depth, std::string_view text) { startLine(depth).append("<!-- ").append(text).append(" -->\n"); }

    /// Texts that follow each other are one.
    void text(std::size_t depth, std::string_view text) {
        if (_textDepth == depth)
            _lines.resize(_lines.size() - closingQuote.size());
        else
            startLine(depth).append("\"");
        _lines.append(text).append(closingQuote);
        _textDepth = depth;
    }

    const std::string& lines() const { return _lines; }

private:
    static constexpr std::string_view closingQuote = "\"\n";

    std::string& startLine(std::size_t depth) {
        _textDepth.reset();
        return _lines.append("| ").append(2 * depth, ' ');
    }

    std::string _lines;
    std::optional<std::size_t> _textDepth;
};

} // namespace brindle::bench
