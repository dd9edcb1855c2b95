// See HeadlessDriver.h.
#include "tools/headless/HeadlessDriver.h"

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <string>

#include "game/GameControl.h"
#include "game/MainWindow.h"
#include "game/PlayerInput.h"
#include "game/PuzzleStart.h"
#include "game/Tutorial.h"
#include "simulation/BeamRemoval.h"
#include "tools/headless/StateDump.h"
#include "tools/headless/TimerNames.h"

namespace prismfall {

namespace {

constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();
constexpr std::int64_t kMostTime = std::numeric_limits<std::int32_t>::max();  // milliseconds, and handler calls

// A member that `set` can change, and its range.
struct Member {
    std::string_view name;
    std::int64_t lowest;
    std::int64_t highest;
    void (*set)(VMain& main, std::int16_t value);
};

constexpr std::int64_t kLowest = std::numeric_limits<std::int16_t>::min();
constexpr std::int64_t kHighest = std::numeric_limits<std::int16_t>::max();

constexpr std::array<Member, 9> kMembers = {{
    {"GrowthToggle", 0, 1, [](VMain& main, std::int16_t value) { main.GrowthToggle = value; }},
    {"StartLevel", kLowest, kHighest, [](VMain& main, std::int16_t value) { main.StartLevel = value; }},
    {"Level", kLowest, kHighest, [](VMain& main, std::int16_t value) { main.Level = value; }},
    {"LevelLineCount", kLowest, kHighest, [](VMain& main, std::int16_t value) { main.LevelLineCount = value; }},
    {"Score", kLowest, kHighest, [](VMain& main, std::int16_t value) { main.Score = value; }},
    {"CurrentPuzzle", 1, kPuzzleCount, [](VMain& main, std::int16_t value) { main.CurrentPuzzle = value; }},
    {"CollisionLineY", kLowest, kHighest, [](VMain& main, std::int16_t value) { main.CollisionLineY = value; }},
    {"GameMode", kMainMenu, kSolutionReplay, [](VMain& main, std::int16_t value) { main.GameMode = value; }},
    {"GameRunning", 0, 1, [](VMain& main, std::int16_t value) { main.GameRunning = value != 0; }},
}};

MouseButton ButtonOf(const std::string& word) { return static_cast<MouseButton>(WholeNumber(word, 1, 2)); }

float PlaceOf(const std::string& word) {
    using Limits = std::numeric_limits<float>;
    return static_cast<float>(std::clamp<double>(DecimalNumber(word), Limits::lowest(), Limits::max()));
}

Timer TimerOf(const std::string& word) {
    const auto row = std::ranges::find(kTimerNames, std::string_view(word), &TimerName::name);
    if (row == kTimerNames.end()) throw ScriptError("no such timer: " + word);
    return row->timer;
}

// Whether the word is `yes`; anything but `yes` or `no` is an error.
bool Choice(const std::string& word, std::string_view yes, std::string_view no) {
    if (word != yes && word != no) throw ScriptError("neither " + std::string(yes) + " nor " + std::string(no));
    return word == yes;
}

}  // namespace

struct HeadlessDriver::Command {
    std::string_view name;
    std::size_t fewestWords;  // behind the name
    std::size_t mostWords;
    bool needsProgram;  // only while the program runs
    void (*execute)(HeadlessDriver& driver, const Words& words);
};

std::span<const HeadlessDriver::Command> HeadlessDriver::Commands() {
    using Driver = HeadlessDriver;
    static constexpr std::array<Command, 27> kCommands = {{
        {"setting", 3, 3, false, [](Driver& driver, const Words& words) { driver.PutSetting(words); }},
        {"random", 1, kAnyNumber, false, [](Driver& driver, const Words& words) { driver.QueueRandoms(words); }},
        {"music", 1, 1, false, [](Driver& driver, const Words& words) { driver.ChooseMusic(words); }},
        {"load", 0, 0, false, [](Driver& driver, const Words&) { driver.Load(); }},
        {"activate", 0, 0, true, [](Driver& driver, const Words&) { driver.main->window.on.activate(); }},
        {"move", 2, 2, true, [](Driver& driver, const Words& words) { driver.Move(words); }},
        {"press", 3, 3, true, [](Driver& driver, const Words& words) { driver.Press(words); }},
        {"dblclick", 0, 0, true,
         [](Driver& driver, const Words&) { driver.platform.Input().DoubleClickSurface(driver.main->window); }},
        {"click", 1, 1, true, [](Driver& driver, const Words& words) { driver.Click(words); }},
        {"picture", 4, 4, true, [](Driver& driver, const Words& words) { driver.PressPicture(words); }},
        {"key", 1, 1, true,
         [](Driver& driver, const Words& words) {
             driver.platform.Input().Key(driver.main->window, ShortNumberOf(words[1]));
         }},
        {"minimise", 0, 0, true, [](Driver& driver, const Words&) { driver.main->window.on.resize(true); }},
        {"restore", 0, 0, true, [](Driver& driver, const Words&) { driver.main->window.on.resize(false); }},
        {"close", 0, 0, true, [](Driver& driver, const Words&) { driver.Close(); }},
        {"answer", 1, kAnyNumber, false, [](Driver& driver, const Words& words) { driver.QueueAnswers(words); }},
        {"run", 1, 1, true,
         [](Driver& driver, const Words& words) { driver.platform.Run(WholeNumber(words[1], 0, kMostTime)); }},
        {"fire", 1, 2, true, [](Driver& driver, const Words& words) { driver.FireTimer(words); }},
        {"set", 2, 2, true, [](Driver& driver, const Words& words) { driver.SetMember(words); }},
        {"clear", 0, 0, true, [](Driver& driver, const Words&) { ClearLines(*driver.main); }},
        {"beam", 7, 7, true, [](Driver& driver, const Words& words) { driver.AddBeam(words); }},
        {"puzzle", 1, 1, true, [](Driver& driver, const Words& words) { driver.StartPuzzle(words, false); }},
        {"solution", 1, 1, true, [](Driver& driver, const Words& words) { driver.StartPuzzle(words, true); }},
        {"paint", 1, 1, false, [](Driver& driver, const Words& words) { driver.ChoosePainting(words); }},
        {"dump", 0, 0, true,
         [](Driver& driver, const Words&) { PrintDump(driver.out, *driver.main, driver.platform.Timers()); }},
        {"elements", 0, 0, true, [](Driver& driver, const Words&) { PrintElements(driver.out, *driver.main); }},
        {"store", 0, 0, false, [](Driver& driver, const Words&) { PrintStore(driver.out, driver.platform); }},
        {"settings", 0, 0, true,
         [](Driver& driver, const Words&) { PrintSettings(driver.out, *driver.main, driver.platform.Clock()); }},
    }};
    return kCommands;
}

void HeadlessDriver::Execute(std::string_view line) {
    const Words words = SplitWords(line);
    if (words.empty()) return;
    const auto command = std::ranges::find(Commands(), std::string_view(words[0]), &Command::name);
    if (command == Commands().end()) throw ScriptError("unknown command: " + words[0]);
    const std::size_t arguments = words.size() - 1;
    if (arguments < command->fewestWords) throw ScriptError("too few words");
    if (arguments > command->mostWords) throw ScriptError("too many words");
    if (command->needsProgram && !IsRunning()) throw ScriptError("the program is not running");
    command->execute(*this, words);
    if (platform.HasEnded()) main.reset();
}

// --- The program and the world around it.

void HeadlessDriver::Load() {
    if (IsRunning()) throw ScriptError("the program is running already");
    platform.BeginRun();
    main = std::make_unique<VMain>(platform);
    MakeMainWindow(*main);
    platform.Open(main->window);
}

void HeadlessDriver::Close() {
    main->window.on.queryUnload();
    main->window.on.unload();
    main.reset();
}

void HeadlessDriver::PutSetting(const Words& words) { platform.PutSetting(words[1], words[2], words[3]); }

void HeadlessDriver::QueueRandoms(const Words& words) {
    std::vector<double> numbers;
    for (std::size_t i = 1; i < words.size(); ++i) {
        numbers.push_back(DecimalNumber(words[i]));
        if (numbers.back() < 0 || numbers.back() >= 1) throw ScriptError("out of range: " + words[i]);
    }
    for (const double number : numbers) platform.QueueRandom(number);
}

void HeadlessDriver::QueueAnswers(const Words& words) {
    for (std::size_t i = 1; i < words.size(); ++i) platform.QueueAnswer(words[i]);
}

void HeadlessDriver::ChooseMusic(const Words& words) {
    platform.SetMusicPresent(Choice(words[1], "present", "missing"));
}

void HeadlessDriver::ChoosePainting(const Words& words) { platform.SetPainting(Choice(words[1], "on", "off")); }

// --- The player.

void HeadlessDriver::Move(const Words& words) {
    const float x = PlaceOf(words[1]);
    platform.Input().Move(main->window, x, PlaceOf(words[2]));
}

void HeadlessDriver::Press(const Words& words) {
    const MouseButton button = ButtonOf(words[1]);
    platform.Input().PressSurface(main->window, button, PlaceOf(words[2]), PlaceOf(words[3]));
}

void HeadlessDriver::Click(const Words& words) {
    Element* element = main->window.Find(words[1]);
    if (element == nullptr) throw ScriptError("no such element: " + words[1]);
    platform.Input().PressAndClick(main->window, *element);
}

void HeadlessDriver::PressPicture(const Words& words) {
    const auto picture = static_cast<std::size_t>(WholeNumber(words[1], 1, kTutorialPictureCount)) - 1;
    const MouseButton button = ButtonOf(words[2]);
    const float x = PlaceOf(words[3]);
    const float y = PlaceOf(words[4]);
    platform.Input().PressOn(main->window, main->PictTut[picture], button, x, y);
}

// --- The game.

void HeadlessDriver::FireTimer(const Words& words) {
    const Timer timer = TimerOf(words[1]);
    const std::int64_t count = words.size() > 2 ? WholeNumber(words[2], 0, kMostTime) : 1;
    for (std::int64_t i = 0; i < count && !platform.HasEnded(); ++i) platform.Fire(timer);
}

void HeadlessDriver::SetMember(const Words& words) {
    const auto member = std::ranges::find(kMembers, std::string_view(words[1]), &Member::name);
    if (member == kMembers.end()) throw ScriptError("no such member: " + words[1]);
    member->set(*main, static_cast<std::int16_t>(WholeNumber(words[2], member->lowest, member->highest)));
}

void HeadlessDriver::AddBeam(const Words& words) {
    CLine beam;
    beam.XStart = ShortNumberOf(words[1]);
    beam.YStart = ShortNumberOf(words[2]);
    beam.XEnd = ShortNumberOf(words[3]);
    beam.YEnd = ShortNumberOf(words[4]);
    beam.Direction = static_cast<std::int32_t>(WholeNumber(words[5], kLeftwards, kRightwards));
    beam.Color = static_cast<std::int32_t>(WholeNumber(words[6], 0, 3));
    beam.RunMode = static_cast<std::int32_t>(WholeNumber(words[7], kStopped, kWaiting));
    beam.Thicknes = kLiveThicknes;
    CLine& added = main->Beams.Make();
    added.Copy(beam);
    main->Lines.push_back(&added);
}

void HeadlessDriver::StartPuzzle(const Words& words, bool isSolution) {
    main->CurrentPuzzle = static_cast<std::int16_t>(WholeNumber(words[1], 1, kPuzzleCount));
    StartPuzzleGame(*main, false, isSolution);
}

int RunScript(std::istream& script, std::ostream& output, std::ostream& errors) {
    HeadlessDriver driver(output);
    std::string line;
    for (int number = 1; std::getline(script, line); ++number) {
        try {
            driver.Execute(line);
        } catch (const ScriptError& error) {
            output.flush();
            errors << "error: line " << number << ": " << error.what() << '\n';
            return 2;
        }
    }
    return 0;
}

}  // namespace prismfall
