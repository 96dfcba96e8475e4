// The sweep harness shared by the family tests: image shapes (odd widths, one
// or more rows, with and without row gaps), every image of a call placed on
// its own (start offset within a vector, page end in some shapes), the one
// place where a function under test is called, a whole-ROI comparison that
// names the first differing (x, y, channel), the elementwise sweep, the
// reduction sweep (results written through pointers) and the channel-map
// sweep of the copies, fills and channel shuffles.
#ifndef QVN_TESTS_SUPPORT_SWEEP_H
#define QVN_TESTS_SUPPORT_SWEEP_H

#include <xmmintrin.h>

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "core/dispatch.h"
#include "qvnip.h"
#include "ref/channel_map.h"
#include "support/guarded_image.h"
#include "support/values.h"

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

// The ROI's elements, row after row.
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

template <class F>
bool bothNaN(const unsigned char* a, const unsigned char* b) {
    F x, y;
    std::memcpy(&x, a, sizeof(F)), std::memcpy(&y, b, sizeof(F));
    return std::isnan(x) && std::isnan(y);
}

// The one place where a function under test is called: with the caller's
// rounding mode set to callerRounding; then the call must have left the
// floating-point control as it found it, no input changed and no output
// changed outside its ROI. With acrossTargets (results that no exact model
// pins), the run under the baseline target also
// calls every wider target the processor supports, on the same inputs and
// outputs, and requires the same bits in every output; with nanSize 4 or 8
// the outputs are floats of that size and a NaN matches any NaN (its sign and
// payload follow the operand order the compiler chose).
template <class Call>
QvnStatus callUnderTest(const std::vector<const GuardedBuffer*>& inputs,
                        const std::vector<const GuardedBuffer*>& outputs, const Call& call,
                        int callerRounding = FE_UPWARD, bool acrossTargets = false, int nanSize = 0) {
    constexpr unsigned kControl = 0xFFC0;  // MXCSR without the exception flags
    std::fesetround(callerRounding);
    const unsigned before = _mm_getcsr() & kControl;
    const QvnStatus s = call();
    const unsigned after = _mm_getcsr() & kControl;
    EXPECT_EQ(after, before) << "the caller's floating-point control was not restored";
    if (acrossTargets && dispatch::current() == Target::kSse3) {
        std::vector<std::vector<unsigned char>> results;
        for (const GuardedBuffer* b : outputs) results.push_back(b->roiBytes());
        for (int t = 1; t < kTargetCount; ++t) {
            if (!dispatch::useTarget(Target(t))) continue;
            for (const GuardedBuffer* b : outputs) const_cast<GuardedBuffer*>(b)->restoreRoi();
            const QvnStatus other = call();
            dispatch::useTarget(Target::kSse3);
            EXPECT_EQ(other, s) << "status under target " << t;
            for (std::size_t i = 0; i < outputs.size(); ++i) {
                const std::vector<unsigned char> got = outputs[i]->roiBytes();
                const std::size_t n = std::size_t(nanSize > 0 ? nanSize : 1);
                for (std::size_t k = 0; k < got.size(); k += n)
                    if (std::memcmp(&got[k], &results[i][k], n) != 0 && !(n == 4 && bothNaN<float>(&got[k], &results[i][k])) &&
                        !(n == 8 && bothNaN<double>(&got[k], &results[i][k]))) {
                        ADD_FAILURE() << "output " << i << " differs at byte " << k << " of the ROI rows under target " << t;
                        break;
                    }
            }
        }
        for (std::size_t i = 0; i < outputs.size(); ++i) const_cast<GuardedBuffer*>(outputs[i])->putRoi(results[i]);
    }
    std::fesetround(FE_TONEAREST);
    for (const GuardedBuffer* b : inputs) EXPECT_EQ(b->changedAnywhere(), "") << "in an input";
    for (const GuardedBuffer* b : outputs) EXPECT_EQ(b->changedOutsideRoi(), "");
    return s;
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
                ++seed;
                body(w, h, gaps[g], bool(seed % 2), seed);
                if (testing::Test::HasFailure()) return;
            }
}

// Image `index` of a call in the shape with this seed: its own random start
// offset and, in about half the shapes, an end at the inaccessible page.
inline Layout placed(std::int64_t w, std::int64_t h, int elems, int gap, std::uint32_t seed, int index) {
    const std::uint32_t mix = (seed * 0x9E3779B1u) ^ (std::uint32_t(index + 1) * 0x85EBCA77u);
    return {w, h, elems, gap, bool((mix >> 15) & 1), mix};
}
// The layout started at offset instead, unless that is -1.
inline Layout at(int offset, Layout l) {
    if (offset >= 0) l.startOffset = offset, l.endAtPage = false;
    return l;
}

