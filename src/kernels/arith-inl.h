// Elementwise arithmetic with integer scale factors: the operations (scalar
// and vector forms side by side), the scale-factor paths and the row template.
//
// Integer results are formed exactly in a wider type and then scaled by 2^-sf:
// a positive factor divides with ties to even, computed as
// (v + 2^(sf-1) - 1 + ((v >> sf) & 1)) >> sf with a flooring shift; a negative
// factor multiplies; the result is saturated to the element type. The path
// (plain, shift right, shift left) is chosen once per call and selects the row
// kernel, so the loop never tests the factor.
#ifndef QVN_KERNELS_ARITH_INL_H
#define QVN_KERNELS_ARITH_INL_H

#include <cstdint>
#include <limits>
#include <type_traits>

#include "kernels/isa/isa.h"
#include "kernels/store-inl.h"

QVN_TARGET_BEGIN
namespace kernels {
namespace arith {

using std::int16_t;
using std::int32_t;
using std::int64_t;
using std::uint16_t;
using std::uint8_t;
template <class T>
using V = isa::Vec<T>;

template <class T>
inline constexpr int64_t kMax = std::numeric_limits<T>::max();
template <class T>
inline constexpr int64_t kMin = std::numeric_limits<T>::min();

template <class T>
inline T saturate(int64_t v) {
    return static_cast<T>(v < kMin<T> ? kMin<T> : v > kMax<T> ? kMax<T> : v);
}

// ---- widening and narrowing between T and the lane type W of the exact result ----
template <class W, class T>
inline constexpr int kParts = int(sizeof(W) / sizeof(T));

template <class W, class T>
inline void widen(V<T> a, V<W>* out) {
    if constexpr (sizeof(W) == 2 * sizeof(T)) {
        out[0] = isa::widenLo<W>(a);
        out[1] = isa::widenHi<W>(a);
    } else {  // 8u to 32-bit lanes through 16-bit ones (values stay positive)
        static_assert(sizeof(T) == 1 && sizeof(W) == 4, "8u to 32-bit lanes");
        const V<int16_t> lo = isa::widenLo<int16_t>(a), hi = isa::widenHi<int16_t>(a);
        out[0] = isa::widenLo<W>(lo);
        out[1] = isa::widenHi<W>(lo);
        out[2] = isa::widenLo<W>(hi);
        out[3] = isa::widenHi<W>(hi);
    }
}

// Saturating narrowing of kParts<W, T> wide vectors into one vector of T
// (unsigned wide lanes hold values below their sign bit).
template <class T, class W>
inline V<T> narrow(const V<W>* in) {
    using S = std::make_signed_t<W>;
    if constexpr (std::is_same_v<W, std::uint32_t> && std::is_same_v<T, uint16_t>) {
        // non-negative: bias into the signed range, pack with signed saturation, unbias
        const V<int32_t> bias = isa::set1<int32_t>(32768);
        const V<int16_t> p = isa::packSat<int16_t>(isa::sub(isa::cast<int32_t>(in[0]), bias),
                                                   isa::sub(isa::cast<int32_t>(in[1]), bias));
        return isa::cast<uint16_t>(isa::bitXor(p, isa::set1<int16_t>(-32768)));
    } else if constexpr (sizeof(W) == 2 * sizeof(T)) {
        return isa::packSat<T>(isa::cast<S>(in[0]), isa::cast<S>(in[1]));
    } else {
        return isa::packSat<T>(isa::packSat<int16_t>(in[0], in[1]), isa::packSat<int16_t>(in[2], in[3]));
    }
}

// Unsigned minimum of 16- and 32-bit lanes.
template <class W>
inline V<W> minUnsigned(V<W> a, V<W> b) {
    if constexpr (sizeof(W) == 2) {
        return isa::min(a, b);
    } else {  // compare with the sign bits flipped
        using S = std::make_signed_t<W>;
        const V<S> bias = isa::set1<S>(std::numeric_limits<S>::min());
        const V<S> gt = isa::cmpGt(isa::bitXor(isa::cast<S>(a), bias), isa::bitXor(isa::cast<S>(b), bias));
        return isa::select(isa::cast<W>(gt), b, a);
    }
}

// ---- operations: result = x op y (the family decides which image is x) ----------
// wide(): the exact integer result; vwide(): the same on W lanes; plain(): the
// saturated result at scale factor 0; f(), fv(): the 32f forms.
struct AddOp {
    template <class T>
    using Wide = std::conditional_t<sizeof(T) == 1, int16_t, int32_t>;
    static constexpr int64_t maxAbs(int64_t lo, int64_t hi) { return hi + hi > -(lo + lo) ? hi + hi : -(lo + lo); }
    template <class T>
    static int64_t wide(T x, T y) { return int64_t(x) + y; }
    template <class T, class W>
    static void vwide(V<T> x, V<T> y, V<W>* w) {
        V<W> a[kParts<W, T>], b[kParts<W, T>];
        widen(x, a);
        widen(y, b);
        for (int j = 0; j < kParts<W, T>; ++j) w[j] = isa::add(a[j], b[j]);
    }
    template <class T>
    static V<T> plain(V<T> x, V<T> y) { return isa::addSat(x, y); }
    static float f(float x, float y) { return x + y; }
    static V<float> fv(V<float> x, V<float> y) { return isa::add(x, y); }
};

struct SubOp {
    template <class T>
    using Wide = std::conditional_t<sizeof(T) == 1, int16_t, int32_t>;
    static constexpr int64_t maxAbs(int64_t lo, int64_t hi) { return hi - lo; }
    template <class T>
    static int64_t wide(T x, T y) { return int64_t(x) - y; }
    template <class T, class W>
    static void vwide(V<T> x, V<T> y, V<W>* w) {
        V<W> a[kParts<W, T>], b[kParts<W, T>];
        widen(x, a);
        widen(y, b);
        for (int j = 0; j < kParts<W, T>; ++j) w[j] = isa::sub(a[j], b[j]);
    }
    template <class T>
    static V<T> plain(V<T> x, V<T> y) { return isa::subSat(x, y); }
    static float f(float x, float y) { return x - y; }
    static V<float> fv(V<float> x, V<float> y) { return isa::sub(x, y); }
};

// Products are formed in unsigned 16-bit lanes for 8u, unsigned 32-bit lanes
// for 16u and signed 32-bit lanes for 16s: each the exact product.
struct MulOp {
    template <class T>
    using Wide = std::conditional_t<sizeof(T) == 1, uint16_t,
                                    std::conditional_t<std::is_same_v<T, uint16_t>, std::uint32_t, int32_t>>;
    static constexpr int64_t maxAbs(int64_t lo, int64_t hi) { return lo * lo > hi * hi ? lo * lo : hi * hi; }
    template <class T>
    static int64_t wide(T x, T y) { return int64_t(x) * y; }
    template <class T, class W>
    static void vwide(V<T> x, V<T> y, V<W>* w) {
        if constexpr (sizeof(T) == 1) {
            w[0] = isa::mulLo(isa::widenLo<uint16_t>(x), isa::widenLo<uint16_t>(y));
            w[1] = isa::mulLo(isa::widenHi<uint16_t>(x), isa::widenHi<uint16_t>(y));
        } else {  // both halves of the 32-bit products, interleaved
            const V<T> lo = isa::mulLo(x, y), hi = isa::mulHi(x, y);
            w[0] = isa::cast<W>(isa::zipLo(lo, hi));
            w[1] = isa::cast<W>(isa::zipHi(lo, hi));
        }
    }
    template <class T>
    static V<T> plain(V<T> x, V<T> y) {
        if constexpr (sizeof(T) == 1) {
            const V<uint16_t> top = isa::set1<uint16_t>(255);
            const V<uint16_t> lo = isa::min(isa::mulLo(isa::widenLo<uint16_t>(x), isa::widenLo<uint16_t>(y)), top);
            const V<uint16_t> hi = isa::min(isa::mulLo(isa::widenHi<uint16_t>(x), isa::widenHi<uint16_t>(y)), top);
            return isa::packSat<uint8_t>(isa::cast<int16_t>(lo), isa::cast<int16_t>(hi));
        } else if constexpr (std::is_same_v<T, uint16_t>) {
            // 65535 wherever the high half of the product is non-zero
            const V<uint16_t> hi = isa::mulHi(x, y);
            return isa::bitOr(isa::mulLo(x, y), isa::andNot(isa::cmpEq(hi, isa::zero<uint16_t>()),
                                                            isa::allOnes<uint16_t>()));
        } else {
            const V<int16_t> lo = isa::mulLo(x, y), hi = isa::mulHi(x, y);
            return isa::packSat<int16_t>(isa::cast<int32_t>(isa::zipLo(lo, hi)),
                                         isa::cast<int32_t>(isa::zipHi(lo, hi)));
        }
    }
    static float f(float x, float y) { return x * y; }
    static V<float> fv(V<float> x, V<float> y) { return isa::mul(x, y); }
};

// The smallest positive scale factor from which every result of Op on T is 0:
// |v| <= 2^(sf-1) rounds to 0 (a tie goes to the even 0).
template <class Op, class T>
constexpr int zeroFrom() {
    const int64_t m = Op::maxAbs(kMin<T>, kMax<T>);
    int sf = 1;
    while ((int64_t(1) << (sf - 1)) < m) ++sf;
    return sf;
}

// A left shift by this many bits saturates every non-zero value of T.
template <class T>
inline constexpr int kSatShift = sizeof(T) == 1 ? 8 : 16;

// ---- scale-factor paths ---------------------------------------------------------------
struct PathPlain {
    template <class T>
    T scalar(int64_t v) const { return saturate<T>(v); }
};

// sf in 1 .. zeroFrom - 1: divide with ties to even. Unsigned lanes may use
// their top bit, so there the value is halved first, v = 2h + l, and the same
// rounding is (h + ((l + 2^(sf-1) - 1 + (q & 1)) >> 1)) >> (sf - 1) with
// q = h >> (sf - 1), which cannot overflow.
template <class W>
struct PathRight {
    int n;
    isa::ShiftCount count, countLess1;
    V<W> halfMinus1, one;
    explicit PathRight(int sf)
        : n(sf), count(isa::shiftCount(sf)), countLess1(isa::shiftCount(sf - 1)),
          halfMinus1(isa::set1<W>(W((int64_t(1) << (sf - 1)) - 1))), one(isa::set1<W>(W(1))) {}
    template <class T>
    T scalar(int64_t v) const {
        return saturate<T>((v + (int64_t(1) << (n - 1)) - 1 + ((v >> n) & 1)) >> n);
    }
    V<W> vector(V<W> v) const {
        if constexpr (std::is_unsigned_v<W>) {
            const V<W> h = isa::shiftRight<1>(v);
            const V<W> odd = isa::bitAnd(isa::shiftRight(h, countLess1), one);
            const V<W> carry = isa::shiftRight<1>(isa::add(isa::add(isa::bitAnd(v, one), halfMinus1), odd));
            return isa::shiftRight(isa::add(h, carry), countLess1);
        } else {
            const V<W> odd = isa::bitAnd(isa::shiftRight(v, count), one);
            return isa::shiftRight(isa::add(isa::add(v, halfMinus1), odd), count);
        }
    }
};

// sf < 0: multiply by 2^n, n = min(-sf, kSatShift): v is first clamped to just
// outside the range whose shift stays in T, so the shift cannot overflow W and
// the saturating narrowing does the rest.
template <class W>
struct PathLeft {
    int n;
    int64_t lo, hi;
    isa::ShiftCount count;
    V<W> vlo, vhi;
    template <class T>
    static PathLeft make(int sf) {
        const int n = -sf < kSatShift<T> ? -sf : kSatShift<T>;
        const int64_t lo = (kMin<T> >> n) - 1, hi = (kMax<T> >> n) + 1;  // flooring shifts
        return PathLeft{n, lo, hi, isa::shiftCount(n), isa::set1<W>(W(lo)), isa::set1<W>(W(hi))};
    }
    template <class T>
    T scalar(int64_t v) const {
        return saturate<T>((v < lo ? lo : v > hi ? hi : v) * (int64_t(1) << n));
    }
    V<W> vector(V<W> v) const {
        if constexpr (std::is_unsigned_v<W>) return isa::shiftLeft(minUnsigned(v, vhi), count);
        else return isa::shiftLeft(isa::min(isa::max(v, vlo), vhi), count);
    }
};

// ---- kernels: scalar and vector form of one operation on one path ---------------------
// Kernels that watch their inputs (zero divisors) are told which vector lanes
// hold alpha elements that AC4 neither reads nor writes.
struct Unwatched {
    template <class M>
    void skipLanes(M) {}
};

// A kernel that reports a condition some element met (a zero divisor, a
// negative square root) flags it here: lanes of a vector, with the alpha
// lanes masked off, or an element of the scalar head and tail.
template <class T>
struct Watch {
    V<T> seen = isa::zero<T>(), skip = isa::zero<T>();
    bool seenScalar = false;
    void skipLanes(V<T> alpha) { skip = alpha; }
    void flag(V<T> lanes) { seen = isa::bitOr(seen, isa::andNot(skip, lanes)); }
    void flag(bool met) { seenScalar |= met; }
    bool met() const { return seenScalar || isa::anyTrue(seen); }
};

template <class Op, class T, class Path>
struct SfsKernel : Unwatched {
    Path path;
    T scalar(T x, T y) const { return path.template scalar<T>(Op::wide(x, y)); }
    V<T> vector(V<T> x, V<T> y) const {
        if constexpr (std::is_same_v<Path, PathPlain>) {
            return Op::plain(x, y);
        } else {
            using W = typename Op::template Wide<T>;
            V<W> w[kParts<W, T>];
            Op::vwide(x, y, w);
            for (auto& v : w) v = path.vector(v);
            return narrow<T>(w);
        }
    }
};

template <class Op>
struct FloatKernel : Unwatched {
    float scalar(float x, float y) const { return Op::f(x, y); }
    V<float> vector(V<float> x, V<float> y) const { return Op::fv(x, y); }
};

// ---- second operands: an image row or a repeating per-channel constant -----------------
template <class T>
struct RowOperand {
    static constexpr int kPeriod = 1;
    const T* p;
    T at(int64_t i) const { return p[i]; }
    void start(int64_t) {}
    V<T> vec(int64_t i) const { return isa::loadU(p + i); }
};

// K constants repeating along the row (K = 4 for AC4, whose fourth is unused).
// A 3-element pattern repeats every three vectors, the others every vector.
template <class T, int K>
struct ConstOperand {
    static constexpr int kPeriod = K == 3 ? 3 : 1;
    T c[K];
    V<T> v[kPeriod];
    // count values are read (3 for AC4, whose unused fourth is set to 0).
    ConstOperand(const T* value, int count) {
        for (int k = 0; k < K; ++k) c[k] = k < count ? value[k] : T(0);
    }
    T at(int64_t i) const { return c[i % K]; }
    void start(int64_t i0) {  // the vectors for a body that starts at element i0
        for (int k = 0; k < kPeriod; ++k) {
            alignas(isa::kVectorBytes) T lane[isa::kLanes<T>];
            for (std::size_t e = 0; e < isa::kLanes<T>; ++e) lane[e] = c[(i0 + k * int64_t(isa::kLanes<T>) + int64_t(e)) % K];
            v[k] = isa::loadA(lane);
        }
    }
    V<T> vec(int64_t) const { return v[0]; }  // period 1
};

// All-ones lanes on the elements at positions i0 + e with (i0 + e) % 4 == 3:
// the alpha elements that AC4 keeps. Vectors hold a multiple of four elements,
// so one mask serves every vector of a row body.
template <class T>
inline V<T> alphaLanes(int64_t i0) {
    alignas(isa::kVectorBytes) T lane[isa::kLanes<T>];
    for (std::size_t e = 0; e < isa::kLanes<T>; ++e) {
        T m;
        unsigned char* b = reinterpret_cast<unsigned char*>(&m);
        for (std::size_t k = 0; k < sizeof(T); ++k) b[k] = (i0 + int64_t(e)) % 4 == 3 ? 0xFF : 0;
        lane[e] = m;
    }
    return isa::loadA(lane);
}

// The row template: d[i] = kern(x[i], y[i]) over n elements, scalar head until
// d is vector-aligned, vector body (stored by Store), scalar tail. With Keep
// every fourth element (alpha) is left as it is.
template <bool Keep, class Store, class T, class Kern, class Y>
inline void rowWith(const T* x, Y y, T* d, int64_t n, Kern& kern) {
    constexpr int64_t kLanes = isa::kLanes<T>;
    int64_t head = headToAlign(d, n);
    if (head < 0) head = n;
    int64_t i = 0;
    for (; i < head; ++i)
        if (!Keep || i % 4 != 3) d[i] = kern.scalar(x[i], y.at(i));
    if (i + kLanes <= n) {
        y.start(i);
        const V<T> alpha = Keep ? alphaLanes<T>(i) : isa::zero<T>();
        if constexpr (Keep) kern.skipLanes(alpha);
        const auto one = [&](int64_t k, V<T> yv) {
            const V<T> r = kern.vector(isa::loadU(x + k), yv);
            if constexpr (Keep) isa::storeKeep(d + k, r, alpha);
            else Store::store(d + k, r);
        };
        if constexpr (Y::kPeriod == 3) {  // a 3-constant pattern: three vectors a round
            for (; i + 3 * kLanes <= n; i += 3 * kLanes) {
                one(i, y.v[0]);
                one(i + kLanes, y.v[1]);
                one(i + 2 * kLanes, y.v[2]);
            }
            for (int k = 0; i + kLanes <= n; i += kLanes, ++k) one(i, y.v[k]);
        } else {
            for (; i + kLanes <= n; i += kLanes) one(i, y.vec(i));
        }
    }
    for (; i < n; ++i)
        if (!Keep || i % 4 != 3) d[i] = kern.scalar(x[i], y.at(i));
}

// A kernel that the row may change (one that watches its inputs) runs as a
// local copy, written back at the end: vector stores may alias any type, so
// through the caller's reference every store to d would reload and store
// the kernel's state, a dependency through memory from vector to vector.
template <bool Keep, class Store = StoreRegular, class T, class Kern, class Y>
inline void row(const T* x, Y y, T* d, int64_t n, Kern& kern) {
    if constexpr (std::is_const_v<Kern>) {
        rowWith<Keep, Store>(x, y, d, n, kern);
    } else {
        Kern local = kern;
        rowWith<Keep, Store>(x, y, d, n, local);
        kern = local;
    }
}

}  // namespace arith
}  // namespace kernels
QVN_TARGET_END

#endif
