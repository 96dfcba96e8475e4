// qvniCopy, qvniCopyManaged, qvniDup and qvniSet against the channel-map
// model, on guarded images.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "qvnip.h"
#include "support/cache_double.h"
#include "support/sweep.h"

namespace qvn::test {
namespace {

using ref::ChannelMap;
constexpr int kKeep = ChannelMap::kKeep, kFill = ChannelMap::kFill;

ChannelMap map(int srcElems, int dstElems, std::initializer_list<int> from, std::initializer_list<double> fill = {}) {
    ChannelMap m;
    m.srcElems = srcElems, m.dstElems = dstElems;
    int i = 0;
    for (int f : from) m.from[i++] = f;
    i = 0;
    for (double v : fill) m.fill[i++] = v;
    return m;
}

// One sweep of qvni<fn>_<t>_<form> with its channel map and channel offsets;
// args are the call's arguments after the ROI (a mask) and before it (a value).
#define QVN_MOVE(fn, t, T, form, mp, sc, dc, masked, ...) \
    sweepMove<T>({#fn "_" #t "_" #form, mp, sc, dc, masked}, QVN_FN(T, qvni##fn##_##t##_##form(__VA_ARGS__)));
#define QVN_COPY(t, T, form, mp) QVN_MOVE(Copy, t, T, form, mp, 0, 0, false, s, int(ss), d, int(ds), r)
#define QVN_COPY_C(t, T, form, mp, sc, dc) QVN_MOVE(Copy, t, T, form, mp, sc, dc, false, s, int(ss), d, int(ds), r)
#define QVN_COPY_M(t, T, form, mp) QVN_MOVE(Copy, t, T, form, mp, 0, 0, true, s, int(ss), d, int(ds), r, m, int(ms))
#define QVN_SET(t, T, form, mp, v) QVN_MOVE(Set, t, T, form, mp, 0, 0, false, v, d, int(ds), r)
#define QVN_SET_M(t, T, form, mp, v) QVN_MOVE(Set, t, T, form, mp, 0, 0, true, v, d, int(ds), r, m, int(ms))

// Fill values, distinct per channel; three-value forms read the first three.
template <class T>
constexpr T kFills[4] = {11, 3, 250, 7};

TEST(Copy, WholePixelsMaskedAndLongForms) {
#define X(t, T)                                                                                         \
    QVN_COPY(t, T, C1R, map(1, 1, {0})) QVN_COPY_M(t, T, C1MR, map(1, 1, {0}))                          \
    QVN_COPY(t, T, C3R, map(3, 3, {0, 1, 2})) QVN_COPY_M(t, T, C3MR, map(3, 3, {0, 1, 2}))              \
    QVN_COPY(t, T, AC4R, map(4, 4, {0, 1, 2, kKeep})) QVN_COPY_M(t, T, AC4MR, map(4, 4, {0, 1, 2, kKeep})) \
    QVN_COPY_M(t, T, C4MR, map(4, 4, {0, 1, 2, 3}))                                                     \
    sweepMove<T>({"Copy_" #t "_C4R_L", map(4, 4, {0, 1, 2, 3})},                                        \
                 QVN_FN(T, qvniCopy_##t##_C4R_L(s, ss, d, ds, QvnRoiSizeL{r.width, r.height})));
    QVN_EACH_TYPE(X)
#undef X
    QVN_MOVE(CopyManaged, 8u, Qvn8u, C1R, map(1, 1, {0}), 0, 0, false, s, int(ss), d, int(ds), r, 0)  // flags 0
    QVN_MOVE(CopyManaged, 8u, Qvn8u, C1R, map(1, 1, {0}), 0, 0, false, s, int(ss), d, int(ds), r, 2)  // flags 2
}

TEST(Set, EveryForm) {
    const auto fills = [](std::initializer_list<int> from) { return map(4, 4, from, {11, 3, 250, 7}); };
    const ChannelMap c3 = map(3, 3, {kFill, kFill, kFill}, {11, 3, 250});
    const ChannelMap c4 = fills({kFill, kFill, kFill, kFill}), ac4 = fills({kFill, kFill, kFill, kKeep});
#define X(t, T)                                                                                         \
    QVN_SET(t, T, C1R, map(1, 1, {kFill}, {11}), T(11)) QVN_SET_M(t, T, C1MR, map(1, 1, {kFill}, {7}), T(7)) \
    QVN_SET(t, T, C3R, c3, kFills<T>) QVN_SET_M(t, T, C3MR, c3, kFills<T>)                              \
    QVN_SET(t, T, C4R, c4, kFills<T>) QVN_SET_M(t, T, C4MR, c4, kFills<T>)                              \
    QVN_SET(t, T, AC4R, ac4, kFills<T>) QVN_SET_M(t, T, AC4MR, ac4, kFills<T>)                          \
    QVN_MOVE(Set, t, T, C3CR, map(3, 3, {kKeep, kKeep, kFill}, {0, 0, 42}), 0, 2, false, T(42), d, int(ds), r) \
    QVN_MOVE(Set, t, T, C4CR, map(4, 4, {kKeep, kKeep, kKeep, kFill}, {0, 0, 0, 42}), 0, 3, false, T(42), d, int(ds), r)
    QVN_EACH_TYPE(X)
#undef X
    QVN_MOVE(Set, 8u, Qvn8u, C4CR, map(4, 4, {kKeep, kFill, kKeep, kKeep}, {0, 42}), 0, 1, false, 42, d, int(ds), r)
}

// Pointers address the chosen channel: the last one reaches the end of the
// row (the guarded images end at a protected page every other case).
TEST(Copy, OneChannelFormsAndLayoutChanges) {
#define X(t, T)                                                                                         \
    QVN_COPY_C(t, T, C3C1R, map(3, 1, {2}), 2, 0) QVN_COPY_C(t, T, C4C1R, map(4, 1, {3}), 3, 0)         \
    QVN_COPY_C(t, T, C1C3R, map(1, 3, {kKeep, kKeep, 0}), 0, 2)                                         \
    QVN_COPY_C(t, T, C1C4R, map(1, 4, {kKeep, kKeep, kKeep, 0}), 0, 3)                                  \
    QVN_COPY_C(t, T, C3CR, map(3, 3, {kKeep, kKeep, 2}), 2, 2)                                          \
    QVN_COPY_C(t, T, C4CR, map(4, 4, {kKeep, kKeep, kKeep, 3}), 3, 3)                                   \
    QVN_COPY(t, T, AC4C3R, map(4, 3, {0, 1, 2})) QVN_COPY(t, T, C3AC4R, map(3, 4, {0, 1, 2, kKeep}))
    QVN_EACH_TYPE(X)
#undef X
    QVN_COPY(8u, Qvn8u, C3C1R, map(3, 1, {0}))
    QVN_COPY_C(8u, Qvn8u, C1C4R, map(1, 4, {kKeep, 0, kKeep, kKeep}), 0, 1)
    QVN_MOVE(Dup, 8u, Qvn8u, C1C3R, map(1, 3, {0, 0, 0}), 0, 0, false, s, int(ss), d, int(ds), r)
    QVN_MOVE(Dup, 8u, Qvn8u, C1C4R, map(1, 4, {0, 0, 0, 0}), 0, 0, false, s, int(ss), d, int(ds), r)
}

// Interleaved to planar and back: K planes sharing one step.
template <class T, int K>
void sweepPlanar(const char* name, QvnStatus (*toPlanes)(const T*, int, T* const*, int, QvnRoiSize),
                 QvnStatus (*fromPlanes)(const T* const*, int, T*, int, QvnRoiSize)) {
    forEachShape(sweepWidths(), {1, 3}, [&](int w, int h, int gap, bool page, std::uint32_t seed) {
        GuardedImage<T> pix({w, h, K, gap * K, page, seed});
        std::vector<std::unique_ptr<GuardedImage<T>>> planes;
        T* p[K];
        for (int c = 0; c < K; ++c) {
            planes.push_back(std::make_unique<GuardedImage<T>>(Layout{w, h, 1, gap, c % 2 == 0, seed + c}));
            p[c] = planes.back()->data();
        }
        const int ps = int(planes[0]->step());
        ASSERT_EQ(toPlanes(pix.data(), int(pix.step()), p, ps, {w, h}), qvnOk);
        for (int c = 0; c < K; ++c) {
            expectRoi(*planes[c], 1, [&](std::int64_t x, std::int64_t y) { return pix.at(x * K + c, y); },
                      std::string(name) + " to plane " + std::to_string(c));
            planes[c]->expectUntouchedOutsideRoi();
        }
        const auto fresh = [](std::int64_t e, std::int64_t y) { return T((e * 7 + y * 3) & 0x7F); };
        for (std::int64_t y = 0; y < h; ++y)
            for (std::int64_t e = 0; e < K * w; ++e) planes[e % K]->at(e / K, y) = fresh(e, y);
        const T* cp[K];
        std::copy(p, p + K, cp);
        ASSERT_EQ(fromPlanes(cp, ps, pix.data(), int(pix.step()), {w, h}), qvnOk);
        expectRoi(pix, K, fresh, std::string(name) + " from planes");
        pix.expectUntouchedOutsideRoi();
    }, {0, 5});
}

TEST(Copy, PlanarBothWays) {
#define X(t, T)                                                                      \
    sweepPlanar<T, 3>("Copy_" #t "_C3P3R/P3C3R", qvniCopy_##t##_C3P3R, qvniCopy_##t##_P3C3R); \
    sweepPlanar<T, 4>("Copy_" #t "_C4P4R/P4C4R", qvniCopy_##t##_C4P4R, qvniCopy_##t##_P4C4R);
    QVN_EACH_TYPE(X)
#undef X
}

TEST(Copy, PlanarCopiesAskForTheCacheSizeByTheirCount) {
    resetCacheDouble();
    cacheDouble().sizeBytes = 4096;  // every planar copy past the threshold streams
    const int w = 43691, h = 2;      // 16s C3: 524,292 bytes
    std::vector<Qvn16s> pix(3 * w * h), back(3 * w * h), plane[3];
    for (std::size_t i = 0; i < pix.size(); ++i) pix[i] = Qvn16s(i * 2654435761u);
    for (auto& p : plane) p.resize(w * h);
    Qvn16s* p[3] = {plane[0].data(), plane[1].data() , plane[2].data()};
    ASSERT_EQ(qvniCopy_16s_C3P3R(pix.data(), 6 * w, p, 2 * w, {w, h}), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 1);
    const Qvn16s* cp[3] = {p[0], p[1], p[2]};
    ASSERT_EQ(qvniCopy_16s_P3C3R(cp, 2 * w, back.data(), 6 * w, {w, h}), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 2);
    EXPECT_EQ(pix, back);
    // 524,286 bytes stay below the threshold; 16u and 8u C3 never stream
    ASSERT_EQ(qvniCopy_16s_C3P3R(pix.data(), 6 * w, p, 2 * w, {43681, 2}), qvnOk);
    ASSERT_EQ(qvniCopy_16u_C3P3R(reinterpret_cast<Qvn16u*>(pix.data()), 6 * w,
                                 reinterpret_cast<Qvn16u* const*>(p), 2 * w, {w, h}), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 2);
    resetCacheDouble();
}

TEST(Copy, StepsAreNotTested) {
    // A negative step walks the rows upwards; a zero step repeats one row.
    std::vector<Qvn8u> src(4 * 9), dst(4 * 9, 0);
    for (std::size_t i = 0; i < src.size(); ++i) src[i] = Qvn8u(i);
    ASSERT_EQ(qvniCopy_8u_C1R(src.data() + 27, -9, dst.data() + 27, -9, {9, 4}), qvnOk);
    EXPECT_EQ(src, dst);
    ASSERT_EQ(qvniCopy_8u_C1R(src.data(), 0, dst.data(), 9, {9, 4}), qvnOk);
    for (int y = 0; y < 4; ++y) EXPECT_EQ(dst[y * 9 + 5], 5);
}

TEST(Copy, AllZeroMaskAndErrorsLeaveTheDestinationUnchanged) {
    GuardedImage<Qvn32f> src({37, 3, 4, -1, false, 3}), dst({37, 3, 4, -1, true, 4});
    GuardedImage<Qvn8u> mask({37, 3, 1, -1, false, 5});
    for (std::int64_t y = 0; y < 3; ++y)
        for (std::int64_t x = 0; x < 37; ++x) mask.at(x, y) = 0;
    const int ss = int(src.step()), ds = int(dst.step()), ms = int(mask.step());
    EXPECT_EQ(qvniCopy_32f_C4MR(src.data(), ss, dst.data(), ds, {37, 3}, mask.data(), ms), qvnOk);
    const Qvn32f v[3] = {1, 2, 3};
    EXPECT_EQ(qvniSet_32f_AC4MR(v, dst.data(), ds, {37, 3}, mask.data(), ms), qvnOk);
    Qvn32f* planes[4] = {dst.data(), dst.data(), nullptr, dst.data()};
    EXPECT_EQ(qvniCopy_32f_C4P4R(src.data(), ss, planes, ds, {0, 3}), qvnErrNullPointer);
    EXPECT_EQ(qvniSet_32f_C4R(nullptr, dst.data(), ds, {37, 3}), qvnErrNullPointer);
    dst.expectUnchanged();
}

TEST(Set, CacheSizeIsAskedOnlyPast512KiB) {
    resetCacheDouble();
    std::vector<Qvn8u> buf(524289 + 64);
    ASSERT_EQ(qvniSet_8u_C1R(1, buf.data(), 1024, {1024, 512}), qvnOk);  // 524,288 bytes
    EXPECT_EQ(cacheDouble().calls, 0);
    ASSERT_EQ(qvniSet_8u_C1R(2, buf.data(), 524289, {524289, 1}), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 1);
    // AC4 never streams (it reads alpha back), so it never asks.
    ASSERT_EQ(qvniSet_8u_AC4R(buf.data(), buf.data(), 4 * 131073, {131073, 1}), qvnOk);
    EXPECT_EQ(cacheDouble().calls, 1);
    // Past the threshold with a small cache every fill streams, to the same result.
    cacheDouble().sizeBytes = 4096;
    const Qvn32f px[3] = {1.5f, -2.0f, 3.25f};
    for (bool endAtPage : {false, true}) {
        GuardedImage<Qvn32f> img({21847, 2, 3, 1, endAtPage, 5});  // 524,328 bytes
        ASSERT_EQ(qvniSet_32f_C3R(px, img.data(), int(img.step()), {21847, 2}), qvnOk);
        expectRoi(img, 3, [&](std::int64_t e, std::int64_t) { return px[e % 3]; }, "streaming Set_32f_C3R");
        img.expectUntouchedOutsideRoi();
    }
    EXPECT_EQ(cacheDouble().calls, 3);
    resetCacheDouble();
}

}  // namespace
}  // namespace qvn::test
