// From the start of the process to the assessments screen in view, with the last farm reopened, beside an
// empty window of the same size: CPU time and memory of a process of its own each.
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QWidget>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "core/settings_store.h"
#include "tools/bench/bench_farm.h"
#include "tools/bench/bench_screen.h"
#include "tools/bench/groups.h"
#include "ui/kel_application.h"
#include "ui/program.h"
#include "ui/today.h"

namespace kel::bench {

namespace {

constexpr int fields = 1000;
constexpr int repetitions = 9;

struct child_cost {
    double cpu_ms;
    double peak_mb;
};

double ms(const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

child_cost run_child(std::string kind, std::string folder) {
    std::string program = "/proc/self/exe";
    std::string option = "--child";
    char* arguments[] = {program.data(), option.data(), kind.data(), folder.data(), nullptr};
    pid_t child = 0;
    if (posix_spawn(&child, program.c_str(), nullptr, nullptr, arguments, environ) != 0)
        throw std::runtime_error("the child process could not be started");
    int status = 0;
    rusage used{};
    if (wait4(child, &status, 0, &used) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        throw std::runtime_error("the child process " + kind + " failed");
    return {ms(used.ru_utime) + ms(used.ru_stime), static_cast<double>(used.ru_maxrss) / 1024};
}

[[noreturn]] void end_when_in_view(QWidget* window) {
    paint_watch(window).wait_until_painted();
    std::_Exit(0);  // what the process does to end is not measured
}

int empty_window_child(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(900, 620);
    window.show();
    end_when_in_view(&window);
}

int start_child(int argc, char** argv) {
    const std::string folder = argv[3];
    kel_application application(argc, argv);
    silent_person person;
    application.set_prompts(&person);
    const std::string stage = KEL_STAGE_DIR;
    program running({stage + "/kel_calc", stage, folder}, person, today);
    running.start();
    if (running.state().assess_file.empty()) throw std::runtime_error("the farm was not reopened");
    end_when_in_view(running.screen("front"));
}

}  // namespace

int child_main(int argc, char** argv) {
    if (argc != 4) throw std::runtime_error("--child wants a kind and a folder");
    return std::string_view(argv[2]) == "start" ? start_child(argc, argv) : empty_window_child(argc, argv);
}

std::vector<bench_line> start_bench() {
    const bench_farm farm(fields);
    write_store(farm.state);
    std::vector<double> peaks[2];
    const auto cpu_of = [&](const char* kind, std::vector<double>& peak_mb) {
        const child_cost cost = run_child(kind, farm.folder());
        peak_mb.push_back(cost.peak_mb);
        return cost.cpu_ms;
    };
    const auto [ours, empty] = medians_in_turn(
        repetitions, [&] { return cpu_of("start", peaks[0]); },
        [&] { return cpu_of("empty-window", peaks[1]); });
    return {{"Start to the assessments screen, 1,000 fields; beside an empty window", "ms", ours, empty, {}},
            {"Peak memory of the same", "MB", median(peaks[0]), median(peaks[1]), {}}};
}

}  // namespace kel::bench
