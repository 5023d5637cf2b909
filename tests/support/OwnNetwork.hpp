#pragma once

#include "tests/support/Network.hpp"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace brindle::testsupport {

/// The step of a test that could not be taken on this machine.
constexpr int cannotTell = 77;

inline void leaveNetworkOrEnd() {
    if (!leaveNetwork())
        ::_exit(cannotTell);
}

} // namespace brindle::testsupport

/// Runs `body` in a fresh process with a network of its own, and skips the test where there can be none. Its result is the number of the
/// step that failed, or 0.
#define EXPECT_HELD_APART(body)                                                                                                            \
    do {                                                                                                                                   \
        GTEST_FLAG_SET(death_test_style, "threadsafe");                                                                                    \
        int ended = -1;                                                                                                                    \
        const auto note = [&ended](int status) {                                                                                           \
            ended = WIFEXITED(status) ? WEXITSTATUS(status) : -1;                                                                          \
            return true;                                                                                                                   \
        };                                                                                                                                 \
        EXPECT_EXIT((brindle::testsupport::leaveNetworkOrEnd(), ::_exit((body)())), note, "");                                             \
        if (ended == brindle::testsupport::cannotTell)                                                                                     \
            GTEST_SKIP() << "no network namespaces here";                                                                                  \
        EXPECT_EQ(ended, 0) << "the step that failed";                                                                                     \
    } while (false)
