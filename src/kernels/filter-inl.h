// Row kernels of the general filter and the convolution: weighted sums of a
// kernel-sized window, written once against isa.
//
// A kernel computes a block of output from a window image: dst(e, y) for the
// w output elements e of each of h rows is the weighted sum over the kernel's
// kh rows j and kw columns i of src(e + i * stride, y + j), where src points at
// the window of the first output element (its top-left neighbour) and stride
// is the distance between horizontal neighbours in elements (the channel
// count: channels never mix). Nothing outside the window is read: rows
// [0, h + kh - 1), elements [0, w + (kw - 1) * stride).
//
// Every output element is formed in a fixed order that no target, block size
// or tail changes, so that float results are the same bits everywhere:
//   - 2D float sums: 0, then + v * k for kernel row j ascending, column i
//     ascending (one multiply and one add each, never fused);
//   - separable float sums (a rank-1 kernel k(j, i) = col(j) * row(i), where
//     the caller picks them: the choice depends on the kernel alone):
//     t(i) = sum over j of col(j) * v(j, i) as above, then sum over i of
//     row(i) * t(i);
//   - integer sums: exact products of 16-bit coefficients and pixels, added in
//     signed 32-bit lanes with wraparound (the order cannot matter).
// Vector blocks compute several output rows per pass (each source row is
// loaded once per group) and several vectors per row; a row's last block
// overlaps the one before it (the same values again), and rows narrower than
// a block are done in narrower blocks or element by element with the same
// arithmetic.
//
// Integer results: float sums are clamped to +-65536 (NaN to -65536),
// rounded by the QvnRounding mode and saturated to the destination; integer
// sums are divided as IntFinish says. The caller runs the kernels with the
// rounding control at round-to-nearest (RoundingScope(qvnRndNear)).
#ifndef QVN_KERNELS_FILTER_INL_H
#define QVN_KERNELS_FILTER_INL_H

#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/image.h"
#include "kernels/isa/isa.h"

// The accumulators of a block must stay in registers: every function that
// takes them melts into the block's loop.
#ifndef QVN_ALWAYS_INLINE
#define QVN_ALWAYS_INLINE inline __attribute__((always_inline))
#endif

QVN_TARGET_BEGIN
namespace kernels {
namespace filt {

template <class T>
using V = isa::Vec<T>;
using std::int16_t;
using std::int32_t;
using std::int64_t;
using std::uint32_t;

template <class T>
inline const T* rowAt(const T* p, int64_t step, int64_t y) {
    return byteOffset(p, y * step);
}

// f(std::integral_constant<int, k>) for k = From .. To - 1, unrolled (a
// compile-time index keeps arrays of accumulators in registers).
template <int From, int To, class F>
QVN_ALWAYS_INLINE void unrolled(const F& f) {
    if constexpr (From < To) {
        f(std::integral_constant<int, From>{});
        unrolled<From + 1, To>(f);
    }
}

// ---- float sums to integers ----------------------------------------------------------------------
inline constexpr float kClamp = 65536.0f;

// One float sum to int32 by QvnRounding mode (0 toward zero, 1 to nearest
// even, 2 halves away from zero), after the clamp.
inline int32_t roundScalar(float x, int mode) {
    x = x > -kClamp ? x : -kClamp;  // maxps: NaN gives the second operand
    x = x < kClamp ? x : kClamp;
    if (mode == qvnRndNear) return isa::toIntScalar(x);
    int32_t t = static_cast<int32_t>(x);
    if (mode == qvnRndFinancial) {
        const float d = x - static_cast<float>(t);
        t += (d >= 0.5f ? 1 : 0) - (d <= -0.5f ? 1 : 0);
    }
    return t;
}

QVN_ALWAYS_INLINE V<int32_t> roundVector(V<float> x, int mode) {
    x = isa::min(isa::max(x, isa::set1(-kClamp)), isa::set1(kClamp));
    if (mode == qvnRndNear) return isa::toInt(x);
    V<int32_t> t = isa::toIntTrunc(x);
    if (mode == qvnRndFinancial) {
        const V<float> d = isa::sub(x, isa::toFloat(t));
        t = isa::sub(t, isa::cast<int32_t>(isa::cmpNotLess(d, isa::set1(0.5f))));
        t = isa::add(t, isa::cast<int32_t>(isa::cmpNotLess(isa::set1(-0.5f), d)));
    }
    return t;
}

template <class D>
inline D saturate(int64_t v) {
    constexpr int64_t lo = std::numeric_limits<D>::lowest(), hi = std::numeric_limits<D>::max();
    return static_cast<D>(v < lo ? lo : v > hi ? hi : v);
}

// How float sums become integer destination elements: the offset is added,
// then the sum is rounded and saturated (float destinations take the sum as
// it is: their specs have no offset).
template <class W>
struct FloatFinish {
    W offset = 0;
    int mode = qvnRndNear;
};

// ---- integer sums to results ----------------------------------------------------------------------
// The division of an integer sum (the divisor record of a spec, or a
// convolution's divisor): pre (a 32-bit constant: the offset times the
// divisor, a separable kernel's bias correction) is added with wraparound,
// then
//   kShift:      (v + base + ((v >> 31) & negMask) + ((v >> k) & oddBit)) >> k,
//                arithmetic shifts: rounding toward zero, to nearest even or
//                halves away from zero by the constants (k = 0: v itself);
//   kReciprocal: (float(v) + offset) * reciprocal, rounded by mode;
//   kExact:      (v + offset * divisor) / divisor exactly, rounded by mode.
struct IntFinish {
    enum Kind { kShift, kReciprocal, kExact } kind = kShift;
    int32_t pre = 0;
    int shift = 0;
    int32_t base = 0, negMask = 0, oddBit = 0;
    float reciprocal = 1.0f, offsetF = 0.0f;
    int mode = qvnRndNear;
    int32_t divisor = 1, offset = 0;

