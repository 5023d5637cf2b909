#pragma once

#include "foundation/PropertyList.hpp"

#include <string_view>
#include <tl/expected.hpp>

namespace brindle {

/// Reads the XML form of property lists, in UTF-8 or what the document declares. A dictionary whose only key is "CF$UID" is the
/// XML form's way to write a UID. Thread: any.
tl::expected<PropertyList, PropertyList::Error> readXMLPropertyList(std::string_view bytes);

} // namespace brindle
