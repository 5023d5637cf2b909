#pragma once

#include <cstddef>
#include <functional>
#include <gtest/gtest.h>
#include <limits.h>
#include <pthread.h>
#include <string>
#include <string_view>

#include "tests/html/Support.hpp"

namespace brindle::html::testing {

inline constexpr std::size_t mebibyte = std::size_t{1} << 20;

/// As much of `piece` as makes `size` bytes.
inline std::string flood(std::string_view piece, std::size_t size = mebibyte) {
    return repeated(piece, size / piece.size());
}

/// Runs `work` on a thread with a stack of 512 KiB.
inline void runOnSmallStack(const std::function<void()>& work) {
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, std::size_t{512} * 1024), 0);
    pthread_t thread{};
    const auto start = [](void* argument) -> void* {
        (*static_cast<const std::function<void()>*>(argument))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, start, const_cast<std::function<void()>*>(&work)), 0);
    ASSERT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
}

} // namespace brindle::html::testing
