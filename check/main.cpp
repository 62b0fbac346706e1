#include <unistd.h>

#include <chrono>
#include <exception>
#include <filesystem>
#include <iostream>

#include "check/check_command.h"
#include "core/installation.h"

namespace {

volatile std::sig_atomic_t stopped = 0;

void stop(int) {
    stopped = 1;
}

kel::date today() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return kel::make_date(local.tm_mday, local.tm_mon + 1, local.tm_year + 1900);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        std::signal(SIGINT, stop);
        std::signal(SIGTERM, stop);
        // Nothing is written by it, so there is no folder to write to.
        const auto places =
            kel::locate_installation(std::filesystem::read_symlink("/proc/self/exe").string(), std::string());
        const kel::check_surroundings here{.climate_tables = places.climate_tables(),
                                           .version = KEL_VERSION,
                                           .today = today(),
                                           .shows_progress = isatty(STDERR_FILENO) == 1,
                                           .stopped = stopped};
        return kel::run_check({argv + 1, argv + argc}, here, std::cout, std::cerr);
    } catch (const std::exception& failure) {
        std::cerr << "kel-check: " << failure.what() << '\n';
        return kel::could_not_read;
    }
}
