#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace brindle {

/// The template of article pages in a folder of resources; empty where it can't be read or is not in UTF-8. Thread: any.
std::string articlePageTemplate(const std::filesystem::path& resources);

/// `pageTemplate` with the title for every "<%title%>" and the content for every "<%content%>" in it. The title's character references are
/// resolved by the HTML standard (section 13.2.5.72); nothing is escaped: what the feed wrote runs as it came. UTF-8. Thread: any.
std::string articlePage(std::string_view pageTemplate, const std::string& title, std::string_view content);

} // namespace brindle
