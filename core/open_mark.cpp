#include "core/open_mark.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <fstream>

#include "core/file_choice.h"
#include "core/installation.h"

namespace kel {

namespace {

std::string mark_beside(const std::string& path) {
    return path + ".lock";
}

std::string this_computer() {
    std::array<char, 256> name{};
    return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

// The file may have been taken away between its opening and its locking.
bool still_there(int file, const std::string& name) {
    struct stat locked {};
    struct stat named {};
    return fstat(file, &locked) == 0 && stat(name.c_str(), &named) == 0 && locked.st_ino == named.st_ino &&
           locked.st_dev == named.st_dev;
}

}  // namespace

/// False only if another copy holds the mark.
bool open_mark::take() {
    const std::string name = mark_beside(path_);
    const int file = open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (file < 0) return true;
    const bool locked = flock(file, LOCK_EX | LOCK_NB) == 0;
    const bool held_by_another = !locked && errno == EWOULDBLOCK;
    if (!locked || !still_there(file, name)) {
        close(file);
        return !held_by_another;
    }
    file_ = file;
    const std::string text = std::to_string(getpid()) + "\nkel-calculator\n" + this_computer() + "\n";
    // A disc too full for the text keeps the lock all the same.
    if (ftruncate(file, 0) == 0 && write(file, text.data(), text.size()) < 0) return true;
    return true;
}

std::string open_mark::holder_of(const std::string& path) {
    std::ifstream mark(mark_beside(path));
    std::string process, program, computer;
    std::getline(mark, process);
    std::getline(mark, program);
    std::getline(mark, computer);
    return computer;
}

std::optional<std::string> open_mark::move_to(const std::string& path) {
    const bool known = path == path_;
    if (!known) let_go();
    path_ = path;
    if (path.empty() || file_ >= 0 || take() || known) return std::nullopt;
    return holder_of(path);
}

std::optional<std::string> open_mark::held_elsewhere(const std::string& path) const {
    if (file_ >= 0 && same_file(path, path_)) return std::nullopt;
    const int file = open(mark_beside(path).c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return std::nullopt;
    const bool held = flock(file, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    close(file);
    return held ? std::optional(holder_of(path)) : std::nullopt;
}

void open_mark::let_go() {
    if (file_ < 0) return;
    unlink(mark_beside(path_).c_str());
    close(file_);
    file_ = -1;
}

message open_elsewhere(const std::string& path, const std::string& computer) {
    const std::string where = computer.empty() || computer == this_computer() ? "" : " on " + computer;
    return {"Open Assessment",
            "The assessment " + file_name_of(path) + " is already open in another copy of the program" +
                where +
                ". What is saved there and here may undo each other. It is safest to close it in one of "
                "them.",
            message_kind::warning, message_buttons::ok};
}

}  // namespace kel
