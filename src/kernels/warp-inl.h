// Affine warp rows: the source positions of a destination row (wide
// vectors), and the nearest, linear and cubic rows over the columns whose
// taps all lie in readable source memory.
//
// Positions: for the columns x0 .. x0 + n - 1 (whole vectors; the caller's
// buffer has room), p = clamp(row + m * x, +-2^30) + 0 in double (the + 0
// turns -0 into +0); nearest stores floor(p + 0.5), the others floor(p) and
// the fraction p - floor(p) rounded to float. The same operations on every
// lane of every vector width give the same bits on every target.
//
// Pixels: the arithmetic of one destination pixel works on float lanes, one
// per channel, in this order (the edge pixels of the family template use
// the same functions):
//   linear  lerp(lerp(a, b, fx), lerp(c, d, fx), fy), lerp(u, v, f) = u + (v - u) * f;
//   cubic   h_j = (t_j0 wx0 + t_j1 wx1) + (t_j2 wx2 + t_j3 wx3) for the rows j,
//           then (h_0 wy0 + h_1 wy1) + (h_2 wy2 + h_3 wy3);
// integer results rounded to nearest (ties to even: the caller sets the
// rounding control) and saturated. One-channel rows hold four pixels in the
// lanes instead and do the same operations on each. Taps are gathered from
// scattered rows, which wider vectors do not speed up: the rows work on
// 16-byte vectors on every target, like the resize's horizontal pass.
#ifndef QVN_KERNELS_WARP_INL_H
#define QVN_KERNELS_WARP_INL_H

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/image.h"
#include "kernels/isa/isa.h"
#include "kernels/resize-inl.h"

