// The one exception that crosses the program: which file, and what is wrong with it, in words for the person.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace kel {

class file_error : public std::runtime_error {
  public:
    file_error(std::string file, const std::string& trouble)
        : std::runtime_error(file + ": " + trouble), file_(std::move(file)), trouble_(trouble) {}
    const std::string& file() const { return file_; }
    const std::string& trouble() const { return trouble_; }

  private:
    std::string file_;
    std::string trouble_;
};

}  // namespace kel
