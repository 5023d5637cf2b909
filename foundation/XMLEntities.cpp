#include "foundation/XMLEntities.hpp"

namespace brindle {

namespace {

const xmlChar* xmlText(const std::string& text) {
    return reinterpret_cast<const xmlChar*>(text.c_str());
}

/// A replacement text that reads as `text` where markup is recognised.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char character : text) {
        if (character == '<')
            result.append("&#60;");
        else if (character == '&')
            result.append("&#38;");
        else
            result.push_back(character);
    }
    return result;
}

} // namespace

XMLEntities::Entity::Entity(std::string_view entityName, std::string_view replacement, xmlEntityType type)
    : name(entityName), content(replacement) {
    node.type = XML_ENTITY_DECL;
    node.name = xmlText(name);
    node.content = const_cast<xmlChar*>(xmlText(content));
    // libxml2 would hand over a text of its own making here if there were none, and nobody would free it.
    node.orig = node.content;
    node.length = static_cast<int>(content.size());
    node.etype = type;
}

void XMLEntities::declare(std::string_view name, const xmlChar* content) {
    const std::string_view replacement = content == nullptr ? "" : reinterpret_cast<const char*>(content);
    std::unique_ptr<Entity>& entity = _general[std::string(name)];
    if (entity == nullptr)
        entity = std::make_unique<Entity>(name, replacement, XML_INTERNAL_GENERAL_ENTITY);
}

xmlEntity* XMLEntities::general(std::string_view name) const {
    const std::string key(name);
    if (xmlEntity* predefined = xmlGetPredefinedEntity(xmlText(key)))
        return predefined;
    const auto found = _general.find(key);
    return found == _general.end() ? nullptr : &found->second->node;
}

xmlEntity* XMLEntities::named(std::string_view name, bool isContent) const {
    const auto found = _named.find(std::string(name));
    if (found == _named.end())
        return nullptr;
    return isContent ? &found->second->asContent.node : &found->second->asReplacement.node;
}

void XMLEntities::define(std::string_view name, std::string_view text) {
    _named[std::string(name)] = std::unique_ptr<NamedText>(
        new NamedText{Entity(name, text, XML_INTERNAL_PREDEFINED_ENTITY), Entity(name, escaped(text), XML_INTERNAL_GENERAL_ENTITY)});
}

} // namespace brindle
