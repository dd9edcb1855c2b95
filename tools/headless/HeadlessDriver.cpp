// See HeadlessDriver.h.
#include "tools/headless/HeadlessDriver.h"

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <string>

#include "game/MainWindow.h"
#include "game/Modes.h"
#include "game/PuzzleStart.h"
#include "game/StateDump.h"
#include "platform/KeyInput.h"
#include "simulation/BeamRemoval.h"
#include "tools/headless/Listings.h"

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
    {"GrowthToggle", 0, 1, [](VMain& main, std::int16_t value) { main.field.GrowthToggle = value; }},
    {"StartLevel", kLowest, kHighest, [](VMain& main, std::int16_t value) { main.settings.StartLevel = value; }},
    {"Level", kLowest, kHighest, [](VMain& main, std::int16_t value) { main.Level = value; }},
    {"LevelLineCount", kLowest, kHighest, [](VMain& main, std::int16_t value) { main.LevelLineCount = value; }},
    {"Score", kLowest, kHighest, [](VMain& main, std::int16_t value) { main.Score = value; }},
    {"CurrentPuzzle", 1, kPuzzleCount, [](VMain& main, std::int16_t value) { main.CurrentPuzzle = value; }},
    {"CollisionLineY", kLowest, kHighest, [](VMain& main, std::int16_t value) { main.field.CollisionLineY = value; }},
    {"GameMode", 0, 4, [](VMain& main, std::int16_t value) { EnterMode(main, static_cast<Mode>(value)); }},
    {"GameRunning", 0, 1, [](VMain& main, std::int16_t value) { main.GameRunning = value != 0; }},
}};

struct KeyName {
    std::string_view name;
    Key key;
};

constexpr std::array<KeyName, 15> kKeys = {{{"Left", Key::Left},
                                            {"Right", Key::Right},
                                            {"Up", Key::Up},
                                            {"Down", Key::Down},
                                            {"Tab", Key::Tab},
                                            {"ShiftTab", Key::ShiftTab},
                                            {"Space", Key::Space},
                                            {"Enter", Key::Enter},
                                            {"PageUp", Key::PageUp},
                                            {"PageDown", Key::PageDown},
                                            {"P", Key::P},
                                            {"R", Key::R},
                                            {"G", Key::G},
                                            {"M", Key::M},
                                            {"F1", Key::F1}}};

MouseButton ButtonOf(Arguments& words) { return static_cast<MouseButton>(words.WholeNumber(1, 2)); }

float PlaceOf(Arguments& words) {
    using Limits = std::numeric_limits<float>;
    return static_cast<float>(std::clamp<double>(words.DecimalNumber(), Limits::lowest(), Limits::max()));
}

Timer TimerOf(Arguments& words) {
    const std::string word = words.Word();
    const auto row = std::ranges::find(kTimerNames, std::string_view(word), &TimerName::name);
    if (row != kTimerNames.end()) return row->timer;
    words.Fail("no such timer: " + word);
    return Timer::LineDeleter;
}

// Whether the next word is `yes`; anything else except `no` is an error.
bool Choice(Arguments& words, std::string_view yes, std::string_view no) {
    const std::string word = words.Word();
    if (word != yes && word != no) words.Fail("neither " + std::string(yes) + " nor " + std::string(no));
    return word == yes;
}

}  // namespace

struct HeadlessDriver::Command {
    std::string_view name;
    std::size_t fewestWords;  // after the name
    std::size_t mostWords;
    bool needsProgram;                                          // only while the program is running
    void (*execute)(HeadlessDriver& driver, Arguments& words);  // does nothing if a word is bad
};

