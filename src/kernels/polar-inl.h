// Magnitude, phase and polar-to-cartesian rows of complex single-precision
// values, on whole vectors: every function runs the same operations on each
// lane, and the last few elements of a row go through the same vector code
// from a small copy, so the result of an element depends on nothing else.
//
// The values are computed in double precision and rounded once to single:
// the magnitude is the square root of re^2 + im^2 (no overflow or underflow
// on the way), the phase atan2(im, re) and the sine and cosine come from
// polynomials accurate well beyond single precision on their reduced ranges.
#ifndef QVN_KERNELS_POLAR_INL_H
#define QVN_KERNELS_POLAR_INL_H

#include <cstdint>
#include <cstring>

#include "kernels/isa/isa.h"

QVN_TARGET_BEGIN
namespace kernels {
namespace polar {

using VF = isa::Vec<float>;
using VD = isa::Vec<double>;
using VI = isa::Vec<std::int32_t>;
inline constexpr std::int64_t kL = std::int64_t(isa::kLanes<float>);

inline VD poly(VD z, const double* c, int n) {
    VD p = isa::set1(c[n - 1]);
    for (int k = n - 2; k >= 0; --k) p = isa::add(isa::mul(p, z), isa::set1(c[k]));
    return p;
}

inline VF signOf(VF a) { return isa::bitAnd(a, isa::set1(-0.0f)); }
// All ones where the sign bit of a is set (negative zero too).
inline VF negativeMask(VF a) { return isa::cast<float>(isa::shiftRight<31>(isa::cast<std::int32_t>(a))); }
inline VF nanMask(VF a, VF b) {
    return isa::andNot(isa::bitAnd(isa::cmpEq(a, a), isa::cmpEq(b, b)), isa::allOnes<float>());
}

// sqrt(re^2 + im^2), one half of the lanes.
inline VD magnitudeHalf(VD x, VD y) { return isa::sqrt(isa::add(isa::mul(x, x), isa::mul(y, y))); }

inline VF magnitude(VF re, VF im) {
    return isa::toFloat(magnitudeHalf(isa::toDoubleLo(re), isa::toDoubleLo(im)),
                        magnitudeHalf(isa::toDoubleHi(re), isa::toDoubleHi(im)));
}

// atan2(|y|, |x|) in [0, pi/2] (a) and pi minus it (b), one half of the
// lanes: the smaller magnitude over the larger, reduced by pi/4 above
// tan(pi/8), a polynomial in the square.
inline void angleHalf(VD x, VD y, VD& a, VD& b) {
    static constexpr double kAtan[] = {-3.33329491539e-1, 1.99777106478e-1, -1.38776856032e-1, 8.05374449538e-2};
    const VD sign = isa::set1(-0.0), one = isa::set1(1.0), zero = isa::zero<double>();
    const VD ax = isa::andNot(sign, x), ay = isa::andNot(sign, y);
    const VD hi = isa::max(ax, ay), lo = isa::min(ax, ay);
    VD t = isa::div(lo, hi);
    t = isa::select(isa::cmpEq(ax, ay), one, t);    // equal magnitudes, infinities included
    t = isa::select(isa::cmpEq(hi, zero), zero, t);  // both zero
    const VD big = isa::cmpGt(t, isa::set1(0.41421356237309504880));
    t = isa::select(big, isa::div(isa::sub(t, one), isa::add(t, one)), t);
    const VD z = isa::mul(t, t);
    VD r = isa::add(isa::mul(isa::mul(poly(z, kAtan, 4), z), t), t);
    r = isa::add(r, isa::select(big, isa::set1(0.78539816339744830962), zero));
    a = isa::select(isa::cmpGt(ay, ax), isa::sub(isa::set1(1.57079632679489661923), r), r);
    b = isa::sub(isa::set1(3.14159265358979323846), a);
}

// atan2(im, re) in [-pi, pi]: the quadrant from the signs (of zeros too).
inline VF phase(VF re, VF im) {
    VD a0, b0, a1, b1;
    angleHalf(isa::toDoubleLo(re), isa::toDoubleLo(im), a0, b0);
    angleHalf(isa::toDoubleHi(re), isa::toDoubleHi(im), a1, b1);
    VF r = isa::select(negativeMask(re), isa::toFloat(b0, b1), isa::toFloat(a0, a1));
    r = isa::bitOr(r, signOf(im));
    return isa::select(nanMask(re, im), isa::add(re, im), r);
}

// sin and cos of r in [-pi/4, pi/4] (a polynomial each), one half of the
// lanes of x - q pi/2.
inline void sinCosHalf(VD x, VD q, VD& s, VD& c) {
    static constexpr double kSin[] = {-1.66666666666666324348e-01, 8.33333333332248946124e-03,
                                      -1.98412698298579493134e-04, 2.75573137070700676789e-06,
                                      -2.50507602534068634195e-08, 1.58969099521155010221e-10};
    static constexpr double kCos[] = {4.16666666666666019037e-02,  -1.38888888888741095749e-03,
                                      2.48015872894767294178e-05,  -2.75573143513906633035e-07,
                                      2.08757232129817482790e-09,  -1.13596475577881948265e-11};
    // pi/2 in three parts; q times the first two is exact
    VD r = isa::sub(x, isa::mul(q, isa::set1(1.57079632673412561417e+00)));
    r = isa::sub(r, isa::mul(q, isa::set1(6.07710050630396597660e-11)));
    r = isa::sub(r, isa::mul(q, isa::set1(2.02226624879595063154e-21)));
    const VD z = isa::mul(r, r);
    s = isa::add(r, isa::mul(isa::mul(r, z), poly(z, kSin, 6)));
    c = isa::add(isa::sub(isa::set1(1.0), isa::mul(z, isa::set1(0.5))), isa::mul(isa::mul(z, z), poly(z, kCos, 6)));
}

// magnitude (cos phase, sin phase), rounded once. The quadrant q of the
// phase turns sin r and cos r into those of the phase by factors
// cos(q pi/2) and sin(q pi/2), which are 0 or +-1, so the sums are exact.
// Phases of magnitude 2^30 and more, infinite or NaN give NaN.
inline void polarToCart(VF mag, VF ph, VF& re, VF& im) {
    const VF x = isa::andNot(isa::set1(-0.0f), ph);
    const VF valid = isa::cmpGt(isa::set1(1073741824.0f), x);
    const VI q = isa::toIntTrunc(isa::add(isa::mul(isa::bitAnd(valid, x), isa::set1(0.636619772f)), isa::set1(0.5f)));
    const VF qf = isa::toFloat(q);
    const VI one = isa::set1<std::int32_t>(1), two = isa::set1<std::int32_t>(2);
    const VF odd = isa::cast<float>(isa::cmpEq(isa::bitAnd(q, one), one));
    const VF unit = isa::set1(1.0f), zero = isa::zero<float>();
    const VF cq = isa::bitXor(isa::select(odd, zero, unit),
                              isa::cast<float>(isa::shiftLeft<30>(isa::bitAnd(isa::add(q, one), two))));
    const VF sq = isa::bitXor(isa::select(odd, unit, zero), isa::cast<float>(isa::shiftLeft<30>(isa::bitAnd(q, two))));
    const VF sg = isa::bitOr(unit, signOf(ph));
    VD out[4];
    for (int half = 0; half < 2; ++half) {
        const auto d = [half](VF v) { return half ? isa::toDoubleHi(v) : isa::toDoubleLo(v); };
        VD s, c;
        sinCosHalf(d(x), d(qf), s, c);
        const VD cqd = d(cq), sqd = d(sq), m = d(mag);
        const VD sinv = isa::mul(isa::add(isa::mul(s, cqd), isa::mul(c, sqd)), d(sg));
        const VD cosv = isa::sub(isa::mul(c, cqd), isa::mul(s, sqd));
        out[half] = isa::mul(m, cosv);
        out[2 + half] = isa::mul(m, sinv);
    }
    const VF nan = isa::set1(__builtin_nanf(""));
    re = isa::select(valid, isa::toFloat(out[0], out[1]), nan);
    im = isa::select(valid, isa::toFloat(out[2], out[3]), nan);
}

// Runs body(in pointers, out pointer) over n elements, kL at a time; the
// tail through zero-padded copies. In holds K input streams of In floats per
// element, out Out floats per element.
template <int K, int In, int Out, class Body>
inline void rows(const float* const* in, float* out, std::int64_t n, Body&& body) {
    std::int64_t i = 0;
    for (; i + kL <= n; i += kL) {
        const float* p[K];
        for (int k = 0; k < K; ++k) p[k] = in[k] + In * i;
        body(p, out + Out * i);
    }
    if (i == n) return;
    alignas(64) float tin[K][In * kL] = {}, tout[Out * kL];
    const float* p[K];
    for (int k = 0; k < K; ++k) {
        std::memcpy(tin[k], in[k] + In * i, std::size_t(In * (n - i)) * sizeof(float));
        p[k] = tin[k];
    }
    body(p, tout);
    std::memcpy(out + Out * i, tout, std::size_t(Out * (n - i)) * sizeof(float));
}

inline void loadComplex(const float* p, VF& re, VF& im) {
    const VF in[2] = {isa::loadU(p), isa::loadU(p + kL)};
    VF v[2];
    isa::deinterleave2(in, v);
    re = v[0], im = v[1];
}

// |c| and arg c of n interleaved complex values.
inline void magnitudeRow(const float* c, float* out, std::int64_t n) {
    rows<1, 2, 1>(&c, out, n, [](const float* const* p, float* o) {
        VF re, im;
        loadComplex(p[0], re, im);
        isa::storeU(o, magnitude(re, im));
    });
}

inline void phaseRow(const float* c, float* out, std::int64_t n) {
    rows<1, 2, 1>(&c, out, n, [](const float* const* p, float* o) {
        VF re, im;
        loadComplex(p[0], re, im);
        isa::storeU(o, phase(re, im));
    });
}

// n complex values from n magnitudes and n phases.
inline void polarRow(const float* mag, const float* ph, float* out, std::int64_t n) {
    const float* in[2] = {mag, ph};
    rows<2, 1, 2>(in, out, n, [](const float* const* p, float* o) {
        VF re, im;
        polarToCart(isa::loadU(p[0]), isa::loadU(p[1]), re, im);
        const VF v[2] = {re, im};
        VF w[2];
        isa::interleave2(v, w);
        isa::storeU(o, w[0]);
        isa::storeU(o + kL, w[1]);
    });
}

}  // namespace polar
}  // namespace kernels
QVN_TARGET_END

#endif
