// Prints text and whole numbers piece by piece, like a stream in the C locale, but without the code that streams pull
// in: the page's program is less than half the size without them. Allocates nothing.
#pragma once

#include <array>
#include <charconv>
#include <concepts>
#include <ostream>
#include <string_view>

namespace prismfall {

// This one discards everything.
class Printer {
  public:
    Printer() = default;
    Printer(const Printer&) = delete;
    Printer& operator=(const Printer&) = delete;
    virtual ~Printer() = default;

    virtual void Print(std::string_view) {}

    Printer& operator<<(std::string_view text) {
        Print(text);
        return *this;
    }
    Printer& operator<<(char letter) { return *this << std::string_view(&letter, 1); }
    template <std::integral Number>
    Printer& operator<<(Number number) {
        std::array<char, 24> digits;
        const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
        return *this << std::string_view(digits.data(), end);
    }
};

class StreamPrinter final : public Printer {
  public:
    // The stream must outlive this.
    explicit StreamPrinter(std::ostream& stream) : out(stream) {}
    void Print(std::string_view text) override { out << text; }

  private:
    std::ostream& out;
};

}  // namespace prismfall
