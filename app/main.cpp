// The game: connects the desktop backend and the game's state and runs. Its only argument is a recorded game to watch.
#include <SDL_filesystem.h>
#include <SDL_stdinc.h>

#include <array>
#include <filesystem>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "app/Failure.h"
#include "app/KeepGames.h"
#include "app/ReadGame.h"
#include "app/RecordedGames.h"
#include "backends/sdl/SdlPlatform.h"
#include "game/MainWindow.h"
#include "game/VMain.h"

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

// To open a file, desktops start a program in the file's folder. If the music is next to the program, changes to the
// program's folder, and returns the file's name so that it is still found from there.
std::string EnterMusicFolder(const std::string& file) {
    std::error_code ignored;
    const fs::path folder = ProgramFolder();
    if (fs::exists("music", ignored) || !fs::exists(folder / "music", ignored)) return file;
    const fs::path path(reinterpret_cast<const char8_t*>(file.c_str()));
    const std::u8string absolute =
        !file.empty() && fs::exists(path, ignored) ? fs::absolute(path, ignored).u8string() : path.u8string();
    fs::current_path(folder, ignored);
    return {absolute.begin(), absolute.end()};
}

struct CommandLine {
    bool isValid = true;
    bool mustWatch = false;    // without a game to watch, exit at once
    std::string watched = {};  // a file or a link
};

CommandLine ParseCommandLine(std::span<char* const> arguments) {
    if (arguments.size() == 1) return {};
    const bool isOption = std::string_view(arguments[1]) == "--watch";
    if (arguments.size() == 3 && isOption) return {.mustWatch = true, .watched = arguments[2]};
    if (arguments.size() == 2 && arguments[1][0] != '-') return {.watched = arguments[1]};
    return {.isValid = false};
}

}  // namespace

int main(int count, char** words) {
    CommandLine options = ParseCommandLine({words, static_cast<std::size_t>(count)});
    if (!options.isValid) {
        std::cerr << "usage: prismfall [[--watch] FILE-OR-LINK]\n";
        return 1;
    }
    options.watched = EnterMusicFolder(options.watched);
    prismfall::Recording watched;
    std::string fault;
    if (!options.watched.empty()) fault = prismfall::ReadGame(options.watched, watched);
    if (!fault.empty()) std::cerr << fault << '\n';
    if (!fault.empty() && options.mustWatch) return 1;
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
    prismfall::KeepGameOnFailure(recorder, folder);
    prismfall::RecordedGames games(*platform, main, folder);
    if (!fault.empty()) {
        prismfall::SdlPlatform::Drop(options.watched);  // an error box says so
    } else if (!options.watched.empty()) {
        games.Watch(std::move(watched));
    }
    platform->Run(main.window);
}
