#pragma once

#include "foundation/PropertyList.hpp"

#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace brindle {

// The binary form of property lists ("bplist00"): a signature, the objects one behind the other, a table of their offsets, and a trailer
// that tells how wide offsets and references are, how many objects there are and which is the top one. All numbers are big-endian. An
// object begins with a byte of its kind (upper half) and size (lower half); arrays and dictionaries hold references, which count in the
// table. Thread: any.

bool isBinaryPropertyList(std::string_view bytes);

/// The objects keep their numbers. Objects that share bytes are refused, so that no file unfolds to more than its size.
tl::expected<PropertyList, PropertyList::Error> readBinaryPropertyList(std::string_view bytes);

/// Fatal when an array or a dictionary names an object that the list does not have.
std::string writeBinaryPropertyList(const PropertyList& list);

} // namespace brindle
