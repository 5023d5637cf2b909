#include "html/XmlTreeBuilder.hpp"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "html/AsciiText.hpp"
#include "html/DataNodes.hpp"
#include "html/Tokeniser.hpp"

namespace brindle::html {

namespace {

/// The elements that are open, with their number for each tag, so that an end tag that matches none is known at once.
class OpenElements {
public:
    explicit OpenElements(Document& document) : _document(&document) {}

    Element& innermost() const noexcept { return _open.empty() ? *_document : *_open.back().element; }

    void open(Element* element, std::uint32_t tagIndex) {
        if (tagIndex >= _counts.size()) {
            _counts.resize(std::max<std::size_t>(_counts.size() * 2, tagIndex + std::size_t{16}));
        }
        ++_counts[tagIndex];
        _open.push_back({element, tagIndex});
    }

    void closeUpTo(std::string_view name) {
        if (_open.empty()) {
            return;
        }
        if (_open.back().element->tagName() == name) {
            closeInnermost();
            return;
        }
        const std::uint32_t tagIndex = _document->tags().find(name);
        if (tagIndex >= _counts.size() || _counts[tagIndex] == 0) {
            return;
        }
        while (_open.back().tagIndex != tagIndex) {
            closeInnermost();
        }
        closeInnermost();
    }

private:
    struct OpenElement {
        Element* element;
        std::uint32_t tagIndex;
    };

    void closeInnermost() {
        --_counts[_open.back().tagIndex];
        _open.pop_back();
    }

    Document* _document;
    std::vector<OpenElement> _open;
    std::vector<std::uint32_t> _counts;
};

/// One parse.
class Construction {
public:
    explicit Construction(Document& document) : _document(document), _arena(document.arena()), _open(document) {}

    void add(const Token& token) {
        switch (token.kind) {
        case Token::Kind::startTag:
            return addElement(token);
        case Token::Kind::endTag:
            return _open.closeUpTo(token.name);
        case Token::Kind::text:
            return append(_arena.make<TextNode>(token.data));
        case Token::Kind::comment:
            return addComment(token);
        case Token::Kind::documentType:
            return append(_arena.make<DocumentType>(token.data, token.name, token.publicId, token.systemId));
        case Token::Kind::endOfFile:
            return;
        }
    }

private:
    void append(Node* node) { _open.innermost().appendChild(node); }

    void addElement(const Token& token) {
        TagTable& tags = _document.tags();
        const std::uint32_t tagIndex = tags.intern(token.name);
        auto* const element = _arena.make<Element>(tags[tagIndex], copyOf(token.attributes, _arena), token.isSelfClosing);
        append(element);
        if (!token.isSelfClosing) {
            _open.open(element, tagIndex);
        }
    }

    void addComment(const Token& token) {
        const bool isDeclaration =
            token.commentKind == Token::CommentKind::questionMark || token.commentKind == Token::CommentKind::exclamationMark;
        if (!isDeclaration) {
            return append(_arena.make<Comment>(token.data));
        }
        std::string_view text = token.data;
        const bool isInstruction = token.commentKind == Token::CommentKind::questionMark;
        if (isInstruction) {
            text.remove_prefix(1);
            text.remove_suffix(text.ends_with('?') ? 1 : 0);
        }
        auto* const declaration = _arena.make<XmlDeclaration>(isInstruction ? '?' : '!', text);
        if (declaration->isXmlDeclaration()) {
            dropBlankStart();
        }
        append(declaration);
    }

    /// An XML declaration counts at the very start only, and blank lines before it are a common slip of servers.
    void dropBlankStart() {
        Node* const first = _document.firstChild();
        if (first != nullptr && first->kind() == Node::Kind::text && first == _document.lastChild() &&
            isBlank(static_cast<const TextNode*>(first)->text())) {
            _document.removeChild(first);
        }
    }

    Document& _document;
    Arena& _arena;
    OpenElements _open;
};

} // namespace

void XmlTreeBuilder::fill(Document& document, ParseSettings settings, ParseErrorList& errors) {
    document.outputSettings().setSyntax(OutputSettings::Syntax::xml);
    Tokeniser tokeniser(document.source().text(), document.arena(), errors, settings);
    tokeniser.setAllowsCdata(true);
    tokeniser.setAllowsInternalSubset(true);
    Construction construction(document);
    for (;;) {
        const Token& token = tokeniser.next();
        if (token.kind == Token::Kind::endOfFile) {
            return;
        }
        construction.add(token);
    }
}

} // namespace brindle::html
