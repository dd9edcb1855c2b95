// See PuzzleCatalogue.h. The text of PuzzleTables.h is read while the program is compiled, so that a slip in a row is
// an error of the build.
#include "game/PuzzleCatalogue.h"

#include <array>
#include <cstdlib>
#include <string_view>

#include "game/PuzzleTables.h"

namespace prismfall {

namespace {

using Rows = std::array<std::string_view, kPuzzleCount>;

// Not constexpr on purpose: a bad row stops the compiler at the call that tells what is wrong with it.
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

    constexpr std::int16_t Digit() {
        if (rest.empty() || rest.front() < '0' || rest.front() > '9') RejectRow("a digit was expected");
        const char digit = rest.front();
        rest.remove_prefix(1);
        return static_cast<std::int16_t>(digit - '0');
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

    // A number and a colon in front of a record, or the given one.
    constexpr std::int16_t NumberInFront(std::int16_t fallback) {
        if (rest.substr(0, rest.find(' ')).find(':') == std::string_view::npos) return fallback;
        const std::int16_t number = Number();
        Need(':');
        return number;
    }

  private:
    std::string_view rest;
};

using LayoutRecord = std::array<std::int16_t, layout::kFields>;
using SolutionRecord = std::array<std::int16_t, solution::kFields>;

constexpr LayoutRecord ReadRecord(RowReader& reader, std::int16_t place, LayoutRecord record) {
    record[layout::kPuzzleLineNr] = reader.NumberInFront(place);
    record[layout::kX] = reader.Number();
    reader.Need(',');
    record[layout::kYStart] = reader.Number();
    reader.Need(',');
    record[layout::kYEnd] = reader.Number();
    reader.Need(',');
    record[layout::kDirection] = reader.Digit();
    record[layout::kRunMode] = reader.Digit();
    record[layout::kColor] = reader.Digit();
    return record;
}

constexpr SolutionRecord ReadRecord(RowReader& reader, std::int16_t, SolutionRecord record) {
    record[solution::kTriggerLineNr] = reader.Number();
    reader.Need(',');
    record[solution::kTriggerYEnd] = reader.Number();
    record[solution::kOtherLineNr] = reader.Take('>') ? reader.Number() : std::int16_t{0};
    record[solution::kSpeedUp] = reader.Take('s') ? std::int16_t{-1} : std::int16_t{0};
    record[solution::kBendFirst] = reader.Take('b') ? std::int16_t{-1} : std::int16_t{0};
    return record;
}

constexpr std::size_t CountRecords(std::string_view row) {
    std::size_t count = row.empty() ? 0 : 1;
    for (const char letter : row) count += letter == ' ' ? 1 : 0;
    return count;
}

constexpr std::size_t CountNumbers(const Rows& rows, std::size_t fields) {
    std::size_t count = 0;
    for (const std::string_view row : rows) count += 1 + CountRecords(row) * fields;
    return count;
}

template <std::size_t Size>
struct Table {
    std::array<std::int16_t, Size> numbers{};
    std::array<std::size_t, kPuzzleCount + 1> starts{};  // of each row; the last is the end of all
};

template <typename Record, std::size_t Size>
constexpr Table<Size> ReadTable(const Rows& rows) {
    Table<Size> table;
    std::size_t at = 0;
    for (std::size_t puzzle = 0; puzzle < rows.size(); ++puzzle) {
        table.starts[puzzle] = at;
        const std::size_t count = CountRecords(rows[puzzle]);
        table.numbers[at++] = static_cast<std::int16_t>(count);
        RowReader reader(rows[puzzle]);
        for (std::size_t place = 1; place <= count; ++place) {
            if (place > 1) reader.Need(' ');
            for (const std::int16_t number : ReadRecord(reader, static_cast<std::int16_t>(place), Record{}))
                table.numbers[at++] = number;
        }
        if (!reader.IsAtEnd()) RejectRow("a row goes on behind its last record");
    }
    table.starts[rows.size()] = at;
    return table;
}

constexpr auto kPuzzles = ReadTable<LayoutRecord, CountNumbers(kLayoutRows, layout::kFields)>(kLayoutRows);
constexpr auto kSolutions = ReadTable<SolutionRecord, CountNumbers(kSolutionRows, solution::kFields)>(kSolutionRows);

template <std::size_t Size>
void Fill(Catalogue& catalogue, const Table<Size>& table) {
    for (std::size_t puzzle = 0; puzzle < catalogue.size(); ++puzzle)
        catalogue[puzzle] = CatalogueEntry(table.numbers)
                                .subspan(table.starts[puzzle], table.starts[puzzle + 1] - table.starts[puzzle]);
}

}  // namespace

void LoadPuzzles(VMain& main) { Fill(main.Puzzles, kPuzzles); }

void LoadPuzzleSolutions(VMain& main) { Fill(main.PuzzleSolutions, kSolutions); }

CatalogueEntry CurrentLayout(const VMain& main) {
    return main.Puzzles[static_cast<std::size_t>(main.CurrentPuzzle) - 1];
}

CatalogueEntry CurrentSolution(const VMain& main) {
    return main.PuzzleSolutions[static_cast<std::size_t>(main.CurrentPuzzle) - 1];
}

}  // namespace prismfall
