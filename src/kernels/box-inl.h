// Row kernels of the box filter and the window sums, written once against isa.
//
// A box filter keeps one accumulator per element of the bordered row (the
// column sums, type A: int32 for exact integer sums, float otherwise) and
// moves it down the image a row at a time; the window sums of an output row
// are then running sums along the accumulators. Every output costs the same
// few operations whatever the mask.
//
//   addRow(col, in, n)          col[e] += in[e]
//   updateRow(col, in, out, n)  col[e] += in[e] - out[e]: the difference is
//                               formed in int32 for integer sources (and
//                               converted to float once on the float path), in
//                               float for float sources
//   windowSumsInt<C>(lead, trail, out, n)
//                               out[i] = out[i - C] + lead[i] - trail[i] for
//                               i in [0, n): prefix sums of the differences
//                               within vectors, in wrapping int32 (exact sums
//                               in any order); out[-N, 0) is readable (N
//                               int32 lanes) and out[-C, 0) holds the sums
//                               before the first
//   rowSums<A, C>(col, kw, e0, n, out)
//                               out[i] = s[e0 + i], s[e] = sum over t < kw of
//                               col[e + t * C], for n <= kChunk, with
//                               out[-kPad, 0) holding the sums before e0 (row
//                               chunks); it reads col[e0 - 4C, e0 + n + (kw - 1) C)
//   finishRow<A, D, Alpha, Mean>(sums, dst, n, scale)
//                               sums to destination elements
//
// Float window sums have one order, whatever the target, chunk or block: for
// the element e of pixel x = e / C, with d[e] = col[e + (kw - 1) C] - col[e - C],
//   x = 0:      s[e] = col[e] + col[e + C] + ... + col[e + (kw - 1) C], left to right
//   0 < x < 4:  s[e] = s[e - C] + d[e]
//   x >= 4:     s[e] = s[e - 4C] + (((d[e - 3C] + d[e - 2C]) + d[e - C]) + d[e])
// (four chains per channel, so a 16-byte vector of four elements follows
// sums already made; every target runs these on 16-byte vectors).
//
// Means: floor(float(sum) * scale + 0.5) saturated to the destination (the
// means of integer sources stay within their type's range, so the
// conversion to int32 never overflows); the float mean is
// float(sum) * scale. Sums: int32 stays, float sums to int32 round to nearest
// with saturation, int32 sums to float round to nearest. The caller runs the
// kernels with the rounding control at round-to-nearest.
#ifndef QVN_KERNELS_BOX_INL_H
#define QVN_KERNELS_BOX_INL_H

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/image.h"
#include "kernels/isa/isa.h"

