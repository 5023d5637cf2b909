#pragma once

namespace brindle {

/// Runs `brindle-cli` with the program's arguments and gives its exit status: 0 done, 1 the work failed, 2 wrong usage. Thread: main.
int runCommandLine(int argc, char** argv);

} // namespace brindle