// Widths, heights, row gaps (-1: random) and start offsets of the output
// within a vector (-1: as placed()).
struct Shapes {
    std::vector<int> widths, heights, gaps = {0, -1}, offsets = {-1};
};
inline std::vector<int> upTo(int n, int from = 0) {
    std::vector<int> v;
    for (int i = from; i <= n; ++i) v.push_back(i);
    return v;
}
// Widths 1 to 69 (odd) and multiples of the vector length up to 70.
inline const std::vector<int>& sweepWidths() {
    static const std::vector<int> w = {1,  3,  5,  7,  9,  11, 13, 15, 16, 17, 19, 21, 23, 25, 27, 29, 31, 32, 33, 35,
                                       37, 39, 41, 43, 45, 47, 48, 49, 51, 53, 55, 57, 59, 61, 63, 64, 65, 67, 69, 70};
    return w;
}
// Around the vector and block lengths, one and three rows; one image of a few
// vectors and a tail, for loops over many arguments.
inline const Shapes kShapes{{1, 2, 3, 7, 16, 17, 33, 65}, {1, 3}};
inline const Shapes kOneShape{{37}, {2}, {-1}};

// An elementwise function under test: destination element e of row y is
// model(v, c) of the sources' elements v at (e, y) (for in-place forms the
// destination's old value is the last of them), c = e % elems its channel.
// Without a model, every element whose sources and channel are equal must
// give the same result (head, vector body and tail agree).
template <class S, class D = S>
struct ElementCase {
    using Call = std::function<QvnStatus(const S* const* src, const int* srcStep, D* dst, int dstStep, QvnRoiSize)>;
    explicit ElementCase(std::string name_, int elems_ = 1, bool alpha_ = false, int sources_ = 1, bool inPlace_ = false)
        : name(std::move(name_)), elems(elems_), alpha(alpha_), sources(sources_), inPlace(inPlace_) {}
    std::string name;
    int elems;
    bool alpha;                      // AC4: every fourth destination element keeps its value
    int sources;                     // images of S read, the destination among them when in place
    bool inPlace;
    bool anyNaN = true;              // NaN results match whatever their payloads
    int callerRounding = FE_UPWARD;  // float arithmetic follows the caller's mode: it sets FE_TONEAREST
    QvnStatus warning = qvnOk;       // the status when warns() holds for some element, qvnOk otherwise
    std::function<bool(const S* v, int c)> warns;
    std::function<void(GuardedImage<S>&, std::uint32_t seed)> fill = fillSource<S>;  // seed % 8: the source
    Call call;
    std::function<D(const S* v, int c)> model;
    std::function<bool(D got, D want)> close;  // approximate models: got matches want when close
};

template <class S, class D>
void runElementCase(const ElementCase<S, D>& c, int w, int h, int gap, std::uint32_t seed,
                    std::map<std::string, D>& seen) {
    SCOPED_TRACE(c.name);
    const int own = c.sources - (c.inPlace ? 1 : 0);
    std::vector<std::unique_ptr<GuardedImage<S>>> src;
    std::vector<const GuardedBuffer*> inputs;
    const S* ptr[4] = {};
    int steps[4] = {};
    for (int i = 0; i < own; ++i) {
        src.push_back(std::make_unique<GuardedImage<S>>(placed(w, h, c.elems, gap, seed, i)));
        c.fill(*src.back(), seed * 8 + std::uint32_t(i));
        ptr[i] = src.back()->data(), steps[i] = int(src.back()->step());
        inputs.push_back(src.back().get());
    }
    GuardedImage<D> dst(placed(w, h, c.elems, gap, seed, own));
    if constexpr (std::is_same_v<S, D>)
        if (c.inPlace) c.fill(dst, seed * 8 + std::uint32_t(own)), ptr[own] = dst.data(), steps[own] = int(dst.step());
    const QvnStatus status = callUnderTest(
        inputs, {&dst}, [&] { return c.call(ptr, steps, dst.data(), int(dst.step()), QvnRoiSize{w, h}); },
        // an exact model pins every target's bits; otherwise compare them
        c.callerRounding, bool(c.close) || !c.model,
        std::is_floating_point_v<D> && c.anyNaN ? int(sizeof(D)) : 0);
    bool warned = false;
    expectRoi(dst, c.elems, [&](std::int64_t e, std::int64_t y) {
        const D old = dst.saved(e, y), got = dst.at(e, y);
        if (c.alpha && e % 4 == 3) return old;
        S v[4] = {};
        for (int i = 0; i < own; ++i) v[i] = src[std::size_t(i)]->at(e, y);
        if constexpr (std::is_same_v<S, D>) v[own] = c.inPlace ? old : S();
        const int ch = int(e % c.elems);
        warned |= c.warns && c.warns(v, ch);
        if (!c.model)
            return seen.emplace(std::string(reinterpret_cast<const char*>(v), sizeof(S) * 4) + char(ch), got).first->second;
        const D want = c.model(v, ch);
        return c.close && c.close(got, want) ? got : want;
    }, c.name + " seed " + std::to_string(seed), c.anyNaN);
    EXPECT_EQ(status, warned ? c.warning : qvnOk) << c.name << " " << w << "x" << h;
}

