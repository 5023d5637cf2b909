#pragma once

#include <string_view>

#include "html/Arena.hpp"
#include "html/Node.hpp"

namespace brindle::html {

/// A node that is nothing but text; the text lives as long as the document.
class DataNode : public Node {
public:
    std::string_view text() const noexcept { return _text; }

protected:
    DataNode(Kind kind, std::string_view text) noexcept : Node(kind), _text(text) {}
    ~DataNode() = default;

    std::uint32_t _room = 0; ///< How many bytes behind the text belong to it; of use for a text that grows.
    std::string_view _text;
};

/// Text between tags, with its references resolved.
class TextNode : public DataNode {
public:
    explicit TextNode(std::string_view text) noexcept : DataNode(Kind::text, text) {}

    /// `text` must live as long as the document.
    void setText(std::string_view text) noexcept {
        _text = text;
        _room = 0;
    }

    /// Puts `more` behind the text. `arena` is the document's. Takes time by `more`, on average.
    void append(std::string_view more, Arena& arena);
};

/// A comment: what stands between `<!--` and `-->`.
class Comment : public DataNode {
public:
    explicit Comment(std::string_view text) noexcept : DataNode(Kind::comment, text) {}
};

/// An XML declaration, a processing instruction or an unknown markup declaration: what stands between `<?` and `?>`, or `<!` and `>`.
class XmlDeclaration : public DataNode {
public:
    XmlDeclaration(char opener, std::string_view text) noexcept : DataNode(Kind::xmlDeclaration, text), _opener(opener) {}

    /// '?' or '!'.
    char opener() const noexcept { return _opener; }

    /// Whether it is the XML declaration itself, which is allowed at the very start of a text only.
    bool isXmlDeclaration() const noexcept;

private:
    char _opener;
};

/// A document type declaration.
class DocumentType : public DataNode {
public:
    /// `source` is what stands between `<!DOCTYPE` and its `>`.
    DocumentType(std::string_view source, std::string_view name, std::string_view publicId, std::string_view systemId) noexcept
        : DataNode(Kind::documentType, source), _name(name), _publicId(publicId), _systemId(systemId) {}

    std::string_view name() const noexcept { return _name; }
    std::string_view publicId() const noexcept { return _publicId; }
    std::string_view systemId() const noexcept { return _systemId; }

private:
    std::string_view _name;
    std::string_view _publicId;
    std::string_view _systemId;
};

} // namespace brindle::html
