// The box filter and the window sums against the reference model: every
// border kind and in-memory side, masks of both parities, as large as the ROI
// and larger, rows longer than the row chunks, in place, every type and
// layout; exact for integer images and for 32f pixels whose sums are exact,
// within the float error otherwise (with the same bits on every target).
// Then the size query's formula and that every layout the driver uses fits
// it, the checks, the row and column sums and the older 64f mean.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "filter/box-inl.h"
#include "qvnip.h"
#include "support/bordered.h"

namespace qvn::test {
namespace {

template <class S, class D>
using BoxFn = QvnStatus (*)(const S*, int, D*, int, QvnRoiSize, QvnRoiSize, QvnBorderKind, const S*, Qvn8u*);

template <class T>
int dataTypeOf() {
    return std::is_same_v<T, Qvn8u> ? qvn8u : std::is_same_v<T, Qvn16u> ? qvn16u : std::is_same_v<T, Qvn16s> ? qvn16s : qvn32f;
}

// The result of one window's exact sum of n pixels: the mean's
// floor(float(sum) * (1 / n) + 0.5) saturated (float images: float(sum) * (1 / n)),
// or the sum in the destination type.
template <class D>
D expected(double sum, std::int64_t n, bool mean) {
    const float f = static_cast<float>(sum);
    if (!mean) return std::is_floating_point_v<D> ? D(f) : D(sum);
    const float x = f * (1.0f / static_cast<float>(n));
    if constexpr (std::is_floating_point_v<D>) return x;
    else return ref::saturated<D>(std::int64_t(std::floor(x + 0.5f)));
}

struct Scene {
    QvnRoiSize roi, mask;
};

template <class S, class D>
struct BoxCase {
    std::string name;
    BoxFn<S, D> fn;
    int elems;
    bool alpha, mean;
};

// One call on a bordered source (in place: the destination is the source's
// ROI), then every element against the model: within tol of the window's
// double sum when tol > 0 (and the same bits on every target), exactly
// otherwise.
template <class S, class D>
void runScene(const BoxCase<S, D>& c, const Scene& sc, const BorderCase& bc, std::uint32_t seed, bool inPlace,
              double tol = 0) {
    const int w = sc.roi.width, h = sc.roi.height, kw = sc.mask.width, kh = sc.mask.height, C = c.elems;
    const int ax = (kw - 1) / 2, ay = (kh - 1) / 2;
    BorderedSource<S> src(w, h, C, ax, ay, kw - 1 - ax, kh - 1 - ay, bc, seed);
    if constexpr (std::is_floating_point_v<S>)
        if (tol > 0) {  // full mantissas
            std::mt19937 rng(seed);
            std::uniform_real_distribution<S> noise(-1, 1);
            for (std::int64_t y = 0; y < src.img.height(); ++y)
                for (std::int64_t e = 0; e < src.img.rowElems(); ++e) src.img.at(e, y) += noise(rng);
            src.img.snapshot();
        }
    GuardedImage<D> out(placed(w, h, C, -1, seed, 1));
    int size = 0;
    ASSERT_EQ(qvniFilterBoxBorderGetBufferSize(sc.roi, sc.mask, dataTypeOf<S>(), C, &size), qvnOk);
    const auto buffer = guardedBytes(size, seed);
    const S value[4] = {S(7), S(100), S(33), S(5)};
    D* dst = out.data();
    int dstStep = int(out.step());
    GuardedBuffer* written = &out;
    std::vector<const GuardedBuffer*> inputs = {&src.img};
    if constexpr (std::is_same_v<S, D>)
        if (inPlace) dst = src.roi(), dstStep = src.step(), written = &src.img, inputs.clear();
    const QvnStatus s = callUnderTest(inputs, {written}, [&] {
        return c.fn(src.roi(), src.step(), dst, dstStep, sc.roi, sc.mask, bc.border, value, buffer->data());
    }, FE_UPWARD, tol > 0, std::is_floating_point_v<D> ? int(sizeof(D)) : 0);
    const std::string what = c.name + (inPlace ? " in place " : " ") + std::to_string(w) + "x" + std::to_string(h) +
                             " mask " + std::to_string(kw) + "x" + std::to_string(kh) + " border " +
                             std::to_string(bc.border) + " seed " + std::to_string(seed);
    ASSERT_EQ(s, qvnOk) << what;
    const auto old = [&](std::int64_t e, std::int64_t y) {
        return inPlace ? src.img.saved(src.l * C + e, src.t + y) : out.saved(e, y);
    };
    for (int y = 0; y < h; ++y)
        for (int e = 0; e < w * C; ++e) {
            const int x = e / C, ch = e % C;
            const D got = byteOffset(dst, std::int64_t(y) * dstStep)[e];
            double sum = 0, mag = 0;
            for (int j = 0; j < kh; ++j)
                for (int i = 0; i < kw; ++i) {
                    const double v = double(src.at(x - ax + i, y - ay + j, ch, value));
                    sum += v, mag += std::fabs(v);
                }
            const D want = c.alpha && ch == 3 ? D(old(e, y)) : expected<D>(sum, std::int64_t(kw) * kh, c.mean);
            // integer means within half a unit of the exact one, beyond the float error
            const double n = c.mean ? double(kw) * kh : 1, half = std::is_integral_v<D> ? 0.5 : 0;
            const bool ok = tol > 0 && !(c.alpha && ch == 3)
                                ? std::fabs(double(got) - sum / n) <= half + tol * mag / n + 1e-30
                                : sameValue(got, want);
            if (!ok) {
                ADD_FAILURE() << what << " at (" << x << ", " << y << ", " << ch << ") got " << printable(got) << " want "
                              << printable(want);
                return;
            }
        }
    if (inPlace)  // the neighbours read from memory stay as they were
        for (std::int64_t y = 0; y < src.img.height(); ++y)
            for (std::int64_t e = 0; e < src.img.rowElems(); ++e)
                if (!src.inRoi(e, y) && !sameValue(src.img.at(e, y), src.img.saved(e, y))) {
                    ADD_FAILURE() << what << ": element " << e << " of source row " << y << " changed";
                    return;
                }
}

// Single pixels, even and odd masks, masks as large as the ROI and larger,
// one-row and one-column masks, rows longer than a chunk of window sums and
// (three or four channels) than a band of exact sums.
const std::vector<Scene> kScenes = {
    {{1, 1}, {1, 1}},   {{5, 4}, {2, 2}},    {{37, 5}, {3, 3}},  {{70, 9}, {5, 4}},    {{131, 12}, {4, 5}},
    {{3, 17}, {7, 1}},  {{150, 3}, {1, 7}},  {{2, 3}, {5, 5}},   {{9, 6}, {9, 3}},     {{33, 12}, {31, 11}},
    {{6, 5}, {2, 9}},   {{700, 3}, {4, 3}},  {{2100, 2}, {6, 3}}, {{1400, 3}, {9, 4}}};

// Every scene with every border case (or, with full unset, one border case
// per scene, taken in turn), out of place and, where the types match, in place.
template <class S, class D>
void sweep(const BoxCase<S, D>& c, bool full) {
    std::uint32_t seed = std::uint32_t(std::hash<std::string>{}(c.name));
    const auto& borders = borderCases();
    for (std::size_t k = 0; k < kScenes.size(); ++k)
        for (std::size_t b = 0; b < borders.size(); ++b) {
            if (!full && b != (k + seed) % borders.size()) continue;
            runScene(c, kScenes[k], borders[b], ++seed, false);
            if (std::is_same_v<S, D> && (full || k % 2 == 0)) runScene(c, kScenes[k], borders[b], ++seed, true);
            if (testing::Test::HasFailure()) return;
        }
}

#define QVN_BOX(T, C, elems, full) \
    sweep<Qvn##T, Qvn##T>({#T " " #C, qvniFilterBoxBorder_##T##_##C##R, elems, std::string(#C) == "AC4", true}, full)
#define QVN_SUMS(S, D, T, C, elems) \
    sweep<S, D>({"sums " #T " " #C, qvniSumWindow_##T##_##C##R, elems, std::string(#C) == "AC4", false}, false)

TEST(FilterBox, MeansAreExactForEveryBorderAndMask) {
    QVN_BOX(8u, C1, 1, true);
    QVN_BOX(8u, C3, 3, false);
    QVN_BOX(8u, C4, 4, false);
    QVN_BOX(8u, AC4, 4, false);
    QVN_BOX(16u, C1, 1, false);
    QVN_BOX(16u, C3, 3, false);
    QVN_BOX(16u, AC4, 4, false);
    QVN_BOX(16s, C1, 1, false);
    QVN_BOX(16s, C4, 4, false);
    QVN_BOX(16s, AC4, 4, false);
    QVN_BOX(32f, C1, 1, false);
    QVN_BOX(32f, C3, 3, true);
    QVN_BOX(32f, C4, 4, false);
    QVN_BOX(32f, AC4, 4, false);
}

TEST(FilterBox, WindowSumsAreExact) {
    QVN_SUMS(Qvn8u, Qvn32s, 8u32s, C1, 1);
    QVN_SUMS(Qvn8u, Qvn32s, 8u32s, C3, 3);
    QVN_SUMS(Qvn8u, Qvn32s, 8u32s, AC4, 4);
    QVN_SUMS(Qvn16u, Qvn32f, 16u32f, C4, 4);
    QVN_SUMS(Qvn16s, Qvn32f, 16s32f, C1, 1);
    QVN_SUMS(Qvn16s, Qvn32f, 16s32f, AC4, 4);
    QVN_SUMS(Qvn32f, Qvn32f, 32f, C3, 3);
}

// Sums that float cannot hold exactly: 32f pixels with full mantissas, and
// 16u masks whose sums pass 31 bits (float column sums); within the float
// error of the running sums, the same bits on every target.
TEST(FilterBox, FloatSumsFollowTheDoubleSum) {
    const BoxCase<Qvn32f, Qvn32f> f1{"32f C1", qvniFilterBoxBorder_32f_C1R, 1, false, true};
    const BoxCase<Qvn32f, Qvn32f> s3{"sums 32f C3", qvniSumWindow_32f_C3R, 3, false, false};
    std::uint32_t seed = 500;
    for (const Scene& sc : {kScenes[4], kScenes[9], kScenes[12]})
        for (const BorderCase& bc : {borderCases()[0], borderCases()[1], borderCases()[5]}) {
            runScene(f1, sc, bc, ++seed, false, 1e-5);
            runScene(s3, sc, bc, ++seed, false, 1e-5);
        }
    const BoxCase<Qvn16u, Qvn16u> wide{"16u C1, 33000-pixel mask", qvniFilterBoxBorder_16u_C1R, 1, false, true};
    for (const BorderCase& bc : borderCases()) runScene(wide, {{7, 4}, {200, 165}}, bc, ++seed, false, 1e-5);
}

// The spec's small cases: a 1 x 1 mask copies; a 2 x 2 mask's anchor is its
// first pixel; eight 0s and one 9 average to 1 (9 x (1/9) + 0.5, truncated).
TEST(FilterBox, SmallMasksFollowTheirAnchor) {
    std::vector<Qvn8u> buffer(4096);
    const Qvn8u src[6] = {0, 4, 8, 12, 16, 21};
    Qvn8u dst[6] = {};
    ASSERT_EQ(qvniFilterBoxBorder_8u_C1R(src, 3, dst, 3, {3, 2}, {2, 2}, qvnBorderReplicate, nullptr, buffer.data()), qvnOk);
    EXPECT_EQ(std::vector<Qvn8u>(dst, dst + 6), (std::vector<Qvn8u>{8, 12, 15, 14, 19, 21}));
    ASSERT_EQ(qvniFilterBoxBorder_8u_C1R(src, 3, dst, 3, {3, 2}, {1, 1}, qvnBorderConstant, src, buffer.data()), qvnOk);
    EXPECT_EQ(std::vector<Qvn8u>(dst, dst + 6), std::vector<Qvn8u>(src, src + 6));
    const Qvn8u nine[9] = {0, 0, 0, 0, 9, 0, 0, 0, 0};
    Qvn8u one = 0;
    ASSERT_EQ(qvniFilterBoxBorder_8u_C1R(nine + 4, 3, &one, 1, {1, 1}, {3, 3}, qvnBorderInMem, nullptr, buffer.data()), qvnOk);
    EXPECT_EQ(one, 1);
}

TEST(FilterBox, ChecksComeInTheirOrder) {
    // a 4 x 4 ROI with a pixel of memory around it, and the destination after it
    std::vector<Qvn8u> buffer(4096), img(128, 3);
    Qvn8u* p = img.data() + 9;
    const auto call = [&](int border, const Qvn8u* value, QvnRoiSize mask = {3, 3}, int step = 8, QvnRoiSize roi = {4, 4}) {
        return qvniFilterBoxBorder_8u_C1R(p, step, img.data() + 64, 8, roi, mask, border, value, buffer.data());
    };
    for (int border : {1, 3, 6, 240, 241, 81, 6 | 128, 3 | 240, 1 | 16 | 32 | 64 | 128})
        EXPECT_EQ(call(border, p), qvnOk) << border;
    for (int border : {0, 2, 4, 5, 7, 8, 16, 32, 112, 256, 257, 262, -1})
        EXPECT_EQ(call(border, p), qvnErrBorderKind) << border;
    EXPECT_EQ(call(6 | 256, nullptr), qvnErrBorderKind);  // the kind first, then its value
    EXPECT_EQ(call(16, nullptr), qvnErrBorderKind);
    EXPECT_EQ(call(6, nullptr), qvnErrNullPointer);
    EXPECT_EQ(call(6 | 64, nullptr), qvnErrNullPointer);
    EXPECT_EQ(call(0, nullptr, {3, 0}), qvnErrMaskSize);
    EXPECT_EQ(call(0, nullptr, {-1, 3}, 8, {0, 4}), qvnErrSize);
    EXPECT_EQ(call(0, nullptr, {0, 3}, 0, {0, 4}), qvnErrStep);  // steps before the ROI
    EXPECT_EQ(std::vector<Qvn8u>(img.begin() + 64, img.end()), std::vector<Qvn8u>(64, 3)) << "written on error";
}

// The size query at hand-computed points: strips 4C x S, the column-sum row,
// the copy area (the whole bordered image when the interior is not larger
// than the mask), the row pointers.
TEST(FilterBox, SizeQueryFollowsTheFormula) {
    struct Point {
        QvnRoiSize roi, mask;
        int type, channels, bytes;
    };
    const Point points[] = {
        {{100, 50}, {5, 5}, qvn8u, 1, 7584 + 432 + 364 + 24},  // S = (6 x 54 + 6 x 104) x 2
        {{10, 8}, {2, 2}, qvn32f, 3, 1200 + 240 + 184 + 8},    // S = (2 x 9 + 2 x 11) x 2 + 11 + 9
        {{4, 3}, {5, 5}, qvn16s, 4, 2880 + 192 + 448 + 24},    // the whole 8 x 7 image
        {{7, 5}, {1, 1}, qvn8u, 1, 0 + 44 + 71 + 8},
    };
    for (const Point& p : points) {
        int a = -1, b = -1;
        ASSERT_EQ(qvniFilterBoxBorderGetBufferSize(p.roi, p.mask, p.type, p.channels, &a), qvnOk);
        ASSERT_EQ(qvniSumWindowGetBufferSize(p.roi, p.mask, p.type, p.channels, &b), qvnOk);
        EXPECT_EQ(a, p.bytes) << p.roi.width << "x" << p.roi.height << " mask " << p.mask.width << "x" << p.mask.height;
        EXPECT_EQ(b, p.bytes);
    }
    int n = 7;
    EXPECT_EQ(qvniFilterBoxBorderGetBufferSize({30000, 30000}, {30000, 30000}, qvn32f, 4, &n), qvnErrSizeOverflow);
    EXPECT_EQ(qvniFilterBoxBorderGetBufferSize({INT32_MAX, INT32_MAX}, {INT32_MAX, 1}, qvn32f, 4, &n), qvnErrSizeOverflow);
    EXPECT_EQ(n, 7);
    EXPECT_EQ(qvniFilterBoxBorderGetBufferSize({0, 1}, {0, 1}, 2, 2, nullptr), qvnErrNullPointer);
    EXPECT_EQ(qvniFilterBoxBorderGetBufferSize({0, 1}, {0, 1}, 2, 2, &n), qvnErrSize);
    EXPECT_EQ(qvniFilterBoxBorderGetBufferSize({1, 1}, {1, 0}, 2, 2, &n), qvnErrMaskSize);
    EXPECT_EQ(qvniFilterBoxBorderGetBufferSize({1, 1}, {1, 1}, qvn64f, 2, &n), qvnErrDataType);
    EXPECT_EQ(qvniFilterBoxBorderGetBufferSize({1, 1}, {1, 1}, qvn8u, 2, &n), qvnErrChannelCount);
    EXPECT_EQ(n, 7);
}

// Every layout the driver may use (whole copy, side strips, constant row,
// ring), from the buffer's first 4-byte boundary, fits the bytes the query
// reports.
TEST(FilterBox, EveryLayoutFitsTheBuffer) {
    namespace f = qvn::sse3::filter;
    const int sizes[] = {1, 2, 3, 5, 17, 64}, masks[] = {1, 2, 3, 4, 7, 16, 65};
    const int borders[] = {1, 6, 240, 6 | 64, 3 | 16, 6 | 16 | 32};
    for (int W : sizes)
        for (int H : sizes)
            for (int kw : masks)
                for (int kh : masks)
                    for (int C : {1, 3, 4})
                        for (int e : {1, 2, 4})
                            for (int border : borders)
                                for (bool inPlace : {false, true}) {
                                    const std::int64_t have = f::boxBufferBytes(W, H, kw, kh, C, e);
                                    const std::int64_t need = f::boxLayout(W, H, f::reachOf(kw, kh), C, e, border, inPlace).end + 3;
                                    ASSERT_LE(need, have) << W << "x" << H << " mask " << kw << "x" << kh << " C " << C
                                                          << " e " << e << " border " << border << " in place " << inPlace;
                                }
}

// ---- row and column sums ----------------------------------------------------------------------------
template <class S>
using LineFn = QvnStatus (*)(const S*, int, Qvn32f*, int, QvnRoiSize, int, int);

// dst(e, y) = float(exact sum of mask elements along the axis), the source
// read around the ROI from anchor before to mask - 1 - anchor after.
template <class S>
void runLine(const char* name, LineFn<S> fn, int C, bool rows, int w, int h, int mask, int anchor, std::uint32_t seed) {
    const int before = anchor, after = mask - 1 - anchor;
    GuardedImage<S> src(placed(w + (rows ? before + after : 0), h + (rows ? 0 : before + after), C, -1, seed, 0));
    std::mt19937 rng(seed);
    for (std::int64_t y = 0; y < src.height(); ++y)
        for (std::int64_t e = 0; e < src.rowElems(); ++e) src.at(e, y) = randomPixel<S>(rng);
    src.snapshot();
    GuardedImage<Qvn32f> dst(placed(w, h, C, -1, seed, 1));
    const S* roi = rows ? src.data() + before * C : src.row(before);
    const QvnStatus s = callUnderTest({&src}, {&dst}, [&] { return fn(roi, int(src.step()), dst.data(), int(dst.step()), {w, h}, mask, anchor); });
    ASSERT_EQ(s, qvnOk) << name;
    expectRoi(dst, C, [&](std::int64_t e, std::int64_t y) {
        std::int64_t sum = 0;
        for (int k = 0; k < mask; ++k) sum += rows ? src.saved(e + k * C, y) : src.saved(e, y + k);
        return static_cast<float>(sum);
    }, std::string(name) + " mask " + std::to_string(mask) + " anchor " + std::to_string(anchor));
}

template <class S>
void sweepLines(const char* name, LineFn<S> row, LineFn<S> column, int C) {
    std::uint32_t seed = 900;
    for (int w : {1, 3, 17, 70, 1100})
        for (int mask : {1, 2, 5, 31})
            for (int anchor : {0, mask / 2, mask - 1}) {
                seed += 2;
                runLine(name, row, C, true, w, 1 + int(seed % 4), mask, anchor, seed);
                runLine(name, column, C, false, w, 2 + int(seed % 3), mask, anchor, seed + 1);
                if (testing::Test::HasFailure()) return;
            }
}

TEST(SumWindowLines, AreExactSumsOfTheirNeighbours) {
    sweepLines<Qvn8u>("8u C1", qvniSumWindowRow_8u32f_C1R, qvniSumWindowColumn_8u32f_C1R, 1);
    sweepLines<Qvn8u>("8u C3", qvniSumWindowRow_8u32f_C3R, qvniSumWindowColumn_8u32f_C3R, 3);
    sweepLines<Qvn16u>("16u C4", qvniSumWindowRow_16u32f_C4R, qvniSumWindowColumn_16u32f_C4R, 4);
    sweepLines<Qvn16s>("16s C1", qvniSumWindowRow_16s32f_C1R, qvniSumWindowColumn_16s32f_C1R, 1);
    // masks whose sums pass 31 bits: 64-bit sums, rounded once
    runLine<Qvn16u>("16u C1 row", qvniSumWindowRow_16u32f_C1R, 1, true, 5, 2, 40000, 17, 1);
    runLine<Qvn16s>("16s C3 column", qvniSumWindowColumn_16s32f_C3R, 3, false, 4, 3, 70000, 69999, 2);
}

TEST(SumWindowLines, CheckAnchorsAndAcceptEmptyHeights) {
    const Qvn8u src[64] = {};
    Qvn32f dst[16];
    std::fill(dst, dst + 16, -1.0f);
    const auto call = [&](QvnRoiSize roi, int mask, int anchor) {
        return qvniSumWindowRow_8u32f_C1R(src + 8, 16, dst, 16, roi, mask, anchor);
    };
    EXPECT_EQ(call({4, 2}, 3, 3), qvnErrAnchor);
    EXPECT_EQ(call({4, 2}, 3, -1), qvnErrAnchor);
    EXPECT_EQ(call({4, 2}, 0, 0), qvnErrMaskSize);
    EXPECT_EQ(call({0, 2}, 0, 0), qvnErrSize);
    EXPECT_EQ(call({4, 0}, 3, 4), qvnErrAnchor);
    EXPECT_EQ(call({4, 0}, 3, 1), qvnOk);
    EXPECT_EQ(call({4, -5}, 3, 1), qvnOk);
    EXPECT_EQ(qvniSumWindowColumn_16s32f_C3R(nullptr, 16, dst, 16, {4, 0}, 3, 1), qvnErrNullPointer);
    EXPECT_EQ(std::vector<Qvn32f>(dst, dst + 16), std::vector<Qvn32f>(16, -1.0f)) << "written";
}

// ---- the older 64f mean --------------------------------------------------------------------------------
TEST(FilterBox64f, IsTheDoubleMeanAroundTheCallersAnchor) {
    std::uint32_t seed = 70;
    for (const Scene& sc : {Scene{{1, 1}, {1, 1}}, Scene{{37, 5}, {3, 3}}, Scene{{9, 4}, {4, 6}}, Scene{{1500, 3}, {7, 2}}})
        for (const QvnPoint anchor : {QvnPoint{0, 0}, QvnPoint{(sc.mask.width - 1) / 2, sc.mask.height - 1}}) {
            const int w = sc.roi.width, h = sc.roi.height, mw = sc.mask.width, mh = sc.mask.height;
            GuardedImage<Qvn64f> src(placed(w + mw - 1, h + mh - 1, 1, -1, ++seed, 0)), dst(placed(w, h, 1, -1, seed, 1));
            std::mt19937 rng(seed);
            std::uniform_real_distribution<double> u(-1000, 1000);
            for (std::int64_t y = 0; y < src.height(); ++y)
                for (std::int64_t x = 0; x < src.width(); ++x) src.at(x, y) = u(rng);
            src.snapshot();
            const Qvn64f* roi = src.row(anchor.y) + anchor.x;
            ASSERT_EQ(callUnderTest({&src}, {&dst}, [&] {
                return qvniFilterBox_64f_C1R(roi, int(src.step()), dst.data(), int(dst.step()), sc.roi, sc.mask, anchor);
            }, FE_UPWARD, true, 8), qvnOk);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x) {
                    long double sum = 0, mag = 0;
                    for (int j = 0; j < mh; ++j)
                        for (int i = 0; i < mw; ++i) sum += src.saved(x + i, y + j), mag += std::fabs(src.saved(x + i, y + j));
                    ASSERT_NEAR(dst.at(x, y), double(sum / (mw * mh)), double(mag) * 1e-13 * (h + mw)) << w << "x" << h << " at " << x << ", " << y;
                }
        }
    std::vector<Qvn64f> img(64);
    EXPECT_EQ(qvniFilterBox_64f_C1R(img.data(), 64, img.data() + 32, 32, {4, 2}, {0, 3}, {0, 0}), qvnErrSize);
    EXPECT_EQ(qvniFilterBox_64f_C1R(img.data(), 47, img.data() + 32, 32, {4, 2}, {3, 3}, {0, 0}), qvnErrStep);
    EXPECT_EQ(qvniFilterBox_64f_C1R(img.data(), 48, img.data() + 32, 31, {4, 2}, {3, 3}, {0, 0}), qvnErrStep);
}

}  // namespace
}  // namespace qvn::test
