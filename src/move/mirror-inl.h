// qvniMirror: the ROI mirrored about its horizontal axis (rows in reverse
// order), its vertical axis (each row reversed) or both (a half turn), out of
// place and in place. Steps are not tested.
#ifndef QVN_MOVE_MIRROR_INL_H
#define QVN_MOVE_MIRROR_INL_H

#include <cstdint>
#include <type_traits>

#include "core/check-inl.h"
#include "core/stream-inl.h"
#include "kernels/copy-inl.h"
#include "kernels/reverse-inl.h"

QVN_TARGET_BEGIN
namespace move {

enum : int { kAxisHorizontal = 0, kAxisVertical = 1, kAxisBoth = 2 };

// The four-element forms of 8u, 16u and 32s bypass the cache for large
// images: their count is the bytes read plus written.
template <class T, class L>
inline constexpr bool kMirrorStreams =
    L::kElems == 4 && !L::kAlpha &&
    (std::is_same_v<T, Qvn8u> || std::is_same_v<T, Qvn16u> || std::is_same_v<T, Qvn32s>);
inline constexpr std::uint64_t kMirrorStreamThreshold = 0x100001;

template <class U, int K, bool Keep, class Store>
inline void mirrorRows(const U* src, std::int64_t srcStep, U* dst, std::int64_t dstStep, RoiL roi, int axis) {
    for (std::int64_t y = 0; y < roi.height; ++y) {
        const U* s = byteOffset(src, (axis == kAxisVertical ? y : roi.height - 1 - y) * srcStep);
        U* d = byteOffset(dst, y * dstStep);
        if (axis != kAxisHorizontal) {
            kernels::reverseRow<U, K, Keep, Store>(s, d, roi.width);
        } else if constexpr (Keep) {
            kernels::blendRow<U, 4, 0x7>(kernels::FromRow<U>{s}, d, roi.width * 4);
        } else {
            kernels::copyBytes<Store>(reinterpret_cast<const std::uint8_t*>(s), reinterpret_cast<std::uint8_t*>(d),
                                      roi.width * K * std::int64_t(sizeof(U)));
        }
    }
}

template <class U, int K, bool Keep>
inline void mirrorInPlace(U* p, std::int64_t step, RoiL roi, int axis) {
    const auto row = [&](std::int64_t y) { return byteOffset(p, y * step); };
    if (axis == kAxisVertical) {
        for (std::int64_t y = 0; y < roi.height; ++y) kernels::reverseSwapRows<U, K, Keep>(row(y), row(y), roi.width);
        return;
    }
    for (std::int64_t y = 0; y < roi.height / 2; ++y) {
        if (axis == kAxisHorizontal) kernels::swapRows<U, K, Keep>(row(y), row(roi.height - 1 - y), roi.width);
        else kernels::reverseSwapRows<U, K, Keep>(row(y), row(roi.height - 1 - y), roi.width);
    }
    if (axis == kAxisBoth && roi.height % 2 == 1) {
        U* mid = row(roi.height / 2);
        kernels::reverseSwapRows<U, K, Keep>(mid, mid, roi.width);
    }
}

// Out of place (a source equal to the destination, with the same step, is
// mirrored in place); InPlace for the IR forms.
template <class T, class L, bool InPlace, class S>
inline QvnStatus mirror(const T* src, S srcStep, T* dst, S dstStep, RoiL roi, int axis) {
    using U = kernels::Bits<T>;
    constexpr int K = L::kElems;
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::width(roi));
    QVN_TRY(check::height(roi));
    if (unsigned(axis) > 2u) return qvnErrAxis;
    if (InPlace || (src == dst && std::int64_t(srcStep) == std::int64_t(dstStep))) {
        if (axis == kAxisHorizontal && roi.height == 1) return qvnOk;
        mirrorInPlace<U, K, L::kAlpha>(reinterpret_cast<U*>(dst), dstStep, roi, axis);
        return qvnOk;
    }
    const auto run = [&](auto store) {
        mirrorRows<U, K, L::kAlpha, decltype(store)>(reinterpret_cast<const U*>(src), srcStep,
                                                      reinterpret_cast<U*>(dst), dstStep, roi, axis);
    };
    if constexpr (kMirrorStreams<T, L>) {
        const std::uint64_t bytes = 2 * std::uint64_t(roi.width) * std::uint64_t(roi.height) * K * sizeof(T);
        if (useStreamingStores(bytes, kMirrorStreamThreshold, bytes)) {
            run(kernels::StoreStreaming{});
            isa::storeFence();
            return qvnOk;
        }
    }
    run(kernels::StoreRegular{});
    return qvnOk;
}

}  // namespace move
QVN_TARGET_END

#endif
