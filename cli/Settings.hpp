#pragma once

#include "cli/ArgumentParser.hpp"
#include "foundation/Date.hpp"

#include <filesystem>
#include <memory>
#include <optional>
#include <tl/expected.hpp>
#include <vector>

namespace brindle {

/// What the global options say. Thread: main.
struct Settings {
    bool json = false;
    std::optional<std::filesystem::path> supportDirectory; ///< as given; absent: the desktop program's
    std::shared_ptr<const Clock> clock;

    static const std::vector<Option>& options();

    /// Also makes the locale and the time zone that are given the process's. To be called before other threads run.
    static tl::expected<Settings, CommandError> make(const Arguments& arguments);
};

} // namespace brindle