// Every shape; the case's name varies placements and data between cases.
template <class S, class D>
void sweep(const ElementCase<S, D>& c, const Shapes& shapes = kShapes) {
    std::map<std::string, D> seen;
    const auto salt = std::uint32_t(std::hash<std::string>{}(c.name));
    forEachShape(shapes.widths, shapes.heights, [&](int w, int h, int gap, bool, std::uint32_t seed) {
        runElementCase(c, w, h, gap, seed + salt, seen);
    }, shapes.gaps);
}

// Every value of an integer source of up to 16 bits, once, in one image.
template <class S, class D>
void exhaustive(ElementCase<S, D> c) {
    static_assert(std::is_integral_v<S> && sizeof(S) <= 2, "a small integer source");
    const int w = sizeof(S) == 1 ? 64 : 1024;
    c.fill = fillSource<S>;
    sweep(c, {{w}, {(1 << (8 * sizeof(S))) / w + 1}, {0}});
}

// An ElementCase call from an expression over s (source pointers), ss (their
// steps), d, ds and r.
#define QVN_ECALL(...) \
    [=](const auto* const* s, const int* ss, auto* d, int ds, QvnRoiSize r) -> QvnStatus { (void)s, (void)ss; return __VA_ARGS__; }

// ---- reductions -------------------------------------------------------------------
// A function that reads one source image and writes a few results (sums,
// extremes, positions) through pointers. Each result array lies right before
// an inaccessible page, so a write past its last value faults, and nothing
// around it may change.
template <class S>
struct ReduceCase {
    // out[i]: result array i, resultBytes[i] long.
    using Call = std::function<QvnStatus(const S* src, int srcStep, QvnRoiSize roi, void* const* out)>;
    // An empty string when the results out are right for src, else the first wrong one.
    using Check = std::function<std::string(const GuardedImage<S>& src, const unsigned char* const* out)>;
    ReduceCase(std::string name_, int elems_, std::vector<int> resultBytes_)
        : name(std::move(name_)), elems(elems_), resultBytes(std::move(resultBytes_)) {}
    std::string name;
    int elems = 1;
    std::vector<int> resultBytes;
    std::function<void(GuardedImage<S>&, std::uint32_t seed)> fill = fillSource<S>;
    int callerRounding = FE_UPWARD;
    bool acrossTargets = true;  // no exact model pins the bits: every target must give the same
    int nanSize = 0;            // results are floats of this size whose NaNs match any NaN
    Call call;
    Check check;
};

// Value i of type R of a result array.
template <class R>
R resultAt(const unsigned char* out, int i) {
    R v;
    std::memcpy(&v, out + i * sizeof(R), sizeof(R));
    return v;
}

// Widths around every vector, block and unrolled-block length (up to four
// 64-byte vectors of 8u and a tail), heights that cover a lone row and
// several rows.
inline const Shapes kReduceShapes{{1, 2, 3, 7, 16, 17, 33, 65, 200, 333}, {1, 3, 9}};

