// Random entries that are the same on every machine: the engine's numbers are fixed by the standard, those of
// the library's distributions are not.
#pragma once

#include <random>
#include <string>

namespace kel::test {

class dice {
  public:
    explicit dice(unsigned seed) : engine_(seed) {}

    /// 0 to `end` - 1.
    int below(int end) { return static_cast<int>(engine_() % static_cast<unsigned>(end)); }
    bool one_in(int faces) { return below(faces) == 0; }
    template <class Range>
    const auto& one_of(const Range& choices) {
        return choices[static_cast<std::size_t>(below(static_cast<int>(choices.size())))];
    }
    /// A number as a person types it: below `end`, with up to 3 decimals.
    std::string number(int end) {
        std::string typed = std::to_string(below(end));
        const int decimals = below(4);
        if (decimals > 0) typed += '.';
        for (int i = 0; i < decimals; ++i)
            typed += static_cast<char>('0' + below(10));
        return typed;
    }

  private:
    std::mt19937 engine_;
};

}  // namespace kel::test
