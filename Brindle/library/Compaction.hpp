#pragma once

#include "foundation/ColdBytes.hpp"

namespace brindle {

/// Compresses a document on a queue behind all others. Now and then, when nothing waits there, what the program has freed goes back to the
/// system. Thread: any.
void compactLater(const ColdBytes& document);

} // namespace brindle
