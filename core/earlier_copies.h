// Earlier copies of the assessments: the first save of a day to a file leaves it as it was, dated, in a
// folder of the farm's; so does whatever is replaced as a whole. A note beside each copy says where it came
// from. A copy that cannot be kept stops nothing, but is said.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/dates.h"

namespace kel {

/// Of the clock on the wall.
struct moment {
    date day{};
    int hour = 0;
    int minute = 0;
    int second = 0;
    bool operator==(const moment&) const = default;
};
bool operator<(const moment& a, const moment& b);
moment local_moment();

struct earlier_copy {
    std::string file;
    moment kept;
    std::uintmax_t size = 0;  // bytes
    std::string farm;
    std::optional<date> year_start;
    std::string came_from;  // path; empty: not known
};

class earlier_copies {
  public:
    static constexpr std::size_t most_of_a_farm = 30;

    /// Without a folder nothing is kept.
    void keep_in(std::string folder, std::function<moment()> now = local_moment);
    const std::string& folder() const { return folder_; }

    /// Keeps the file as it now is, unless a copy of it has been kept today. Call it with the file locked for
    /// writing and before the first change. Never throws.
    void keep_first_of_day(const std::string& path);
    /// The same whatever was kept today, as before the file is replaced. False if there was something to keep
    /// and it could not be. Never throws.
    bool keep(const std::string& path);
    /// Why the last copies could not be kept, once; empty: they were.
    std::string take_trouble();

    /// All copies, the newest first. Never throws.
    std::vector<earlier_copy> list() const;

  private:
    bool was_kept_today(const std::string& path) const;
    void make(const std::string& path);

    std::string folder_;
    std::function<moment()> now_;
    std::string trouble_;
};

/// Throws file_error unless the copy is a whole assessment.
void check_copy(const std::string& file);

/// A farm's name as the name of a file: two farms never share one.
std::string name_for_files(std::string_view farm);

}  // namespace kel
