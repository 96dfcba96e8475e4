// qvniCopy, qvniCopyManaged and qvniDup: copies of whole pixels, of one
// channel, under a mask, between layouts and between interleaved and planar
// images. None of them tests steps: after the pointers and the ROI size the
// rows are copied as the steps say.
#ifndef QVN_MOVE_COPY_INL_H
#define QVN_MOVE_COPY_INL_H

#include <cstdint>
#include <type_traits>

#include "core/check-inl.h"
#include "core/rows-inl.h"
#include "core/stream-inl.h"
#include "kernels/copy-inl.h"
#include "kernels/shuffle-inl.h"

QVN_TARGET_BEGIN
namespace move {

template <class T>
inline const std::uint8_t* asBytes(const T* p) { return reinterpret_cast<const std::uint8_t*>(p); }
template <class T>
inline std::uint8_t* asBytes(T* p) { return reinterpret_cast<std::uint8_t*>(p); }

// Whole pixels without checks: also the unchanged-result path of other
// families (a shift by zero, for instance). AC4 keeps the destination alpha.
template <class T, class L, class Store = kernels::StoreRegular>
inline QvnStatus copyPixels(const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, RoiL roi) {
    if constexpr (L::kAlpha) {
        return forEachRow(
            roi,
            [](const T* s, T* d, std::int64_t n) { kernels::blendRow<T, 4, 0x7>(kernels::FromRow<T>{s}, d, 4 * n); },
            rows(src, srcStep, 4), rows(dst, dstStep, 4));
    } else {
        return forEachRow(
            roi,
            [](const T* s, T* d, std::int64_t n) {
                kernels::copyBytes<Store>(asBytes(s), asBytes(d), n * L::kElems * std::int64_t(sizeof(T)));
            },
            rows(src, srcStep, L::kElems), rows(dst, dstStep, L::kElems));
    }
}

template <class T, class L, class S>
inline QvnStatus copy(const T* src, S srcStep, T* dst, S dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    return copyPixels<T, L>(src, srcStep, dst, dstStep, roi);
}

// Flags of qvniCopyManaged_8u_C1R: bit 1 (value 2) asks for non-temporal
// stores, for destinations that will not be read again soon; the other bits
// select nothing and are ignored.
inline constexpr int kCopyNonTemporal = 2;

template <class T, class S>
inline QvnStatus copyManaged(const T* src, S srcStep, T* dst, S dstStep, RoiL roi, int flags) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    if (flags & kCopyNonTemporal) {
        const QvnStatus s = copyPixels<T, C1, kernels::StoreStreaming>(src, srcStep, dst, dstStep, roi);
        isa::storeFence();
        return s;
    }
    return copyPixels<T, C1>(src, srcStep, dst, dstStep, roi);
}

// Pixels whose mask element is non-zero.
template <class T, class L, class S>
inline QvnStatus copyMasked(const T* src, S srcStep, T* dst, S dstStep, RoiL roi, const Qvn8u* mask,
                            S maskStep) {
    QVN_TRY(check::ptrs(src, dst, mask));
    QVN_TRY(check::roi(roi));
    return forEachRow(
        roi,
        [](const T* s, T* d, const Qvn8u* m, std::int64_t n) {
            kernels::maskedRow<T, L::kElems, L::kAlpha>(kernels::FromRow<T>{s}, d, m, n);
        },
        rows(src, srcStep, L::kElems), rows(dst, dstStep, L::kElems), rows(mask, maskStep, 1));
}

// C3CR, C4CR: the channel the pointers address, into the same channel.
template <class T, class L, class S>
inline QvnStatus copyChannel(const T* src, S srcStep, T* dst, S dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    return forEachRow(
        roi,
        [](const T* s, T* d, std::int64_t n) {
            kernels::blendRow<T, L::kElems, 0x1>(kernels::FromRow<T>{s}, d, (n - 1) * L::kElems + 1);
        },
        rows(src, srcStep, L::kElems), rows(dst, dstStep, L::kElems));
}

