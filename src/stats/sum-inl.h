// qvniSum and qvniMean: per-channel sums and means of a ROI, as doubles.
#ifndef QVN_STATS_SUM_INL_H
#define QVN_STATS_SUM_INL_H

#include <cstdint>
#include <type_traits>

#include "core/check-inl.h"
#include "core/rows-inl.h"
#include "kernels/stats-inl.h"

QVN_TARGET_BEGIN
namespace stats {

// The sum of each channel into out (L::kElems values), without checks.
// Contiguous rows are summed as one row. Integer sums are exact and rounded
// to double once; 32f sums take the accurate path for hint kind 2.
template <class T, class L>
inline void sumChannels(const T* src, std::int64_t srcStep, RoiL roi, double out[4], int hint) {
    namespace ks = kernels::stats;
    constexpr int E = L::kElems;
    const auto run = [&](auto& acc) {
        forEachRow(roi, [&](const T* r, std::int64_t w) { acc.row(r, w * E); }, rows(src, srcStep, E));
    };
    if constexpr (std::is_same_v<T, Qvn32f>) {
        const auto finish = [&](auto&& acc) {
            run(acc);
            acc.totals(out);
        };
        if ((hint & 0xFF) == qvnAlgHintAccurate) finish(ks::FloatSum<E, true>{});
        else finish(ks::FloatSum<E, false>{});
    } else {
        ks::IntSum<T, E> acc;
        run(acc);
        std::uint64_t total[4];
        acc.totals(total);
        // every pixel added the bias once to each channel (mod 2^64, exact
        // for any sum that fits 63 bits)
        const std::uint64_t bias = ks::IntSum<T, E>::kBias * std::uint64_t(roi.width) * std::uint64_t(roi.height);
        for (int c = 0; c < E; ++c) {
            if constexpr (std::is_signed_v<T>) out[c] = double(std::int64_t(total[c] - bias));
            else out[c] = double(total[c]);
        }
    }
}

// The exported sums: pointers, the ROI, then (32f) the hint; the step is not
// tested.
template <class T, class L>
inline QvnStatus sum(const T* pSrc, std::int64_t srcStep, RoiL roi, Qvn64f* pSum, int hint = 0) {
    QVN_TRY(check::ptrs(pSrc, pSum));
    QVN_TRY(check::roi(roi));
    if constexpr (std::is_same_v<T, Qvn32f>) QVN_TRY(check::hint(hint));
    double s[4];
    sumChannels<T, L>(pSrc, srcStep, roi, s, hint);
    for (int c = 0; c < L::kChannels; ++c) pSum[c] = s[c];
    return qvnOk;
}

// The exported means: the result pointer, then the sum's checks. One
// division for one channel; for three and four, one reciprocal of the pixel
// count that multiplies every channel's sum (the two may differ in the last
// bit for the same data). The pixel count is formed in 64 bits, so that ROIs
// of more than 2^31 - 1 pixels are counted right.
template <class T, class L>
inline QvnStatus mean(const T* pSrc, std::int64_t srcStep, RoiL roi, Qvn64f* pMean, int hint = 0) {
    QVN_TRY(check::ptrs(pMean));
    double s[4];
    const QvnStatus st = sum<T, L>(pSrc, srcStep, roi, s, hint);
    if (st != qvnOk) return st;
    const double count = double(roi.width * roi.height);
    if constexpr (L::kChannels == 1) {
        pMean[0] = s[0] / count;
    } else {
        const double r = 1.0 / count;
        for (int c = 0; c < L::kChannels; ++c) pMean[c] = s[c] * r;
    }
    return qvnOk;
}

}  // namespace stats
QVN_TARGET_END

#endif
