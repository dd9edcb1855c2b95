// prismfall-headless: reads a script from standard input and prints what the game does to standard output;
// `prismfall-headless verify FILE...` plays recordings again and says whether they are true.
#include <array>
#include <cstdio>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

#include "tools/headless/HeadlessDriver.h"
#include "tools/replay/Verify.h"

namespace {

// Returns nothing if the file cannot be read. Uses C's functions, since WebAssembly's C++ library has no file streams.
std::optional<std::string> ContentsOf(const char* name) {
    std::FILE* const file = std::fopen(name, "rb");
    if (file == nullptr) return std::nullopt;
    std::string text;
    std::array<char, 4096> part;
    while (const std::size_t length = std::fread(part.data(), 1, part.size(), file)) text.append(part.data(), length);
    const bool isWhole = std::ferror(file) == 0;
    std::fclose(file);
    return isWhole ? std::optional(text) : std::nullopt;
}

// Prints a line `FILE: VERDICT` for each. Returns the exit status: 0 if all are true, otherwise 1.
int VerifyFiles(std::span<char* const> names) {
    int status = 0;
    for (const char* name : names) {
        const std::optional<std::string> text = ContentsOf(name);
        const prismfall::Verdict verdict =
            text ? prismfall::VerifyRecording(*text) : prismfall::Verdict{false, "the file cannot be read"};
        std::cout << name << ": " << verdict.words << '\n';
        if (!verdict.isTrue) status = 1;
    }
    return status;
}

}  // namespace

int main(int count, char** words) {
#ifdef _WIN32
    // The output is the same on every machine, including line endings.
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    std::ios::sync_with_stdio(false);
    const std::span<char* const> arguments(words, static_cast<std::size_t>(count));
    if (arguments.size() > 2 && std::string_view(arguments[1]) == "verify") return VerifyFiles(arguments.subspan(2));
    if (arguments.size() > 1) {
        std::cerr << "usage: prismfall-headless < SCRIPT, or prismfall-headless verify FILE...\n";
        return 2;
    }
    return prismfall::RunScript(std::cin, std::cout, std::cerr);
}
