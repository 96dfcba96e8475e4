// The median, minimum and maximum filters against a model that sorts each
// window: every method of the median (networks, selection, the three counter
// widths of the 8u histograms), running extrema and doubling spans, every
// border kind and in-memory side, masks larger than the ROI, in place; with
// work buffers of exactly the queried size ending at an inaccessible page.
// Then the size formulas, the checks and the 1 x 1 rules.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "filter/rank-inl.h"
#include "qvnip.h"
#include "ref/filter_ref.h"
#include "support/cache_double.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

enum class Rank { kMedian, kMin, kMax };

template <class T>
using RankFn = std::function<QvnStatus(const T*, int, T*, int, QvnRoiSize, QvnRoiSize, int, const T*, Qvn8u*)>;
// C1 forms take the border value itself, the others an array.
#define QVN_RANK1(fn) \
    [](const auto* s, int ss, auto* d, int ds, QvnRoiSize r, QvnRoiSize m, int b, const auto* v, Qvn8u* buf) { \
        return fn(s, ss, d, ds, r, m, b, *v, buf);                                                              \
    }

template <class T>
struct RankCase {
    std::string name;
    Rank rank;
    int C;
    bool alpha;
    RankFn<T> fn;
};

template <class T>
int dataTypeOf() {
    return std::is_same_v<T, Qvn8u> ? qvn8u : std::is_same_v<T, Qvn16u> ? qvn16u : std::is_same_v<T, Qvn16s> ? qvn16s : qvn32f;
}

int bufferSize(Rank r, QvnRoiSize roi, QvnRoiSize mask, int type, int C) {
    int n = -1;
    const QvnStatus s = r == Rank::kMedian ? qvniFilterMedianBorderGetBufferSize(roi, mask, type, C, &n)
                                           : qvniFilterMaxBorderGetBufferSize(roi, mask, type, C, &n);
    EXPECT_EQ(s, qvnOk);
    return n;
}

// The window's median (value order; NaN-free data) or extremum.
template <class T>
T model(Rank r, std::vector<T>& v) {
    if (r == Rank::kMin) return *std::min_element(v.begin(), v.end());
    if (r == Rank::kMax) return *std::max_element(v.begin(), v.end());
    std::nth_element(v.begin(), v.begin() + std::ptrdiff_t(v.size() - 1) / 2, v.end());
    return v[(v.size() - 1) / 2];
}

struct BorderCase {
    int border;
    ref::Bordered model;
};
const BorderCase kReplicate{qvnBorderReplicate, {ref::Border::kReplicate}};
const std::vector<BorderCase> kBorders = {
    kReplicate,
    {qvnBorderConstant, {ref::Border::kConst}},
    {qvnBorderInMem, {ref::Border::kReplicate, true, true, true, true}},
    {qvnBorderReplicate | qvnBorderInMemTop | qvnBorderInMemLeft, {ref::Border::kReplicate, true, false, true, false}},
    {qvnBorderConstant | qvnBorderInMemBottom | qvnBorderInMemRight, {ref::Border::kConst, false, true, false, true}},
    {qvnBorderMirror | qvnBorderInMemTop, {ref::Border::kMirror, true, false, false, false}},  // min and max only
};

// Pixels from a small set (many ties) or the whole range.
template <class T>
T pixel(std::mt19937& rng, bool ties) {
    if (ties) return T(int(rng() % 7) * 3);
    if constexpr (std::is_floating_point_v<T>) return T(int(rng() % 16001) - 8000) / T(8);
    else return T(rng());
}

