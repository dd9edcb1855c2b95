// prismfall-headless: reads a script on standard input and prints what the game does on standard output.
#include <iostream>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

#include "tools/headless/HeadlessDriver.h"

int main() {
#ifdef _WIN32
    // The output is the same on every machine, including line endings.
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    std::ios::sync_with_stdio(false);
    return prismfall::RunScript(std::cin, std::cout, std::cerr);
}
