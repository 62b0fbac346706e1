// Where every farm of a folder stands. The files below the folder are found, then asked whose they are, so
// that a farm's years find each other by its name and their dates, and then judged one by one. Nothing is
// written, and no file is open longer than it is read.
#pragma once

#include <chrono>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/dates.h"
#include "standing/farm_standing.h"

namespace kel {

/// What is told of one file, in the texts of the list.
struct checked_file {
    std::string path;
    std::string trouble{};  // why it, or a folder, could not be read; the rest is empty then
    severity worst = severity::not_done;
    std::string farm{};
    std::optional<date> year_start{};
    std::string store_level{};    // "112 % (March)"
    std::string over_limit{};     // fields over the field limit
    std::string breaches{};       // of closed periods
    std::string over_required{};  // fields with more than their crops require
    std::string missing{};
    std::vector<std::string> steps{};  // verdict of each step, in the order of the year
};

/// "Cannot be read", or the word of its severity.
std::string_view state_of(const checked_file& file);

class folder_check {
  public:
    /// `climate_tables` has the rainfall of the towns.
    folder_check(const std::string& folder, std::string climate_tables);

    /// Does the next small piece, a folder or a file; false when there is none left. Never throws for what a
    /// folder or a file holds.
    bool step();
    /// Ends the work: what was judged until now stands sorted, and step() gives false.
    void end();

    std::size_t files_found() const { return found_.size(); }
    std::size_t files_judged() const { return judged_; }
    /// Sorted by trouble: what cannot be read, then the worst; by farm and year within. Whole once step() has
    /// given false.
    const std::vector<checked_file>& files() const { return files_; }

  private:
    struct found_file {
        std::string path;
        std::string farm{};
        std::optional<date> year_start{};
        bool unreadable = false;
    };

    void look_into(const std::string& folder);
    void identify(found_file& file);
    void judge(const found_file& file);
    /// The file of the year before; of several the one that lies nearest. Empty: none.
    std::string year_before(const found_file& file, std::string& doubt) const;
    void add_unreadable(const std::string& path, std::string trouble);

    std::vector<std::string> folders_;  // not yet looked into
    std::vector<found_file> found_;
    std::multimap<std::pair<std::string, std::chrono::sys_days>, std::size_t> by_farm_;  // into found_
    std::size_t identified_ = 0;
    std::size_t judged_ = 0;
    town_rain rain_;
    std::vector<checked_file> files_;
};

/// What the list says of a program that ends with it: 0 all well, 1 something is wrong on a farm, 2 a file or
/// a folder could not be read.
int exit_status(const std::vector<checked_file>& files);

}  // namespace kel