QVN_TARGET_BEGIN
namespace kernels {
namespace box {

using std::int32_t;
using std::int64_t;
using std::uint32_t;
template <class T>
using V = isa::Vec<T>;

// Sums before a row chunk that the window sums read: the widest vector of
// int32 lanes, and four pixels of four elements; the longest chunk.
inline constexpr int64_t kPad = 64, kChunk = 1024;

// The type in which a source's values and differences are formed.
template <class S>
using Diff = std::conditional_t<std::is_floating_point_v<S>, float, int32_t>;

// Wrapping int32 arithmetic in scalar code, as the vector lanes do.
inline int32_t plus(int32_t a, int32_t b) { return int32_t(uint32_t(a) + uint32_t(b)); }
inline int32_t minus(int32_t a, int32_t b) { return int32_t(uint32_t(a) - uint32_t(b)); }
inline float plus(float a, float b) { return a + b; }
inline float minus(float a, float b) { return a - b; }

// ---- column sums -------------------------------------------------------------------------------
// Elements of S per block (one vector of S, or of its Diff for float), and
// the vectors of Diff<S> it makes.
template <class S>
inline constexpr int64_t kBlock = int64_t(isa::kLanes<S>);
template <class S>
inline constexpr int kParts = int(isa::kLanes<S> / isa::kLanes<Diff<S>>);

template <class A, class W>
inline V<A> toAcc(V<W> v) {
    if constexpr (std::is_same_v<A, W>) return v;
    else return isa::toFloat(v);  // integer values and differences on the float path: exact
}

// A block of S at p as kParts vectors of Diff<S>, in element order.
template <class S>
inline void loadParts(const S* p, V<Diff<S>>* out) {
    const V<S> v = isa::loadU(p);
    if constexpr (sizeof(S) == 4) {
        out[0] = v;
    } else if constexpr (sizeof(S) == 2) {
        out[0] = isa::widenLo<int32_t>(v), out[1] = isa::widenHi<int32_t>(v);
    } else {
        const V<std::uint16_t> lo = isa::widenLo<std::uint16_t>(v), hi = isa::widenHi<std::uint16_t>(v);
        out[0] = isa::widenLo<int32_t>(lo), out[1] = isa::widenHi<int32_t>(lo);
        out[2] = isa::widenLo<int32_t>(hi), out[3] = isa::widenHi<int32_t>(hi);
    }
}

// in - out of a block, as kParts vectors of Diff<S> (8-bit sources subtract
// in 16-bit lanes, which hold every difference).
template <class S>
inline void diffParts(const S* in, const S* out, V<Diff<S>>* d) {
    if constexpr (sizeof(S) == 1) {
        const V<S> a = isa::loadU(in), b = isa::loadU(out);
        const V<std::int16_t> lo = isa::sub(isa::cast<std::int16_t>(isa::widenLo<std::uint16_t>(a)),
                                            isa::cast<std::int16_t>(isa::widenLo<std::uint16_t>(b)));
        const V<std::int16_t> hi = isa::sub(isa::cast<std::int16_t>(isa::widenHi<std::uint16_t>(a)),
                                            isa::cast<std::int16_t>(isa::widenHi<std::uint16_t>(b)));
        d[0] = isa::widenLo<int32_t>(lo), d[1] = isa::widenHi<int32_t>(lo);
        d[2] = isa::widenLo<int32_t>(hi), d[3] = isa::widenHi<int32_t>(hi);
    } else {
        V<Diff<S>> a[kParts<S>], b[kParts<S>];
        loadParts(in, a);
        loadParts(out, b);
        for (int k = 0; k < kParts<S>; ++k) d[k] = isa::sub(a[k], b[k]);
    }
}

template <class A, class W>
inline void accumulate(A* col, const V<W>* parts, int count) {
    constexpr int64_t L = int64_t(isa::kLanes<A>);
    for (int k = 0; k < count; ++k) isa::storeU(col + k * L, isa::add(isa::loadU(col + k * L), toAcc<A>(parts[k])));
}

template <class S, class A>
inline void addRow(A* col, const S* in, int64_t n) {
    int64_t e = 0;
    for (; e + kBlock<S> <= n; e += kBlock<S>) {
        V<Diff<S>> p[kParts<S>];
        loadParts(in + e, p);
        accumulate(col + e, p, kParts<S>);
    }
    for (; e < n; ++e) col[e] = plus(col[e], A(Diff<S>(in[e])));
}

template <class S, class A>
inline void updateRow(A* col, const S* in, const S* out, int64_t n) {
    int64_t e = 0;
    for (; e + kBlock<S> <= n; e += kBlock<S>) {
        V<Diff<S>> d[kParts<S>];
        diffParts(in + e, out + e, d);
        accumulate(col + e, d, kParts<S>);
    }
    for (; e < n; ++e) col[e] = plus(col[e], A(minus(Diff<S>(in[e]), Diff<S>(out[e]))));
}

// n elements of S widened to Diff<S> (the row sums' streams).
template <class S>
inline void widenRow(const S* in, Diff<S>* out, int64_t n) {
    constexpr int64_t L = int64_t(isa::kLanes<Diff<S>>);
    int64_t e = 0;
    for (; e + kBlock<S> <= n; e += kBlock<S>) {
        V<Diff<S>> p[kParts<S>];
        loadParts(in + e, p);
        for (int k = 0; k < kParts<S>; ++k) isa::storeU(out + e + k * L, p[k]);
    }
    for (; e < n; ++e) out[e] = Diff<S>(in[e]);
}

// ---- window sums along a row ----------------------------------------------------------------------
// Lane i of d plus every lane i - k * C (k >= 1) of it: prefix sums of each channel.
template <int C, int Shift = C>
inline V<int32_t> channelPrefix(V<int32_t> d) {
    if constexpr (Shift < int(isa::kLanes<int32_t>)) return channelPrefix<C, 2 * Shift>(isa::add(d, isa::shiftLanesUp<Shift>(d)));
    else return d;
}

template <int C>
inline void windowSumsInt(const int32_t* lead, const int32_t* trail, int32_t* out, int64_t n) {
    constexpr int64_t N = int64_t(isa::kLanes<int32_t>);
    if (n < N) {
        for (int64_t i = 0; i < n; ++i) out[i] = plus(out[i - C], minus(lead[i], trail[i]));
        return;
    }
    const auto sums = [&](int64_t i, V<int32_t> carry) {
        const V<int32_t> s = isa::add(carry, channelPrefix<C>(isa::sub(isa::loadU(lead + i), isa::loadU(trail + i))));
        isa::storeU(out + i, s);
        return s;
    };
    V<int32_t> carry = isa::repeatLastPixel<C>(isa::loadU(out - N));
    int64_t i = 0;
    if constexpr (N % C == 0) {
        // the carry keeps its channel order: its next value is its sum with the
        // block's last pixel, so the chain is one add per vector
        for (; i + N <= n; i += N) {
            const V<int32_t> p = channelPrefix<C>(isa::sub(isa::loadU(lead + i), isa::loadU(trail + i)));
            isa::storeU(out + i, isa::add(carry, p));
            carry = isa::add(carry, isa::repeatLastPixel<C>(p));
        }
    } else {
        // three vectors bring the channels back to the carry's order: with R
        // = repeatLastPixel, the vectors' sums are R^k(carry) + u_k (u_0 the
        // first prefix, u_k = R(u_(k-1)) + the k-th) and the next carry is
        // carry + R(u_2), so the chain is one add per three vectors
        for (; i + 3 * N <= n; i += 3 * N) {
            const auto prefix = [&](std::int64_t at) {
                return channelPrefix<C>(isa::sub(isa::loadU(lead + at), isa::loadU(trail + at)));
            };
            const V<int32_t> u0 = prefix(i), u1 = isa::add(isa::repeatLastPixel<C>(u0), prefix(i + N));
            const V<int32_t> u2 = isa::add(isa::repeatLastPixel<C>(u1), prefix(i + 2 * N));
            const V<int32_t> c1 = isa::repeatLastPixel<C>(carry), c2 = isa::repeatLastPixel<C>(c1);
            isa::storeU(out + i, isa::add(carry, u0));
            isa::storeU(out + i + N, isa::add(c1, u1));
            isa::storeU(out + i + 2 * N, isa::add(c2, u2));
            carry = isa::add(carry, isa::repeatLastPixel<C>(u2));
        }
        for (; i + N <= n; i += N) carry = isa::repeatLastPixel<C>(sums(i, carry));
    }
    if (i < n) sums(n - N, isa::repeatLastPixel<C>(isa::loadU(out + n - 2 * N)));  // the same sums again, then the rest
}

// The sums of the first pixel of a row: kw terms of each channel.
template <class A, int C>
inline void firstPixel(const A* col, int64_t kw, A* out) {
    for (int c = 0; c < C; ++c) {
        A s = col[c];
        for (int64_t t = 1; t < kw; ++t) s = plus(s, col[c + t * C]);
        out[c] = s;
    }
}

template <int C>
inline void rowSumsInt(const int32_t* col, int64_t kw, int64_t e0, int64_t n, int32_t* out) {
    int64_t i = 0;
    if (e0 == 0) {
        firstPixel<int32_t, C>(col, kw, out);
        i = C;
    }
    if (i < n) windowSumsInt<C>(col + e0 + i + (kw - 1) * C, col + e0 + i - C, out + i, n - i);
}

// The float order above: sums of elements [e0, e0 + n) of the row (n at
// most kChunk). The differences, then the four-term sums (lane by lane, so at
// full width with the same bits), then the chains four elements at a time.
template <int C>
inline void rowSumsFloat(const float* col, int64_t kw, int64_t e0, int64_t n, float* out) {
    constexpr int64_t L = int64_t(isa::kLanes<float>);
    const int64_t reach = (kw - 1) * C, end = e0 + n;
    float* const s = out - e0;  // s[e], e in [e0 - kPad, end)
    int64_t e = e0;
    if (e < C) {
        firstPixel<float, C>(col, kw, out);
        e = C;
    }
    for (; e < end && e < 4 * C; ++e) s[e] = s[e - C] + (col[e + reach] - col[e - C]);
    if (e == end) return;
    // d[i] for i in [e - 3C, end)
    alignas(64) float dbuf[kChunk + 16];
    float* const d = dbuf - (e - 3 * C);
    int64_t i = e - 3 * C;
    for (; i + L <= end; i += L) isa::storeU(d + i, isa::sub(isa::loadU(col + i + reach), isa::loadU(col + i - C)));
    for (; i < end; ++i) d[i] = col[i + reach] - col[i - C];
    // s[i] = the four-term sums, then s[i - 4C] + s[i] in order
    for (i = e; i + L <= end; i += L)
        isa::storeU(s + i, isa::add(isa::add(isa::add(isa::loadU(d + i - 3 * C), isa::loadU(d + i - 2 * C)),
                                             isa::loadU(d + i - C)),
                                    isa::loadU(d + i)));
    for (; i < end; ++i) s[i] = ((d[i - 3 * C] + d[i - 2 * C]) + d[i - C]) + d[i];
    for (i = e; i + 4 <= end; i += 4) v128::storeU(s + i, v128::add(v128::loadU(s + i - 4 * C), v128::loadU(s + i)));
    for (; i < end; ++i) s[i] = s[i - 4 * C] + s[i];
}

// ---- finishes ----------------------------------------------------------------------------------------
// Unsigned lanes of D's size that are all ones in the alpha elements (every fourth).
template <class D>
inline V<D> alphaLanes() {
    using U = std::conditional_t<sizeof(D) == 1, std::uint8_t, std::conditional_t<sizeof(D) == 2, std::uint16_t, uint32_t>>;
    alignas(64) U m[isa::kLanes<U>];
    for (std::size_t i = 0; i < isa::kLanes<U>; ++i) m[i] = i % 4 == 3 ? U(~U(0)) : U(0);
    return isa::cast<D>(isa::loadA(m));
}

template <class A>
inline V<float> asFloat(V<A> s) {
    if constexpr (std::is_same_v<A, float>) return s;
    else return isa::toFloat(s);
}

// One vector of sums to int32 lanes of the destination's values.
template <class A, class D, bool Mean>
inline V<int32_t> finishLanes(V<A> s, V<float> scale) {
    if constexpr (!Mean) {
        if constexpr (std::is_same_v<A, int32_t>) return s;
        // float sums to int32: nearest, saturated (the largest float below 2^31)
        else return isa::toInt(isa::min(isa::max(s, isa::set1(-2147483648.0f)), isa::set1(2147483520.0f)));
    } else {
        const V<float> x = isa::add(isa::mul(asFloat<A>(s), scale), isa::set1(0.5f));
        V<int32_t> t = isa::toIntTrunc(x);
        if constexpr (std::is_signed_v<D>) t = isa::add(t, isa::cast<int32_t>(isa::cmpGt(isa::toFloat(t), x)));  // floor
        return t;
    }
}

template <class A, class D, bool Mean>
inline D finishScalar(A s, float scale) {
    if constexpr (std::is_same_v<D, float>) {
        if constexpr (Mean) return static_cast<float>(s) * scale;
        else return static_cast<float>(s);
    } else if constexpr (!Mean) {
        if constexpr (std::is_same_v<A, int32_t>) return s;
        else return isa::toIntScalar(std::fmin(std::fmax(s, -2147483648.0f), 2147483520.0f));
    } else {
        const float x = static_cast<float>(s) * scale + 0.5f;
        const int32_t t = static_cast<int32_t>(std::floor(x));
        constexpr int32_t lo = std::numeric_limits<D>::lowest(), hi = std::numeric_limits<D>::max();
        return static_cast<D>(t < lo ? lo : t > hi ? hi : t);
    }
}

// A block of kLanes<D> sums to destination elements.
template <class A, class D, bool Mean>
inline V<D> finishBlock(const A* s, V<float> scale) {
    constexpr int64_t L = int64_t(isa::kLanes<A>);
    if constexpr (std::is_same_v<D, float>) {
        const V<float> x = asFloat<A>(isa::loadU(s));
        return Mean ? isa::mul(x, scale) : x;
    } else {
        constexpr int NV = int(isa::kLanes<D> / isa::kLanes<int32_t>);
        V<int32_t> t[NV];
        for (int k = 0; k < NV; ++k) t[k] = finishLanes<A, D, Mean>(isa::loadU(s + k * L), scale);
        if constexpr (sizeof(D) == 4) return t[0];
        else if constexpr (sizeof(D) == 2) return isa::packSat<D>(t[0], t[1]);
        else return isa::packSat<D>(isa::packSat<std::int16_t>(t[0], t[1]), isa::packSat<std::int16_t>(t[2], t[3]));
    }
}

template <class A, class D, bool Alpha, bool Mean>
inline void finishRow(const A* sums, D* dst, int64_t n, float scale) {
    constexpr int64_t B = int64_t(isa::kLanes<D>);
    if (n < B) {
        for (int64_t e = 0; e < n; ++e)
            if (!Alpha || e % 4 != 3) dst[e] = finishScalar<A, D, Mean>(sums[e], scale);
        return;
    }
    const V<float> sc = isa::set1(scale);
    const auto block = [&](int64_t e) {
        const V<D> v = finishBlock<A, D, Mean>(sums + e, sc);
        if constexpr (Alpha) isa::storeKeep(dst + e, v, alphaLanes<D>());
        else isa::storeU(dst + e, v);
    };
    int64_t e = 0;
    for (; e + B <= n; e += B) block(e);
    if (e < n) block(n - B);  // overlaps the block before: the same values again
}

}  // namespace box
}  // namespace kernels
QVN_TARGET_END

#endif