// Every layout-changing copy: source pixels of KS elements, destination pixels
// of KD, mapped by map. Rows are merged when both images are contiguous.
template <class T, int KS, int KD, class S>
inline QvnStatus shuffle(const T* src, S srcStep, T* dst, S dstStep, RoiL roi,
                         const kernels::PixelMap<T, KS, KD>& map) {
    if constexpr (KS == 4 && KD == 4) {
        // {2, 1, 0, 3} (alpha copied or kept): one word shuffle per vector,
        // in place too
        if (map.from[0] == 2 && map.from[1] == 1 && map.from[2] == 0 && (map.keep & 0x7) == 0) {
            if (map.keep == 0x8)
                return forEachRow(
                    roi, [](const T* s, T* d, std::int64_t n) { kernels::swapFirstAndThirdRow<T, true>(s, d, n); },
                    rows(src, srcStep, KS), rows(dst, dstStep, KD));
            if (map.keep == 0 && map.from[3] == 3)
                return forEachRow(
                    roi, [](const T* s, T* d, std::int64_t n) { kernels::swapFirstAndThirdRow<T, false>(s, d, n); },
                    rows(src, srcStep, KS), rows(dst, dstStep, KD));
        }
    }
    // Other orders reorder fastest by offset loads: a few loads and logic
    // operations per vector, where the planes route needs interleaving steps
    // and picks planes by run-time indices. In place they would read what the
    // row already wrote, so those go through the planes.
    if constexpr (KS == KD && KS >= 3) {
        bool sourceOnly = src != dst;  // offset loads would read what the row already wrote
        for (int c = 0; c < KD; ++c) sourceOnly &= map.from[c] < KS;
        if (sourceOnly)
            return forEachRow(
                roi, [&](const T* s, T* d, std::int64_t n) { kernels::permuteRow<T, KS>(s, d, n, map); },
                rows(src, srcStep, KS), rows(dst, dstStep, KD));
    }
    return forEachRow(
        roi, [&](const T* s, T* d, std::int64_t n) { kernels::shuffleRow<T, KS, KD>(s, d, n, map); },
        rows(src, srcStep, KS), rows(dst, dstStep, KD));
}

// C3C1, C4C1: the channel the source pointer addresses, out of every pixel.
template <class T, class L, class S>
inline QvnStatus extract(const T* src, S srcStep, T* dst, S dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    return shuffle<T, L::kElems, 1>(src, srcStep, dst, dstStep, roi, {{0}, 0, T(0), true});
}

// C1C3, C1C4: into the channel the destination pointer addresses; the other
// channels are not changed.
template <class T, class L, class S>
inline QvnStatus insert(const T* src, S srcStep, T* dst, S dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    constexpr unsigned kOthers = (1u << L::kElems) - 2;
    return shuffle<T, 1, L::kElems>(src, srcStep, dst, dstStep, roi, {{}, kOthers, T(0), true});
}

// The first three channels of four-element pixels (AC4C3, and C4C3 in
// channel order), without checks.
template <class T, class S>
inline QvnStatus dropFourth(const T* src, S srcStep, T* dst, S dstStep, RoiL roi) {
    if constexpr (std::is_same_v<T, Qvn8u> && !isa::kCheapPlaneShuffles)
        return forEachRow(roi, [](const T* s, T* d, std::int64_t n) { kernels::dropFourthRow(s, d, n); },
                          rows(src, srcStep, 4), rows(dst, dstStep, 3));
    else
        return shuffle<T, 4, 3>(src, srcStep, dst, dstStep, roi, {{0, 1, 2}});
}

// AC4C3: the three colour channels; C3AC4: into the colour channels, alpha
// not written.
template <class T, class S>
inline QvnStatus dropAlpha(const T* src, S srcStep, T* dst, S dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    return dropFourth(src, srcStep, dst, dstStep, roi);
}
template <class T, class S>
inline QvnStatus addAlpha(const T* src, S srcStep, T* dst, S dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    return shuffle<T, 3, 4>(src, srcStep, dst, dstStep, roi, {{0, 1, 2, 0}, 0x8});
}

// Dup: the one channel into every channel.
template <class T, class L, class S>
inline QvnStatus dup(const T* src, S srcStep, T* dst, S dstStep, RoiL roi) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    if constexpr (std::is_same_v<T, Qvn8u> && L::kElems == 3 && !isa::kCheapPlaneShuffles)
        return forEachRow(roi, [](const T* s, T* d, std::int64_t n) { kernels::dup3Row(s, d, n); },
                          rows(src, srcStep, 1), rows(dst, dstStep, 3));
    else
        return shuffle<T, 1, L::kElems>(src, srcStep, dst, dstStep, roi, kernels::PixelMap<T, 1, L::kElems>{});
}