    // The shift constants of rounding mode `mode` for a division by 2^k.
    void shiftBy(int k, int rounding) {
        kind = kShift, shift = k, base = negMask = oddBit = 0;
        if (k == 0) return;
        const int32_t half = int32_t(1) << (k - 1);
        if (rounding == qvnRndZero) negMask = (int32_t(1) << k) - 1;
        else if (rounding == qvnRndNear) base = half - 1, oddBit = 1;
        else base = half, negMask = -1;
    }

    static int32_t wrap(int64_t v) { return static_cast<int32_t>(static_cast<uint32_t>(v)); }

    int32_t scalar(int32_t acc) const {
        const int32_t v = wrap(int64_t(uint32_t(acc)) + uint32_t(pre));
        switch (kind) {
            case kShift: {
                const int32_t a = wrap(int64_t(base) + ((v >> 31) & negMask) + ((v >> shift) & oddBit));
                return wrap(int64_t(v) + a) >> shift;
            }
            case kReciprocal: return roundScalar((static_cast<float>(v) + offsetF) * reciprocal, mode);
            case kExact: break;
        }
        return exact(v);
    }

    int32_t exact(int32_t v) const {
        const int64_t a = int64_t(v) + int64_t(offset) * divisor, d = divisor;
        int64_t q = a / d;
        const int64_t r = a % d;
        if (r != 0 && mode != qvnRndZero) {
            const int64_t twice = 2 * (r < 0 ? -r : r), ad = d < 0 ? -d : d;
            if (twice > ad || (twice == ad && (mode == qvnRndFinancial || (q & 1) != 0))) q += (a < 0) != (d < 0) ? -1 : 1;
        }
        return static_cast<int32_t>(q < INT32_MIN ? INT32_MIN : q > INT32_MAX ? INT32_MAX : q);
    }

