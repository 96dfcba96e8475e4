// qvniMirror and qvniTranspose against their index maps, out of place and in
// place, on guarded images; the cache-size queries of the forms that make them.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "qvnip.h"
#include "support/cache_double.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

template <class T>
using MirrorFn = QvnStatus (*)(const T* s, std::int64_t ss, T* d, std::int64_t ds, QvnRoiSize r, int axis);
template <class T>
using MirrorInPlaceFn = QvnStatus (*)(T* p, std::int64_t step, QvnRoiSize r, int axis);

// Widths around every vector length in pixels; the in-place row reversal
// takes blocks from both ends only from two vectors on.
const std::vector<int> kMirrorWidths = {1, 2, 3, 5, 7, 15, 16, 17, 31, 33, 47, 63, 64, 65, 100, 127, 128, 129, 255, 300};

template <class T>
void sweepMirror(const char* name, int k, bool alpha, MirrorFn<T> out, MirrorInPlaceFn<T> in) {
    forEachShape(kMirrorWidths, {1, 2, 3, 7}, [&](int w, int h, int gap, bool page, std::uint32_t seed) {
        for (int axis = 0; axis < 3; ++axis) {
            GuardedImage<T> src({w, h, k, gap, page, seed}), dst({w, h, k, gap, !page, seed * 7});
            const std::vector<T> before = roiContents(dst), srcBefore = roiContents(src);
            const auto model = [&](const std::vector<T>& old) {
                return [&, old](std::int64_t e, std::int64_t y) {
                    const std::int64_t x = e / k, c = e % k;
                    if (alpha && c == 3) return old[y * w * k + e];
                    const std::int64_t sx = axis != 0 ? w - 1 - x : x, sy = axis != 1 ? h - 1 - y : y;
                    return srcBefore[sy * w * k + sx * k + c];
                };
            };
            const std::string where = std::string(name) + " axis " + std::to_string(axis);
            ASSERT_EQ(out(src.data(), src.step(), dst.data(), dst.step(), {w, h}, axis), qvnOk) << where;
            expectRoi(dst, k, model(before), where);
            dst.expectUntouchedOutsideRoi();
            src.expectUnchanged();
            ASSERT_EQ(in(src.data(), src.step(), {w, h}, axis), qvnOk) << where;
            expectRoi(src, k, model(srcBefore), where + " in place");
            src.expectUntouchedOutsideRoi();
        }
    });
}

