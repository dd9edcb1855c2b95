#include "app/RecordedGames.h"

#include <SDL_clipboard.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <utility>

#include "app/KeepGames.h"
#include "app/ReadGame.h"
#include "backends/sdl/recordings/RecordingLink.h"
#include "backends/sdl/settings/ReplaceFile.h"
#include "game/Modes.h"

namespace prismfall {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPage = PRISMFALL_PAGE "/";

std::string Words(const fs::path& path) {
    const std::u8string words = path.u8string();
    return {words.begin(), words.end()};
}

std::string Clock(std::int64_t milliseconds) {
    const std::int64_t seconds = milliseconds / 1000;
    const std::string rest = std::to_string(seconds % 60);
    return std::to_string(seconds / 60) + (rest.size() == 1 ? ":0" : ":") + rest;
}

GameLine LineOf(const RecordingFolder& folder, const std::string& name) {
    const auto [time, title] = RecordingFolder::Parse(name);
    GameLine line{.when = time, .game = title};
    if (const std::optional<ArcadeResult> result = ParseArcadeTitle(title))
        line = {.when = time,
                .game = "Arcade",
                .level = std::to_string(result->level),
                .points = std::to_string(result->score)};
    Recording recording;
    if (ReadGame(Words(folder.File(name)), recording).empty()) line.length = Clock(recording.length);
    return line;
}

}  // namespace

RecordedGames::RecordedGames(SdlPlatform& desktop, VMain& game, const RecordingFolder& keptGames)
    : platform(desktop), main(game), folder(keptGames) {
    platform.WhenDropped([this](const std::string& dropped) { Open(dropped); });
    main.watchScore = [this](const ScoreRow& row) { return WatchScore(row); };
    main.window.on.command = [this, command = main.window.on.command](Key key) {
        if (key == Key::F2) return Show();
        command(key);
    };
}

void RecordedGames::Watch(Recording recording) { watch.emplace(main, std::move(recording)); }

void RecordedGames::Open(const std::string& fileOrLink) {
    Recording recording;
    const std::string fault = ReadGame(fileOrLink, recording);
    if (!fault.empty()) return platform.ShowMessageBox(fault);
    watch.reset();
    while (main.GameMode != Mode::MainMenu) platform.Input().Key(main.window, kEscapeKey);
    Watch(std::move(recording));
}

void RecordedGames::Show() {
    const auto onGame = [this](std::string (RecordedGames::*act)(const std::string&) const) {
        return [this, act](std::size_t game) { return (this->*act)(names[game]); };
    };
    const KeptGames games{.list = [this] { return List(); },
                          .copyLink = onGame(&RecordedGames::CopyLink),
                          .save = onGame(&RecordedGames::Save),
                          .remove = onGame(&RecordedGames::Remove)};
    const bool isPlaying = RowOf(main.GameMode).isGame;
    const auto watched = ShowGames(main.dialogs, games, isPlaying ? "Watching one ends the game in progress." : "");
    if (watched && *watched < names.size()) SdlPlatform::Drop(Words(folder.File(names[*watched])));
}

bool RecordedGames::WatchScore(const ScoreRow& row) {
    names = folder.Names();
    const auto name = std::ranges::find_if(names, [&row](const std::string& kept) { return IsGameOf(row, kept); });
    if (name == names.end()) return false;
    SdlPlatform::Drop(Words(folder.File(*name)));
    return true;
}

std::vector<GameLine> RecordedGames::List() {
    names = folder.Names();
    std::vector<GameLine> lines;
    for (const std::string& name : names) lines.push_back(LineOf(folder, name));
    return lines;
}

std::string RecordedGames::CopyLink(const std::string& name) const {
    const std::string link = LinkTo(kPage, WithFewChecks(ReadWholeFile(folder.File(name))));
    if (SDL_SetClipboardText(link.c_str()) != 0) return std::string("The desktop has no clipboard: ") + SDL_GetError();
    return "The link is copied: " + std::to_string(link.size()) + " characters, to be pasted anywhere.";
}

std::string RecordedGames::Save(const std::string& name) const {
    const fs::path documents = UsersDocumentsFolder();
    if (documents.empty()) return "There is no home folder.";
    const fs::path copy = documents / ("Prismfall " + name);
    std::error_code failure;
    fs::copy_file(folder.File(name), copy, fs::copy_options::overwrite_existing, failure);
    return failure ? "It could not be saved: " + failure.message() : "Saved as " + Words(copy);
}

std::string RecordedGames::Remove(const std::string& name) const {
    std::error_code failure;
    fs::remove(folder.File(name), failure);
    return failure ? "It could not be deleted: " + failure.message() : "The game has been deleted.";
}

}  // namespace prismfall
