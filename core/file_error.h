// The one exception that crosses the program: which file, and what is wrong with it, in words for the person.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace kel {

class file_error : public std::runtime_error {
  public:
    file_error(std::string file, const std::string& trouble, bool in_use = false)
        : std::runtime_error(file + ": " + trouble),
          file_(std::move(file)),
          trouble_(trouble),
          in_use_(in_use) {}
    const std::string& file() const { return file_; }
    const std::string& trouble() const { return trouble_; }
    /// Nothing is wrong with the file: another program keeps it locked just now.
    bool in_use() const { return in_use_; }

  private:
    std::string file_;
    std::string trouble_;
    bool in_use_;
};

}  // namespace kel