#define QVN_MIRROR(t, T, form, k, alpha)                                                                   \
    sweepMirror<T>("Mirror_" #t "_" #form, k, alpha,                                                       \
                   +[](const T* s, std::int64_t ss, T* d, std::int64_t ds, QvnRoiSize r, int a) {          \
                       return qvniMirror_##t##_##form##R(s, int(ss), d, int(ds), r, a);                    \
                   },                                                                                      \
                   +[](T* p, std::int64_t st, QvnRoiSize r, int a) { return qvniMirror_##t##_##form##IR(p, int(st), r, a); });

TEST(Mirror, EveryAxisTypeAndLayout) {
#define X(t, T)                                                                                   \
    QVN_MIRROR(t, T, C1, 1, false) QVN_MIRROR(t, T, C3, 3, false) QVN_MIRROR(t, T, C4, 4, false) \
    QVN_MIRROR(t, T, AC4, 4, true)
    QVN_EACH_TYPE(X)
#undef X
}

TEST(Mirror, AxisIsCheckedUnsignedAfterTheSizes) {
    GuardedImage<Qvn16u> img({9, 4, 3, -1, true, 3});
    const int st = int(img.step());
    for (int axis : {3, -1, 1 << 30}) {
        EXPECT_EQ(qvniMirror_16u_C3IR(img.data(), st, {9, 4}, axis), qvnErrAxis);
        EXPECT_EQ(qvniMirror_16u_C3R(img.data(), st, img.data(), st, {9, 4}, axis), qvnErrAxis);
    }
    EXPECT_EQ(qvniMirror_16u_C3IR(img.data(), st, {9, 0}, 3), qvnErrSize);
    // a single row about the horizontal axis returns at once, whatever the step
    EXPECT_EQ(qvniMirror_16u_C3IR(img.data(), 0, {9, 1}, qvnAxisHorizontal), qvnOk);
    img.expectUnchanged();
}

template <class T>
void sweepTranspose(const char* name, int k, QvnStatus (*out)(const T*, int, T*, int, QvnRoiSize),
                    QvnStatus (*in)(T*, int, QvnRoiSize)) {
    // 1 x N and N x 1, odd, square and not; blocks of 16 bytes and tiles of 64
    // units with and without remainders
    const std::vector<std::pair<int, int>> shapes = {{1, 1}, {1, 37}, {37, 1}, {5, 3},   {16, 16},
                                                     {17, 33}, {64, 64}, {65, 70}, {130, 67}, {200, 3}};
    std::uint32_t seed = 5;
    for (auto [w, h] : shapes) {
        ++seed;
        GuardedImage<T> src({w, h, k, -1, seed % 2 == 0, seed}), dst({h, w, k, -1, seed % 2 == 1, seed * 3});
        ASSERT_EQ(out(src.data(), int(src.step()), dst.data(), int(dst.step()), {w, h}), qvnOk);
        expectRoi(dst, k, [&](std::int64_t e, std::int64_t y) { return src.at(y * k + e % k, e / k); },
                  std::string(name) + " " + std::to_string(w) + "x" + std::to_string(h));
        dst.expectUntouchedOutsideRoi();
        src.expectUnchanged();
    }
    for (int n : {1, 2, 3, 15, 16, 17, 31, 32, 33, 65, 100}) {
        GuardedImage<T> img({n, n, k, -1, n % 2 == 0, std::uint32_t(n)});
        const std::vector<T> before = roiContents(img);
        ASSERT_EQ(in(img.data(), int(img.step()), {n, n}), qvnOk);
        expectRoi(img, k, [&](std::int64_t e, std::int64_t y) { return before[(e / k) * n * k + y * k + e % k]; },
                  std::string(name) + " in place " + std::to_string(n));
        img.expectUntouchedOutsideRoi();
    }
}

#define QVN_TRANSPOSE(t, T, form, k) \
    sweepTranspose<T>("Transpose_" #t "_" #form, k, qvniTranspose_##t##_##form##R, qvniTranspose_##t##_##form##IR);

TEST(Transpose, EveryShapeTypeAndLayout) {
#define X(t, T) QVN_TRANSPOSE(t, T, C1, 1) QVN_TRANSPOSE(t, T, C3, 3) QVN_TRANSPOSE(t, T, C4, 4)
    QVN_EACH_TYPE(X)
#undef X
    // complex pairs move as 8-byte units, seen here as two floats
    sweepTranspose<Qvn32f>(
        "Transpose_32fc_C1", 2,
        +[](const Qvn32f* s, int ss, Qvn32f* d, int ds, QvnRoiSize r) {
            return qvniTranspose_32fc_C1R(reinterpret_cast<const Qvn32fc*>(s), ss, reinterpret_cast<Qvn32fc*>(d), ds, r);
        },
        +[](Qvn32f* p, int st, QvnRoiSize r) {  // the same pointer and step: in place
            return qvniTranspose_32fc_C1R(reinterpret_cast<Qvn32fc*>(p), st, reinterpret_cast<Qvn32fc*>(p), st, r);
        });
}

TEST(Transpose, InPlaceNeedsASquareAlsoThroughTheOutOfPlaceForm) {
    GuardedImage<Qvn8u> img({5, 5, 1, -1, true, 9});
    const int st = int(img.step());
    EXPECT_EQ(qvniTranspose_8u_C1IR(img.data(), st, {4, 5}), qvnErrSize);
    EXPECT_EQ(qvniTranspose_8u_C1R(img.data(), st, img.data(), st, {4, 5}), qvnErrSize);
    EXPECT_EQ(qvniTranspose_8u_C1IR(nullptr, st, {4, 4}), qvnErrNullPointer);
    img.expectUnchanged();
}

TEST(Transpose, Only32sAsksForTheCacheSizeFromSide257) {
    resetCacheDouble();
    std::vector<Qvn32s> a(1000 * 256), b(1000 * 256);
    for (std::size_t i = 0; i < a.size(); ++i) a[i] = Qvn32s(i * 2654435761u);
    EXPECT_EQ(qvniTranspose_32s_C1R(a.data(), 4 * 1000, b.data(), 4 * 256, {1000, 256}), qvnOk);
    EXPECT_EQ(qvniTranspose_32f_C1R(reinterpret_cast<Qvn32f*>(a.data()), 4 * 300, reinterpret_cast<Qvn32f*>(b.data()),
                                    4 * 300, {300, 300}), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 0);
    // a small cache (super-tiles of one tile), a failed query, and a large one
    // plan differently and move the same pixels
    for (auto [size, status] : {std::pair{40000, 0}, {1 << 20, 1}, {64 << 20, 0}}) {
        cacheDouble().sizeBytes = size, cacheDouble().status = status;
        GuardedImage<Qvn32s> src({300, 280, 1, -1, true, 11}), dst({280, 300, 1, -1, false, 12});
        ASSERT_EQ(qvniTranspose_32s_C1R(src.data(), int(src.step()), dst.data(), int(dst.step()), {300, 280}), qvnOk);
        expectRoi(dst, 1, [&](std::int64_t x, std::int64_t y) { return src.at(y, x); }, "Transpose_32s_C1R");
        dst.expectUntouchedOutsideRoi();
    }
    EXPECT_EQ(cacheDouble().calls, 3);
    resetCacheDouble();
}

TEST(Mirror, FourChannelIntegerFormsStreamFromAMebibyteReadAndWritten) {
    resetCacheDouble();
    std::vector<Qvn8u> buf(8 * 131073 + 16);  // the 16u call writes 65537 eight-byte pixels from d
    Qvn8u* const s = buf.data();
    Qvn8u* const d = buf.data() + 4 * 131073;
    // 8u C4: 8 bytes per pixel read and written; 1,048,576 bytes stay below
    ASSERT_EQ(qvniMirror_8u_C4R(s, 4 * 131072, d, 4 * 131072, {131072, 1}, qvnAxisVertical), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 0);
    ASSERT_EQ(qvniMirror_8u_C4R(s, 4 * 131073, d, 4 * 131073, {131073, 1}, qvnAxisVertical), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 1);
    auto* s16 = reinterpret_cast<Qvn16u*>(s);
    auto* d16 = reinterpret_cast<Qvn16u*>(d);
    ASSERT_EQ(qvniMirror_16u_C4R(s16, 8 * 65537, d16, 8 * 65537, {65537, 1}, qvnAxisBoth), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 2);
    // 32f C4, AC4 and in-place forms never stream
    ASSERT_EQ(qvniMirror_32f_C4R(reinterpret_cast<Qvn32f*>(s), 16 * 32769, reinterpret_cast<Qvn32f*>(d), 16 * 32769,
                                 {32769, 1}, qvnAxisVertical), qvnOk);
    ASSERT_EQ(qvniMirror_8u_AC4R(s, 4 * 131073, d, 4 * 131073, {131073, 1}, qvnAxisVertical), qvnOk);
    ASSERT_EQ(qvniMirror_8u_C4IR(d, 4 * 131073, {131073, 1}, qvnAxisVertical), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 2);
    // past the threshold with a small cache the stores stream, to the same result
    cacheDouble().sizeBytes = 4096;
    for (int axis = 0; axis < 3; ++axis) {
        GuardedImage<Qvn32s> src({1025, 33, 4, -1, axis == 1, 21}), dst({1025, 33, 4, 3, axis != 1, 22});
        ASSERT_EQ(qvniMirror_32s_C4R(src.data(), int(src.step()), dst.data(), int(dst.step()), {1025, 33}, axis), qvnOk);
        expectRoi(dst, 4, [&](std::int64_t e, std::int64_t y) {
            const std::int64_t x = e / 4, sx = axis != 0 ? 1024 - x : x, sy = axis != 1 ? 32 - y : y;
            return src.at(sx * 4 + e % 4, sy);
        }, "streaming Mirror_32s_C4R");
        dst.expectUntouchedOutsideRoi();
    }
    EXPECT_EQ(cacheDouble().calls, 5);
    resetCacheDouble();
}

}  // namespace
}  // namespace qvn::test
