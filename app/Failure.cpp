#include "app/Failure.h"

#include <SDL_messagebox.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace prismfall {

namespace {

constexpr std::array<int, 4> kSignals = {SIGSEGV, SIGABRT, SIGFPE, SIGILL};

// All texts are prepared in advance: little can be relied on after a crash.
struct Prepared {
    const GameRecorder* recorder = nullptr;
    std::filesystem::path file;
    std::string message;
    std::array<void (*)(int), kSignals.size()> handlers{};  // those before
};
Prepared prepared;

void EndIfThisHangs() {
#ifndef _WIN32
    constexpr unsigned kPatience = 5;  // seconds
    alarm(kPatience);
#endif
}

bool WriteGame() {
    const std::string_view text = prepared.recorder->TextSoFar();
    if (text.empty()) return false;
    std::error_code ignored;
    std::filesystem::create_directories(prepared.file.parent_path(), ignored);
    std::FILE* const file = std::fopen(prepared.file.string().c_str(), "wb");
    if (file == nullptr) return false;
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    return std::fclose(file) == 0 && isWritten;
}

// In a separate process where possible, so that whoever waits for the program to end need not wait for the player.
void ShowBox() {
#ifndef _WIN32
    if (fork() != 0) return;
    alarm(0);
#endif
    SDL_ShowSimpleMessageBox(SDL_MESSAGEBOX_ERROR, "Prismfall", prepared.message.c_str(), nullptr);
#ifndef _WIN32
    _exit(EXIT_SUCCESS);
#endif
}

extern "C" void HandleFailure(int signal) {
    for (std::size_t i = 0; i < kSignals.size(); ++i) std::signal(kSignals[i], prepared.handlers[i]);
    EndIfThisHangs();
    if (WriteGame()) {
        std::fprintf(stderr, "%s\n", prepared.message.c_str());
        ShowBox();
    }
    std::raise(signal);
}

}  // namespace

void KeepGameOnFailure(const GameRecorder& recorder, const RecordingFolder& folder) {
    prepared.recorder = &recorder;
    prepared.file = folder.FileFor("unfinished");
    const std::u8string name = prepared.file.u8string();
    prepared.message = "Prismfall has crashed. If you report it, please include this recording of your game:\n" +
                       std::string(name.begin(), name.end());
    for (std::size_t i = 0; i < kSignals.size(); ++i) prepared.handlers[i] = std::signal(kSignals[i], HandleFailure);
}

}  // namespace prismfall