    QVN_ALWAYS_INLINE V<int32_t> vector(V<int32_t> acc) const {
        const V<int32_t> v = isa::add(acc, isa::set1(pre));
        switch (kind) {
            case kShift: {
                const isa::ShiftCount k = isa::shiftCount(shift);
                const V<int32_t> a = isa::add(isa::set1(base),
                                              isa::add(isa::bitAnd(isa::shiftRight<31>(v), isa::set1(negMask)),
                                                       isa::bitAnd(isa::shiftRight(v, k), isa::set1(oddBit))));
                return isa::shiftRight(isa::add(v, a), k);
            }
            case kReciprocal:
                return roundVector(isa::mul(isa::add(isa::toFloat(v), isa::set1(offsetF)), isa::set1(reciprocal)), mode);
            case kExact: break;
        }
        alignas(64) int32_t lanes[isa::kLanes<int32_t>];
        isa::storeU(lanes, v);
        for (int32_t& x : lanes) x = exact(x);
        return isa::loadU(lanes);
    }
};

// ---- coefficients -----------------------------------------------------------------------------
// Float kernels keep every coefficient as a 16-byte block of four copies
// (loadBlock); double kernels keep the coefficients themselves, read
// backwards from the last (the stored kernel of a spec is the caller's
// reversed, so index n of the correlation is element -n from its end).
inline V<float> coefVec(const float* c, int64_t n) { return isa::loadBlock(c + 4 * n); }
inline V<double> coefVec(const double* c, int64_t n) { return isa::set1(*(c - n)); }
inline float coefScalar(const float* c, int64_t n) { return c[4 * n]; }
inline double coefScalar(const double* c, int64_t n) { return *(c - n); }

// Builds the four-copy blocks of kernel k (n coefficients) at out.
inline void makeBlocks(const float* k, std::int64_t n, float* out) {
    for (std::int64_t i = 0; i < n; ++i)
        for (int l = 0; l < 4; ++l) out[4 * i + l] = k[i];
}

// Integer kernels keep pairs of horizontal neighbours (i even, i + 1) as
// 16-bit halves of a 32-bit lane, a block of four copies per pair, (kw + 1) / 2
// pairs per kernel row (an odd width pairs its last column with 0); k(j, i)
// gives the coefficients. The blocks are written from the last, so that
// coefficients stored at out itself (at most one 16-bit value per pair's
// first column) are read before they are overwritten.
template <class At>
inline void makePairs(const At& k, int kw, int kh, int32_t* out) {
    const int pairs = (kw + 1) / 2;
    for (int j = kh - 1; j >= 0; --j)
        for (int q = pairs - 1; q >= 0; --q) {
            const int16_t lo = int16_t(k(j, 2 * q)), hi = 2 * q + 1 < kw ? int16_t(k(j, 2 * q + 1)) : int16_t(0);
            const int32_t pair = int32_t(uint32_t(uint16_t(lo)) | uint32_t(uint16_t(hi)) << 16);
            for (int l = 0; l < 4; ++l) out[(j * pairs + q) * 4 + l] = pair;
        }
}

// A result vector to p: non-temporal where the call streams and p is
// vector-aligned (the caller fences before it returns), else as usual.
template <class T>
QVN_ALWAYS_INLINE void put(T* p, V<T> v, bool stream) {
    if (stream && isa::alignedV(p)) isa::storeStream(p, v);
    else isa::storeU(p, v);
}

// ---- storing blocks -----------------------------------------------------------------------------
// NV float (or double) vectors of results to NV * lanes elements of D.
template <class D, int NV, class W>
QVN_ALWAYS_INLINE void storeResults(D* p, const V<W>* acc, const FloatFinish<W>& fin, bool stream) {
    constexpr int64_t L = int64_t(isa::kLanes<W>);
    if constexpr (std::is_same_v<D, W>) {
        unrolled<0, NV>([&](auto k) __attribute__((always_inline)) {  // float images take no offset
            put(p + k.value * L, acc[k.value], stream);
        });
    } else {
        const V<W> off = isa::set1(fin.offset);
        static_assert(std::is_same_v<W, float>, "integer destinations from float sums");
        V<int32_t> t[NV];
        unrolled<0, NV>([&](auto k) __attribute__((always_inline)) {
            t[k.value] = roundVector(isa::add(acc[k.value], off), fin.mode);
        });
        if constexpr (sizeof(D) == 2) {
            static_assert(NV % 2 == 0, "pairs of vectors");
            for (int k = 0; k < NV; k += 2) put(p + k * L, isa::packSat<D>(t[k], t[k + 1]), stream);
        } else {
            static_assert(sizeof(D) == 1 && NV % 4 == 0, "quads of vectors");
            for (int k = 0; k < NV; k += 4)
                put(p + k * L, isa::packSat<D>(isa::packSat<int16_t>(t[k], t[k + 1]), isa::packSat<int16_t>(t[k + 2], t[k + 3])),
                    stream);
        }
    }
}

template <class D, class W>
inline D finishScalar(W sum, const FloatFinish<W>& fin) {
    if constexpr (std::is_same_v<D, W>) return sum;
    else return saturate<D>(roundScalar(sum + fin.offset, fin.mode));
}

// Vectors of results per block: a whole destination vector of 8-bit
// elements, pairs otherwise.
template <class D>
inline constexpr int kFloatVectors = sizeof(D) == 1 || isa::kVectorBytes == 64 ? 4 : 2;
// Output rows per pass: as many as the registers hold next to the block.
inline constexpr int rowsPerPass(int accumulatorsPerRow) {
    return isa::kVectorBytes == 64 ? 4 : accumulatorsPerRow >= 4 ? 2 : 4;
}

// Asks for the source rows that the next pass of rows adds, [first, first +
// count) clamped to the window's last row, at the bytes of a block: the
// passes walk several rows at once, more streams than the processor follows.
template <class S>
QVN_ALWAYS_INLINE void prefetchRows(const S* src, int64_t sstep, int64_t first, int count, int64_t last, int64_t e,
                                    int64_t bytes) {
    for (int r = 0; r < count; ++r) {
        const char* p = reinterpret_cast<const char*>(rowAt(src, sstep, first + r < last ? first + r : last) + e);
        for (int64_t b = 0; b < bytes; b += 64) isa::prefetch(p + b);
    }
}

// Calls block(e) for the blocks of B elements that cover [0, n) (the last one
// overlapping), or scalar(e) for every element when n < B. With head in
// (0, B), the blocks after the first start at head (a destination's vector
// alignment), overlapping the first.
template <class Block, class Scalar>
QVN_ALWAYS_INLINE void forBlocks(int64_t n, int64_t B, const Block& block, const Scalar& scalar, int64_t head = 0) {
    if (n < B) {
        for (int64_t e = 0; e < n; ++e) scalar(e);
        return;
    }
    int64_t e = 0;
    if (head > 0 && head < B && n - head >= B) block(0), e = head;
    for (; e + B <= n; e += B) block(e);
    if (e < n) block(n - B);
}

// Elements from p to the next vector-aligned element (0 when p is not even
// element-aligned).
template <class D>
inline int64_t alignmentHead(const D* p) {
    const auto a = reinterpret_cast<std::uintptr_t>(p);
    return a % sizeof(D) != 0 ? 0 : int64_t((isa::kVectorBytes - a % isa::kVectorBytes) % isa::kVectorBytes / sizeof(D));
}

// The source rows of a pass of RR output rows over a kernel of kh rows (kh >=
// RR - 1), in order: row(s, lo, hi) for window row s, which feeds the output
// rows [lo, hi] (compile-time constants) of the pass, [max(0, s - kh + 1),
// min(RR - 1, s)]: the first and last RR - 1 rows of the window feed a
// growing and a shrinking range, the others all. Each output row's sum thus
// takes its kernel rows in ascending order.
template <int RR, class Row>
QVN_ALWAYS_INLINE void passRows(int kh, const Row& row) {
    using std::integral_constant;
    unrolled<0, RR - 1>([&](auto k) __attribute__((always_inline)) {
        row(k.value, integral_constant<int, 0>{}, k);
    });
    for (int s = RR - 1; s < kh; ++s) row(s, integral_constant<int, 0>{}, integral_constant<int, RR - 1>{});
    unrolled<0, RR - 1>([&](auto k) __attribute__((always_inline)) {
        row(kh + k.value, integral_constant<int, decltype(k)::value + 1>{}, integral_constant<int, RR - 1>{});
    });
}

// The row loop of the 2D kernels (K derives from RowPasses<K, S, D>): passes
// of K::R output rows (of two for kernels lower than K::R - 1), then single
// rows; blocks of K::kBlock elements along them, the last overlapping. Rows
// narrower than that run in blocks of K::kNarrowBlock elements (one vector,
// where K has them), and rows narrower than those element by element
// (K::scalar). A pass walks each source row of its window once (K::Pass, its
// taps for the pass's rows that the row feeds) and asks for the next pass's
// new rows ahead.
template <class K, class S, class D>
struct RowPasses {
    const K& self() const { return static_cast<const K&>(*this); }
    int64_t blockElems() const { return K::kNarrowBlock; }

