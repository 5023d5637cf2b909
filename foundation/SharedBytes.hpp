#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace brindle {

/// Bytes that never change, shared by all copies: a document that several objects hold is in memory once. Thread: any; a value.
class SharedBytes {
public:
    SharedBytes() = default;
    SharedBytes(std::string bytes) : _bytes(bytes.empty() ? nullptr : std::make_shared<const std::string>(std::move(bytes))) {}
    SharedBytes(const char* text) : SharedBytes(std::string(text)) {}

    bool empty() const { return !_bytes; }
    std::size_t size() const { return view().size(); }
    char operator[](std::size_t index) const { return view()[index]; }
    std::string_view view() const { return _bytes ? std::string_view(*_bytes) : std::string_view(); }
    operator std::string_view() const { return view(); }

    friend bool operator==(const SharedBytes& a, const SharedBytes& b) { return a._bytes == b._bytes || a.view() == b.view(); }

private:
    std::shared_ptr<const std::string> _bytes; ///< null when empty
};

} // namespace brindle
