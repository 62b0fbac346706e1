// A new assessment made beside its place: it is filled there, and only the finished file takes the place. A
// failure on the way leaves what stood there, or nothing; what a process that was killed on the way leaves is
// taken away when another one looks.
#pragma once

#include <string>
#include <string_view>

#include "core/assessment_store.h"
#include "core/earlier_copies.h"

namespace kel {

/// What stands behind a file's name as long as it is being written: no name that a person gives to a file of
/// his own.
inline constexpr std::string_view unfinished_ending = ".unfinished";

class fresh_file {
  public:
    /// Copies `from`, which must not be open, to a name beside `target`. Throws file_error that names the
    /// target, also while another process is making it.
    fresh_file(const std::string& from, std::string target);
    /// Removes the file unless it was put in place.
    ~fresh_file();
    fresh_file(const fresh_file&) = delete;
    fresh_file& operator=(const fresh_file&) = delete;

    /// Opens the file for being filled; it calls itself by its target.
    database open() const { return {path_, target_}; }
    /// Puts the file, which must not be open, in its place. Throws file_error.
    void put_in_place();
    /// The same with an earlier copy of what it replaces.
    void put_in_place(earlier_copies& copies);

  private:
    void make(const std::string& from);
    void let_go();

    std::string target_;
    std::string path_;
    int held_ = -1;  // locked as long as the file is being made
};

/// Removes from the folder the assessments that nobody is making any more. Never throws.
void remove_abandoned_files(const std::string& folder);

}  // namespace kel