std::span<const HeadlessDriver::Command> HeadlessDriver::Commands() {
    using Driver = HeadlessDriver;
    static constexpr std::array<Command, 29> kCommands = {{
        {"setting", 3, 3, false, [](Driver& driver, Arguments& words) { driver.PutSetting(words); }},
        {"random", 1, kAnyNumber, false, [](Driver& driver, Arguments& words) { driver.QueueRandoms(words); }},
        {"seed", 1, 1, false,
         [](Driver& driver, Arguments& words) {
             const std::int64_t from = words.WholeNumber(0, std::numeric_limits<std::int64_t>::max());
             if (words.IsGood()) driver.platform.BeginRandom(static_cast<std::uint64_t>(from));
         }},
        {"recording", 1, 1, false, [](Driver& driver, Arguments& words) { driver.BeginRecording(words); }},
        {"music", 1, 1, false, [](Driver& driver, Arguments& words) { driver.ChooseMusic(words); }},
        {"load", 0, 0, false, [](Driver& driver, Arguments& words) { driver.Load(words); }},
        {"activate", 0, 0, true, [](Driver& driver, Arguments&) { driver.main->window.on.activate(); }},
        {"move", 2, 2, true, [](Driver& driver, Arguments& words) { driver.Move(words); }},
        {"press", 3, 3, true, [](Driver& driver, Arguments& words) { driver.Press(words); }},
        {"dblclick", 0, 0, true,
         [](Driver& driver, Arguments&) { driver.platform.Input().DoubleClickSurface(driver.main->window); }},
        {"click", 1, 1, true, [](Driver& driver, Arguments& words) { driver.Click(words); }},
        {"picture", 4, 4, true, [](Driver& driver, Arguments& words) { driver.PressPicture(words); }},
        {"key", 1, 1, true, [](Driver& driver, Arguments& words) { driver.PressKeyOf(words); }},
        {"minimise", 0, 0, true,
         [](Driver& driver, Arguments&) { driver.platform.Input().Resize(driver.main->window, true); }},
        {"restore", 0, 0, true,
         [](Driver& driver, Arguments&) { driver.platform.Input().Resize(driver.main->window, false); }},
        {"close", 0, 0, true, [](Driver& driver, Arguments&) { driver.Close(); }},
        {"answer", 1, kAnyNumber, false, [](Driver& driver, Arguments& words) { driver.QueueAnswers(words); }},
        {"run", 1, 1, true,
         [](Driver& driver, Arguments& words) {
             const std::int64_t milliseconds = words.WholeNumber(0, kMostTime);
             if (words.IsGood()) driver.platform.Run(milliseconds);
         }},
        {"fire", 1, 2, true, [](Driver& driver, Arguments& words) { driver.FireTimer(words); }},
        {"set", 2, 2, true, [](Driver& driver, Arguments& words) { driver.SetMember(words); }},
        {"clear", 0, 0, true, [](Driver& driver, Arguments&) { ClearLines(driver.main->field); }},
        {"beam", 7, 7, true, [](Driver& driver, Arguments& words) { driver.AddBeam(words); }},
        {"puzzle", 1, 1, true, [](Driver& driver, Arguments& words) { driver.StartPuzzle(words, false); }},
        {"solution", 1, 1, true, [](Driver& driver, Arguments& words) { driver.StartPuzzle(words, true); }},
        {"paint", 1, 1, false, [](Driver& driver, Arguments& words) { driver.ChoosePainting(words); }},
        {"dump", 0, 0, true,
         [](Driver& driver, Arguments&) {
             StreamPrinter printer(driver.out);
             PrintDump(printer, *driver.main);
         }},
        {"elements", 0, 0, true, [](Driver& driver, Arguments&) { PrintElements(driver.out, *driver.main); }},
        {"store", 0, 0, false, [](Driver& driver, Arguments&) { PrintStore(driver.out, driver.platform); }},
        {"settings", 0, 0, true,
         [](Driver& driver, Arguments&) { PrintSettings(driver.out, *driver.main, driver.platform.Clock()); }},
    }};
    return kCommands;
}

std::string HeadlessDriver::Execute(std::string_view line) {
    ++number;
    const Words words = SplitWords(line);
    if (words.empty()) return {};
    if (IsOfRecording(words[0])) {
        AddToRecording(words);
        return words[0] == "end" ? PlayRecording() : std::string();
    }
    if (std::string fault = PlayRecording(); !fault.empty()) return fault;
    return Blame(number, ExecuteCommand(words));
}

std::string HeadlessDriver::Blame(int line, std::string reason) {
    lineOfFault = line;
    return reason;
}