    void operator()(const S* src, int64_t sstep, D* dst, int64_t dstep, int64_t w, int64_t h) const {
        int64_t y = 0;
        if (self().kh >= K::R - 1) {
            for (; y + K::R <= h; y += K::R) rows<K::R>(src, sstep, dst, dstep, w, y, h);
        } else {  // kernels of one or two rows: passes of two
            for (; y + 2 <= h; y += 2) rows<2>(src, sstep, dst, dstep, w, y, h);
        }
        for (; y < h; ++y) rows<1>(src, sstep, dst, dstep, w, y, h);
        isa::storeFence();  // streamed stores, where the kernel streams, are ordered before it returns
    }

    template <int RR>
    QVN_ALWAYS_INLINE void rows(const S* src, int64_t sstep, D* dst, int64_t dstep, int64_t w, int64_t y,
                                int64_t h) const {
        const int kh = self().kh;
        const int64_t ahead = y + kh + RR - 1, last = h + kh - 2;
        const auto scalar = [&](int64_t e) {
            for (int r = 0; r < RR; ++r) byteOffset(dst, (y + r) * dstep)[e] = self().scalar(src, sstep, y + r, e);
        };
        if constexpr (K::kNarrowBlock < K::kBlock) {
            if (w < K::kBlock) {  // narrow pieces (a border's strips) in narrow blocks
                forBlocks(w, K::kNarrowBlock, [&](int64_t e) __attribute__((always_inline)) {
                    block<RR, true>(src, sstep, dst, dstep, y, e);
                }, scalar);
                return;
            }
        }
        // rows and blocks melt into the kernel call, which fences what streamed
        forBlocks(w, K::kBlock, [&](int64_t e) __attribute__((always_inline)) {
            prefetchRows(src, sstep, ahead, RR, last, e, K::kBlock * int64_t(sizeof(S)));
            block<RR, false>(src, sstep, dst, dstep, y, e);
        }, scalar, self().stream ? alignmentHead(byteOffset(dst, y * dstep)) : 0);
    }

