// qvniComputeThreshold_Otsu_8u_C1R against the model, on histograms counted
// here from images in every placement of the harness.
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "arith/otsu-inl.h"
#include "ref/threshold_ref.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

// Two clusters of levels at random centres and spreads, and some pixels
// anywhere; or (seed % 5 == 0) a single level.
void fillBimodal(GuardedImage<Qvn8u>& img, std::uint32_t seed) {
    std::mt19937 rng(seed);
    const int c0 = int(rng() % 256), c1 = int(rng() % 256), s0 = int(rng() % 40 + 1), s1 = int(rng() % 40 + 1);
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t x = 0; x < img.width(); ++x) {
            const unsigned r = rng() % 8;
            const int v = r == 0 ? int(rng() % 256) : r < 4 ? c0 + int(rng() % unsigned(2 * s0)) - s0
                                                             : c1 + int(rng() % unsigned(2 * s1)) - s1;
            img.at(x, y) = seed % 5 == 0 ? Qvn8u(c0) : Qvn8u(std::clamp(v, 0, 255));
        }
    img.snapshot();
}

std::uint8_t otsuOf(const GuardedImage<Qvn8u>& src, int step) {
    GuardedImage<Qvn8u> out({1, 1, 1, 0, true, 9});
    const QvnRoiSize roi{int(src.width()), int(src.height())};
    EXPECT_EQ(callUnderTest({&src}, {&out}, [&] { return qvniComputeThreshold_Otsu_8u_C1R(src.data(), step, roi, out.data()); }),
              qvnOk);
    return out.at(0, 0);
}

int modelOf(const GuardedImage<Qvn8u>& src) {
    std::vector<std::uint64_t> h(256);
    for (std::int64_t y = 0; y < src.height(); ++y)
        for (std::int64_t x = 0; x < src.width(); ++x) ++h[src.at(x, y)];
    return ref::otsu(h);
}

TEST(Otsu, MatchesTheModelInEveryPlacement) {
    forEachShape(sweepWidths(), {1, 2, 9}, [](int w, int h, int gap, bool, std::uint32_t seed) {
        GuardedImage<Qvn8u> src(placed(w, h, 1, gap, seed, 0));
        fillBimodal(src, seed);
        EXPECT_EQ(otsuOf(src, int(src.step())), modelOf(src)) << w << "x" << h << " seed " << seed;
    });
    for (std::uint32_t seed = 1; seed < 12; ++seed) {  // large images, rows merged or not
        GuardedImage<Qvn8u> src({1000 + seed, 300, 1, seed % 2 ? 0 : -1, bool(seed % 3), seed});
        fillBimodal(src, seed);
        EXPECT_EQ(otsuOf(src, int(src.step())), modelOf(src)) << "seed " << seed;
    }
}

TEST(Otsu, WorkedExamples) {
    GuardedImage<Qvn8u> img({64, 4, 1, 0, true, 1});
    for (std::int64_t i = 0; i < 256; ++i) img.at(i % 64, i / 64) = i % 2 ? 200 : 10;
    img.snapshot();
    EXPECT_EQ(otsuOf(img, 64), 10);  // the lowest of the equal maxima (10 .. 199)
    for (std::int64_t i = 0; i < 256; ++i) img.at(i % 64, i / 64) = 77;
    img.snapshot();
    EXPECT_EQ(otsuOf(img, 64), 0);  // one level: no candidate separates anything
}

// Bins whose class weight is below 2^-23 add nothing to the partial mean:
// here the 40005 pixels at level 2 move the answer from 38 (had they been
// added) to 50.
TEST(Otsu, LightBinsStayOutOfThePartialMean) {
    std::vector<std::uint64_t> h(256);
    h[2] = 40005, h[38] = 791870822783, h[50] = 549190791424, h[240] = 1296606759;
    std::uint64_t n = 0;
    for (std::uint64_t c : h) n += c;
    EXPECT_EQ(QVN_TARGET::arith::otsuLevel(h.data(), n), 50);
    EXPECT_EQ(ref::otsu(h), 50);
}

TEST(Otsu, WidthAboveTheStepIsAStepError) {
    GuardedImage<Qvn8u> img({16, 3, 1, 0, true, 1}), out({1, 1, 1, 0, true, 2});
    EXPECT_EQ(qvniComputeThreshold_Otsu_8u_C1R(img.data(), 15, {16, 3}, out.data()), qvnErrStep);
    EXPECT_EQ(qvniComputeThreshold_Otsu_8u_C1R(img.data(), -16, {16, 3}, out.data()), qvnErrStep);
    EXPECT_EQ(qvniComputeThreshold_Otsu_8u_C1R(img.data(), 15, {0, 3}, out.data()), qvnErrSize);
    out.expectUnchanged();
    EXPECT_EQ(qvniComputeThreshold_Otsu_8u_C1R(img.data(), 16, {16, 3}, out.data()), qvnOk);
}

}  // namespace
}  // namespace qvn::test
