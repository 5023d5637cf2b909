#include <algorithm>
#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "html/InputStream.hpp"
#include "html/Tokeniser.hpp"
#include "html/Utf8.hpp"
#include "tests/support/Corpus.hpp"

// The tokenizer cases of the html5lib suite: tokens, and errors with their places.

namespace brindle::html {

namespace {

using nlohmann::json;

/// Resolves `\uXXXX`, as cases marked "doubleEscaped" have it; pairs of surrogates become one code point, lone ones stay.
std::string unescaped(const std::string& text) {
    constexpr std::size_t length = 6;
    const auto unitAt = [&](std::size_t at) -> std::optional<char32_t> {
        if (at + length > text.size() || text[at] != '\\' || text[at + 1] != 'u') {
            return std::nullopt;
        }
        return static_cast<char32_t>(std::stoul(text.substr(at + 2, 4), nullptr, 16));
    };
    std::string plain;
    for (std::size_t at = 0; at < text.size();) {
        const auto unit = unitAt(at);
        if (!unit) {
            plain += text[at++];
            continue;
        }
        at += length;
        const auto low = *unit >= 0xD800 && *unit < 0xDC00 ? unitAt(at) : std::nullopt;
        if (low && *low >= 0xDC00 && *low < 0xE000) {
            appendUtf8(plain, 0x10000 + ((*unit - 0xD800) << 10) + (*low - 0xDC00));
            at += length;
        } else {
            appendUtf8(plain, *unit);
        }
    }
    return plain;
}

json unescapedAll(const json& value) {
    json copy = value;
    std::vector<json*> open = {&copy};
    while (!open.empty()) {
        json& at = *open.back();
        open.pop_back();
        if (at.is_string()) {
            at = unescaped(at.get<std::string>());
        } else if (at.is_array()) {
            for (json& element : at) {
                open.push_back(&element);
            }
        } else if (at.is_object()) {
            json object = json::object();
            for (const auto& [key, member] : at.items()) {
                object[unescaped(key)] = member.is_string() ? json(unescaped(member.get<std::string>())) : member;
            }
            at = object;
        }
    }
    return copy;
}

Tokeniser::State stateNamed(const std::string& name) {
    static const std::map<std::string, Tokeniser::State> states = {{"Data state", Tokeniser::State::data},
        {"RCDATA state", Tokeniser::State::rcdata}, {"RAWTEXT state", Tokeniser::State::rawtext},
        {"Script data state", Tokeniser::State::scriptData}, {"PLAINTEXT state", Tokeniser::State::plaintext},
        {"CDATA section state", Tokeniser::State::cdataSection}};
    return states.at(name);
}

json optionalText(bool isThere, std::string_view text) {
    return isThere ? json(text) : json();
}

json asJson(const Token& token) {
    switch (token.kind) {
    case Token::Kind::startTag: {
        json attributes = json::object();
        for (const Attribute& attribute : token.attributes) {
            attributes[std::string(attribute.key)] = attribute.value;
        }
        json tag = {"StartTag", token.name, attributes};
        if (token.isSelfClosing) {
            tag.push_back(true);
        }
        return tag;
    }
    case Token::Kind::endTag:
        return {"EndTag", token.name};
    case Token::Kind::text:
        return {"Character", token.data};
    case Token::Kind::comment:
        return {"Comment", token.data};
    case Token::Kind::documentType:
        return {"DOCTYPE", optionalText(token.hasName, token.name), optionalText(token.hasPublicId, token.publicId),
            optionalText(token.hasSystemId, token.systemId), !token.forcesQuirks};
    case Token::Kind::endOfFile:
        break;
    }
    return {};
}

struct Outcome {
    json tokens = json::array();
    std::vector<std::tuple<std::size_t, std::size_t, std::string>> errors;
};

Outcome tokenise(const std::string& text, Tokeniser::State state, const std::string& lastStartTag) {
    const InputStream input(text);
    Arena arena;
    ParseErrorList errors(1000);
    ParseErrorList inputErrors(1000);
    Tokeniser tokeniser(input.text(), arena, errors, ParseSettings());
    tokeniser.setState(state);
    tokeniser.setLastStartTag(lastStartTag);
    Outcome outcome;
    for (const Token* token = &tokeniser.next(); token->kind != Token::Kind::endOfFile; token = &tokeniser.next()) {
        json read = asJson(*token);
        if (read[0] == "Character" && !outcome.tokens.empty() && outcome.tokens.back()[0] == "Character") {
            outcome.tokens.back()[1] = outcome.tokens.back()[1].get<std::string>() + read[1].get<std::string>();
        } else {
            outcome.tokens.push_back(std::move(read));
        }
    }
    input.reportErrors(inputErrors);
    errors.merge(inputErrors);
    for (const ParseError& error : std::move(errors).located(input.text())) {
        outcome.errors.emplace_back(error.line, error.column, error.name());
    }
    std::sort(outcome.errors.begin(), outcome.errors.end());
    return outcome;
}

std::vector<std::tuple<std::size_t, std::size_t, std::string>> errorsOf(const json& test) {
    std::vector<std::tuple<std::size_t, std::size_t, std::string>> errors;
    for (const json& error : test.value("errors", json::array())) {
        errors.emplace_back(error["line"].get<std::size_t>(), error["col"].get<std::size_t>(), error["code"].get<std::string>());
    }
    std::sort(errors.begin(), errors.end());
    return errors;
}

/// Runs one case in each of its states and gives the number of runs.
std::size_t check(const json& given) {
    const json test = given.value("doubleEscaped", false) ? [&] {
        json unescapedTest = given;
        unescapedTest["input"] = unescaped(given["input"].get<std::string>());
        unescapedTest["output"] = unescapedAll(given["output"]);
        return unescapedTest;
    }()
                                                          : given;
    const json states = test.value("initialStates", json::array({"Data state"}));
    for (const json& state : states) {
        SCOPED_TRACE(given["description"].dump() + ", " + state.get<std::string>() + ": " + given["input"].dump());
        const Outcome outcome =
            tokenise(test["input"].get<std::string>(), stateNamed(state.get<std::string>()), test.value("lastStartTag", std::string()));
        EXPECT_TRUE(outcome.tokens == test["output"]) << "expected " << given["output"].dump();
        EXPECT_EQ(outcome.errors, errorsOf(test));
    }
    return states.size();
}

} // namespace

TEST(TokeniserCorpusTest, GivesTheTokensAndErrorsOfEveryCase) {
    BRINDLE_REQUIRE_CORPUS(path);
    std::size_t cases = 0;
    std::size_t runs = 0;
    for (const auto& file : testsupport::filesBelow(path / "html5lib" / "tokenizer")) {
        const json suite = json::parse(testsupport::bytesOf(file), nullptr, false);
        ASSERT_FALSE(suite.is_discarded()) << file;
        for (const json& test : suite.value("tests", json::array())) {
            ++cases;
            runs += check(test);
        }
    }
    testsupport::noteOutcomes("html5lib-tokenizer", "html5lib tokenizer: " + std::to_string(cases) + " cases\n");
    EXPECT_EQ(cases, 6303U);
    EXPECT_EQ(runs, 6509U);
}

} // namespace brindle::html