    // A pass of RR rows: the block's accumulators for each output row, fed
    // by each source row once.
    template <int RR, bool Narrow>
    QVN_ALWAYS_INLINE void block(const S* src, int64_t sstep, D* dst, int64_t dstep, int64_t y, int64_t e) const {
        typename K::template Pass<RR, Narrow> pass = self().template start<RR, Narrow>();
        passRows<RR>(self().kh, [&](int s, auto lo, auto hi) __attribute__((always_inline)) {
            pass.p = rowAt(src, sstep, y + s) + e, pass.s = s;
            pass.template taps<decltype(lo)::value, decltype(hi)::value>();
        });
        unrolled<0, RR>([&](auto r) __attribute__((always_inline)) {
            self().template store<Narrow>(pass.acc[r.value], byteOffset(dst, (y + r.value) * dstep) + e);
        });
    }
};

// ---- 2D float sums ----------------------------------------------------------------------------------
// S source, D destination and W working type (float, or double for 64f).
template <class W, class S, class D>
struct Float2D : RowPasses<Float2D<W, S, D>, S, D> {
    static constexpr int NV = kFloatVectors<D>;
    static constexpr int R = rowsPerPass(NV);
    static constexpr int64_t L = int64_t(isa::kLanes<W>);
    static constexpr int64_t kBlock = NV * L;
    // Float images run pieces narrower than a block (a border's strips) in
    // blocks of one vector; integer destinations need whole blocks to narrow.
    static constexpr int64_t kNarrowBlock = std::is_same_v<D, W> ? L : kBlock;
    template <bool Narrow>
    static constexpr int kVectors = Narrow && std::is_same_v<D, W> ? 1 : NV;

    const W* coef;
    int kw, kh;
    int64_t stride;
    FloatFinish<W> fin;
    bool stream = false;  // non-temporal stores where aligned

    D scalar(const S* src, int64_t sstep, int64_t y, int64_t e) const {
        W acc = 0;
        for (int j = 0; j < kh; ++j) {
            const S* p = rowAt(src, sstep, y + j) + e;
            for (int i = 0; i < kw; ++i) acc = acc + static_cast<W>(p[i * stride]) * coefScalar(coef, j * kw + i);
        }
        return finishScalar<D>(acc, fin);
    }

    // One source row's taps for the output rows [Lo, Hi] of a pass.
    template <int RR, bool Narrow>
    struct Pass {
        static constexpr int NB = kVectors<Narrow>;
        V<W> acc[RR][NB];
        const S* p;  // the source row at the block
        const W* coef;
        int s, kw;
        int64_t stride;

        template <int Lo, int Hi>
        QVN_ALWAYS_INLINE void taps() {
            for (int i = 0; i < kw; ++i) {
                V<W> v[NB];
                unrolled<0, NB>([&](auto k) __attribute__((always_inline)) {
                    v[k.value] = isa::inRegister(isa::loadExpand<W>(p + i * stride + k.value * L));
                });
                unrolled<Lo, Hi + 1>([&](auto r) __attribute__((always_inline)) {
                    const V<W> c = coefVec(coef, (s - r.value) * kw + i);
                    unrolled<0, NB>([&](auto k) __attribute__((always_inline)) {
                        acc[r.value][k.value] = isa::add(acc[r.value][k.value], isa::mul(v[k.value], c));
                    });
                });
            }
        }
    };

