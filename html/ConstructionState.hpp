#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "html/CurrentToken.hpp"
#include "html/Document.hpp"
#include "html/Formatting.hpp"
#include "html/NodeInsertion.hpp"
#include "html/OpenElements.hpp"
#include "html/SelectedContent.hpp"
#include "html/Tokeniser.hpp"

namespace brindle::html {

/// What one tree construction (HTML standard, section 13.2.6) has at hand, and the steps that the rules of several insertion modes share.
class ConstructionState {
public:
    ConstructionState(const ConstructionState&) = delete;
    ConstructionState& operator=(const ConstructionState&) = delete;

protected:
    /// The insertion modes. "In table text" is none: texts in a table are kept until another token comes.
    enum class Mode : std::uint8_t {
        initial,
        beforeHtml,
        beforeHead,
        inHead,
        inHeadNoscript,
        afterHead,
        inBody,
        text,
        inTable,
        inCaption,
        inColumnGroup,
        inTableBody,
        inRow,
        inCell,
        inTemplate,
        afterBody,
        inFrameset,
        afterFrameset,
        afterAfterBody,
        afterAfterFrameset,
    };

    /// What comes after a rule: the next token, or the same one by the rules that hold then ("reprocess the token").
    enum class Next : std::uint8_t { token, again };

    /// `document` holds its text and nothing else; it and `errors` outlive the construction.
    ConstructionState(Document& document, ParseSettings settings, ParseErrorList& errors);
    ~ConstructionState() = default;

    // Nodes for the current token.
    Element& makeElement();
    OpenElement& insertElement();
    OpenElement& insertImplied(TagId id);
    void insertVoid();
    void insertForeign(Element::Vocabulary vocabulary);
    void insertWithFormatting(std::string_view text);

    // Tags that go by the same rules in the head, in templates and in the body.
    bool isOfHead() const noexcept;
    Next startOfHead();
    Next readTextAs(Tokeniser::State state);
    Next startTemplate();
    Next endTemplate();
    Next endTemplateAtEndOfFile();
    void closeTemplate();

    void resetMode();
    Mode modeFor(TagId id) const;
    bool isInFragmentOf(TagId context) const noexcept { return _context && _context->id == context; }

    Document& _document;
    ParseErrorList& _errors;
    Tokeniser _tokeniser;
    SelectedContent _selectedContent;
    OpenElements _open;
    NodeInsertion _insertion;
    Formatting _formatting;
    std::optional<OpenElement> _context; ///< The context element in the fragment case.
    CurrentToken _token;

    Mode _mode = Mode::initial;
    Mode _modeBehindText = Mode::initial;
    std::vector<Mode> _templateModes;
    Element* _head = nullptr;
    Element* _form = nullptr;
    bool _allowsFrameset = true;
    bool _dropsLineFeed = false;
};

} // namespace brindle::html
