#include "cli/CommandLine.hpp"

int main(int argc, char** argv) {
    return brindle::runCommandLine(argc, argv);
}