std::string HeadlessDriver::ExecuteCommand(const Words& words) {
    const auto command = std::ranges::find(Commands(), std::string_view(words[0]), &Command::name);
    if (command == Commands().end()) return "unknown command: " + words[0];
    Arguments arguments(words);
    if (arguments.Left() < command->fewestWords) return "too few words";
    if (arguments.Left() > command->mostWords) return "too many words";
    if (command->needsProgram && !IsRunning()) return "the program is not running";
    command->execute(*this, arguments);
    if (platform.HasEnded()) EndRun();
    return arguments.Fault();
}

// --- Recorded games.

void HeadlessDriver::BeginRecording(Arguments& words) {
    const Words line = {words.Name(), words.Word()};
    Load(words);
    if (!words.IsGood()) return;
    game = std::make_unique<RecordedGame>();
    AddToRecording(line);
}

bool HeadlessDriver::IsOfRecording(std::string_view command) const {
    constexpr std::array<std::string_view, 6> kHead = {"program", "arcade", "puzzle", "solution", "timer", "seed"};
    constexpr std::array<std::string_view, 3> kBody = {"at", "check", "end"};
    if (!game) return false;
    return game->hasHead ? std::ranges::count(kBody, command) > 0 : std::ranges::count(kHead, command) > 0;
}

void HeadlessDriver::AddToRecording(const Words& words) {
    for (std::size_t i = 0; i < words.size(); ++i) game->text += (i > 0 ? " " : "") + words[i];
    game->text += '\n';
    game->numbers.push_back(number);
    if (words[0] == "seed") game->hasHead = true;
}

// Without a check a game may also be written by hand: there is nothing to compare.
std::string HeadlessDriver::PlayRecording() {
    if (!game) return {};
    const auto lineOf = [&](int line) {
        return game->numbers[std::min(static_cast<std::size_t>(line), game->numbers.size()) - 1];
    };
    if (const auto fault = ReadRecordingSoFar(game->text, game->recording))
        return Blame(lineOf(fault->line), fault->reason);
    if (!game->replay) game->replay.emplace(platform, *main, game->recording);
    Replay& replay = *game->replay;
    replay.SetComparing(game->recording.isWhole || game->text.find("\ncheck ") != std::string::npos);
    replay.Play();
    const std::optional<ReplayFault> fault = replay.Fault();
    const int line = fault ? lineOf(fault->line) : number;
    if (fault || game->recording.isWhole) game.reset();
    if (platform.HasEnded()) EndRun();
    return fault ? Blame(line, WordsOf(*fault)) : std::string();
}

// --- The program and its environment.

void HeadlessDriver::Load(Arguments& words) {
    if (IsRunning()) return words.Fail("the program is running already");
    platform.BeginRun();
    main = std::make_unique<VMain>(platform);
    MakeMainWindow(*main);
    platform.Open(main->window);
}

void HeadlessDriver::EndRun() {
    game.reset();
    main.reset();
}

void HeadlessDriver::Close() {
    main->window.on.queryUnload();
    main->window.on.unload();
    EndRun();
}

void HeadlessDriver::PutSetting(Arguments& words) {
    const std::string section = words.Word();
    const std::string key = words.Word();
    platform.PutSetting(section, key, words.Word());
}

void HeadlessDriver::QueueRandoms(Arguments& words) {
    std::vector<double> numbers;
    while (words.Left() > 0) {
        const std::string word = words.Next();
        numbers.push_back(words.DecimalNumber());
        if (numbers.back() < 0 || numbers.back() >= 1) words.Fail("out of range: " + word);
    }
    if (!words.IsGood()) return;
    for (const double random : numbers) platform.QueueRandom(random);
}

void HeadlessDriver::QueueAnswers(Arguments& words) {
    while (words.Left() > 0) platform.QueueAnswer(words.Word());
}

void HeadlessDriver::ChooseMusic(Arguments& words) {
    const bool isPresent = Choice(words, "present", "missing");
    if (words.IsGood()) platform.SetMusicPresent(isPresent);
}

