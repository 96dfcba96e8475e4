// The report: one table of every operation at every size, in a format that
// stays the same from commit to commit, and the same numbers as JSON for
// bench/compare.py.
#pragma once

#include <cmath>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

namespace qbench {

inline constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

// One line of the table. Times are nanoseconds per pixel; NaN where a column
// does not apply.
struct Row {
    std::string op, size;
    double ours = kNone, opencv = kNone, fftw = kNone, bound = kNone;
    // Our time with each build target (sse3, avx2, avx512) where the run timed
    // several; ours is the one the library chose.
    double targets[3] = {kNone, kNone, kNone};
    std::string error;  // a failed output check or call: the row has no times

    double best() const;  // the fastest peer, NaN without one
};

// Bandwidth measured in this run, in GB/s (10^9 bytes read plus written per second).
struct BandwidthRow {
    std::string where;  // an image size, or "memory"
    double copy = kNone, rmw = kNone, read = kNone;  // read: bytes read alone
};

struct Report {
    std::string header;  // machine, library and peer versions, how times were taken
    std::vector<BandwidthRow> bandwidth;
    std::vector<Row> rows;
};

void printTable(std::ostream& out, const Report& r);
void writeJson(std::ostream& out, const Report& r);

}  // namespace qbench
