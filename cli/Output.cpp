#include "cli/Output.hpp"

#include "cli/JSONText.hpp"
#include "foundation/FileError.hpp"
#include "foundation/WriteAll.hpp"

#include <unistd.h>

namespace brindle {

void Output::text(std::string_view text) {
    if (_failure)
        return;
    if (const int error = writeAll(STDOUT_FILENO, text))
        _failure = FileError::of(error, "write", "standard output").message;
}

void Output::document(std::string_view text) {
    if (text.empty() || text.ends_with('\n'))
        return this->text(text);
    this->text(std::string(text) + '\n');
}

void Output::json(const nlohmann::ordered_json& value) {
    text(jsonText(value));
}

} // namespace brindle
