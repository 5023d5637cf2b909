#pragma once

#include <string>
#include <string_view>

#include "html/Arena.hpp"

namespace brindle::html {

/// A stretch of the source in the making. It stays a view of the source until some of it has to be replaced; from then on it is copied.
class TextRun {
public:
    explicit TextRun(Arena& arena) noexcept : _arena(&arena) {}

    /// Starts anew at a place of the source.
    void begin(const char* at) noexcept {
        _pending = at;
        _isCopied = false;
        _copy.clear();
    }

    /// Has [`from`, `to`) of the source stand as `text`. What lies between the last replacement and `from` stays as it is.
    void replace(const char* from, const char* to, std::string_view text) {
        take(from);
        _copy.append(text);
        _pending = to;
        _isCopied = true;
    }

    bool isEmptyAt(const char* at) const noexcept { return _pending == at && _copy.empty(); }

    /// The text up to `at`, to live as long as source and arena.
    std::string_view end(const char* at) {
        if (!_isCopied) {
            return {_pending, static_cast<std::size_t>(at - _pending)};
        }
        take(at);
        return _arena->copy(_copy);
    }

private:
    void take(const char* end) { _copy.append(_pending, static_cast<std::size_t>(end - _pending)); }

    Arena* _arena;
    const char* _pending = nullptr;
    bool _isCopied = false;
    std::string _copy;
};

} // namespace brindle::html
