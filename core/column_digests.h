// Tells the rows of a table from others, each column by itself, so that any choice of the columns can be told
// apart whatever the rows went by for: read from the file, or written into it.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace kel {

/// One number of two; their order counts.
inline std::uint64_t joined_digest(std::uint64_t digest, std::uint64_t next) {
    constexpr std::uint64_t prime = 0x9e3779b97f4a7c15U;
    digest = (digest ^ next) * prime;
    return digest ^ (digest >> 32U);
}

/// The same with a text, a word at a time: a save waits for it.
inline std::uint64_t joined_digest(std::uint64_t digest, std::string_view text) {
    std::uint64_t word = 0;
    digest = joined_digest(digest, text.size());  // "ab", "c" is not "a", "bc"
    for (; text.size() >= sizeof word; text.remove_prefix(sizeof word)) {
        std::memcpy(&word, text.data(), sizeof word);
        digest = joined_digest(digest, word);
    }
    if (text.empty()) return digest;
    word = 0;
    std::memcpy(&word, text.data(), text.size());
    return joined_digest(digest, word);
}

class column_digests {
  public:
    explicit column_digests(int columns) : digests_(static_cast<std::size_t>(columns), of_no_row) {}

    int columns() const { return static_cast<int>(digests_.size()); }
    /// The column's text in the next row; an empty text is a null. Every column takes one text of each row.
    void add(int column, std::string_view text) {
        std::uint64_t& digest = digests_[static_cast<std::size_t>(column)];
        digest = joined_digest(digest, text);
    }
    /// Of one column; those of two tables differ if their texts or their numbers of rows do.
    std::uint64_t of(int column) const { return digests_.at(static_cast<std::size_t>(column)); }

  private:
    static constexpr std::uint64_t of_no_row = 1;  // rows of empty texts count too

    std::vector<std::uint64_t> digests_;
};

}  // namespace kel
