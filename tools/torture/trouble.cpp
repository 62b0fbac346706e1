#include "tools/torture/trouble.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <thread>

namespace kel::torture {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t small_file_system_bytes = 64'000'000;

pid_t start_process(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child != 0) return child;
    try {
        work();
    } catch (const std::exception&) {
        _exit(1);
    }
    _exit(0);
}

save_end end_of(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFSIGNALED(status)) return save_end::killed;
    return WEXITSTATUS(status) == 0 ? save_end::completed : save_end::refused;
}

std::uintmax_t between(std::uintmax_t least, std::uintmax_t most, chance& random) {
    return std::uniform_int_distribution<std::uintmax_t>(least, most)(random);
}

void limit_file_size(std::uintmax_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
}

/// Leaves about so many bytes free on the file system of the folder.
void fill_up(const std::string& ballast, std::uintmax_t left_free) {
    const std::uintmax_t free = fs::space(fs::path(ballast).parent_path()).available;
    std::ofstream(ballast, std::ios::binary) << std::string(free > left_free ? free - left_free : 0, '.');
}

}  // namespace

save_end run_and_kill(const tortured_save& save, const tortured_farm& farm, std::chrono::microseconds longest,
                      chance& random) {
    const auto moment = between(0, static_cast<std::uintmax_t>(longest.count()), random);
    const pid_t child = start_process([&] { save.run(farm.state()); });
    std::this_thread::sleep_for(std::chrono::microseconds(moment));
    kill(child, SIGKILL);
    return end_of(child);
}

save_end run_on_full_disc(const tortured_save& save, const tortured_farm& farm, std::uintmax_t most_bytes,
                          chance& random) {
    const std::uintmax_t room = between(0, most_bytes, random);
    const bool small = fs::space(farm.folder()).capacity <= small_file_system_bytes;
    const std::string ballast = farm.folder() + "/ballast";
    if (small) fill_up(ballast, room);
    const save_end end = end_of(start_process([&] {
        if (!small) limit_file_size(room);
        save.run(farm.state());
    }));
    fs::remove(ballast);
    return end;
}

}  // namespace kel::torture
