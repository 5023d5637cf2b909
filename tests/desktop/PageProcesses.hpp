#pragma once

#include <QDirIterator>
#include <QString>
#include <csignal>
#include <fstream>
#include <unistd.h>
#include <vector>

namespace brindle::desktop {

inline std::vector<pid_t> childrenOf(pid_t process) {
    std::vector<pid_t> found;
    QDirIterator threads(QStringLiteral("/proc/%1/task").arg(process), QDir::Dirs | QDir::NoDotAndDotDot);
    while (threads.hasNext()) {
        std::ifstream children(threads.next().toStdString() + "/children");
        for (pid_t child = 0; children >> child;)
            found.push_back(child);
    }
    return found;
}

/// Kills the processes that draw pages, which the engine forks each from a child of this process; how many there were.
inline std::size_t killPageProcesses() {
    std::size_t count = 0;
    for (const pid_t child : childrenOf(getpid())) {
        for (const pid_t forked : childrenOf(child)) {
            kill(forked, SIGKILL);
            ++count;
        }
    }
    return count;
}

} // namespace brindle::desktop
