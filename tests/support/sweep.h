// The sweep harness shared by the family tests: a loop over image shapes
// (odd widths, one or more rows, with and without row gaps, alternately
// ending at an inaccessible page), a whole-ROI comparison against a model
// that names the first differing (x, y, channel), and the channel-map sweep
// of the copies, fills and channel shuffles.
#ifndef QVN_TESTS_SUPPORT_SWEEP_H
#define QVN_TESTS_SUPPORT_SWEEP_H

#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "qvnip.h"
#include "ref/channel_map.h"
#include "support/guarded_image.h"

namespace qvn::test {

template <class T>
auto printable(T v) {
    if constexpr (sizeof(T) == 1) return int(v);
    else return v;
}

// Bit-identical, or (with anyNaN) both NaN whatever their payloads.
template <class T>
bool sameValue(T a, T b, bool anyNaN = false) {
    if constexpr (std::is_floating_point_v<T>)
        if (anyNaN && std::isnan(a) && std::isnan(b)) return true;
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

template <class T>
std::vector<T> roiContents(const GuardedImage<T>& img) {
    std::vector<T> v;
    for (std::int64_t y = 0; y < img.height(); ++y)
        for (std::int64_t e = 0; e < img.rowElems(); ++e) v.push_back(img.at(e, y));
    return v;
}

// Every ROI element of out against want(e, y) (element e of row y); adds a
// failure naming the first difference and returns false there.
template <class T, class Want>
bool expectRoi(const GuardedImage<T>& out, int elems, const Want& want, const std::string& context,
               bool anyNaN = false) {
    for (std::int64_t y = 0; y < out.height(); ++y)
        for (std::int64_t e = 0; e < out.rowElems(); ++e) {
            const T got = out.at(e, y), w = want(e, y);
            if (!sameValue(got, w, anyNaN)) {
                ADD_FAILURE() << context << " " << out.width() << "x" << out.height() << " at (" << e / elems << ", "
                              << y << ", " << e % elems << ") got " << printable(got) << " want " << printable(w);
                return false;
            }
        }
    return true;
}

// body(w, h, gap, endAtPage, seed) over widths x heights, with contiguous
// rows and random gaps (a single row has no gap: its first only), the
// page-end placement alternating; stops at the first failure.
template <class Body>
void forEachShape(const std::vector<int>& widths, const std::vector<int>& heights, const Body& body,
                  const std::vector<int>& gaps = {0, -1}) {
    std::uint32_t seed = 1;
    for (int w : widths)
        for (int h : heights)
            for (std::size_t g = 0; g < (h > 1 ? gaps.size() : 1); ++g) {
                const int gap = gaps[g];
                ++seed;
                body(w, h, gap, bool(seed % 2), seed);
                if (testing::Test::HasFailure()) return;
            }
}

// Widths 1 to 69 (odd) and multiples of the vector length up to 70.
inline const std::vector<int>& sweepWidths() {
    static const std::vector<int> w = [] {
        std::vector<int> v;
        for (int x = 1; x <= 69; x += 2) v.push_back(x);
        for (int x : {16, 32, 48, 64, 70}) v.push_back(x);
        return v;
    }();
    return w;
}

// The copies, fills and channel shuffles: source (ignored by fills),
// destination, ROI and mask (ignored by unmasked forms), pointers already at
// the channel the case addresses.
template <class T>
using MoveFn = QvnStatus (*)(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep,
                             QvnRoiSize roi, const Qvn8u* mask, std::int64_t maskStep);

struct MoveCase {
    const char* name;
    ref::ChannelMap map;
    int srcChannel = 0, dstChannel = 0;
    bool masked = false;
    bool inPlace = false;  // source and destination are one image
};

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

template <class T>
void sweepMoveOver(const MoveCase& c, MoveFn<T> fn, const std::vector<int>& widths, const std::vector<int>& heights,
                   const std::vector<int>& gaps) {
    const ref::ChannelMap& m = c.map;
    forEachShape(widths, heights, [&](int w, int h, int gap, bool page, std::uint32_t seed) {
        GuardedImage<T> src({w, h, m.srcElems, gap, page, seed});
        GuardedImage<T> dst({w, h, m.dstElems, gap, !page, seed * 31});
        GuardedImage<Qvn8u> mask({w, h, 1, gap, page, seed * 17});
        if (c.masked) fillMask(mask, seed);
        GuardedImage<T>& out = c.inPlace ? src : dst;
        const std::vector<T> before = roiContents(out), srcBefore = roiContents(src);
        const QvnStatus s = fn(src.data() + c.srcChannel, src.step(), out.data() + c.dstChannel, out.step(),
                               QvnRoiSize{w, h}, mask.data(), mask.step());
        ASSERT_EQ(s, qvnOk) << c.name << " " << w << "x" << h;
        expectRoi(out, m.dstElems, [&](std::int64_t e, std::int64_t y) {
            const T old = before[y * out.rowElems() + e];
            if (c.masked && mask.at(e / m.dstElems, y) == 0) return old;
            const auto at = [&](std::int64_t i) { return srcBefore[y * src.rowElems() + i]; };
            return ref::mapElement<T>(m, at, old, e / m.dstElems, int(e % m.dstElems));
        }, std::string(c.name) + " gap " + std::to_string(gap));
        out.expectUntouchedOutsideRoi();
        if (!c.inPlace) src.expectUnchanged();
        mask.expectUnchanged();
    }, gaps);
}

// Widths 1 to 70, one and three rows, with contiguous rows and with gaps.
template <class T>
void sweepMove(const MoveCase& c, MoveFn<T> fn) {
    sweepMoveOver(c, fn, sweepWidths(), {1, 3}, {0, -1});
}

// One image of a few vectors and a tail, for loops over many arguments.
template <class T>
void sweepMoveOnce(const MoveCase& c, MoveFn<T> fn) {
    sweepMoveOver(c, fn, {37}, {2}, {-1});
}

// Every element type of the move family, for X(token, type) macros.
#define QVN_EACH_TYPE(M) M(8u, Qvn8u) M(16u, Qvn16u) M(16s, Qvn16s) M(32s, Qvn32s) M(32f, Qvn32f)
// A MoveFn from an expression over s, ss, d, ds, r, m, ms.
#define QVN_FN(T, ...)                                                                              \
    +[](const T* s, std::int64_t ss, T* d, std::int64_t ds, QvnRoiSize r, const Qvn8u* m,           \
        std::int64_t ms) -> QvnStatus {                                                             \
        (void)s, (void)ss, (void)m, (void)ms;                                                       \
        return __VA_ARGS__;                                                                         \
    }

}  // namespace qvn::test

#endif
