#pragma once

#include <string>

namespace brindle {

/// A text of an entry with its kind.
class SyndicatedContent {
public:
    /// `plain` is text, `raw` is markup. The values are stored in archives.
    enum class MIMEType { plain = 0, raw };

    /// Stores `content` with its entities decoded.
    explicit SyndicatedContent(MIMEType type, std::string content = {});

    MIMEType type() const { return _type; }
    const std::string& content() const { return _content; }

    /// Stores `content` as it is: no entity is decoded here.
    void setContent(std::string content) { _content = std::move(content); }

    /// `content` with its tags removed; computed at each call.
    std::string strippedContent() const;

private:
    MIMEType _type;
    std::string _content;
};

} // namespace brindle