    template <int RR, bool Narrow>
    QVN_ALWAYS_INLINE Pass<RR, Narrow> start() const {
        constexpr int NB = kVectors<Narrow>;
        Pass<RR, Narrow> pass;
        pass.coef = coef, pass.kw = kw, pass.stride = stride;
        unrolled<0, RR * NB>([&](auto n) __attribute__((always_inline)) {
            pass.acc[n.value / NB][n.value % NB] = isa::zero<W>();
        });
        return pass;
    }
    template <bool Narrow>
    QVN_ALWAYS_INLINE void store(const V<W>* acc, D* out) const {
        storeResults<D, kVectors<Narrow>>(out, acc, fin, stream);
    }
};

// ---- separable float sums ------------------------------------------------------------------------
// A rank-1 kernel col(j) * row(i): passes of R output rows over chunks of the
// row; a pass puts the column sums of its rows (Float2D's passes of a one-
// column kernel) in scratch rows that stay in the first-level cache, then
// forms the row sums of each scratch row.
template <class W, class S, class D>
struct FloatSeparable {
    static constexpr int NV = kFloatVectors<D>;
    static constexpr int R = rowsPerPass(NV);
    static constexpr int64_t L = int64_t(isa::kLanes<W>);
    static constexpr int64_t kBlock = NV * L;
    static constexpr int64_t kNarrowBlock = Float2D<W, S, D>::kNarrowBlock;
    // Output elements per chunk, and the most a scratch row holds.
    static constexpr int64_t kChunk = 512, kScratch = 1024 + 64;

    const W *rowCoef, *colCoef;  // kw and kh blocks
    int kw, kh;
    int64_t stride;
    FloatFinish<W> fin;
    bool stream = false;  // non-temporal stores where aligned

    // Whether a scratch row holds a chunk with its horizontal neighbours.
    static bool fits(int kw, int64_t stride) { return kChunk + (kw - 1) * stride <= kScratch; }
    // Whether the factors pay: kw + kh products per output and a round trip
    // through the scratch rows against kw x kh products (not for 3 x 3).
    static bool pays(int kw, int kh) { return kw * kh > 2 * (kw + kh); }
    int64_t blockElems() const { return kNarrowBlock; }

    void operator()(const S* src, int64_t sstep, D* dst, int64_t dstep, int64_t w, int64_t h) const {
        alignas(64) W t[R][kScratch];
        int64_t y = 0;
        if (kh >= R - 1) {
            for (; y + R <= h; y += R) rows<R>(src, sstep, dst, dstep, w, y, h, t);
        } else {  // two-row kernels: passes of two
            for (; y + 2 <= h; y += 2) rows<2>(src, sstep, dst, dstep, w, y, h, t);
        }
        for (; y < h; ++y) rows<1>(src, sstep, dst, dstep, w, y, h, t);
        isa::storeFence();
    }

    template <int RR>
    void rows(const S* src, int64_t sstep, D* dst, int64_t dstep, int64_t w, int64_t y, int64_t h,
              W (*t)[kScratch]) const {
        const int64_t extra = (kw - 1) * stride;
        for (int64_t e0 = 0; e0 < w; e0 += kChunk) {
            const int64_t start = w - e0 < kChunk && w > kChunk ? w - kChunk : e0;  // whole chunks only
            const int64_t m = w - start < kChunk ? w - start : kChunk;
            // t[r][x]: the column sum of output row y + r at window element start + x
            const Float2D<W, S, W> columns{{}, colCoef, 1, kh, 1, {}};
            columns.template rows<RR>(rowAt(src, sstep, y) + start, sstep, t[0], kScratch * int64_t(sizeof(W)),
                                      m + extra, 0, h - y);
            for (int r = 0; r < RR; ++r) {
                D* out = byteOffset(dst, (y + r) * dstep) + start;
                const W* row = t[r];
                const auto scalar = [&](int64_t e) { out[e] = finishScalar<D>(rowSum(row + e), fin); };
                const auto wide = [&](int64_t e) __attribute__((always_inline)) { rowBlock<false>(row + e, out + e); };
                if constexpr (kNarrowBlock < kBlock) {
                    if (m < kBlock) {
                        forBlocks(m, kNarrowBlock, [&](int64_t e) __attribute__((always_inline)) { rowBlock<true>(row + e, out + e); },
                                  scalar);
                        continue;
                    }
                }
                forBlocks(m, kBlock, wide, scalar);
            }
        }
    }

    W rowSum(const W* t) const {
        W acc = 0;
        for (int i = 0; i < kw; ++i) acc = acc + t[i * stride] * coefScalar(rowCoef, i);
        return acc;
    }

