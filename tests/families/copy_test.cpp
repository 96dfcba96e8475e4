// qvniCopy, qvniCopyManaged, qvniDup and qvniSet against the channel-map
// model, on guarded images.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "qvnip.h"
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
// Whole-pixel copies of every type share one byte kernel: every shape for 8u.
#define QVN_COPY_BYTES(t, T, form, mp, ...)                                                                  \
    sweepMoveOver<T>({"Copy_" #t "_" #form, mp}, QVN_FN(T, qvniCopy_##t##_##form(__VA_ARGS__)),          \
                     std::is_same_v<T, Qvn8u> ? moveShapes<T>() : kOneShape);
#define QVN_COPY_C(t, T, form, mp, sc, dc) QVN_MOVE(Copy, t, T, form, mp, sc, dc, false, s, int(ss), d, int(ds), r)
#define QVN_COPY_M(t, T, form, mp) QVN_MOVE(Copy, t, T, form, mp, 0, 0, true, s, int(ss), d, int(ds), r, m, int(ms))
#define QVN_SET(t, T, form, mp, v) QVN_MOVE(Set, t, T, form, mp, 0, 0, false, v, d, int(ds), r)
#define QVN_SET_M(t, T, form, mp, v) QVN_MOVE(Set, t, T, form, mp, 0, 0, true, v, d, int(ds), r, m, int(ms))

// Fill values, distinct per channel; three-value forms read the first three.
template <class T>
constexpr T kFills[4] = {11, 3, 250, 7};

TEST(Copy, WholePixelsMaskedAndLongForms) {
#define X(t, T)                                                                                         \
    QVN_COPY_BYTES(t, T, C1R, map(1, 1, {0}), s, int(ss), d, int(ds), r) QVN_COPY_M(t, T, C1MR, map(1, 1, {0})) \
    QVN_COPY_BYTES(t, T, C3R, map(3, 3, {0, 1, 2}), s, int(ss), d, int(ds), r)                          \
    QVN_COPY_M(t, T, C3MR, map(3, 3, {0, 1, 2}))                                                        \
    QVN_COPY(t, T, AC4R, map(4, 4, {0, 1, 2, kKeep})) QVN_COPY_M(t, T, AC4MR, map(4, 4, {0, 1, 2, kKeep})) \
    QVN_COPY_M(t, T, C4MR, map(4, 4, {0, 1, 2, 3}))                                                     \
    QVN_COPY_BYTES(t, T, C4R_L, map(4, 4, {0, 1, 2, 3}), s, ss, d, ds, QvnRoiSizeL{r.width, r.height})
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

// Interleaved to planar and back: K planes sharing one step. With explicit
// offsets, plane 0 and the interleaved image start there.
template <class T, int K>
void sweepPlanar(const char* name, QvnStatus (*toPlanes)(const T*, int, T* const*, int, QvnRoiSize),
                 QvnStatus (*fromPlanes)(const T* const*, int, T*, int, QvnRoiSize),
                 const Shapes& shapes = moveShapes<T>()) {
    const auto one = [&](int w, int h, int gap, std::uint32_t seed, int offset) {
        GuardedImage<T> pix(at(offset, placed(w, h, K, gap * K, seed, K)));
        std::vector<std::unique_ptr<GuardedImage<T>>> planes;
        std::vector<const GuardedBuffer*> buffers;
        T* p[K];
        const T* cp[K];
        for (int c = 0; c < K; ++c) {
            planes.push_back(std::make_unique<GuardedImage<T>>(at(c ? -1 : offset, placed(w, h, 1, gap, seed, c))));
            cp[c] = p[c] = planes.back()->data();
            buffers.push_back(planes.back().get());
        }
        const int ps = int(planes[0]->step());
        ASSERT_EQ(callUnderTest({&pix}, buffers, [&] { return toPlanes(pix.data(), int(pix.step()), p, ps, {w, h}); }),
                  qvnOk);
        for (int c = 0; c < K; ++c)
            expectRoi(*planes[c], 1, [&](std::int64_t x, std::int64_t y) { return pix.at(x * K + c, y); },
                      std::string(name) + " to plane " + std::to_string(c) + " offset " + std::to_string(offset));
        for (int c = 0; c < K; ++c) {  // new values, which the interleaved image does not hold
            for (std::int64_t y = 0; y < h; ++y)
                for (std::int64_t x = 0; x < w; ++x) planes[c]->at(x, y) = T((x * 7 + y * 3 + c * 5 + 1) & 0x7F);
            planes[c]->snapshot();
        }
        ASSERT_EQ(callUnderTest(buffers, {&pix}, [&] { return fromPlanes(cp, ps, pix.data(), int(pix.step()), {w, h}); }),
                  qvnOk);
        expectRoi(pix, K, [&](std::int64_t e, std::int64_t y) { return planes[e % K]->at(e / K, y); },
                  std::string(name) + " from planes offset " + std::to_string(offset));
    };
    forEachShape(shapes.widths, shapes.heights, [&](int w, int h, int gap, bool, std::uint32_t seed) {
        for (std::size_t k = 0; k < shapes.offsets.size() && !testing::Test::HasFailure(); ++k)
            one(w, h, gap < 0 ? int(seed % 6) : gap, seed + std::uint32_t(k), shapes.offsets[k]);  // one gap for all planes
    }, shapes.gaps);
}

TEST(Copy, PlanarBothWays) {
#define X(t, T)                                                                      \
    sweepPlanar<T, 3>("Copy_" #t "_C3P3R/P3C3R", qvniCopy_##t##_C3P3R, qvniCopy_##t##_P3C3R); \
    sweepPlanar<T, 4>("Copy_" #t "_C4P4R/P4C4R", qvniCopy_##t##_C4P4R, qvniCopy_##t##_P4C4R);
    QVN_EACH_TYPE(X)
#undef X
}

// The 8u rows that write three-element pixels with overlapping stores or read
// them as overlapping pairs: every width up to four vectors and a tail, at
// every offset of the destination within a vector.
TEST(Copy, ThreeElementRowsAtEveryWidthAndOffset) {
    const Shapes every{upTo(70, 1), {1}, {0}, upTo(15)};
    sweepMoveOver<Qvn8u>({"Copy_8u_AC4C3R", map(4, 3, {0, 1, 2})}, QVN_FN(Qvn8u, qvniCopy_8u_AC4C3R(s, int(ss), d, int(ds), r)), every);
    sweepMoveOver<Qvn8u>({"Dup_8u_C1C3R", map(1, 3, {0, 0, 0})}, QVN_FN(Qvn8u, qvniDup_8u_C1C3R(s, int(ss), d, int(ds), r)), every);
    sweepPlanar<Qvn8u, 3>("Copy_8u_C3P3R/P3C3R", qvniCopy_8u_C3P3R, qvniCopy_8u_P3C3R, every);
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

}  // namespace
}  // namespace qvn::test
