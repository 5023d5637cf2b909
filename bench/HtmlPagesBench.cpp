#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <malloc.h>
#include <string>
#include <string_view>
#include <vector>

#include "html/Parser.hpp"
#include "html/Tokeniser.hpp"

// The HTML builder over the real pages of the corpus, which BRINDLE_CORPUS names, and over floods that must cost no more than their size.

namespace {

using namespace brindle::html;

constexpr std::size_t mebibyte = std::size_t{1} << 20;

std::string contentsOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The pages of more than 50 KiB; none without the corpus.
const std::vector<std::string>& realPages() {
    static const std::vector<std::string> pages = [] {
        constexpr std::uintmax_t least = 50 * 1024;
        std::vector<std::filesystem::path> paths;
        const char* const corpus = std::getenv("BRINDLE_CORPUS");
        std::error_code error;
        for (const auto& entry :
            std::filesystem::recursive_directory_iterator(std::filesystem::path(corpus != nullptr ? corpus : ".") / "pages", error)) {
            if (entry.path().extension() == ".html" && entry.file_size() > least) {
                paths.push_back(entry.path());
            }
        }
        std::sort(paths.begin(), paths.end());
        std::vector<std::string> texts;
        std::transform(paths.begin(), paths.end(), std::back_inserter(texts), contentsOf);
        return texts;
    }();
    return pages;
}

bool skipWithoutPages(benchmark::State& state) {
    if (realPages().empty()) {
        state.SkipWithError("BRINDLE_CORPUS names no corpus");
        return true;
    }
    return false;
}

void setBytes(benchmark::State& state) {
    std::size_t size = 0;
    for (const std::string& page : realPages()) {
        size += page.size();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * size));
}

/// The tokens alone, for what the tree costs beside them. Without a tree, scripts and styles are read as markup.
void tokeniseRealPages(benchmark::State& state) {
    if (skipWithoutPages(state)) {
        return;
    }
    for (auto _ : state) {
        for (const std::string& page : realPages()) {
            const InputStream input(page);
            Arena arena;
            ParseErrorList errors(0);
            Tokeniser tokeniser(input.text(), arena, errors, ParseSettings());
            while (tokeniser.next().kind != Token::Kind::endOfFile) {
            }
        }
    }
    setBytes(state);
}
BENCHMARK(tokeniseRealPages)->Unit(benchmark::kMillisecond);

void buildRealPages(benchmark::State& state) {
    if (skipWithoutPages(state)) {
        return;
    }
    for (auto _ : state) {
        for (const std::string& page : realPages()) {
            benchmark::DoNotOptimize(parse(page));
        }
    }
    setBytes(state);
}
BENCHMARK(buildRealPages)->Unit(benchmark::kMillisecond);

void rewriteRealPages(benchmark::State& state) {
    if (skipWithoutPages(state)) {
        return;
    }
    for (auto _ : state) {
        for (const std::string& page : realPages()) {
            benchmark::DoNotOptimize(parse(page)->outerHtml());
        }
    }
    setBytes(state);
}
BENCHMARK(rewriteRealPages)->Unit(benchmark::kMillisecond);

std::size_t nodesIn(const Document& document) {
    std::size_t count = 0;
    for (const Node* node = document.firstChild(); node != nullptr; node = node->nextInTree(&document)) {
        ++count;
    }
    return count;
}

/// What the trees of all pages take, their texts left out.
void holdRealPages(benchmark::State& state) {
    if (skipWithoutPages(state)) {
        return;
    }
    std::size_t nodes = 0;
    std::size_t bytes = 0;
    for (auto _ : state) {
        std::vector<std::unique_ptr<Document>> documents;
        const std::size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
        for (const std::string& page : realPages()) {
            documents.push_back(parse(page));
        }
        bytes = mallinfo2().uordblks + mallinfo2().hblkhd - before;
        nodes = 0;
        for (const auto& document : documents) {
            nodes += nodesIn(*document);
            bytes -= document->source().text().size();
        }
    }
    state.counters["nodes"] = static_cast<double>(nodes);
    state.counters["bytes_per_node"] = static_cast<double>(bytes) / static_cast<double>(std::max<std::size_t>(nodes, 1));
}
BENCHMARK(holdRealPages)->Unit(benchmark::kMillisecond);

