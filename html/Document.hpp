#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "html/Arena.hpp"
#include "html/Element.hpp"
#include "html/InputStream.hpp"
#include "html/OutputSettings.hpp"
#include "html/TagTable.hpp"

namespace brindle::html {

/// The whole of a text as a tree. It owns the text, the nodes, and whatever they refer to; all of it goes away at once, whatever the depth.
/// Its own tag is named "#root" and is never written.
class Document final : public Element {
public:
    /// How a page asks to be laid out by its document type (HTML standard, section 13.2.6.4.1).
    enum class Mode : std::uint8_t { noQuirks, limitedQuirks, quirks };

    Document(InputStream source, std::string baseURI);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;
    Document(Document&&) = delete;
    Document& operator=(Document&&) = delete;
    ~Document() = default;

    /// The base URI that relative addresses are resolved against.
    const std::string& location() const noexcept { return _location; }

    OutputSettings& outputSettings() noexcept { return _outputSettings; }
    const OutputSettings& outputSettings() const noexcept { return _outputSettings; }

    /// `noQuirks` under the XML builder.
    Mode mode() const noexcept { return _mode; }
    void setMode(Mode mode) noexcept { _mode = mode; }

    const InputStream& source() const noexcept { return _source; }

    /// Memory that lives as long as the document.
    Arena& arena() noexcept { return _arena; }

    TagTable& tags() noexcept { return _tags; }

private:
    InputStream _source;
    const std::string _location;
    OutputSettings _outputSettings;
    Mode _mode = Mode::noQuirks;
    Arena _arena;
    TagTable _tags;
};

} // namespace brindle::html
