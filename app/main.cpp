// The game: connects the desktop backend and the game's state and runs. It takes no command-line arguments.
#include <SDL_filesystem.h>
#include <SDL_stdinc.h>

#include <array>
#include <filesystem>
#include <iostream>
#include <string>

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

}  // namespace

int main() {
    std::string failure;
    const auto platform = prismfall::SdlPlatform::Create(FindPictures(), failure);
    if (!platform) {
        std::cerr << failure << '\n';
        return 1;
    }
    prismfall::VMain main(*platform);
    prismfall::MakeMainWindow(main);
    platform->Run(main.window);
}