// Planar copies that bypass the cache for large images: 16s and 32s both
// ways, 8u from four planes. The count is the ROI's bytes (all planes).
template <class T, int K, bool ToPlanes>
inline constexpr bool kPlanarStreams = std::is_same_v<T, Qvn16s> || std::is_same_v<T, Qvn32s> ||
                                       (std::is_same_v<T, Qvn8u> && K == 4 && !ToPlanes);

template <class T, int K, bool ToPlanes, class Run>
inline QvnStatus withPlanarStores(RoiL roi, Run run) {
    if constexpr (kPlanarStreams<T, K, ToPlanes>) {
        const std::uint64_t bytes = std::uint64_t(roi.width) * roi.height * K * sizeof(T);
        if (useStreamingStores(bytes, kStreamThreshold, bytes)) {
            const QvnStatus s = run(kernels::StoreStreaming{});
            isa::storeFence();
            return s;
        }
    }
    return run(kernels::StoreRegular{});
}

template <class T, int K>
inline QvnStatus checkPlanes(const T* const* planes) {
    QVN_TRY(check::ptrs(planes));
    for (int c = 0; c < K; ++c) QVN_TRY(check::ptrs(planes[c]));
    return qvnOk;
}

// C3P3, C4P4: every channel to its plane; one step serves all planes.
template <class T, class L, class S>
inline QvnStatus toPlanar(const T* src, S srcStep, T* const* dst, S dstStep, RoiL roi) {
    constexpr int K = L::kElems;
    QVN_TRY(check::ptrs(src));
    QVN_TRY((checkPlanes<T, K>(dst)));
    QVN_TRY(check::roi(roi));
    return withPlanarStores<T, K, true>(roi, [&](auto store) {
        using Store = decltype(store);
        if constexpr (K == 3)
            return forEachRow(
                roi,
                [](const T* s, T* d0, T* d1, T* d2, std::int64_t n) {
                    T* const d[3] = {d0, d1, d2};
                    if constexpr (std::is_same_v<T, Qvn8u> && !isa::kCheapPlaneShuffles)
                        kernels::split3Row<Store>(s, d, n);
                    else
                        kernels::toPlanes<T, 3, Store>(s, d, n);
                },
                rows(src, srcStep, 3), rows(dst[0], dstStep, 1), rows(dst[1], dstStep, 1),
                rows(dst[2], dstStep, 1));
        else
            return forEachRow(
                roi,
                [](const T* s, T* d0, T* d1, T* d2, T* d3, std::int64_t n) {
                    T* const d[4] = {d0, d1, d2, d3};
                    kernels::toPlanes<T, 4, Store>(s, d, n);
                },
                rows(src, srcStep, 4), rows(dst[0], dstStep, 1), rows(dst[1], dstStep, 1),
                rows(dst[2], dstStep, 1), rows(dst[3], dstStep, 1));
    });
}

// P3C3, P4C4: the planes interleaved into pixels.
template <class T, class L, class S>
inline QvnStatus fromPlanar(const T* const* src, S srcStep, T* dst, S dstStep, RoiL roi) {
    constexpr int K = L::kElems;
    QVN_TRY((checkPlanes<const T, K>(src)));
    QVN_TRY(check::ptrs(dst));
    QVN_TRY(check::roi(roi));
    return withPlanarStores<T, K, false>(roi, [&](auto store) {
        using Store = decltype(store);
        if constexpr (K == 3)
            return forEachRow(
                roi,
                [](const T* s0, const T* s1, const T* s2, T* d, std::int64_t n) {
                    const T* const s[3] = {s0, s1, s2};
                    if constexpr (std::is_same_v<T, Qvn8u> && std::is_same_v<Store, kernels::StoreRegular> &&
                                  !isa::kCheapPlaneShuffles)
                        kernels::merge3Row(s, d, n);
                    else
                        kernels::fromPlanes<T, 3, Store>(s, d, n);
                },
                rows(src[0], srcStep, 1), rows(src[1], srcStep, 1), rows(src[2], srcStep, 1),
                rows(dst, dstStep, 3));
        else
            return forEachRow(
                roi,
                [](const T* s0, const T* s1, const T* s2, const T* s3, T* d, std::int64_t n) {
                    const T* const s[4] = {s0, s1, s2, s3};
                    kernels::fromPlanes<T, 4, Store>(s, d, n);
                },
                rows(src[0], srcStep, 1), rows(src[1], srcStep, 1), rows(src[2], srcStep, 1),
                rows(src[3], srcStep, 1), rows(dst, dstStep, 4));
    });
}

}  // namespace move
QVN_TARGET_END

#endif
