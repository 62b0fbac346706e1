// kel_bench [GROUP...]: measures the slow paths on generated farms and prints them as one table; without a
// group it measures all of them.
#include <QByteArray>
#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <string_view>

#include "tools/bench/groups.h"

namespace {

using namespace kel::bench;

struct bench_group {
    std::string_view name;
    std::vector<bench_line> (*measure)();
};
#define KEL_BENCH_ENTRY(name) bench_group{#name, name##_bench},
constexpr std::array groups{KEL_BENCH_GROUPS(KEL_BENCH_ENTRY)};
#undef KEL_BENCH_ENTRY

int usage() {
    std::fputs("usage: kel_bench [GROUP...]\ngroups:", stderr);
    for (const bench_group& group : groups)
        std::fprintf(stderr, " %s", std::string(group.name).c_str());
    std::fputs("\n", stderr);
    return 2;
}

bool is_group(std::string_view name) {
    return std::any_of(groups.begin(), groups.end(), [&](const auto& group) { return group.name == name; });
}

int measure(const std::vector<std::string_view>& chosen) {
    std::vector<bench_line> lines;
    for (const bench_group& group : groups) {
        if (!chosen.empty() && std::find(chosen.begin(), chosen.end(), group.name) == chosen.end()) continue;
        std::fprintf(stderr, "measuring %s...\n", std::string(group.name).c_str());
        const auto measured = group.measure();
        lines.insert(lines.end(), measured.begin(), measured.end());
    }
    std::printf("CPU time of the process, user and system; medians.\n\n%s", table_text(lines).c_str());
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    // Windows are measured without a desktop, whatever the machine has; what the toolkit says of the desktop
    // that it misses would tear the table.
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", QByteArray("default.warning=false"));
    qputenv("QT_QPA_PLATFORM", QByteArray("offscreen"));
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    try {
        if (!arguments.empty() && arguments[0] == "--child") return child_main(argc, argv);
        if (!std::all_of(arguments.begin(), arguments.end(), is_group)) return usage();
        return measure(arguments);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "kel_bench stopped: %s\n", failure.what());
        return 1;
    }
}
