// Sweeps a copy, fill or channel shuffle over guarded images of many sizes
// and compares every destination element with the channel-map model.
#ifndef QVN_TESTS_MOVE_SWEEP_H
#define QVN_TESTS_MOVE_SWEEP_H

#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "qvnip.h"
#include "ref/channel_map.h"
#include "support/guarded_image.h"

namespace qvn::test {

// The call under test: source (ignored by fills), destination, ROI and mask
// (ignored by unmasked forms). Pointers are already moved to the channel the
// case addresses.
template <class T>
using MoveFn = QvnStatus (*)(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep,
                             QvnRoiSize roi, const Qvn8u* mask, std::int64_t maskStep);

struct MoveCase {
    const char* name;
    ref::ChannelMap map;
    int srcChannel = 0, dstChannel = 0;  // channel the pointers address
    bool masked = false;
    bool inPlace = false;                // source and destination are one image
};

template <class T>
bool sameBits(T a, T b) {
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

template <class T>
std::vector<T> roiContents(const GuardedImage<T>& img) {
    std::vector<T> v;
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t e = 0; e < img.rowElems(); ++e) v.push_back(img.at(e, y));
    return v;
}

// A mask whose blocks of sixteen are, at random, all zero, all non-zero or
// mixed; the last partial block is mixed.
inline void fillMask(GuardedImage<Qvn8u>& m, std::uint32_t seed) {
    std::mt19937 rng(seed);
    for (std::int64_t y = 0; y < m.height(); ++y)
        for (std::int64_t x0 = 0; x0 < m.width(); x0 += 16) {
            const int kind = x0 + 16 <= m.width() ? int(rng() % 3) : 2;
            for (std::int64_t x = x0; x < x0 + 16 && x < m.width(); ++x) {
                const Qvn8u v = Qvn8u(rng() % 255 + 1);
                m.at(x, y) = kind == 0 ? 0 : kind == 1 ? v : (rng() % 2 ? v : 0);
            }
        }
    m.snapshot();
}

inline const std::vector<int>& sweepWidths() {
    static const std::vector<int> w = [] {
        std::vector<int> v;
        for (int x = 1; x <= 69; x += 2) v.push_back(x);
        for (int x : {16, 32, 48, 64, 70}) v.push_back(x);
        return v;
    }();
    return w;
}

template <class T>
void sweepMoveOver(const MoveCase& c, MoveFn<T> fn, const std::vector<int>& widths,
                   const std::vector<int>& heights, const std::vector<int>& gaps) {
    const ref::ChannelMap& m = c.map;
    std::uint32_t seed = 1;
    for (int w : widths)
        for (int h : heights)
            for (int gap : gaps) {
                ++seed;
                const bool page = seed % 2;
                GuardedImage<T> src({w, h, m.srcElems, gap, page, seed});
                GuardedImage<T> dst({w, h, m.dstElems, gap, !page, seed * 31});
                GuardedImage<Qvn8u> mask({w, h, 1, gap, page, seed * 17});
                if (c.masked) fillMask(mask, seed);
                GuardedImage<T>& out = c.inPlace ? src : dst;
                const std::vector<T> before = roiContents(out), srcBefore = roiContents(src);
                const QvnStatus s = fn(src.data() + c.srcChannel, src.step(), out.data() + c.dstChannel,
                                       out.step(), QvnRoiSize{w, h}, mask.data(), mask.step());
                ASSERT_EQ(s, qvnOk) << c.name << " width " << w << " height " << h;
                for (std::int64_t y = 0; y < h; ++y)
                    for (std::int64_t x = 0; x < w; ++x)
                        for (int ch = 0; ch < m.dstElems; ++ch) {
                            const std::int64_t e = x * m.dstElems + ch;
                            const T old = before[y * out.rowElems() + e];
                            T want = old;
                            if (!c.masked || mask.at(x, y) != 0)
                                want = ref::mapElement<T>(
                                    m, [&](std::int64_t i) { return srcBefore[y * src.rowElems() + i]; }, old,
                                    x, ch);
                            ASSERT_TRUE(sameBits(out.at(e, y), want))
                                << c.name << " width " << w << " height " << h << " gap " << gap << " at ("
                                << x << ", " << y << ", " << ch << ") got " << +out.at(e, y) << " want "
                                << +want;
                        }
                out.expectUntouchedOutsideRoi();
                if (!c.inPlace) src.expectUnchanged();
                mask.expectUnchanged();
                if (testing::Test::HasFailure()) return;
            }
}

// Widths 1 to 70 (odd ones and multiples of 16), one and three rows, with
// contiguous rows and with gaps.
template <class T>
void sweepMove(const MoveCase& c, MoveFn<T> fn) {
    sweepMoveOver(c, fn, sweepWidths(), {1, 3}, {0, -1});
}

// Every element type of the family, for X(token, type) macros.
#define QVN_EACH_TYPE(M) M(8u, Qvn8u) M(16u, Qvn16u) M(16s, Qvn16s) M(32s, Qvn32s) M(32f, Qvn32f)
// A MoveFn from an expression over s, ss, d, ds, r, m, ms.
#define QVN_FN(T, ...)                                                                              \
    +[](const T* s, std::int64_t ss, T* d, std::int64_t ds, QvnRoiSize r, const Qvn8u* m,           \
        std::int64_t ms) -> QvnStatus {                                                             \
        (void)s, (void)ss, (void)m, (void)ms;                                                       \
        return __VA_ARGS__;                                                                         \
    }

// One image of a few vectors and a tail, for loops over many arguments.
template <class T>
void sweepMoveOnce(const MoveCase& c, MoveFn<T> fn) {
    sweepMoveOver(c, fn, {37}, {2}, {-1});
}

}  // namespace qvn::test

#endif
