// kel_mutants [COUNT [SEED]]: opens files made to hurt and COUNT files changed at random, each in a program
// of its own with every screen: opened or refused with a word, within 2 s of processor time and 300 MB, and
// not a byte of the file changed. Ends with 1 if one failed; its file is kept.
#include <QByteArray>
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>

#include "core/file_error.h"
#include "tools/mutants/mutation.h"
#include "tools/mutants/opening.h"

namespace kel::mutants {

namespace {

namespace fs = std::filesystem;

#ifdef __SANITIZE_ADDRESS__
// What the sanitizers take is not the program's own: only the ends of the openings are judged beside them.
constexpr double seconds_at_most = 60;
constexpr double megabytes_at_most = 4096;
#else
constexpr double seconds_at_most = 2;
constexpr double megabytes_at_most = 300;
#endif

std::string new_folder() {
    std::string folder = (fs::temp_directory_path() / "kel-mutants-XXXXXX").string();
    if (!mkdtemp(folder.data())) throw file_error(folder, "the folder could not be made.");
    return folder;
}

std::string content_of(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

class trials {
  public:
    trials() { fs::create_directories(folder_ + "/User_files"); }
    ~trials() {
        std::error_code ignored;
        if (failed_ == 0) fs::remove_all(folder_, ignored);
    }
    trials(const trials&) = delete;
    trials& operator=(const trials&) = delete;

    /// A copy of the sample farm's last year under this name.
    std::string fresh_file(const std::string& name) const {
        std::string file = folder_ + "/" + name + ".kel";
        fs::copy_file(std::string(KEL_STAGE_DIR) + "/kel_calc/User_files/Mains of Tullifern 2024-25.kel",
                      file);
        return file;
    }

    void open(const std::string& file, const std::string& what) {
        const std::string before = content_of(file);
        opening_figures found = open_in_a_process(file, folder_);
        ++made_;
        slowest_ = std::max(slowest_, found.seconds);
        largest_ = std::max(largest_, found.megabytes);
        if (found.seconds > seconds_at_most) found.trouble += " too slow";
        if (found.megabytes > megabytes_at_most) found.trouble += " too large";
        if (content_of(file) != before) found.trouble += " changed by opening it";
        if (found.trouble.empty()) {
            opened_ += found.end == opening_end::opened ? 1 : 0;
            fs::remove(file);
            return;
        }
        ++failed_;
        std::printf("FAILED  %s: %s (%.2f s, %.0f MB), kept as %s\n", what.c_str(), found.trouble.c_str(),
                    found.seconds, found.megabytes, file.c_str());
    }

    bool report() const {
        std::printf("mutants: %d files, %d opened, %d refused, %d failed; at most %.2f s and %.0f MB\n",
                    made_, opened_, made_ - opened_ - failed_, failed_, slowest_, largest_);
        return failed_ == 0;
    }

  private:
    std::string folder_ = new_folder();
    int made_ = 0;
    int opened_ = 0;
    int failed_ = 0;
    double slowest_ = 0;
    double largest_ = 0;
};

void open_hostile_files(trials& all) {
    int number = 0;
    for (const hostile_file& hostile : hostile_files()) {
        const std::string name = "hostile " + std::to_string(++number);
        const std::string file = all.fresh_file(name);
        if (hostile.sql.empty())
            fs::resize_file(file, 0);
        else
            run_sql(file, hostile.sql);
        all.open(file, std::string(hostile.name));
    }
}

bool make_trials(int count, unsigned seed) {
    trials all;
    open_hostile_files(all);
    for (int i = 0; i < count; ++i) {
        const unsigned own_seed = seed + static_cast<unsigned>(i);
        chance random(own_seed);
        const std::string file = all.fresh_file("mutant " + std::to_string(own_seed));
        const std::string done = mutate(file, random);
        all.open(file, "mutant of seed " + std::to_string(own_seed) + ", " + done);
    }
    return all.report();
}

template <class Number>
Number number_of(std::string_view text) {
    Number number{};
    if (std::from_chars(text.data(), text.data() + text.size(), number).ptr != text.data() + text.size())
        throw std::invalid_argument(std::string(text) + " is not a whole number");
    return number;
}

}  // namespace

}  // namespace kel::mutants

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", QByteArray("offscreen"));
    qputenv("QT_LOGGING_RULES", QByteArray("*=false"));
    try {
        const int count = argc > 1 ? kel::mutants::number_of<int>(argv[1]) : 500;
        const unsigned seed = argc > 2 ? kel::mutants::number_of<unsigned>(argv[2]) : 1;
        return kel::mutants::make_trials(count, seed) ? 0 : 1;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "kel_mutants: %s\n", failure.what());
        return 2;
    }
}
