// qvniComputeThreshold_Otsu_8u_C1R: the threshold that best separates the
// ROI's levels into two classes.
#ifndef QVN_ARITH_OTSU_INL_H
#define QVN_ARITH_OTSU_INL_H

#include <cstdint>

#include "core/check-inl.h"
#include "core/rows-inl.h"
#include "kernels/histogram-inl.h"

QVN_TARGET_BEGIN
namespace arith {

// Otsu's level of a histogram of n pixels, in double precision and in this
// order: p[i] = h[i] x (1 / n) stands for the level i + 0.5; mu = the sum of
// p[i] x (i + 0.5). Walking k upward with w0 = p[0] + .. + p[k] and w1 = 1 -
// w0, a bin is a candidate when both weights lie in [2^-23, 1 - 2^-23]; only
// candidates add p[k] x (k + 0.5) to the partial mean muK, and their
// between-class variance (muK w1 + (muK - mu) w0)^2 / (w1 w0) replaces the
// best one only when strictly greater, so the lowest k of equal maxima wins.
// 0 when no candidate's variance is above 0.
inline int otsuLevel(const std::uint64_t* h, std::uint64_t n) {
    constexpr double kMinWeight = 0x1p-23, kMaxWeight = 1.0 - 0x1p-23;
    const double inv = 1.0 / double(n);
    double p[256], mu = 0;
    for (int i = 0; i < 256; ++i) {
        p[i] = double(h[i]) * inv;
        mu += p[i] * (i + 0.5);
    }
    double w0 = 0, muK = 0, best = 0;
    int level = 0;
    for (int k = 0; k < 256; ++k) {
        w0 += p[k];
        const double w1 = 1.0 - w0;
        const double lo = w0 < w1 ? w0 : w1, hi = w0 < w1 ? w1 : w0;
        if (lo < kMinWeight || hi > kMaxWeight) continue;
        muK += p[k] * (k + 0.5);
        const double s = muK * w1 + (muK - mu) * w0;
        const double sigma = s * s / (w1 * w0);
        if (sigma > best) best = sigma, level = k;
    }
    return level;
}

// Pointers, ROI, then a width greater than the step.
inline QvnStatus otsuThreshold(const Qvn8u* src, std::int64_t srcStep, RoiL roi, Qvn8u* threshold) {
    QVN_TRY(check::ptrs(src, threshold));
    QVN_TRY(check::roi(roi));
    if (roi.width > srcStep) return qvnErrStep;
    kernels::Histogram8u hist;
    forEachRow(roi, [&](const Qvn8u* s, std::int64_t n) { hist.add(s, n); }, rows(src, srcStep, 1));
    *threshold = Qvn8u(otsuLevel(hist.totals(), std::uint64_t(roi.width) * std::uint64_t(roi.height)));
    return qvnOk;
}

}  // namespace arith
QVN_TARGET_END

#endif
