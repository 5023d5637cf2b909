#pragma once

#include <initializer_list>
#include <string_view>
#include <vector>

#include "html/BodyRules.hpp"

namespace brindle::html {

/// One parse by the rules of tree construction (HTML standard, section 13.2.6), with scripting off.
///
/// Each insertion mode is a function of its name that looks at the current token, which is never a comment or a document type: what becomes
/// of those is much the same everywhere.
class TreeConstruction final : private BodyRules {
public:
    /// `document` holds its text and nothing else; it and `errors` outlive the construction.
    TreeConstruction(Document& document, ParseSettings settings, ParseErrorList& errors) : BodyRules(document, settings, errors) {}

    /// Makes the tree of the document's text. To be called once, as the other one.
    void run();

    /// The fragment case (section 13.4), with what `context` names as the context element.
    void runFragment(std::string_view context);

private:
    // Dispatch (TreeConstruction.cpp).
    void readToTheEnd();
    void take(const Token& token);
    void process();
    Next processByMode();
    bool goesByHtmlRules() const noexcept;
    const OpenElement& adjustedCurrent() const noexcept;
    void takeComment();
    void takeDocumentType();
    void setContext(std::string_view context);
    void setStateFor(TagId context);

    // Before the body (TreeConstructionBeforeBody.cpp, TreeConstructionInHead.cpp).
    Next initial();
    Next beforeHtml();
    Next beforeHead();
    Next inHead();
    Next inHeadNoscript();
    Next afterHead();
    Next inText();
    void openRoot(Attributes attributes);

    // Tables (TreeConstructionInTable.cpp, TreeConstructionInRow.cpp).
    Next inTable();
    Next inTableStartTag();
    Next inTableEndTag();
    Next inTableOtherwise();
    Next startInputInTable();
    Next startFormInTable();
    Next inCaption();
    Next inColumnGroup();
    Next inTableBody();
    Next inRow();
    Next inCell();
    bool closeTable();
    Next closeCaption(Next next);
    Next closeTableBody(Next next);
    Next closeRow(Next next);
    Next closeCell(Next next);
    void flushTableText();
    void clearBackTo(std::initializer_list<TagId> ids);
    static bool isPartOfTable(TagId id) noexcept;

    // Templates, and what comes behind the body (TreeConstructionInTemplate.cpp, TreeConstructionAfterBody.cpp).
    Next inTemplate();
    Next goOnInTemplateAs(Mode mode);
    Next afterBody();
    Next afterAfterBody();
    Next inBodyAgain();
    Next inFrameset();
    Next afterFrameset();
    Next afterAfterFrameset();

    // SVG and MathML (TreeConstructionForeign.cpp).
    Next inForeign();
    Next startInForeign();
    Next endInForeign();
    Next breakOut();
    bool breaksOut() const noexcept;

    std::vector<std::string_view> _tableText;
};

} // namespace brindle::html
