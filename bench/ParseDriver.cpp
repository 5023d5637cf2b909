#include "bench/DriverLoop.hpp"
#include "bench/FeedRoad.hpp"
#include "foundation/Console.hpp"

// The road of one update as a program of its own, for comparisons with other readers: what it counts are entries.

int main(int argc, char** argv) {
    using namespace brindle;
    Console::redirect([](std::string_view) {});
    const std::shared_ptr<const Clock> clock = std::make_shared<SystemClock>();
    return bench::runDriver(argc, argv, "ParseDriver", [&](const std::string& bytes) { return bench::update(bytes, clock); });
}