std::string flood(std::string_view piece, std::size_t size) {
    std::string text;
    text.reserve(size);
    while (text.size() + piece.size() <= size) {
        text += piece;
    }
    return text;
}

void buildRepeatedPage(benchmark::State& state, std::string_view piece) {
    const std::string text = flood(piece, mebibyte);
    for (auto _ : state) {
        benchmark::DoNotOptimize(parse(text));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

BENCHMARK_CAPTURE(buildRepeatedPage, article, R"(<article class="post"><h2><a href="/2020/01/a-title">A title of some words</a></h2>
<p>Some text with <b>bold</b> words, <a href="https://example.org/page?a=1&amp;b=2">a link</a> &mdash; and more of it.<br>
<img src="/images/picture.jpg" width="640" height="480" alt="A picture"></p></article>
)");
BENCHMARK_CAPTURE(
    buildRepeatedPage, table, R"(<table class="list"><tr><th>Name<th>Size<tr><td>file.txt<td>1234<tr><td>other.txt<td>5</table>
)");
BENCHMARK_CAPTURE(buildRepeatedPage, list, R"(<ul><li class="item"><a href="#1">One</a><li class="item"><a href="#2">Two</a></ul>
)");
BENCHMARK_CAPTURE(buildRepeatedPage, text, "Words and words, and now and then a line end that stands among them.\n");

/// Half of the text makes the tree what it is, and half of it asks something of it again and again.
void buildFlood(benchmark::State& state, std::string_view first, std::string_view then) {
    const auto size = static_cast<std::size_t>(state.range(0));
    const std::string text = then.empty() ? flood(first, size) : flood(first, size / 2) + flood(then, size / 2);
    for (auto _ : state) {
        benchmark::DoNotOptimize(parse(text));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
    state.SetComplexityN(state.range(0));
}

void overSizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(4)->Range(std::int64_t{64} << 10, std::int64_t{4} << 20)->Complexity(benchmark::oN);
}

BENCHMARK_CAPTURE(buildFlood, nestedBlocks, "<div>", "")->Apply(overSizes);
BENCHMARK_CAPTURE(buildFlood, nestedFormatting, "<b>", "")->Apply(overSizes);
BENCHMARK_CAPTURE(buildFlood, anchorsAcrossParagraphs, "<a><p>", "")->Apply(overSizes);
BENCHMARK_CAPTURE(buildFlood, reopenedFormatting, "<p><font>", "")->Apply(overSizes);
BENCHMARK_CAPTURE(buildFlood, nestedTables, "<table><td>", "")->Apply(overSizes);
BENCHMARK_CAPTURE(buildFlood, fosteredText, "<table>a<b>", "")->Apply(overSizes);
BENCHMARK_CAPTURE(buildFlood, textInPieces, "a</x>", "")->Apply(overSizes);
BENCHMARK_CAPTURE(buildFlood, nestedTemplates, "<template>", "")->Apply(overSizes);
BENCHMARK_CAPTURE(buildFlood, strayEndTags, "<span>", "</x>")->Apply(overSizes);
BENCHMARK_CAPTURE(buildFlood, strayFormattingEndTags, "<b><div>", "</i>")->Apply(overSizes);
BENCHMARK_CAPTURE(buildFlood, movedFormatting, "<div>", "<b><p></b>")->Apply(overSizes);
BENCHMARK_CAPTURE(buildFlood, listItemsInDepth, "<span>", "<li></li>")->Apply(overSizes);
BENCHMARK_CAPTURE(buildFlood, tablesInDepth, "<span>", "<table></table>")->Apply(overSizes);
BENCHMARK_CAPTURE(buildFlood, foreignEndTags, "<svg><g>", "</x>")->Apply(overSizes);

} // namespace
