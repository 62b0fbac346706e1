#include "tools/mutants/opening.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <string_view>

#include "core/file_error.h"
#include "tools/screen_driver.h"
#include "ui/kel_application.h"
#include "ui/program.h"
#include "ui/today.h"

namespace kel::mutants {

namespace {

constexpr int boxes_at_most = 200;
constexpr rlim_t seconds_at_most = 60;

// How the child tells its parent what became of the file.
enum exit_code { exit_opened = 0, exit_refused = 10, exit_too_many_boxes = 11, exit_silent = 12 };

class patient_person : public prompts {
  public:
    answer ask(const message& box) override {
        if (++boxes_ > boxes_at_most) _exit(exit_too_many_boxes);
        if (box.kind == message_kind::stop) refused_ = true;
        return box.buttons == message_buttons::ok ? answer::ok : answer::yes;
    }
    void show_list(const titled_list&) override {}
    std::string file_to_open(const file_request&) override { return {}; }
    std::string file_to_save(const file_request&) override { return {}; }
    bool refused() const { return refused_; }
    bool asked() const { return boxes_ > 0; }

  private:
    int boxes_ = 0;
    bool refused_ = false;
};

constexpr std::array every_screen{screen_id::profile, screen_id::land,      screen_id::storage,
                                  screen_id::manure,  screen_id::inorganic, screen_id::crops,
                                  screen_id::grass,   screen_id::straw,     screen_id::record};

void open_every_screen(program& run, patient_person& person) {
    for (const screen_id id : every_screen) {
        if (!run.exists(id)) continue;
        try {
            run.open(id);
            drive::settle();
            if (QWidget* shown = run.screen(id)) shown->grab();
        } catch (const file_error& failure) {
            person.tell(stop_box(failure));
        }
    }
}

int open_file(const std::string& file, const std::string& folder) {
    int argc = 1;
    std::array<char, 12> name{"kel_mutants"};
    char* argv = name.data();
    kel_application application(argc, &argv);
    patient_person person;
    application.set_prompts(&person);
    const std::string stage = KEL_STAGE_DIR;
    program run({stage + "/kel_calc", stage, folder}, person, today);
    run.start(file);
    drive::settle();
    if (!run.state().assess_file.empty()) open_every_screen(run, person);
    if (run.state().assess_file.empty() && !person.asked()) return exit_silent;
    return person.refused() || run.state().assess_file.empty() ? exit_refused : exit_opened;
}

[[noreturn]] void be_the_child(const std::string& file, const std::string& folder) {
    const rlimit time{seconds_at_most, seconds_at_most};
    setrlimit(RLIMIT_CPU, &time);
    int code = 1;
    try {
        code = open_file(file, folder);
    } catch (const std::exception&) {
    }
    _exit(code);
}

double seconds_of(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

void judge(int status, opening_figures& figures) {
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    if (code == exit_opened) figures.end = opening_end::opened;
    if (code == exit_refused) figures.end = opening_end::refused;
    if (code == exit_too_many_boxes) figures.trouble = "asks without end";
    if (code == exit_silent) figures.trouble = "refused without a word";
    if (code == 1) figures.trouble = "an exception left the program";
    if (WIFSIGNALED(status)) figures.trouble = "signal " + std::to_string(WTERMSIG(status));
}

}  // namespace

opening_figures open_in_a_process(const std::string& file, const std::string& folder) {
    const pid_t child = fork();
    if (child < 0) throw file_error(file, "no process could be started for it.");
    if (child == 0) be_the_child(file, folder);
    int status = 0;
    rusage used{};
    wait4(child, &status, 0, &used);
    opening_figures figures;
    figures.seconds = seconds_of(used.ru_utime) + seconds_of(used.ru_stime);
    figures.megabytes = static_cast<double>(used.ru_maxrss) / 1024;
    judge(status, figures);
    return figures;
}

}  // namespace kel::mutants
