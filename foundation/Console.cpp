#include "foundation/Console.hpp"

#include <cstdio>
#include <mutex>
#include <string>

namespace brindle {

namespace {

struct State {
    std::mutex mutex;
    Console::Sink sink;
};

/// Never destroyed: lines may come from any thread until the process is gone.
State& state() {
    static State& shared = *new State;
    return shared;
}

} // namespace

void Console::print(std::string_view line) {
    const std::lock_guard lock(state().mutex);
    if (state().sink) {
        state().sink(line);
        return;
    }
    std::string text(line);
    text += '\n';
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

void Console::redirect(Sink sink) {
    const std::lock_guard lock(state().mutex);
    state().sink = std::move(sink);
}

} // namespace brindle