// One call against the model: the source with room on its in-memory sides,
// the destination (the source itself in place) and a buffer of exactly the
// queried size ending at an inaccessible page.
template <class T>
void scene(const RankCase<T>& c, QvnRoiSize roi, QvnRoiSize mask, const BorderCase& bc, bool inPlace, std::uint32_t seed) {
    const int w = roi.width, h = roi.height, C = c.C;
    const int ax = (mask.width - 1) / 2, ay = (mask.height - 1) / 2;
    const int l = bc.model.left ? ax : 0, t = bc.model.top ? ay : 0;
    const int bw = w + l + (bc.model.right ? mask.width - 1 - ax : 0), bh = h + t + (bc.model.bottom ? mask.height - 1 - ay : 0);
    GuardedImage<T> src(placed(bw, bh, C, -1, seed, 0));
    std::mt19937 rng(seed);
    const bool ties = seed % 3 == 0;
    for (int y = 0; y < bh; ++y)
        for (int e = 0; e < bw * C; ++e) src.at(e, y) = pixel<T>(rng, ties);
    src.snapshot();
    auto dst = std::make_unique<GuardedImage<T>>(placed(w, h, C, -1, seed, 1));
    GuardedImage<Qvn8u> buffer(Layout{bufferSize(c.rank, roi, mask, dataTypeOf<T>(), C), 1, 1, 0, true, seed});
    T* out = inPlace ? src.row(t) + l * C : dst->data();
    const int outStep = int(inPlace ? src.step() : dst->step());
    const T value[4] = {T(7), T(100), T(33), T(5)};
    const std::string what = c.name + " mask " + std::to_string(mask.width) + "x" + std::to_string(mask.height) +
                             " border " + std::to_string(bc.border) + (inPlace ? " in place" : "");
    std::vector<const GuardedBuffer*> inputs{&src}, outputs{dst.get()};
    if (inPlace) inputs.clear(), outputs = {&src};
    const QvnStatus s = callUnderTest(inputs, outputs, [&] {
        return c.fn(src.row(t) + l * C, int(src.step()), out, outStep, roi, mask, bc.border, value, buffer.data());
    }, FE_UPWARD, std::is_floating_point_v<T>, std::is_floating_point_v<T> ? 4 : 0);
    ASSERT_EQ(s, qvnOk) << what;
    buffer.expectUntouchedOutsideRoi();
    std::vector<T> window;
    for (int y = 0; y < bh; ++y)
        for (int e = 0; e < bw * C; ++e) {
            const int x = e / C - l, yy = y - t, ch = e % C;
            const bool inRoi = x >= 0 && x < w && yy >= 0 && yy < h;
            if (!inPlace && !inRoi) continue;
            T want = src.saved(e, y);
            if (inRoi && !(c.alpha && ch == 3)) {
                window.clear();
                for (int j = 0; j < mask.height; ++j)
                    for (int i = 0; i < mask.width; ++i)
                        window.push_back(ref::extended<T>(bc.model, x - ax + i, yy - ay + j, w, h, [&](std::int64_t sx, std::int64_t sy) {
                            return src.saved((sx + l) * C + ch, sy + t);
                        }, value[ch]));
                want = model(c.rank, window);
            } else if (!inPlace) {
                want = dst->saved(x * C + ch, yy);
            }
            const T got = inPlace ? src.at(e, y) : dst->at(x * C + ch, yy);
            if (!(got == want) && !sameValue(got, want, true)) {
                ADD_FAILURE() << what << " " << w << "x" << h << " at (" << x << ", " << yy << ", " << ch << ") got "
                              << printable(got) << " want " << printable(want);
                return;
            }
        }
}

const std::vector<QvnRoiSize> kRois = {{1, 1}, {2, 3}, {7, 5}, {37, 6}, {70, 9}, {131, 4}, {3, 19}, {65, 17}};

template <class T>
void sweep(const RankCase<T>& c, const std::vector<QvnRoiSize>& masks) {
    std::uint32_t seed = std::uint32_t(std::hash<std::string>{}(c.name)) % 1000;
    for (const QvnRoiSize& m : masks)
        for (int k = 0; k < 3; ++k, ++seed) {
            const std::size_t b = (seed + std::uint32_t(k)) % (kBorders.size() - (c.rank == Rank::kMedian ? 1 : 0));
            scene(c, kRois[seed % kRois.size()], m, kBorders[b], k == 1, seed);
            if (testing::Test::HasFailure()) return;
        }
}

// Networks (up to 5 x 5, 15 values), selection above them for 16-bit and
// float types, histograms with 8-bit counters up to 15 and 16-bit ones above.
const std::vector<QvnRoiSize> kMedianMasks = {{1, 1}, {3, 1}, {1, 3}, {5, 1}, {1, 5}, {3, 3}, {5, 5}, {3, 5}, {5, 3}, {7, 7}, {9, 3}};
const std::vector<QvnRoiSize> kHistMasks = {{15, 15}, {1, 15}, {17, 5}, {3, 19}};