template <class S>
void sweepReduce(const ReduceCase<S>& c, const Shapes& shapes = kReduceShapes) {
    SCOPED_TRACE(c.name);
    const auto salt = std::uint32_t(std::hash<std::string>{}(c.name));
    forEachShape(shapes.widths, shapes.heights, [&](int w, int h, int gap, bool, std::uint32_t seed) {
        seed += salt;
        GuardedImage<S> src(placed(w, h, c.elems, gap, seed, 0));
        c.fill(src, seed);
        std::vector<std::unique_ptr<GuardedImage<unsigned char>>> res;
        std::vector<const GuardedBuffer*> outputs;
        void* out[4] = {};
        const unsigned char* got[4] = {};
        for (std::size_t i = 0; i < c.resultBytes.size(); ++i) {
            res.push_back(std::make_unique<GuardedImage<unsigned char>>(
                Layout{c.resultBytes[i], 1, 1, 0, true, seed + std::uint32_t(i)}));
            out[i] = res.back()->data(), got[i] = res.back()->data();
            outputs.push_back(res.back().get());
        }
        const QvnStatus s = callUnderTest(
            {&src}, outputs, [&] { return c.call(src.data(), int(src.step()), QvnRoiSize{w, h}, out); },
            c.callerRounding, c.acrossTargets, c.nanSize);
        ASSERT_EQ(s, qvnOk) << c.name << " " << w << "x" << h;
        const std::string wrong = c.check(src, got);
        EXPECT_EQ(wrong, "") << c.name << " " << w << "x" << h << " gap " << gap << " seed " << seed;
    }, shapes.gaps);
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
void sweepMoveOver(const MoveCase& c, MoveFn<T> fn, const Shapes& shapes) {
    const ref::ChannelMap& m = c.map;
    const auto one = [&](int w, int h, int gap, std::uint32_t seed, int offset) {
        GuardedImage<T> src(placed(w, h, m.srcElems, gap, seed, 0)), dst(at(offset, placed(w, h, m.dstElems, gap, seed, 1)));
        GuardedImage<Qvn8u> mask(placed(w, h, 1, gap, seed, 2));
        if (c.masked) fillMask(mask, seed);
        GuardedImage<T>& out = c.inPlace ? src : dst;
        std::vector<const GuardedBuffer*> inputs = {&mask, &src};
        if (c.inPlace) inputs.pop_back();
        const QvnStatus s = callUnderTest(inputs, {&out}, [&] {
            return fn(src.data() + c.srcChannel, src.step(), out.data() + c.dstChannel, out.step(), QvnRoiSize{w, h},
                      mask.data(), mask.step());
        });
        ASSERT_EQ(s, qvnOk) << c.name << " " << w << "x" << h;
        expectRoi(out, m.dstElems, [&](std::int64_t e, std::int64_t y) {
            const T old = out.saved(e, y);
            if (c.masked && mask.at(e / m.dstElems, y) == 0) return old;
            return ref::mapElement<T>(m, [&](std::int64_t i) { return src.saved(i, y); }, old, e / m.dstElems,
                                      int(e % m.dstElems));
        }, std::string(c.name) + " gap " + std::to_string(gap) + " offset " + std::to_string(offset));
    };
    const auto salt = std::uint32_t(std::hash<std::string>{}(c.name));
    forEachShape(shapes.widths, shapes.heights, [&](int w, int h, int gap, bool, std::uint32_t seed) {
        for (std::size_t k = 0; k < shapes.offsets.size() && !testing::Test::HasFailure(); ++k)
            one(w, h, gap, seed + salt + std::uint32_t(k), shapes.offsets[k]);
    }, shapes.gaps);
}

// Copies, fills and shuffles only move bits: every width, one and three rows,
// for one element type of each size (8u, 16s, 32f), one shape for the others.
template <class T>
const Shapes& moveShapes() {
    static const Shapes every{sweepWidths(), {1, 3}};
    return std::is_same_v<T, Qvn16u> || std::is_same_v<T, Qvn32s> ? kOneShape : every;
}
template <class T>
void sweepMove(const MoveCase& c, MoveFn<T> fn) {
    sweepMoveOver(c, fn, moveShapes<T>());
}
template <class T>
void sweepMoveOnce(const MoveCase& c, MoveFn<T> fn) {
    sweepMoveOver(c, fn, kOneShape);
}

// Every element type of the move family, for X(token, type) macros.
#define QVN_EACH_TYPE(M) M(8u, Qvn8u) M(16u, Qvn16u) M(16s, Qvn16s) M(32s, Qvn32s) M(32f, Qvn32f)
// A MoveFn from an expression over s, ss, d, ds, r, m, ms.
#define QVN_FN(T, ...)                                                                                           \
    +[](const T* s, std::int64_t ss, T* d, std::int64_t ds, QvnRoiSize r, const Qvn8u* m, std::int64_t ms)       \
        -> QvnStatus { (void)s, (void)ss, (void)m, (void)ms; return __VA_ARGS__; }

}  // namespace qvn::test

#endif
