// prismfall-headless: reads a script on standard input and prints what the game does on standard output.
#include <iostream>

#include "tools/headless/HeadlessDriver.h"

int main() {
    std::ios::sync_with_stdio(false);
    return prismfall::RunScript(std::cin, std::cout, std::cerr);
}