#define QVN_MEDIAN_CASES(T, tok)                                                                        \
    RankCase<T>{#tok " C1", Rank::kMedian, 1, false, QVN_RANK1(qvniFilterMedianBorder_##tok##_C1R)},  \
    RankCase<T>{#tok " C3", Rank::kMedian, 3, false, qvniFilterMedianBorder_##tok##_C3R},             \
    RankCase<T>{#tok " C4", Rank::kMedian, 4, false, qvniFilterMedianBorder_##tok##_C4R},             \
    RankCase<T>{#tok " AC4", Rank::kMedian, 4, true, qvniFilterMedianBorder_##tok##_AC4R}

TEST(FilterRank, MedianOfEveryMethodIsExact) {
    for (const auto& c : {QVN_MEDIAN_CASES(Qvn8u, 8u)}) {
        sweep(c, kMedianMasks);
        sweep(c, kHistMasks);
    }
    for (const auto& c : {QVN_MEDIAN_CASES(Qvn16u, 16u)}) sweep(c, kMedianMasks);
    for (const auto& c : {QVN_MEDIAN_CASES(Qvn16s, 16s)}) sweep(c, kMedianMasks);
    sweep(RankCase<Qvn32f>{"32f C1", Rank::kMedian, 1, false, QVN_RANK1(qvniFilterMedianBorder_32f_C1R)}, kMedianMasks);
}

// Masks with a side of 257 count in 32 bits.
TEST(FilterRank, MedianWithThirtyTwoBitCounters) {
    const RankCase<Qvn8u> c{"8u C1", Rank::kMedian, 1, false, QVN_RANK1(qvniFilterMedianBorder_8u_C1R)};
    scene(c, {40, 3}, {257, 1}, kReplicate, false, 5);
    scene(c, {300, 2}, {1, 257}, kBorders[1], true, 6);
    // 16-bit counters over stripes too wide for the coarse counts
    scene(RankCase<Qvn8u>{"8u C4", Rank::kMedian, 4, false, qvniFilterMedianBorder_8u_C4R}, {30, 4}, {201, 3},
          kReplicate, false, 7);
}

#define QVN_EXTREMA_CASES(T, tok, Op, rank)                                                   \
    RankCase<T>{#Op " " #tok " C1", rank, 1, false, QVN_RANK1(qvniFilter##Op##Border_##tok##_C1R)}, \
    RankCase<T>{#Op " " #tok " C3", rank, 3, false, qvniFilter##Op##Border_##tok##_C3R},          \
    RankCase<T>{#Op " " #tok " C4", rank, 4, false, qvniFilter##Op##Border_##tok##_C4R},          \
    RankCase<T>{#Op " " #tok " AC4", rank, 4, true, qvniFilter##Op##Border_##tok##_AC4R}

// Direct rows and columns, running extrema over blocks of rows (above 5),
// doubling spans (above 8 columns), even sides.
const std::vector<QvnRoiSize> kExtremaMasks = {{2, 2}, {3, 3}, {5, 5}, {4, 1}, {1, 6}, {6, 7}, {9, 2}, {20, 11}, {33, 3}};

TEST(FilterRank, MinimumAndMaximumOfTheRectangle) {
    for (const auto& c : {QVN_EXTREMA_CASES(Qvn8u, 8u, Max, Rank::kMax), QVN_EXTREMA_CASES(Qvn8u, 8u, Min, Rank::kMin)})
        sweep(c, kExtremaMasks);
    for (const auto& c : {QVN_EXTREMA_CASES(Qvn16u, 16u, Max, Rank::kMax)}) sweep(c, kExtremaMasks);
    for (const auto& c : {QVN_EXTREMA_CASES(Qvn16s, 16s, Min, Rank::kMin)}) sweep(c, kExtremaMasks);
    for (const auto& c : {QVN_EXTREMA_CASES(Qvn32f, 32f, Max, Rank::kMax), QVN_EXTREMA_CASES(Qvn32f, 32f, Min, Rank::kMin)})
        sweep(c, kExtremaMasks);
}

// Rows wider than a column chunk (8 KiB): every border kind and in-memory
// side, synthesised columns read from the first and last chunks, in place.
TEST(FilterRank, ExtremaAcrossColumnChunks) {
    const RankCase<Qvn8u> max{"Max 8u C3", Rank::kMax, 3, false, qvniFilterMaxBorder_8u_C3R};
    const RankCase<Qvn32f> min{"Min 32f AC4", Rank::kMin, 4, true, qvniFilterMinBorder_32f_AC4R};
    std::uint32_t seed = 7;
    for (const QvnRoiSize mask : {QvnRoiSize{7, 3}, QvnRoiSize{20, 11}})
        for (const BorderCase& b : kBorders) {
            scene(max, {3000, 4}, mask, b, seed % 2 == 0, seed), ++seed;
            scene(min, {700, 3}, mask, b, seed % 2 == 0, seed), ++seed;
            if (testing::Test::HasFailure()) return;
        }
}

// A NaN anywhere in the rectangle gives a NaN, whichever path reaches it:
// in one chunk or the second, from the source or from a NaN border value.
TEST(FilterRank, ExtremaPropagateNaN) {
    const float nan = std::numeric_limits<Qvn32f>::quiet_NaN();
    struct Case {
        QvnRoiSize roi, mask;
        int nanX, nanY;  // -1: the NaN is the constant border's value
    };
    for (const Case& c : {Case{{40, 20}, {3, 3}, 20, 10}, Case{{40, 20}, {12, 9}, 20, 10}, Case{{2500, 12}, {5, 5}, 2300, 6},
                          Case{{2500, 12}, {3, 7}, 2047, 3}, Case{{40, 20}, {5, 3}, -1, -1}}) {
        const int w = c.roi.width, h = c.roi.height;
        std::vector<Qvn32f> src(std::size_t(w * h), 1.0f), dst(src.size());
        if (c.nanX >= 0) src[std::size_t(c.nanY * w + c.nanX)] = nan;
        int n = 0;
        ASSERT_EQ(qvniFilterMinBorderGetBufferSize(c.roi, c.mask, qvn32f, 1, &n), qvnOk);
        std::vector<Qvn8u> buffer(static_cast<std::size_t>(n));
        ASSERT_EQ(qvniFilterMinBorder_32f_C1R(src.data(), w * 4, dst.data(), w * 4, c.roi, c.mask,
                                              c.nanX >= 0 ? qvnBorderReplicate : qvnBorderConstant, nan, buffer.data()),
                  qvnOk);
        const int ax = (c.mask.width - 1) / 2, ay = (c.mask.height - 1) / 2;
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                const int x0 = x - ax, y0 = y - ay, x1 = x0 + c.mask.width, y1 = y0 + c.mask.height;
                const bool reached = c.nanX >= 0 ? c.nanX >= x0 && c.nanX < x1 && c.nanY >= y0 && c.nanY < y1
                                                 : x0 < 0 || y0 < 0 || x1 > w || y1 > h;
                ASSERT_EQ(std::isnan(dst[std::size_t(y * w + x)]), reached) << w << ": " << x << ", " << y;
                if (!reached) ASSERT_EQ(dst[std::size_t(y * w + x)], 1.0f);
            }
    }
}

// Outputs that would only evict the cache are stored past it, with the
// cached stores' results.
TEST(FilterRank, ExtremaStreamedEqualCached) {
    const int w = 1027, h = 640;  // 657,280 bytes; the rows start off the vector alignment
    std::vector<Qvn8u> src(std::size_t(w * h));
    for (std::size_t i = 0; i < src.size(); ++i) src[i] = Qvn8u(i * 2654435761u >> 24);
    for (const QvnRoiSize mask : {QvnRoiSize{5, 5}, QvnRoiSize{15, 9}}) {
        int n = 0;
        ASSERT_EQ(qvniFilterMaxBorderGetBufferSize({w - 1, h}, mask, qvn8u, 1, &n), qvnOk);
        std::vector<Qvn8u> buffer(static_cast<std::size_t>(n)), out[2];
        for (int streamed = 0; streamed < 2; ++streamed) {
            resetCacheDouble();
            cacheDouble().sizeBytes = streamed ? 1 : 1 << 30;
            out[streamed].assign(src.size(), 0);
            EXPECT_EQ(qvniFilterMaxBorder_8u_C1R(src.data() + 1, w, out[streamed].data() + 1, w, {w - 1, h}, mask,
                                                 qvnBorderReplicate, 0, buffer.data()), qvnOk);
            EXPECT_GE(cacheDouble().calls, 1);
        }
        resetCacheDouble();
        EXPECT_EQ(out[0], out[1]);
    }
}

// The median query's formula (copy area, 2h rows, method area) at
// hand-computed points, and the counters the method table implies.
TEST(FilterRank, MedianBufferSizesFollowTheFormula) {
    struct Point {
        QvnRoiSize roi, mask;
        int type, C, size;
    };
    const Point points[] = {
        // 3x3 on 100x50 8u: strips 128 + 256 + max(4 x 102, 4 x 52) = 792 -> 800; rows 128 x 6; no method area
        {{100, 50}, {3, 3}, qvn8u, 1, 800 + 768},
        // 5x5 on a 4x3 ROI: the whole bordered image 7 x 8 = 56 -> 64; rows 32 x 10
        {{4, 3}, {5, 5}, qvn8u, 1, 64 + 320},
        // 3x5 16u: strips 64 + 192 + 7 x 22 x 2 = 564 -> 576; rows 64 x 10; the generic slots 60 -> 64
        {{20, 10}, {3, 5}, qvn16u, 1, 576 + 640 + 64},
        // 7x7 8u: strips 320 + 640 + 10 x 106 -> 2048; rows 128 x 14; 8-bit counters, (7 + 100) x 256
        {{100, 50}, {7, 7}, qvn8u, 1, 2048 + 1792 + 107 * 256},
        // 257x1 8u: the whole bordered copy 3 x 296 -> 896; rows 64 x 2; 32-bit counters, (257 + 40) x 1024
        {{40, 3}, {257, 1}, qvn8u, 1, 896 + 128 + 297 * 1024},
        // three channels: every part per channel
        {{100, 50}, {7, 7}, qvn8u, 3, 3 * 2048 + 320 * 14 + 3 * 107 * 256},
    };
    for (const Point& p : points) {
        int n = -1;
        ASSERT_EQ(qvniFilterMedianBorderGetBufferSize(p.roi, p.mask, p.type, p.C, &n), qvnOk);
        EXPECT_EQ(n, p.size) << p.mask.width << "x" << p.mask.height;
    }
    int n = 7;
    EXPECT_EQ(qvniFilterMedianBorderGetBufferSize({3, 3}, {3, 3}, qvn32f, 3, &n), qvnErrDataType);
    EXPECT_EQ(qvniFilterMedianBorderGetBufferSize({3, 3}, {3, 3}, qvn8u, 2, &n), qvnErrChannelCount);
    EXPECT_EQ(qvniFilterMedianBorderGetBufferSize({3, 3}, {3, 3}, qvn64f, 1, &n), qvnErrDataType);
    EXPECT_EQ(qvniFilterMedianBorderGetBufferSize({3, 3}, {3, 2}, qvn64f, 1, &n), qvnErrMaskSize);
    EXPECT_EQ(qvniFilterMedianBorderGetBufferSize({1000000, 3000}, {301, 301}, qvn8u, 4, &n), qvnErrSizeOverflow);
    EXPECT_EQ(n, 0);
    EXPECT_EQ(qvniFilterMaxBorderGetBufferSize({3, 3}, {2, 4}, qvn8u, 2, &n), qvnErrChannelCount);
    EXPECT_EQ(qvniFilterMinBorderGetBufferSize({3, 3}, {0, 4}, qvn8u, 1, &n), qvnErrMaskSize);
}

// The family's own checks, in their order, and the 1 x 1 rules.
TEST(FilterRank, ChecksAndOneByOneMasks) {
    std::vector<Qvn16u> src(64, 9), dst(64, 1);
    std::vector<Qvn8u> buffer(4096);
    const auto med16 = [&](int ss, QvnRoiSize mask, int border, const Qvn16u* s) {
        return qvniFilterMedianBorder_16u_C1R(s, ss, dst.data(), 16, {8, 8}, mask, border, 0, buffer.data());
    };
    EXPECT_EQ(med16(101, {2, 3}, 3, src.data()), qvnErrStepMultiple);
    EXPECT_EQ(med16(16, {2, 3}, 3, src.data()), qvnErrMaskSize);
    EXPECT_EQ(med16(16, {3, 3}, 3, src.data()), qvnErrBorderKind);  // mirror is not offered
    for (int border : {0, 2, 4, 7, 16, 112, 256, 3 | 240})
        EXPECT_EQ(med16(16, {3, 3}, border, src.data()), qvnErrBorderKind) << border;
    EXPECT_EQ(qvniFilterMedianBorder_8u_C3R(reinterpret_cast<const Qvn8u*>(src.data()), 24,
                                            reinterpret_cast<Qvn8u*>(dst.data()), 24, {8, 1}, {3, 3}, qvnBorderConstant,
                                            nullptr, buffer.data()), qvnErrNullPointer);
    EXPECT_EQ(std::count(dst.begin(), dst.end(), 1), 64);
    // a 1 x 1 median copies; in place it touches nothing
    EXPECT_EQ(med16(16, {1, 1}, qvnBorderReplicate, src.data()), qvnOk);
    EXPECT_EQ(dst[63], 9);
    EXPECT_EQ(qvniFilterMedianBorder_16u_C1R(dst.data(), 16, dst.data(), 16, {8, 8}, {1, 1}, 1, 0, nullptr),
              qvnErrNullPointer);
    // min and max: even masks and mirror are accepted; a 1 x 1 mask copies
    // with qvnBorderInMem only
    std::vector<Qvn8u> a(64, 4), b(64, 1);
    EXPECT_EQ(qvniFilterMaxBorder_8u_C1R(a.data(), 8, b.data(), 8, {8, 8}, {2, 4}, qvnBorderMirror, 0, buffer.data()), qvnOk);
    EXPECT_EQ(b[0], 4);
    b.assign(64, 1);
    EXPECT_EQ(qvniFilterMinBorder_8u_C1R(a.data(), 8, b.data(), 8, {8, 8}, {1, 1}, qvnBorderReplicate, 0, buffer.data()),
              qvnWarnNoOperation);
    EXPECT_EQ(b[0], 1);
    EXPECT_EQ(qvniFilterMinBorder_8u_C1R(a.data(), 8, b.data(), 8, {8, 8}, {1, 1}, qvnBorderInMem, 0, buffer.data()), qvnOk);
    EXPECT_EQ(b[0], 4);
    EXPECT_EQ(qvniFilterMaxBorder_8u_C1R(a.data(), 8, b.data(), 8, {8, 8}, {0, 1}, 16, 0, buffer.data()), qvnErrMaskSize);
    EXPECT_EQ(qvniFilterMaxBorder_8u_C1R(a.data(), 8, b.data(), 8, {8, 8}, {1, 2}, 16, 0, buffer.data()), qvnErrBorderKind);
}

// The median of 1..9 in any order is 5 for every method; a constant image
// stays constant whatever the mask (the 15 and 17 sides switch counters).
TEST(FilterRank, MedianOfNineAndConstantImages) {
    std::vector<Qvn8u> nine = {3, 9, 1, 7, 5, 2, 8, 4, 6}, out(9);
    std::vector<Qvn8u> buffer(1 << 16);
    // one pixel in the middle, its neighbours read from memory
    ASSERT_EQ(qvniFilterMedianBorder_8u_C1R(nine.data() + 4, 3, out.data(), 3, {1, 1}, {3, 3}, qvnBorderInMem, 0,
                                            buffer.data()), qvnOk);
    EXPECT_EQ(out[0], 5);
    for (int side : {15, 17}) {
        std::vector<Qvn8u> flat(40 * 30, 77), got(flat.size());
        int n = 0;
        ASSERT_EQ(qvniFilterMedianBorderGetBufferSize({40, 30}, {side, side}, qvn8u, 1, &n), qvnOk);
        buffer.resize(std::size_t(n));
        ASSERT_EQ(qvniFilterMedianBorder_8u_C1R(flat.data(), 40, got.data(), 40, {40, 30}, {side, side}, qvnBorderReplicate,
                                                0, buffer.data()), qvnOk);
        EXPECT_EQ(std::count(got.begin(), got.end(), 77), 40 * 30) << side;
    }
}

}  // namespace
}  // namespace qvn::test

namespace qvn::test {
namespace {
// Small shapes against masks around them: the buffer's parts (strips, the
// whole copy, bands, the method's area) fit the queried size exactly.
TEST(FilterRank, SmallShapesFitTheirBuffers) {
    const RankCase<Qvn8u> med{"8u C1", Rank::kMedian, 1, false, QVN_RANK1(qvniFilterMedianBorder_8u_C1R)};
    const RankCase<Qvn16u> med3{"16u C3", Rank::kMedian, 3, false, qvniFilterMedianBorder_16u_C3R};
    const RankCase<Qvn32f> max{"Max 32f C1", Rank::kMax, 1, false, QVN_RANK1(qvniFilterMaxBorder_32f_C1R)};
    std::uint32_t seed = 1;
    for (int w : {1, 2, 3, 6})
        for (int h : {1, 2, 4})
            for (int mw : {1, 3, 7})
                for (int mh : {1, 3, 5}) {
                    for (std::size_t b : {std::size_t(0), std::size_t(2), std::size_t(4)})
                        for (bool inPlace : {false, true}) {
                            ++seed;
                            scene(med, {w, h}, {mw, mh}, kBorders[b], inPlace, seed);
                            scene(med3, {w, h}, {mw, mh}, kBorders[b], inPlace, seed);
                            scene(max, {w, h}, {mw + 1, mh}, kBorders[b], inPlace, seed);
                            if (testing::Test::HasFailure()) return;
                        }
                }
}
}  // namespace
}  // namespace qvn::test