void HeadlessDriver::ChoosePainting(Arguments& words) {
    const bool isPrinted = Choice(words, "on", "off");
    if (words.IsGood()) platform.SetPainting(isPrinted);
}

// --- The player.

void HeadlessDriver::Move(Arguments& words) {
    const float x = PlaceOf(words);
    const float y = PlaceOf(words);
    if (words.IsGood()) platform.Input().Move(main->window, x, y);
}

void HeadlessDriver::Press(Arguments& words) {
    const MouseButton button = ButtonOf(words);
    const float x = PlaceOf(words);
    const float y = PlaceOf(words);
    if (words.IsGood()) platform.Input().PressSurface(main->window, button, x, y);
}

// A number is a key code for the game's own handler, a name is a key that plays.
void HeadlessDriver::PressKeyOf(Arguments& words) {
    const auto row = std::ranges::find(kKeys, std::string_view(words.Next()), &KeyName::name);
    if (row != kKeys.end()) return PressKey(platform.Input(), main->window, row->key);
    const std::int16_t code = words.ShortNumber();
    if (words.IsGood()) platform.Input().Key(main->window, code);
}

void HeadlessDriver::Click(Arguments& words) {
    const std::string name = words.Word();
    Element* element = main->window.Find(name);
    if (element == nullptr) return words.Fail("no such element: " + name);
    platform.Input().PressAndClick(main->window, *element);
}

void HeadlessDriver::PressPicture(Arguments& words) {
    const auto picture = static_cast<std::size_t>(words.WholeNumber(1, kTutorialPictureCount)) - 1;
    const MouseButton button = ButtonOf(words);
    const float x = PlaceOf(words);
    const float y = PlaceOf(words);
    if (words.IsGood()) platform.Input().PressOn(main->window, main->PictTut[picture], button, x, y);
}

// --- The game.

void HeadlessDriver::FireTimer(Arguments& words) {
    const Timer timer = TimerOf(words);
    const std::int64_t count = words.Left() > 0 ? words.WholeNumber(0, kMostTime) : 1;
    if (!words.IsGood()) return;
    for (std::int64_t i = 0; i < count && !platform.HasEnded(); ++i) platform.Fire(timer);
}

void HeadlessDriver::SetMember(Arguments& words) {
    const std::string name = words.Word();
    const auto member = std::ranges::find(kMembers, std::string_view(name), &Member::name);
    if (member == kMembers.end()) return words.Fail("no such member: " + name);
    const auto value = static_cast<std::int16_t>(words.WholeNumber(member->lowest, member->highest));
    if (words.IsGood()) member->set(*main, value);
}

void HeadlessDriver::AddBeam(Arguments& words) {
    BeamBody beam;
    beam.XStart = words.ShortNumber();
    beam.YStart = words.ShortNumber();
    beam.XEnd = words.ShortNumber();
    beam.YEnd = words.ShortNumber();
    beam.Direction = static_cast<Heading>(words.WholeNumber(1, 2));
    beam.Color = static_cast<BeamColor>(words.WholeNumber(0, 3));
    beam.RunMode = static_cast<Motion>(words.WholeNumber(0, 2));
    beam.Thicknes = kLiveThicknes;
    if (!words.IsGood()) return;
    main->field.Lines.push_back(&main->field.Beams.Make(beam));
}

void HeadlessDriver::StartPuzzle(Arguments& words, bool isSolution) {
    const auto puzzle = static_cast<std::int16_t>(words.WholeNumber(1, kPuzzleCount));
    if (!words.IsGood()) return;
    main->CurrentPuzzle = puzzle;
    StartPuzzleGame(*main, false, isSolution);
}

int RunScript(std::istream& script, std::ostream& output, std::ostream& errors) {
    HeadlessDriver driver(output);
    const auto isGood = [&](const std::string& fault) {
        if (fault.empty()) return true;
        output.flush();
        errors << "error: line " << driver.LineOfFault() << ": " << fault << '\n';
        return false;
    };
    for (std::string line; std::getline(script, line);)
        if (!isGood(driver.Execute(line))) return 2;
    return isGood(driver.Finish()) ? 0 : 2;
}

}  // namespace prismfall