QVN_TARGET_BEGIN
namespace kernels {
namespace warp {

inline constexpr double kFar = 1073741824.0;  // 2^30

// ---- positions --------------------------------------------------------------------------

template <bool Nearest>
inline void positions(double row, double m, std::int64_t x0, std::int64_t n, std::int32_t* idx, float* frac) {
    using namespace isa;
    constexpr std::int64_t kF = std::int64_t(kLanes<float>), kD = std::int64_t(kLanes<double>);
    alignas(64) static constexpr double kIota[16] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
    const Vec<double> mv = set1(m), rv = set1(row), lo = set1(-kFar), hi = set1(kFar), zeroV = zero<double>();
    const Vec<double> step = set1(double(kF)), half = set1(0.5);
    Vec<double> xa = add(set1(double(x0)), loadU(kIota)), xb = add(set1(double(x0)), loadU(kIota + kD));
    const auto at = [&](Vec<double> x) {
        const Vec<double> p = add(min(max(add(rv, mul(mv, x)), lo), hi), zeroV);
        return Nearest ? add(p, half) : p;
    };
    for (std::int64_t i = 0; i < n; i += kF) {
        const Vec<double> pa = at(xa), pb = at(xb);
        const Vec<double> fa = floor(pa), fb = floor(pb);
        storeU(idx + i, toInt(fa, fb));
        if constexpr (!Nearest) storeU(frac + i, toFloat(sub(pa, fa), sub(pb, fb)));
        xa = add(xa, step), xb = add(xb, step);
    }
}

// ---- pixel arithmetic ---------------------------------------------------------------------

using V = v128::Vec<float>;

inline V lerp(V u, V v, V f) {
    using namespace v128;
    return add(u, mul(sub(v, u), f));
}

alignas(16) inline constexpr float kCubicBase[4] = {1, 0, 1, 2};
alignas(16) inline constexpr float kCubicSign[4] = {1, 1, -1, -1};

// The cubic's weights of the taps -1, 0, 1, 2 of fraction f (poly: the spec's
// per-lane polynomials, four vectors of coefficients).
inline V cubicWeights(float f, const float (*poly)[4]) {
    using namespace v128;
    const V t = add(loadU(kCubicBase), mul(set1(f), loadU(kCubicSign)));
    V k = loadU(poly[0]);
    for (int d = 1; d < 4; ++d) k = add(mul(k, t), loadU(poly[d]));
    return k;
}

// (a0 + a1, a2 + a3, b0 + b1, b2 + b3)
inline V pairSums(V a, V b) {
    using namespace v128;
    return add(unzipEven(a, b), unzipOdd(a, b));
}

// One row of a cubic pixel: taps t[0..3] (lanes: channels) with the
// weights w (lanes: taps).
inline V cubicRow(const V t[4], const float w[4]) {
    using namespace v128;
    return add(add(mul(t[0], set1(w[0])), mul(t[1], set1(w[1]))), add(mul(t[2], set1(w[2])), mul(t[3], set1(w[3]))));
}

// ---- results ----------------------------------------------------------------------------

// Four float lanes as T in the low lanes: rounded and saturated for integers.
template <class T>
inline auto narrow(V v) {
    using namespace v128;
    if constexpr (std::is_same_v<T, float>) {
        return v;
    } else {
        const Vec<std::int32_t> i = toInt(v);
        if constexpr (sizeof(T) == 1) {
            const Vec<std::int16_t> w = packSat<std::int16_t>(i, i);
            return packSat<std::uint8_t>(w, w);
        } else {
            return packSat<T>(i, i);
        }
    }
}
template <class T>
inline void storeFour(T* d, V v) {
    const auto n = narrow<T>(v);
    std::memcpy(d, &n, 4 * sizeof(T));
}
// The first k lanes only.
template <class T>
inline void storeSome(T* d, V v, int k) {
    const auto n = narrow<T>(v);
    std::memcpy(d, &n, std::size_t(k) * sizeof(T));
}
// A pixel of K elements at p as float lanes, reading no more than K.
template <class T, int K>
inline V loadPixel(const T* p) {
    T px[4] = {};
    std::memcpy(px, p, K * sizeof(T));
    return resize::four(px);
}

// ---- rows ---------------------------------------------------------------------------------
//
// Each row template produces destination pixels [0, n) of a row from the
// first taps ix, iy (nearest: the pixels) and, for linear and cubic, the
// fractions fx, fy, reading the source image at src (pixel (0, 0)) with
// step; every tap, and kOver pixels past the last one of a row, lies in
// memory. row() returns how many pixels it produced (the rest, fewer than
// four, are the caller's). Three-element pixels are stored four elements at
// a time where the next pixel, stored later, overwrites the fourth.

template <class T>
inline const T* sourceRow(const T* src, std::int64_t step, std::int32_t y) {
    return byteOffset(src, std::int64_t(y) * step);
}

template <class T, int K>
struct NearestRow {
    static constexpr int kOver = K == 3 ? 1 : 0;
    static std::int64_t row(const T* src, std::int64_t step, const std::int32_t* ix, const std::int32_t* iy,
                            const float*, const float*, T* d, std::int64_t n) {
        constexpr std::size_t kB = K * sizeof(T), kWide = K == 3 ? kB / 3 * 4 : kB;
        for (std::int64_t i = 0; i < n; ++i) {
            const T* p = sourceRow(src, step, iy[i]) + std::int64_t(ix[i]) * K;
            if (K == 3 && i + 1 < n) std::memcpy(d + i * K, p, kWide);
            else std::memcpy(d + i * K, p, kB);
        }
        return n;
    }
};

template <class T, int K>
struct LinearRow {
    static constexpr int kOver = K == 3 ? 1 : 0;
    static std::int64_t row(const T* src, std::int64_t step, const std::int32_t* ix, const std::int32_t* iy,
                            const float* fx, const float* fy, T* d, std::int64_t n) {
        using namespace v128;
        if constexpr (K == 1) {
            std::int64_t i = 0;
            for (; i + 4 <= n; i += 4) {
                const T* p0[4];
                const T* p1[4];
                for (int k = 0; k < 4; ++k) {
                    p0[k] = sourceRow(src, step, iy[i + k]) + ix[i + k];
                    p1[k] = byteOffset(p0[k], step);
                }
                V lo, hi;
                resize::tapPairs(p0, lo, hi);
                const V a = unzipEven(lo, hi), b = unzipOdd(lo, hi);
                resize::tapPairs(p1, lo, hi);
                const V c = unzipEven(lo, hi), e = unzipOdd(lo, hi);
                const V f = loadU(fx + i);
                storeFour(d + i, lerp(lerp(a, b, f), lerp(c, e, f), loadU(fy + i)));
            }
            return i;
        } else {
            for (std::int64_t i = 0; i < n; ++i) {
                const T* p0 = sourceRow(src, step, iy[i]) + std::int64_t(ix[i]) * K;
                const T* p1 = byteOffset(p0, step);
                const V f = set1(fx[i]);
                const V v = lerp(lerp(resize::four(p0), resize::four(p0 + K), f),
                                 lerp(resize::four(p1), resize::four(p1 + K), f), set1(fy[i]));
                if (K == 4 || i + 1 < n) storeFour(d + i * K, v);
                else storeSome(d + i * K, v, K);
            }
            return n;
        }
    }
};

template <class T, int K>
struct CubicRow {
    static constexpr int kOver = K == 3 ? 1 : 0;
    static std::int64_t row(const T* src, std::int64_t step, const std::int32_t* ix, const std::int32_t* iy,
                            const float* fx, const float* fy, const float (*poly)[4], T* d, std::int64_t n) {
        using namespace v128;
        if constexpr (K == 1) {
            // each pixel's four taps of a row in one vector, weighted, then
            // summed in pairs: h = (h_0, .., h_3); four pixels' h * wy summed
            // in pairs again give the four results
            std::int64_t i = 0;
            for (; i + 4 <= n; i += 4) {
                V q[4];
                for (int k = 0; k < 4; ++k) {
                    const T* p = sourceRow(src, step, iy[i + k] - 1) + ix[i + k] - 1;
                    const V w = cubicWeights(fx[i + k], poly);
                    V m[4];
                    for (int j = 0; j < 4; ++j) m[j] = mul(resize::four(byteOffset(p, j * step)), w);
                    q[k] = mul(pairSums(pairSums(m[0], m[1]), pairSums(m[2], m[3])), cubicWeights(fy[i + k], poly));
                }
                storeFour(d + i, pairSums(pairSums(q[0], q[1]), pairSums(q[2], q[3])));
            }
            return i;
        } else {
            for (std::int64_t i = 0; i < n; ++i) {
                const T* p = sourceRow(src, step, iy[i] - 1) + std::int64_t(ix[i] - 1) * K;
                alignas(16) float wx[4], wy[4];
                storeU(wx, cubicWeights(fx[i], poly));
                storeU(wy, cubicWeights(fy[i], poly));
                V h[4];
                for (int j = 0; j < 4; ++j) {
                    const T* r = byteOffset(p, j * step);
                    const V t[4] = {resize::four(r), resize::four(r + K), resize::four(r + 2 * K), resize::four(r + 3 * K)};
                    h[j] = cubicRow(t, wx);
                }
                const V v = cubicRow(h, wy);
                if (K == 4 || i + 1 < n) storeFour(d + i * K, v);
                else storeSome(d + i * K, v, K);
            }
            return n;
        }
    }
};

}  // namespace warp
}  // namespace kernels
QVN_TARGET_END

#endif
