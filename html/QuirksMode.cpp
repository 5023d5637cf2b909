#include "html/QuirksMode.hpp"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "html/AsciiText.hpp"

namespace brindle::html {

namespace {

// All in lower case, since they are compared without regard to it.

constexpr std::array<std::string_view, 3> quirkyPublicIds = {
    "-//w3o//dtd w3 html strict 3.0//en//",
    "-/w3c/dtd html 4.0 transitional/en",
    "html",
};

constexpr std::string_view quirkySystemId = "http://www.ibm.com/data/dtd/v11/ibmxhtml1-transitional.dtd";

constexpr std::array<std::string_view, 55> quirkyPublicStarts = {
    "+//silmaril//dtd html pro v0r11 19970101//",
    "-//as//dtd html 3.0 aswedit + extensions//",
    "-//advasoft ltd//dtd html 3.0 aswedit + extensions//",
    "-//ietf//dtd html 2.0 level 1//",
    "-//ietf//dtd html 2.0 level 2//",
    "-//ietf//dtd html 2.0 strict level 1//",
    "-//ietf//dtd html 2.0 strict level 2//",
    "-//ietf//dtd html 2.0 strict//",
    "-//ietf//dtd html 2.0//",
    "-//ietf//dtd html 2.1e//",
    "-//ietf//dtd html 3.0//",
    "-//ietf//dtd html 3.2 final//",
    "-//ietf//dtd html 3.2//",
    "-//ietf//dtd html 3//",
    "-//ietf//dtd html level 0//",
    "-//ietf//dtd html level 1//",
    "-//ietf//dtd html level 2//",
    "-//ietf//dtd html level 3//",
    "-//ietf//dtd html strict level 0//",
    "-//ietf//dtd html strict level 1//",
    "-//ietf//dtd html strict level 2//",
    "-//ietf//dtd html strict level 3//",
    "-//ietf//dtd html strict//",
    "-//ietf//dtd html//",
    "-//metrius//dtd metrius presentational//",
    "-//microsoft//dtd internet explorer 2.0 html strict//",
    "-//microsoft//dtd internet explorer 2.0 html//",
    "-//microsoft//dtd internet explorer 2.0 tables//",
    "-//microsoft//dtd internet explorer 3.0 html strict//",
    "-//microsoft//dtd internet explorer 3.0 html//",
    "-//microsoft//dtd internet explorer 3.0 tables//",
    "-//netscape comm. corp.//dtd html//",
    "-//netscape comm. corp.//dtd strict html//",
    "-//o'reilly and associates//dtd html 2.0//",
    "-//o'reilly and associates//dtd html extended 1.0//",
    "-//o'reilly and associates//dtd html extended relaxed 1.0//",
    "-//sq//dtd html 2.0 hotmetal + extensions//",
    "-//softquad software//dtd hotmetal pro 6.0::19990601::extensions to html 4.0//",
    "-//softquad//dtd hotmetal pro 4.0::19971010::extensions to html 4.0//",
    "-//spyglass//dtd html 2.0 extended//",
    "-//sun microsystems corp.//dtd hotjava html//",
    "-//sun microsystems corp.//dtd hotjava strict html//",
    "-//w3c//dtd html 3 1995-03-24//",
    "-//w3c//dtd html 3.2 draft//",
    "-//w3c//dtd html 3.2 final//",
    "-//w3c//dtd html 3.2//",
    "-//w3c//dtd html 3.2s draft//",
    "-//w3c//dtd html 4.0 frameset//",
    "-//w3c//dtd html 4.0 transitional//",
    "-//w3c//dtd html experimental 19960712//",
    "-//w3c//dtd html experimental 970421//",
    "-//w3c//dtd w3 html//",
    "-//w3o//dtd w3 html 3.0//",
    "-//webtechs//dtd mozilla html 2.0//",
    "-//webtechs//dtd mozilla html//",
};

/// These ask for quirks without a system identifier, and for limited quirks with one.
constexpr std::array<std::string_view, 2> halfQuirkyPublicStarts = {
    "-//w3c//dtd html 4.01 frameset//",
    "-//w3c//dtd html 4.01 transitional//",
};

constexpr std::array<std::string_view, 2> limitedQuirkyPublicStarts = {
    "-//w3c//dtd xhtml 1.0 frameset//",
    "-//w3c//dtd xhtml 1.0 transitional//",
};

template <std::size_t size>
bool startsWithAny(std::string_view text, const std::array<std::string_view, size>& starts) {
    return std::any_of(starts.begin(), starts.end(), [=](std::string_view start) { return text.starts_with(start); });
}

} // namespace

Document::Mode documentModeOf(const Token& documentType) {
    const std::string publicId = asciiLowercased(documentType.publicId);
    const bool isQuirky = documentType.forcesQuirks || documentType.name != "html" ||
                          std::find(quirkyPublicIds.begin(), quirkyPublicIds.end(), publicId) != quirkyPublicIds.end() ||
                          equalsIgnoringAsciiCase(documentType.systemId, quirkySystemId) || startsWithAny(publicId, quirkyPublicStarts);
    const bool isHalfQuirky = startsWithAny(publicId, halfQuirkyPublicStarts);
    if (isQuirky || (isHalfQuirky && !documentType.hasSystemId)) {
        return Document::Mode::quirks;
    }
    return isHalfQuirky || startsWithAny(publicId, limitedQuirkyPublicStarts) ? Document::Mode::limitedQuirks : Document::Mode::noQuirks;
}

} // namespace brindle::html
