// qvniThreshold and its _LT, _GT, _LTVal, _GTVal, _Val and _LTValGTVal forms.
#ifndef QVN_ARITH_THRESHOLD_INL_H
#define QVN_ARITH_THRESHOLD_INL_H

#include <cstdint>
#include <type_traits>

#include "core/check-inl.h"
#include "core/rows-inl.h"
#include "core/stream-inl.h"
#include "kernels/threshold-inl.h"

QVN_TARGET_BEGIN
namespace arith {

// The exported threshold families: they differ in arguments, checks and
// which of their 16u forms bypass the caches.
enum class ThresholdFamily { kOp, kLT, kGT, kLTVal, kGTVal, kVal, kLTValGTVal };

// The 16u forms that write with non-temporal stores when the bytes of their
// destination ROI reach kThresholdStreamFrom and the largest cache.
template <ThresholdFamily F, class T, class L, bool IP>
constexpr bool thresholdStreams() {
    if constexpr (!std::is_same_v<T, Qvn16u>) {
        return false;
    } else {
        constexpr bool c1 = std::is_same_v<L, C1>, c3 = std::is_same_v<L, C3>, c4 = std::is_same_v<L, C4>;
        switch (F) {
            case ThresholdFamily::kOp:
            case ThresholdFamily::kVal: return c1 || (c3 && !IP);
            case ThresholdFamily::kLT:
            case ThresholdFamily::kGT: return c1;
            case ThresholdFamily::kLTVal:
            case ThresholdFamily::kGTVal: return c1 || (c4 && !IP);
            case ThresholdFamily::kLTValGTVal: return (c1 || c3) && !IP;
        }
        return false;
    }
}
inline constexpr std::uint64_t kThresholdStreamFrom = 0x40001;

// Runs the threshold operation Kern with its constants (c[n]: constant n of
// each colour channel) over the rows; Streams: the form may bypass the caches
// (one instantiation serves every form that shares kernel, type, layout and
// this).
template <template <class> class Kern, class T, class L, bool Streams>
inline QvnStatus thresholdRows(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi,
                               const T* const (&c)[Kern<T>::kConstants]) {
    constexpr int E = L::kElems;
    const kernels::ChannelConstants<T, L::kAlpha ? 4 : E, Kern<T>::kConstants> consts(c, L::kChannels);
    Kern<T> kern;
    const auto run = [&](auto store) {
        using Store = decltype(store);
        return forEachRow(
            roi,
            [&](const T* s, T* d, std::int64_t n) {
                kernels::arith::row<L::kAlpha, Store>(s, consts.operand(), d, n * E, kern);
            },
            rows(src, srcStep, E), rows(dst, dstStep, E));
    };
    if constexpr (Streams) {
        const std::uint64_t bytes = std::uint64_t(roi.width) * std::uint64_t(roi.height) * E * sizeof(T);
        if (useStreamingStores(bytes, kThresholdStreamFrom, bytes)) {
            const QvnStatus s = run(kernels::StoreStreaming{});
            isa::storeFence();
            return s;
        }
    }
    return run(kernels::StoreRegular{});
}

// The operator of qvniThreshold and _Val: qvnCmpLess or qvnCmpGreater.
inline QvnStatus lessOrGreater(int op) {
    return op == qvnCmpLess || op == qvnCmpGreater ? qvnOk : qvnErrBadMode;
}

namespace kt = kernels::threshold;
using TF = ThresholdFamily;

// Pointers (the constants included), ROI, steps, then the operator.
template <class T, class L, bool IP>
inline QvnStatus thresholdOp(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi,
                             const T* threshold, int op) {
    QVN_TRY(check::ptrs(src, dst, threshold));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(lessOrGreater(op));
    constexpr bool kStreams = thresholdStreams<TF::kOp, T, L, IP>();
    if (op == qvnCmpLess) return thresholdRows<kt::RaiseTo, T, L, kStreams>(src, srcStep, dst, dstStep, roi, {threshold});
    return thresholdRows<kt::LowerTo, T, L, kStreams>(src, srcStep, dst, dstStep, roi, {threshold});
}

// _LT, _GT, _LTVal and _GTVal: pointers (the constants c included), ROI,
// steps; then Kern with the constants.
template <ThresholdFamily F, template <class> class Kern, class T, class L, bool IP, class... C>
inline QvnStatus thresholdFixed(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi,
                                const C*... c) {
    QVN_TRY(check::ptrs(src, dst, c...));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    return thresholdRows<Kern, T, L, thresholdStreams<F, T, L, IP>()>(src, srcStep, dst, dstStep, roi, {c...});
}

// The operator first, then pointers, ROI and steps.
template <class T, class L, bool IP>
inline QvnStatus thresholdVal(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi,
                              const T* threshold, const T* value, int op) {
    QVN_TRY(lessOrGreater(op));
    QVN_TRY(check::ptrs(src, dst, threshold, value));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    constexpr bool kStreams = thresholdStreams<TF::kVal, T, L, IP>();
    if (op == qvnCmpLess)
        return thresholdRows<kt::ReplaceBelow, T, L, kStreams>(src, srcStep, dst, dstStep, roi, {threshold, value});
    return thresholdRows<kt::ReplaceAbove, T, L, kStreams>(src, srcStep, dst, dstStep, roi, {threshold, value});
}

// Pointers, ROI, steps, then an upper threshold below the lower one in any
// colour channel.
template <class T, class L, bool IP>
inline QvnStatus thresholdLTValGTVal(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi,
                                     const T* lowerThreshold, const T* lowerValue, const T* upperThreshold,
                                     const T* upperValue) {
    QVN_TRY(check::ptrs(src, dst, lowerThreshold, lowerValue, upperThreshold, upperValue));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    for (int c = 0; c < L::kChannels; ++c)
        if (upperThreshold[c] < lowerThreshold[c]) return qvnErrThresholdOrder;
    constexpr bool kStreams = thresholdStreams<TF::kLTValGTVal, T, L, IP>();
    return thresholdRows<kt::ReplaceOutside, T, L, kStreams>(src, srcStep, dst, dstStep, roi,
                                                              {lowerThreshold, lowerValue, upperThreshold, upperValue});
}

}  // namespace arith
QVN_TARGET_END

#endif
