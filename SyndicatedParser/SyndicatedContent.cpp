#include "SyndicatedParser/SyndicatedContent.hpp"

#include "SyndicatedParser/Normalisation.hpp"

#include <utility>

namespace brindle {

SyndicatedContent::SyndicatedContent(MIMEType type, std::string content)
    : _type(type), _content(content.find('&') == std::string::npos ? std::move(content) : stringByRemovingHTMLEntities(content)) {}

void SyndicatedContent::setContent(std::string content) {
    _content = std::move(content);
    _source.reset();
}

void SyndicatedContent::leaveTo(std::shared_ptr<const Source> source, std::size_t number) {
    constexpr std::size_t shortText = 256; // bytes
    if (_content.size() <= shortText)
        return;
    std::string().swap(_content); // unlike an assignment, this gives the memory back
    _source = std::move(source);
    _number = number;
}

std::string SyndicatedContent::strippedContent() const {
    return removingHTMLTags(content());
}

} // namespace brindle
