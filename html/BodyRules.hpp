#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>

#include "html/AttributeMerge.hpp"
#include "html/ConstructionState.hpp"

namespace brindle::html {

/// The rules of the insertion mode "in body" (HTML standard, section 13.2.6.4.7), which most other modes fall back on.
class BodyRules : public ConstructionState {
protected:
    using ConstructionState::ConstructionState;
    ~BodyRules() = default;

    Next inBody();

    bool isHiddenInput() const noexcept;

    AttributeMerge _rootAttributes;
    AttributeMerge _bodyAttributes;

private:
    using Rule = Next (BodyRules::*)();

    /// Rules by the tags that go by them.
    using Rules = std::array<Rule, tagIdCount>;

    struct RuleOfTags {
        Rule rule;
        std::initializer_list<TagId> ids;
    };

    static constexpr Rules rulesOf(Rule usual, std::initializer_list<RuleOfTags> others) noexcept {
        Rules rules{};
        rules.fill(usual);
        for (const RuleOfTags& other : others) {
            for (const TagId id : other.ids) {
                rules[static_cast<std::size_t>(id)] = other.rule;
            }
        }
        return rules;
    }

    static const Rules _startTagRules;
    static const Rules _endTagRules;

    Next inBodyText();
    Next ignore() noexcept { return Next::token; }

    // Start tags (BodyRulesStartTags.cpp).
    Next startRootAgain();
    Next startBodyAgain();
    Next startFrameset();
    Next startBlock();
    Next startHeading();
    Next startPreformatted();
    Next startForm();
    Next startListItem();
    Next startPlaintext();
    Next startButton();
    Next startAnchor();
    Next startFormatting();
    Next startNobr();
    Next startMarked();
    Next startTable();
    Next startVoid();
    Next startVoidInMedia();
    Next startInput();
    Next startRule();
    Next startTextArea();
    Next startRawText();
    Next startSelect();
    Next startOption();
    Next startRubyPart();
    Next startForeign();
    Next startOrdinary();
    OpenElement* openBody() const noexcept;
    bool closeSelect();

    // End tags (BodyRulesEndTags.cpp).
    Next endBody();
    Next endBlock();
    Next endListItem();
    Next endForm();
    Next endParagraph();
    Next endHeading();
    Next endFormatting();
    Next endMarked();
    Next endBreak();
    Next endOrdinary();
    void closeWithin(Boundary scope);
    void closeParagraph();
    void closeImplied(TagId kept = TagId::unknown);
};

} // namespace brindle::html