    template <bool Narrow>
    QVN_ALWAYS_INLINE void rowBlock(const W* t, D* out) const {
        constexpr int NB = Float2D<W, S, D>::template kVectors<Narrow>;
        V<W> acc[NB];
        unrolled<0, NB>([&](auto k) __attribute__((always_inline)) { acc[k.value] = isa::zero<W>(); });
        for (int i = 0; i < kw; ++i) {
            const V<W> c = coefVec(rowCoef, i);
            unrolled<0, NB>([&](auto k) __attribute__((always_inline)) {
                acc[k.value] = isa::add(acc[k.value], isa::mul(isa::loadU(t + i * stride + k.value * L), c));
            });
        }
        storeResults<D, NB>(out, acc, fin, stream);
    }
};

// ---- integer sums ---------------------------------------------------------------------------------
// 8u or 16s pixels and 16-bit coefficients: pairs of horizontal neighbours
// (i, i + 1) interleaved within 16-byte blocks and multiplied by their pair of
// coefficients into 32-bit sums (mulAddPairs); the results are narrowed back
// to element order within the same blocks.
template <class S>
inline V<int16_t> loadPixels(const S* p) {
    if constexpr (sizeof(S) == 1) return isa::cast<int16_t>(isa::loadExpand<std::uint16_t>(p));
    else return isa::cast<int16_t>(isa::loadU(p));
}

template <class D>
QVN_ALWAYS_INLINE void storeNarrowed(D* p, const V<int32_t>* acc, bool stream) {
    constexpr int64_t L16 = int64_t(isa::kLanes<int16_t>);
    const V<int16_t> a = isa::packSatBlocks(acc[0], acc[1]), b = isa::packSatBlocks(acc[2], acc[3]);
    if constexpr (sizeof(D) == 1) {
        put(p, isa::packSat<D>(a, b), stream);
    } else {
        put(p, isa::cast<D>(a), stream);
        put(p + L16, isa::cast<D>(b), stream);
    }
}

template <class S, class D>
struct Int2D : RowPasses<Int2D<S, D>, S, D> {
    static constexpr int64_t L16 = int64_t(isa::kLanes<int16_t>);
    static constexpr int64_t kBlock = 2 * L16;  // two 16-bit vectors: four 32-bit sums
    static constexpr int64_t kNarrowBlock = kBlock;  // no narrower blocks: the results narrow in fours
    static constexpr int R = rowsPerPass(4);

    const int32_t* pairs;  // (kw + 1) / 2 pair blocks per kernel row
    int kw, kh;
    int64_t stride;
    IntFinish fin;
    bool stream = false;  // non-temporal stores where aligned

    D scalar(const S* src, int64_t sstep, int64_t y, int64_t e) const {
        const int np = (kw + 1) / 2;
        uint32_t acc = 0;
        for (int j = 0; j < kh; ++j) {
            const S* p = rowAt(src, sstep, y + j) + e;
            for (int i = 0; i < kw; ++i) {
                const int32_t pair = pairs[(j * np + i / 2) * 4];
                const int32_t k = int16_t(uint32_t(pair) >> (i % 2 * 16));
                acc += uint32_t(k * int32_t(p[i * stride]));
            }
        }
        return saturate<D>(fin.scalar(int32_t(acc)));
    }

    // One source row's pairs of taps for the output rows [Lo, Hi] of a pass.
    template <int RR, bool>
    struct Pass {
        V<int32_t> acc[RR][4];
        const S* p;  // the source row at the block
        const int32_t* pairs;
        int s, kw;
        int64_t stride;

        template <int Lo, int Hi>
        QVN_ALWAYS_INLINE void taps() {
            const int np = (kw + 1) / 2;
            for (int q = 0; q < np; ++q) {
                const S* a = p + 2 * q * stride;
                V<int16_t> z[4];
                for (int n = 0; n < 2; ++n) {
                    const V<int16_t> x = loadPixels(a + n * L16);
                    const V<int16_t> x1 = 2 * q + 1 < kw ? loadPixels(a + stride + n * L16) : isa::zero<int16_t>();
                    z[2 * n] = isa::zipLoBlocks(x, x1);
                    z[2 * n + 1] = isa::zipHiBlocks(x, x1);
                }
                for (int r = Lo; r <= Hi; ++r) {
                    const V<int16_t> c = isa::cast<int16_t>(isa::loadBlock(pairs + ((s - r) * np + q) * 4));
                    for (int k = 0; k < 4; ++k) acc[r][k] = isa::add(acc[r][k], isa::mulAddPairs(z[k], c));
                }
            }
        }
    };

