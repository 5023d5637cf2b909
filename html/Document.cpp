#include "html/Document.hpp"

#include <utility>

namespace brindle::html {

namespace {

constexpr Tag rootTag("#root", "#root", Tag::unknownFlags);

}

Document::Document(InputStream source, std::string baseURI)
    : Element(Kind::document, rootTag, Attributes(), false, Vocabulary::html), _source(std::move(source)), _location(std::move(baseURI)),
      _tags(_arena) {}

} // namespace brindle::html
