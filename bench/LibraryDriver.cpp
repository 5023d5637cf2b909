// Makes a library of many feeds without touching the network, as the start of a measured update.
//
//   LibraryDriver LIST FOLDER     LIST: a text file with one address a line
//
// An update of it is then timed as a whole process: brindle-cli --support-dir FOLDER update.
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "foundation/FileManager.hpp"

#include <cstdio>
#include <memory>
#include <sstream>
#include <string>

using namespace brindle;

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: LibraryDriver LIST FOLDER\n", stderr);
        return 2;
    }
    const auto list = FileManager::contents(argv[1]);
    if (!list) {
        std::fprintf(stderr, "LibraryDriver: %s\n", list.error().message.c_str());
        return 1;
    }
    const SyndicatedSessionEnvironment environment = {std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr};
    FeedsManager manager(argv[2], environment, {});
    manager.createSupportDirectories();
    std::istringstream lines(*list);
    for (std::string line; std::getline(lines, line);) {
        if (const auto url = URL::make(line))
            manager.addFeed(FeedItem::make({}, *url, FeedItem::defaultUpdateRate, {}, {}, environment), std::ssize(manager.feeds));
    }
    manager.save();
    return 0;
}
