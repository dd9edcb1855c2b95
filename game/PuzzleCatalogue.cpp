// See PuzzleCatalogue.h. The text of PuzzleTables.h is read while the program is compiled, so that a slip in a row is
// an error of the build.
#include "game/PuzzleCatalogue.h"

#include <array>
#include <cstdlib>
#include <string_view>

#include "game/PuzzleTables.h"
#include "settings/Settings.h"

namespace prismfall {

namespace {

static_assert(kLayoutRows.size() == kPuzzleCount,
              "kPuzzleCount in settings/Settings.h says how many layouts there are");
static_assert(kSolutionRows.size() == kPuzzleCount, "every layout needs a solution");

using Rows = std::array<std::string_view, kPuzzleCount>;

// Not constexpr on purpose: a bad row makes the compiler stop at a call that says what is wrong with it.
[[noreturn]] void RejectRow(const char* /*reason*/) { std::abort(); }

class RowReader {
  public:
    constexpr explicit RowReader(std::string_view row) : rest(row) {}

    constexpr bool IsAtEnd() const { return rest.empty(); }

    constexpr bool Take(char expected) {
        if (rest.empty() || rest.front() != expected) return false;
        rest.remove_prefix(1);
        return true;
    }

    constexpr std::int16_t Digit(std::int16_t lowest = 0, std::int16_t highest = 9) {
        const int digit = rest.empty() ? -1 : rest.front() - '0';
        if (digit < lowest || digit > highest) RejectRow("another digit was expected");
        rest.remove_prefix(1);
        return static_cast<std::int16_t>(digit);
    }

    constexpr std::int16_t Number() {
        std::int16_t number = Digit();
        while (!rest.empty() && rest.front() >= '0' && rest.front() <= '9')
            number = static_cast<std::int16_t>(number * 10 + Digit());
        return number;
    }

    constexpr void Need(char expected) {
        if (!Take(expected)) RejectRow("another character was expected");
    }

    // The number before a record, if there is one followed by a colon, or the given one.
    constexpr std::int16_t NumberInFront(std::int16_t fallback) {
        if (rest.substr(0, rest.find(' ')).find(':') == std::string_view::npos) return fallback;
        const std::int16_t number = Number();
        Need(':');
        return number;
    }

  private:
    std::string_view rest;
};

constexpr void ReadRecord(RowReader& reader, std::int16_t place, LayoutBeam& beam) {
    beam.PuzzleLineNr = reader.NumberInFront(place);
    beam.X = reader.Number();
    reader.Need(',');
    beam.YStart = reader.Number();
    reader.Need(',');
    beam.YEnd = reader.Number();
    reader.Need(',');
    beam.Direction = static_cast<Heading>(reader.Digit(1, 2));
    beam.RunMode = static_cast<Motion>(reader.Digit(0, 2));
    beam.Color = static_cast<BeamColor>(reader.Digit(0, 3));
}

constexpr void ReadRecord(RowReader& reader, std::int16_t, SolutionStep& step) {
    step.TriggerLineNr = reader.Number();
    reader.Need(',');
    step.TriggerYEnd = reader.Number();
    step.OtherLineNr = reader.Take('>') ? reader.Number() : std::int16_t{0};
    step.SpeedUp = reader.Take('s');
    step.BendFirst = reader.Take('b');
}

constexpr std::size_t CountRecords(std::string_view row) {
    std::size_t count = row.empty() ? 0 : 1;
    for (const char letter : row) count += letter == ' ' ? 1 : 0;
    return count;
}

constexpr std::size_t CountAllRecords(const Rows& rows) {
    std::size_t count = 0;
    for (const std::string_view row : rows) count += CountRecords(row);
    return count;
}

template <typename Record, std::size_t Size>
struct Table {
    std::array<Record, Size> records{};
    std::array<std::size_t, kPuzzleCount + 1> starts{};  // of each row; the last entry is the end of the table

    constexpr std::span<const Record> Row(std::int16_t puzzle) const {
        const auto row = static_cast<std::size_t>(puzzle) - 1;
        return std::span(records).subspan(starts[row], starts[row + 1] - starts[row]);
    }
};

template <typename Record, std::size_t Size>
constexpr Table<Record, Size> ReadTable(const Rows& rows) {
    Table<Record, Size> table;
    std::size_t at = 0;
    for (std::size_t puzzle = 0; puzzle < rows.size(); ++puzzle) {
        table.starts[puzzle] = at;
        const std::size_t count = CountRecords(rows[puzzle]);
        RowReader reader(rows[puzzle]);
        for (std::size_t place = 1; place <= count; ++place) {
            if (place > 1) reader.Need(' ');
            ReadRecord(reader, static_cast<std::int16_t>(place), table.records[at++]);
        }
        if (!reader.IsAtEnd()) RejectRow("a row goes on after its last record");
    }
    table.starts[rows.size()] = at;
    return table;
}

constexpr auto kPuzzles = ReadTable<LayoutBeam, CountAllRecords(kLayoutRows)>(kLayoutRows);
constexpr auto kSolutions = ReadTable<SolutionStep, CountAllRecords(kSolutionRows)>(kSolutionRows);

}  // namespace

std::span<const LayoutBeam> PuzzleLayout(std::int16_t puzzle) { return kPuzzles.Row(puzzle); }

std::span<const SolutionStep> PuzzleSolution(std::int16_t puzzle) { return kSolutions.Row(puzzle); }

}  // namespace prismfall
