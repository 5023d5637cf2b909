#pragma once

#include "foundation/URL.hpp"

#include <cstdint>
#include <string_view>

namespace brindle {

/// A file that an entry brings with it.
struct SyndicatedEnclosure {
    /// The values are stored in archives. `image` is never made by a parser.
    enum class Kind { other = 0, audio, video, image };

    URL url;
    std::int64_t length = 0; ///< bytes, 0 when unknown
    Kind kind = Kind::other;

    /// The kind for a MIME type: by its beginning "audio" or "video", compared in lower case, else `other`.
    static Kind kindOfMIMEType(std::string_view type);
};

} // namespace brindle
