#include "SyndicatedParser/SyndicatedContent.hpp"

#include "SyndicatedParser/Normalisation.hpp"

#include <utility>

namespace brindle {

SyndicatedContent::SyndicatedContent(MIMEType type, std::string content)
    : _type(type), _content(content.find('&') == std::string::npos ? std::move(content) : stringByRemovingHTMLEntities(content)) {}

std::string SyndicatedContent::strippedContent() const {
    return removingHTMLTags(_content);
}

} // namespace brindle
