// A new assessment made beside its place: it is filled there, and only the finished file takes the place. A
// failure on the way leaves what stood there, or nothing.
#pragma once

#include <string>

namespace kel {

class fresh_file {
  public:
    /// Copies `from`, which must not be open, to a name beside `target`. Throws file_error that names the
    /// target.
    fresh_file(const std::string& from, std::string target);
    /// Removes the file unless it was put in place.
    ~fresh_file();
    fresh_file(const fresh_file&) = delete;
    fresh_file& operator=(const fresh_file&) = delete;

    /// Where the file lies until it is finished.
    const std::string& path() const { return path_; }
    /// Puts the file, which must not be open, in its place. Throws file_error.
    void put_in_place();

  private:
    std::string target_;
    std::string path_;
    bool placed_ = false;
};

}  // namespace kel
