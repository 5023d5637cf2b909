#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace brindle::fuzz {

inline std::string_view view(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the process, which the fuzzer takes for a finding, where a law that the code promises does not hold.
inline void require(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace brindle::fuzz

/// Called by libFuzzer for each input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
