#pragma once

#include <libxml/tree.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace brindle {

/// The entities of one document, owned here for as long as libxml2 may hold on to them: those that its internal subset declares and
/// names that are known without being declared. An external entity is empty where it is referred to, as a reader that does not validate may
/// have it (XML 1.0, 4.4.3), and so is every parameter entity: libxml2 goes on in memory that it gave back when it fails inside one.
/// Thread: that of the parse.
class XMLEntities {
public:
    /// Keeps a general entity's first declaration; `content` is the replacement text, null for an external entity.
    void declare(std::string_view name, const xmlChar* content);

    /// The declared general entity, or one of the five that XML predefines; null for an unknown name.
    xmlEntity* general(std::string_view name) const;

    /// What every parameter entity is: external, and so never read.
    xmlEntity* unreadParameter() { return &_parameter.node; }

    /// Whether any general entity was declared.
    bool declaresAny() const { return !_general.empty(); }

    /// A name that stands for a text without being declared; null before `define`.
    /// As `isContent` its text is handed on as it stands, which libxml2 does for content only; otherwise it is read as an entity's
    /// replacement text.
    xmlEntity* named(std::string_view name, bool isContent) const;
    void define(std::string_view name, std::string_view text);

private:
    struct Entity {
        Entity(std::string_view entityName, std::string_view replacement, xmlEntityType type);

        std::string name;
        std::string content;
        xmlEntity node{};
    };
    struct NamedText {
        Entity asContent;
        Entity asReplacement;
    };
    template <typename Value>
    using Table = std::unordered_map<std::string, std::unique_ptr<Value>>;

    Table<Entity> _general;
    Entity _parameter{"", "", XML_EXTERNAL_PARAMETER_ENTITY};
    Table<NamedText> _named;
};

} // namespace brindle
