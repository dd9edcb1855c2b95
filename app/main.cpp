// The game: connects the desktop backend and the game's state and runs. It takes no command-line arguments.
#include <SDL_filesystem.h>
#include <SDL_stdinc.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "app/KeepGames.h"
#include "backends/sdl/SdlPlatform.h"
#include "game/MainWindow.h"
#include "game/VMain.h"
#include "tools/replay/Watch.h"

namespace {

namespace fs = std::filesystem;

// Where the pictures are, relative to the program's folder: next to it, installed, and in a checkout.
constexpr std::array<const char*, 3> kPictureFolders = {"pictures", PRISMFALL_DATA_FOLDER "/pictures",
                                                        "../../assets/pictures"};

fs::path ProgramFolder() {
    char* name = SDL_GetBasePath();
    if (name == nullptr) return {};
    fs::path folder(reinterpret_cast<const char8_t*>(name));
    SDL_free(name);
    return folder;
}

fs::path FindPictures() {
    std::error_code ignored;
    const fs::path folder = ProgramFolder();
    for (const char* candidate : kPictureFolders)
        if (fs::is_directory(folder / candidate, ignored)) return folder / candidate;
    return folder / kPictureFolders.front();
}

// What cannot be watched is told on standard error.
std::optional<prismfall::Recording> ReadRecordingFile(const char* name) {
    std::ifstream file(name, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    prismfall::Recording recording;
    const auto fault = prismfall::ReadRecording(text, recording);
    if (file && !fault) return recording;
    std::cerr << name << ": ";
    if (file) {
        std::cerr << "line " << fault->line << ": " << fault->reason << '\n';
    } else {
        std::cerr << "the file cannot be read\n";
    }
    return std::nullopt;
}

}  // namespace

int main(int count, char** words) {
    const std::span<char* const> arguments(words, static_cast<std::size_t>(count));
    std::optional<prismfall::Recording> watched;
    if (arguments.size() == 3 && std::string_view(arguments[1]) == "--watch") {
        watched = ReadRecordingFile(arguments[2]);
        if (!watched) return 1;
    } else if (arguments.size() > 1) {
        std::cerr << "usage: prismfall [--watch FILE]\n";
        return 1;
    }
    std::string failure;
    const auto platform = prismfall::SdlPlatform::Create(FindPictures(), failure);
    if (!platform) {
        std::cerr << failure << '\n';
        return 1;
    }
    prismfall::VMain main(*platform);
    prismfall::MakeMainWindow(main);
    const prismfall::RecordingFolder folder(prismfall::RecordingFolder::UsersFolder());
    const prismfall::GameRecorder recorder(
        main, [&](const prismfall::PlayedGame& game) { prismfall::KeepGame(folder, main, game); });
    std::optional<prismfall::Watch> watch;
    if (watched) watch.emplace(main, std::move(*watched));
    platform->Run(main.window);
}
