#include "report.h"

#include <cstdio>
#include <iomanip>
#include <iterator>
#include <limits>
#include <sstream>

namespace qbench {

double Row::best() const {
    // fmin ignores a NaN operand, so a missing peer never wins.
    return std::fmin(opencv, fftw);
}

namespace {

std::string num(double v, int decimals) {
    if (std::isnan(v)) return "-";
    char buf[32];
    std::snprintf(buf, sizeof buf, "%.*f", decimals, v);
    return buf;
}

std::string jsonNum(double v) {
    if (std::isnan(v)) return "null";
    char buf[32];
    std::snprintf(buf, sizeof buf, "%.6g", v);
    return buf;
}

std::string jsonStr(const std::string& s) {
    std::string o = "\"";
    for (char c : s) {
        if (c == '"' || c == '\\') o += '\\';
        if (c == '\n') o += "\\n";
        else o += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
    }
    return o + "\"";
}

// The table's value columns; a column that no row has a value for (fftw until
// the transforms exist) is left out of the printed table, never out of the JSON.
struct Column {
    const char* name;
    int width, decimals;
    double (*value)(const Row&);
};
constexpr Column kColumns[] = {
    {"ours", 8, 4, [](const Row& r) { return r.ours; }},
    {"opencv", 8, 4, [](const Row& r) { return r.opencv; }},
    {"fftw", 8, 4, [](const Row& r) { return r.fftw; }},
    {"bound", 8, 4, [](const Row& r) { return r.bound; }},
    {"ours/best", 9, 2, [](const Row& r) { return r.ours / r.best(); }},
    {"ours/bound", 10, 2, [](const Row& r) { return r.ours / r.bound; }},
    {"sse3", 8, 4, [](const Row& r) { return r.targets[0]; }},
    {"avx2", 8, 4, [](const Row& r) { return r.targets[1]; }},
    {"avx512", 8, 4, [](const Row& r) { return r.targets[2]; }},
};

}  // namespace

// The format below is read by people comparing runs over time: columns keep
// their names and order (new ones go at the end); only columns without any
// value in this run are left out.
void printTable(std::ostream& out, const Report& r) {
    out << r.header;
    out << "\nbandwidth (GB/s, bytes read + written) |   copy |    rmw |   read\n";
    for (const BandwidthRow& b : r.bandwidth)
        out << std::left << std::setw(39) << b.where << std::right << " | " << std::setw(6) << num(b.copy, 1)
            << " | " << std::setw(6) << num(b.rmw, 1) << " | " << std::setw(6) << num(b.read, 1) << "\n";

    bool shown[std::size(kColumns)] = {true};  // ours always
    for (const Row& row : r.rows)
        for (std::size_t c = 0; c < std::size(kColumns); ++c)
            shown[c] |= row.error.empty() && !std::isnan(kColumns[c].value(row));

    out << "\n" << std::left << std::setw(24) << "op" << " | " << std::setw(9) << "size" << std::right;
    for (std::size_t c = 0; c < std::size(kColumns); ++c)
        if (shown[c]) out << " | " << std::setw(kColumns[c].width) << kColumns[c].name;
    out << "\n";
    int won = 0, compared = 0;
    double logSum = 0;
    for (const Row& row : r.rows) {
        out << std::left << std::setw(24) << row.op << " | " << std::setw(9) << row.size << std::right;
        if (!row.error.empty()) {
            out << " | FAILED: " << row.error << "\n";
            continue;
        }
        for (std::size_t c = 0; c < std::size(kColumns); ++c)
            if (shown[c]) out << " | " << std::setw(kColumns[c].width) << num(kColumns[c].value(row), kColumns[c].decimals);
        out << "\n";
        const double vsBest = row.ours / row.best();
        if (!std::isnan(vsBest)) {
            ++compared;
            won += vsBest < 1.0;
            logSum += std::log(vsBest);
        }
    }
    out << "won " << won << " of " << compared << ", geomean ours/best = "
        << num(compared ? std::exp(logSum / compared) : kNone, 2) << "\n";
    out << "Times are nanoseconds per pixel, lower is faster; \"won\" counts the rows with a peer where our time "
           "is below the fastest peer's, and the geomean of ours/best over those rows is below 1 when we are "
           "faster on the whole (0.80: a fifth less time). The last columns time our side with each build "
           "target this processor runs; \"ours\" is the one the library chose.\n";
}

void writeJson(std::ostream& out, const Report& r) {
    out << "{\n  \"header\": " << jsonStr(r.header) << ",\n  \"unit\": \"ns/pixel\",\n  \"bandwidth\": [";
    for (std::size_t i = 0; i < r.bandwidth.size(); ++i) {
        const BandwidthRow& b = r.bandwidth[i];
        out << (i ? ",\n    " : "\n    ") << "{\"where\": " << jsonStr(b.where) << ", \"copy\": " << jsonNum(b.copy)
            << ", \"rmw\": " << jsonNum(b.rmw) << ", \"read\": " << jsonNum(b.read) << "}";
    }
    out << "\n  ],\n  \"rows\": [";
    for (std::size_t i = 0; i < r.rows.size(); ++i) {
        const Row& row = r.rows[i];
        out << (i ? ",\n    " : "\n    ") << "{\"op\": " << jsonStr(row.op) << ", \"size\": " << jsonStr(row.size)
            << ", \"ours\": " << jsonNum(row.ours) << ", \"opencv\": " << jsonNum(row.opencv)
            << ", \"fftw\": " << jsonNum(row.fftw) << ", \"bound\": " << jsonNum(row.bound)
            << ", \"sse3\": " << jsonNum(row.targets[0]) << ", \"avx2\": " << jsonNum(row.targets[1])
            << ", \"avx512\": " << jsonNum(row.targets[2])
            << ", \"error\": " << jsonStr(row.error) << "}";
    }
    out << "\n  ]\n}\n";
}

}  // namespace qbench
