// The groups of measures in the order of the table. A new group is a file <name>_bench.cpp with a function
// <name>_bench, and one line here.
#pragma once

#include <vector>

#include "tools/bench/bench_table.h"

// The start comes first: it measures the memory of children, and a child counts the memory of the process
// that it was made from as its own until it has more.
#define KEL_BENCH_GROUPS(group)                                                                           \
    group(start) group(land) group(profile) group(land_screen) group(typing) group(manure) group(storage) \
        group(crops) group(grass) group(record) group(print) group(why) group(standing) group(check)      \
            group(calendar)

namespace kel::bench {

#define KEL_BENCH_DECLARATION(name) std::vector<bench_line> name##_bench();
KEL_BENCH_GROUPS(KEL_BENCH_DECLARATION)
#undef KEL_BENCH_DECLARATION

/// The other end of the start group: what `kel_bench --child KIND FOLDER` does. Does not return when the
/// window is in view.
int child_main(int argc, char** argv);

}  // namespace kel::bench
