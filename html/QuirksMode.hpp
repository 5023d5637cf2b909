#pragma once

#include "html/Document.hpp"
#include "html/Token.hpp"

namespace brindle::html {

/// The mode that a document type asks for (HTML standard, section 13.2.6.4.1).
Document::Mode documentModeOf(const Token& documentType);

} // namespace brindle::html
