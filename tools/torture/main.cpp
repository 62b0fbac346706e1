// Cuts saves off, again and again, and counts what was lost. A run is lost when a file holds neither its old
// nor its new rows, or one file of a transaction is old and another new, or a save that claims to have worked
// or failed did otherwise.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <string_view>

#include "core/installation.h"
#include "tools/torture/saves.h"
#include "tools/torture/trouble.h"

namespace kel::torture {

namespace {

struct tally {
    int runs = 0;
    int ended[3] = {};  // by save_end
    int lost = 0;
    int littered = 0;                 // runs that left a file of the program's own beside
    int journals = 0;                 // runs that left a journal
    std::map<std::string, int> left;  // the files of the program's own, each with its runs
};

/// An undisturbed save: what it leaves, and how long it takes.
struct whole_save {
    folder_content before;
    folder_content after;
    std::chrono::microseconds time{};
};

whole_save run_whole(const tortured_save& save, const tortured_farm& farm) {
    whole_save whole;
    farm.restore();
    whole.before = farm.recovered();
    const auto start = std::chrono::steady_clock::now();
    save.run(farm.state());
    whole.time =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);
    whole.after = farm.recovered();
    return whole;
}

bool is_mark(const std::string& path) {
    return path.ends_with(".lock");
}

// A list of journals has a number of its own in each run.
std::string kind_of(const std::string& path) {
    const std::string name = file_name_of(path);
    const auto number = name.find("-mj");
    return number == std::string::npos ? name : name.substr(0, number) + "-mj...";
}

bool is_journal(const std::string& path) {
    return path.ends_with("-journal");
}

// A journal that was begun, and has nothing to undo, is the engine's: it stays until the next save of its
// file, and a list that names it until the opening after that. Whatever is beside then stays for good.
void count_litter(const whole_save& whole, const tortured_farm& farm, tally& sum) {
    const folder_content found = farm.content();
    if (std::any_of(found.begin(), found.end(), [](const auto& file) { return is_journal(file.first); })) {
        ++sum.journals;
        farm.save_each_file();
    }
    bool any = false;
    for (const auto& [path, content] : farm.recovered()) {
        if (is_mark(path) || whole.after.contains(path)) continue;
        ++sum.left[kind_of(path)];
        any = true;
    }
    sum.littered += any ? 1 : 0;
}

std::string content_in(const folder_content& folder, const std::string& path) {
    const auto found = folder.find(path);
    return found == folder.end() ? std::string() : found->second;
}

void judge(const tortured_save& save, const whole_save& whole, const folder_content& found, save_end end,
           tally& sum) {
    bool any_old = false, any_new = false, any_other = false;
    for (const auto& [path, new_content] : whole.after) {
        const std::string old_content = content_in(whole.before, path), now = content_in(found, path);
        if (is_mark(path) || old_content == new_content) continue;
        any_old |= now == old_content;
        any_new |= now == new_content;
        any_other |= now != old_content && now != new_content;
    }
    for (const auto& [path, content] : whole.before)
        any_other |= content_in(whole.after, path) == content && content_in(found, path) != content;
    const bool mixed = save.all_files_together && any_old && any_new;
    const bool untrue = (end == save_end::completed && any_old) ||
                        (end == save_end::refused && any_new && save.all_files_together);
    ++sum.runs;
    ++sum.ended[static_cast<int>(end)];
    sum.lost += any_other || mixed || untrue ? 1 : 0;
}

std::uintmax_t largest_file(const folder_content& folder) {
    std::size_t bytes = 0;
    for (const auto& [path, content] : folder)
        bytes = std::max(bytes, content.size());
    return bytes;
}

/// Returns how many runs lost something, or left something for good.
int torture(const tortured_save& save, const tortured_farm& farm, bool kills, int runs, chance& random) {
    const whole_save whole = run_whole(save, farm);
    tally sum;
    for (int run = 0; run < runs; ++run) {
        farm.restore();
        const save_end end =
            kills ? run_and_kill(save, farm, whole.time * 6 / 5, random)
                  : run_on_full_disc(save, farm,
                                     largest_file(whole.after) * (save.all_files_together ? 4 : 2), random);
        judge(save, whole, farm.recovered(), end, sum);
        count_litter(whole, farm, sum);
    }
    std::printf("%-38s %-10s %6d %10d %8d %8d %6d %8d\n", std::string(save.name).c_str(),
                kills ? "kill" : "full disc", sum.runs, sum.ended[0], sum.ended[1], sum.ended[2], sum.lost,
                sum.littered);
    for (const auto& [kind, times] : sum.left)
        std::printf("    left for good: %s, in %d runs\n", kind.c_str(), times);
    if (sum.journals > 0)
        std::printf("    a journal with nothing to undo was left in %d runs; the next save took it away\n",
                    sum.journals);
    return sum.lost + sum.littered;
}

int run(std::string_view trouble, int runs, unsigned seed) {
    chance random(seed);
    const tortured_farm farm;
    std::printf("Seed %u. %s\n%-38s %-10s %6s %10s %8s %8s %6s %8s\n", seed, farm.folder().c_str(), "save",
                "trouble", "runs", "completed", "refused", "killed", "lost", "litter");
    int lost = 0;
    for (const tortured_save& save : tortured_saves())
        for (const bool kills : {true, false})
            if (trouble == "all" || trouble == (kills ? "kills" : "disc"))
                lost += torture(save, farm, kills, runs, random);
    return lost;
}

}  // namespace

}  // namespace kel::torture

// kel_torture [all | kills | disc] [RUNS] [SEED]
int main(int argc, char** argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);  // each line as it is known, also into a file
    const std::string_view trouble = argc > 1 ? argv[1] : "all";
    const int runs = argc > 2 ? std::atoi(argv[2]) : 100;
    const unsigned seed = argc > 3 ? static_cast<unsigned>(std::atoi(argv[3])) : std::random_device{}();
    try {
        return kel::torture::run(trouble, runs, seed) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "kel_torture: %s\n", failure.what());
        return EXIT_FAILURE;
    }
}
