#include "report.h"

#include <cstdio>
#include <iomanip>
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

}  // namespace

// The format below is read by people comparing runs over time: add columns
// only at the end, never reorder or rename them.
void printTable(std::ostream& out, const Report& r) {
    out << r.header;
    out << "\nbandwidth (GB/s, bytes read + written) |   copy |    rmw\n";
    for (const BandwidthRow& b : r.bandwidth)
        out << std::left << std::setw(39) << b.where << std::right << " | " << std::setw(6) << num(b.copy, 1)
            << " | " << std::setw(6) << num(b.rmw, 1) << "\n";

    out << "\n" << std::left << std::setw(24) << "op" << " | " << std::setw(9) << "size" << std::right
        << " | " << std::setw(8) << "ours" << " | " << std::setw(8) << "opencv" << " | " << std::setw(8) << "fftw"
        << " | " << std::setw(8) << "bound" << " | " << std::setw(9) << "ours/best" << " | " << std::setw(10)
        << "ours/bound" << "\n";
    int won = 0, compared = 0;
    double logSum = 0;
    for (const Row& row : r.rows) {
        out << std::left << std::setw(24) << row.op << " | " << std::setw(9) << row.size << std::right << " | ";
        if (!row.error.empty()) {
            out << "FAILED: " << row.error << "\n";
            continue;
        }
        const double best = row.best();
        const double vsBest = row.ours / best;
        out << std::setw(8) << num(row.ours, 4) << " | " << std::setw(8) << num(row.opencv, 4) << " | "
            << std::setw(8) << num(row.fftw, 4) << " | " << std::setw(8) << num(row.bound, 4) << " | "
            << std::setw(9) << num(vsBest, 2) << " | " << std::setw(10) << num(row.ours / row.bound, 2) << "\n";
        if (!std::isnan(vsBest)) {
            ++compared;
            won += vsBest < 1.0;
            logSum += std::log(vsBest);
        }
    }
    out << "won " << won << " of " << compared << ", geomean ours/best = "
        << num(compared ? std::exp(logSum / compared) : kNone, 2) << "\n";
}

void writeJson(std::ostream& out, const Report& r) {
    out << "{\n  \"header\": " << jsonStr(r.header) << ",\n  \"unit\": \"ns/pixel\",\n  \"bandwidth\": [";
    for (std::size_t i = 0; i < r.bandwidth.size(); ++i) {
        const BandwidthRow& b = r.bandwidth[i];
        out << (i ? ",\n    " : "\n    ") << "{\"where\": " << jsonStr(b.where) << ", \"copy\": " << jsonNum(b.copy)
            << ", \"rmw\": " << jsonNum(b.rmw) << "}";
    }
    out << "\n  ],\n  \"rows\": [";
    for (std::size_t i = 0; i < r.rows.size(); ++i) {
        const Row& row = r.rows[i];
        out << (i ? ",\n    " : "\n    ") << "{\"op\": " << jsonStr(row.op) << ", \"size\": " << jsonStr(row.size)
            << ", \"ours\": " << jsonNum(row.ours) << ", \"opencv\": " << jsonNum(row.opencv)
            << ", \"fftw\": " << jsonNum(row.fftw) << ", \"bound\": " << jsonNum(row.bound)
            << ", \"error\": " << jsonStr(row.error) << "}";
    }
    out << "\n  ]\n}\n";
}

}  // namespace qbench