    template <int RR, bool Narrow>
    QVN_ALWAYS_INLINE Pass<RR, Narrow> start() const {
        Pass<RR, Narrow> pass;
        pass.pairs = pairs, pass.kw = kw, pass.stride = stride;
        for (int r = 0; r < RR; ++r)
            for (int k = 0; k < 4; ++k) pass.acc[r][k] = isa::zero<int32_t>();
        return pass;
    }
    template <bool>
    QVN_ALWAYS_INLINE void store(const V<int32_t>* acc, D* out) const {
        V<int32_t> v[4];
        for (int k = 0; k < 4; ++k) v[k] = fin.vector(acc[k]);
        storeNarrowed(out, v, stream);
    }
};

// A rank-1 integer kernel on 8u pixels: col(j) * row(i) with the column sums
// of a row, less a bias, exact in 16 bits (255 * sum |col| <= 65535). The
// column sums go to a 16-bit scratch row, the row sums of the scratch follow
// as Int2D's on one row, and the bias comes back as bias * sum(row) (through
// the finish's pre-constant). Integer sums are exact: the results equal
// Int2D's on the whole kernel.
struct Int8uSeparable {
    static constexpr int64_t L16 = int64_t(isa::kLanes<int16_t>);
    static constexpr int64_t kChunk = 1024, kScratch = 2048 + 64;

    Int2D<int16_t, Qvn8u> rows;  // the row pairs as a one-row kernel, kh = 1
    const int32_t* colPairs;     // (kh + 1) / 2 pair blocks of vertical neighbours
    int kh;
    int32_t bias;
    bool stream = false;         // unused: the rows are stored chunk by chunk, overlapping, into the cache

    static bool fits(int kw, int64_t stride) { return kChunk + (kw - 1) * stride <= kScratch; }
    int64_t blockElems() const { return rows.blockElems(); }

    void operator()(const Qvn8u* src, int64_t sstep, Qvn8u* dst, int64_t dstep, int64_t w, int64_t h) const {
        alignas(64) int16_t t[kScratch];
        const int64_t extra = (rows.kw - 1) * rows.stride;
        for (int64_t y = 0; y < h; ++y) {
            Qvn8u* out = byteOffset(dst, y * dstep);
            for (int64_t e0 = 0; e0 < w; e0 += kChunk) {
                const int64_t start = w - e0 < kChunk && w > kChunk ? w - kChunk : e0;
                const int64_t m = w - start < kChunk ? w - start : kChunk;
                columns(src, sstep, y, start, m + extra, t);
                rows(t, 0, out + start, 0, m, 1);
            }
        }
    }

    int32_t columnScalar(const Qvn8u* src, int64_t sstep, int64_t y, int64_t e) const {
        int32_t acc = 0;
        for (int j = 0; j < kh; ++j) {
            const int32_t pair = colPairs[j / 2 * 4];
            acc += int32_t(int16_t(uint32_t(pair) >> (j % 2 * 16))) * rowAt(src, sstep, y + j)[e];
        }
        return acc - bias;
    }

    void columns(const Qvn8u* src, int64_t sstep, int64_t y, int64_t e0, int64_t n, int16_t* t) const {
        const int np = (kh + 1) / 2;
        forBlocks(n, L16, [&](int64_t x) {
            V<int32_t> lo = isa::zero<int32_t>(), hi = isa::zero<int32_t>();
            for (int q = 0; q < np; ++q) {
                const V<int16_t> a = loadPixels(rowAt(src, sstep, y + 2 * q) + e0 + x);
                const V<int16_t> b = 2 * q + 1 < kh ? loadPixels(rowAt(src, sstep, y + 2 * q + 1) + e0 + x)
                                                    : isa::zero<int16_t>();
                const V<int16_t> c = isa::cast<int16_t>(isa::loadBlock(colPairs + q * 4));
                lo = isa::add(lo, isa::mulAddPairs(isa::zipLoBlocks(a, b), c));
                hi = isa::add(hi, isa::mulAddPairs(isa::zipHiBlocks(a, b), c));
            }
            const V<int32_t> b = isa::set1(bias);
            isa::storeU(t + x, isa::packSatBlocks(isa::sub(lo, b), isa::sub(hi, b)));
        }, [&](int64_t x) { t[x] = int16_t(columnScalar(src, sstep, y, e0 + x)); });
    }
};

}  // namespace filt
}  // namespace kernels
QVN_TARGET_END

#endif
