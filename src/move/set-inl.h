// qvniSet: fills the ROI with one pixel value.
#ifndef QVN_MOVE_SET_INL_H
#define QVN_MOVE_SET_INL_H

#include <cstdint>
#include <type_traits>

#include "core/check-inl.h"
#include "core/rows-inl.h"
#include "core/stream-inl.h"
#include "kernels/copy-inl.h"
#include "kernels/fill-inl.h"

QVN_TARGET_BEGIN
namespace move {

// Fills whose types and layouts bypass the cache for large ROIs.
template <class T, class L>
inline constexpr bool kSetStreams =
    !L::kAlpha && (std::is_same_v<T, Qvn8u> || std::is_same_v<T, Qvn16s> ||
                   std::is_same_v<T, Qvn32s> || std::is_same_v<T, Qvn32f>);

// Fills without checks: also the constant path of other families (an 8u
// addition whose scale factor leaves only zeros, for instance).
template <class T, class L>
inline QvnStatus fill(const T* value, T* dst, std::int64_t dstStep, RoiL roi) {
    const auto run = [&](auto store) {
        using Store = decltype(store);
        return forEachRow(
            roi, [&](T* d, std::int64_t n) { kernels::fillRow<T, L::kElems, L::kAlpha, Store>(d, n, value); },
            rows(dst, dstStep, L::kElems));
    };
    if constexpr (kSetStreams<T, L>) {
        const std::uint64_t bytes = std::uint64_t(roi.width) * roi.height * L::kElems * sizeof(T);
        if (useStreamingStores(bytes, kStreamThreshold, bytes)) {
            const QvnStatus s = run(kernels::StoreStreaming{});
            isa::storeFence();
            return s;
        }
    }
    return run(kernels::StoreRegular{});
}

// The exported fill: pointers, then the ROI; steps are not tested.
template <class T, class L, class S>
inline QvnStatus set(const T* value, T* dst, S dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(value, dst));
    QVN_TRY(check::roi(roi));
    return fill<T, L>(value, dst, dstStep, roi);
}

// Masked fill: pixels whose mask element is non-zero take the value.
template <class T, class L, class S>
inline QvnStatus setMasked(const T* value, T* dst, S dstStep, RoiL roi, const Qvn8u* mask, S maskStep) {
    QVN_TRY(check::ptrs(value, dst, mask));
    QVN_TRY(check::roi(roi));
    T px[4] = {};  // AC4 gives three values: the pattern's alpha lanes are never stored
    for (int c = 0; c < L::kChannels; ++c) px[c] = value[c];
    return forEachRow(
        roi,
        [&](T* d, const Qvn8u* m, std::int64_t n) {
            kernels::maskedRow<T, L::kElems, L::kAlpha>(kernels::FromPixel<T, L::kElems>{px, {}}, d, m, n);
        },
        rows(dst, dstStep, L::kElems), rows(mask, maskStep, 1));
}

// C3CR, C4CR: the value into the channel the pointer addresses, the other
// channels unchanged.
template <class T, class L, class S>
inline QvnStatus setChannel(const T* value, T* dst, S dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(value, dst));
    QVN_TRY(check::roi(roi));
    const T px[4] = {*value, *value, *value, *value};
    return forEachRow(
        roi,
        [&](T* d, std::int64_t n) {
            kernels::blendRow<T, L::kElems, 0x1>(kernels::FromPixel<T, L::kElems>{px, {}}, d,
                                                     (n - 1) * L::kElems + 1);
        },
        rows(dst, dstStep, L::kElems));
}

}  // namespace move
QVN_TARGET_END

#endif
