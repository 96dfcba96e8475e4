// The report's closing line and JSON, and the helpers that every case's
// output check relies on.
#include <gtest/gtest.h>

#include <sstream>

#include "bench.h"
#include "report.h"

namespace qbench {
namespace {

// The line before the closing sentence on how to read the table.
std::string resultLine(const std::string& text) {
    std::istringstream in(text);
    std::string line, previous;
    while (std::getline(in, line)) {
        if (line.rfind("Times are nanoseconds per pixel", 0) == 0) return previous;
        previous = line;
    }
    return "(no closing sentence)";
}

Row row(const char* op, double ours, double opencv = kNone, double fftw = kNone) {
    Row r;
    r.op = op;
    r.size = "512x512";
    r.ours = ours;
    r.opencv = opencv;
    r.fftw = fftw;
    return r;
}

TEST(Report, CountsOnlyRowsWithAPeerAndWithoutFailure) {
    Report r;
    Row win = row("A", 1.0, 2.0);               // ours/best 0.5
    win.bound = 0.5;
    Row loss = row("B", 2.0, 1.0);              // 2.0
    Row tie = row("C", 1.0, 1.0);               // 1.0 is not a win
    Row alone = row("D", 5.0);                  // no peer: shown, not counted
    Row failed = row("E", 0.1, 9.0);
    failed.error = "destination 0 (1, 2, 0) got 3 want 4";
    Row fftwOnly = row("F", 1.0, kNone, 4.0);   // best peer is whichever exists
    r.rows = {win, loss, tie, alone, failed, fftwOnly};
    std::ostringstream out;
    printTable(out, r);
    // geomean of 0.5, 2, 1, 0.25 = (0.25)^(1/4)
    EXPECT_EQ(resultLine(out.str()), "won 2 of 4, geomean ours/best = 0.71");
    EXPECT_NE(out.str().find("FAILED: destination 0 (1, 2, 0) got 3 want 4"), std::string::npos);
    EXPECT_NE(out.str().find("op                       | size      |     ours |   opencv |     fftw |    bound |"
                             " ours/best | ours/bound"),
              std::string::npos);
}

TEST(Report, LeavesOutColumnsWithoutAnyValue) {
    Report r;
    Row failed = row("B", 1.0, kNone, 3.0);  // a failed row's times do not count
    failed.error = "call failed";
    r.rows = {row("A", 1.0, 2.0), failed};
    std::ostringstream out;
    printTable(out, r);
    EXPECT_NE(out.str().find("op                       | size      |     ours |   opencv | ours/best\n"),
              std::string::npos) << out.str();
    EXPECT_NE(out.str().find("A                        | 512x512   |   1.0000 |   2.0000 |      0.50\n"),
              std::string::npos) << out.str();
}

TEST(Report, EmptyTableHasNoGeomean) {
    std::ostringstream out;
    printTable(out, Report{});
    EXPECT_EQ(resultLine(out.str()), "won 0 of 0, geomean ours/best = -");
}

TEST(Report, JsonWritesMissingTimesAsNullAndEscapesText) {
    Report r;
    r.header = "a \"b\"\nc";
    r.rows = {row("Copy_8u_C1R", 0.25)};
    std::ostringstream out;
    writeJson(out, r);
    const std::string j = out.str();
    EXPECT_NE(j.find("\"header\": \"a \\\"b\\\"\\nc\""), std::string::npos) << j;
    EXPECT_NE(j.find("\"ours\": 0.25, \"opencv\": null, \"fftw\": null, \"bound\": null"), std::string::npos) << j;
}

TEST(Helpers, FirstMismatchNamesPixelAndChannel) {
    Image<Qvn8u> a(5, 3, 3), b(5, 3, 3);
    Rng rng(1);
    fillRandom(a, defaultRange<Qvn8u>(), rng);
    copyPixels(a, b);
    EXPECT_EQ(firstMismatch(a, b, 0), "");
    b.row(2)[3 * 4 + 1] ^= 1;
    EXPECT_EQ(firstMismatch(a, b, 0).substr(0, 10), "(4, 2, 1) ");
}

TEST(Helpers, FloatTolerance) {
    Image<Qvn32f> a(2, 1, 1), b(2, 1, 1);
    a.row(0)[0] = 1000.0f;
    b.row(0)[0] = 1000.001f;
    a.row(0)[1] = b.row(0)[1] = std::numeric_limits<float>::quiet_NaN();  // NaN agrees with NaN
    EXPECT_EQ(firstMismatch(a, b, 1e-5), "");
    EXPECT_NE(firstMismatch(a, b, 1e-7), "");
}

TEST(Helpers, RandomFillCoversTheRangeOnItsQuantum) {
    Image<Qvn32f> f(64, 64, 1);
    Rng rng(2);
    fillRandom(f, Range{-20, 280, 0.25}, rng);
    float lo = 1e9f, hi = -1e9f;
    bool halves = false;
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) {
            const float v = f.row(y)[x];
            ASSERT_EQ(v * 4, std::floor(v * 4)) << v;
            lo = std::min(lo, v);
            hi = std::max(hi, v);
            halves |= v - std::floor(v) == 0.5f;
        }
    EXPECT_GE(lo, -20.0f);
    EXPECT_LE(hi, 280.0f);
    EXPECT_LT(lo, -15.0f);
    EXPECT_GT(hi, 275.0f);
    EXPECT_TRUE(halves);  // rounding cases need exact halves
    Image<Qvn8u> u(256, 64, 1);
    fillRandom(u, defaultRange<Qvn8u>(), rng);
    int seen0 = 0, seen255 = 0;
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 256; ++x) seen0 += u.row(y)[x] == 0, seen255 += u.row(y)[x] == 255;
    EXPECT_GT(seen0, 0);
    EXPECT_GT(seen255, 0);
}

}  // namespace

// The test binary registers no operations; the registry lives in main.cpp.
std::vector<OpDef>& registry() {
    static std::vector<OpDef> ops;
    return ops;
}

}  // namespace qbench
