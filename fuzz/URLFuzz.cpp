// Addresses and small texts: the first line of the input is a base, the rest a text that is cleaned in every way.
#include "SyndicatedParser/FeedDate.hpp"
#include "SyndicatedParser/Normalisation.hpp"
#include "foundation/Console.hpp"
#include "foundation/Text.hpp"
#include "fuzz/Fuzzing.hpp"

using namespace brindle;

namespace {

void checkParts(const URL& url) {
    static_cast<void>(url.scheme());
    static_cast<void>(url.host());
    static_cast<void>(url.port());
    fuzz::require(URL::make(url.absoluteString()).has_value());
}

void throughURLs(std::string_view base, std::string_view text) {
    if (const auto url = URL::make(text))
        checkParts(*url);
    const auto baseURL = URL::make(base);
    if (const auto url = sanitizedURL(baseURL, text))
        checkParts(*url);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Console::redirect([](std::string_view) {});
    const std::string_view input = fuzz::view(data, size);
    const std::size_t line = std::min(input.find('\n'), input.size());
    const std::string_view text = input.substr(std::min(line + 1, input.size()));
    throughURLs(input.substr(0, line), text);
    static_cast<void>(removingHTMLTags(text));
    static_cast<void>(stringByRemovingHTMLEntities(text));
    static_cast<void>(parseFeedDate(text));
    static_cast<void>(text::folded(text));
    return 0;
}
