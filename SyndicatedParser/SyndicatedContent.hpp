#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace brindle {

/// A text of an entry with its kind.
class SyndicatedContent {
public:
    /// Where texts can be read again. Thread: main.
    class Source {
    public:
        virtual ~Source() = default;
        /// The text of this number; empty when it can't be read any more.
        virtual std::string text(std::size_t number) const = 0;
    };

    /// `plain` is text, `raw` is markup. The values are stored in archives.
    enum class MIMEType { plain = 0, raw };

    /// Stores `content` with its entities decoded.
    explicit SyndicatedContent(MIMEType type, std::string content = {});

    MIMEType type() const { return _type; }
    std::string content() const { return _source ? _source->text(_number) : _content; }

    /// Stores `content` as it is: no entity is decoded here.
    void setContent(std::string content);
    /// Keeps the text no longer: `source` has it under `number`. A short text stays, and costs less so.
    void leaveTo(std::shared_ptr<const Source> source, std::size_t number);

    /// `content` with its tags removed; computed at each call.
    std::string strippedContent() const;

private:
    MIMEType _type;
    std::string _content;                  ///< empty where a source has it
    std::shared_ptr<const Source> _source; ///< null: the text is here
    std::size_t _number = 0;
};

} // namespace brindle
