// The game: puts the real machine and the state together and runs. It takes no command line.
#include <array>
#include <filesystem>
#include <iostream>
#include <string>

#include "backends/sdl/SdlPlatform.h"
#include "game/MainWindow.h"
#include "state/VMain.h"

namespace {

namespace fs = std::filesystem;

// Where the pictures lie, seen from the folder of the program: installed, and in a checkout.
constexpr std::array<const char*, 2> kPictureFolders = {"../../share/games/prismfall/pictures",
                                                        "../../assets/pictures"};

fs::path FindPictures() {
    std::error_code ignored;
    const fs::path folder = fs::read_symlink("/proc/self/exe", ignored).parent_path();
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
