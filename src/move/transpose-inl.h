// qvniTranspose: rows become columns, out of place in strips and bands, or in
// place on a square ROI. Steps are not tested. Pixels move as units of their
// size, whatever their type.
#ifndef QVN_MOVE_TRANSPOSE_INL_H
#define QVN_MOVE_TRANSPOSE_INL_H

#include <algorithm>
#include <cstdint>
#include <type_traits>

#include "core/check-inl.h"
#include "kernels/transpose-inl.h"
#include "qvncore.h"

QVN_TARGET_BEGIN
namespace move {

// Cache sets that rows step bytes apart fall into, of the 64 sets of 64-byte
// lines that repeat every 4 KiB: steps of a multiple of 1 KiB use 4 or fewer.
inline std::int64_t rowSets(std::int64_t step) {
    if (step < 0) step = -step;
    if (step % 64 != 0) return 64;  // the rows drift through every set
    std::int64_t lines = (step / 64) % 64, sets = 64;
    if (lines == 0) return 1;
    while (lines % 2 == 0) lines /= 2, sets /= 2;
    return sets;
}

struct TransposePlan {
    std::int64_t strip;  // source columns (destination rows) moved together
    std::int64_t band;   // source rows a strip goes down before the next strip
};

// A strip covers one 64-byte line of every source row (at least one register
// block) for units up to 4 bytes. 8- and 16-byte units take 32 and 16 units
// (four lines: longer source reads, fewer page changes) where their
// destination rows spread over enough cache sets for four rows a set, and one
// line otherwise (steps of a multiple of 4 KiB would put every row into one
// set). Units of 3, 6 and 12 bytes, which move one by one, take 8, 4 and 16
// units: the fastest on 3840 x 2160 images, by far for 6 bytes, and as fast
// as any on 512 x 512 ones. A band is 1024 rows; the 32s transpose sizes it
// from the largest cache once its smaller side reaches 257 (asking for the
// size then): a band's lines of a strip and the next (the processor fetches
// lines in pairs, 128 bytes a row) fill an eighth of the cache, so the next
// strip finds them, and their pages, at hand.
template <class T, class L>
inline TransposePlan transposePlan(RoiL roi, std::int64_t dstStep) {
    constexpr int kUnit = L::kElems * int(sizeof(T));
    constexpr std::int64_t kNarrow = kUnit == 3 ? 8 : kUnit == 6 ? 4 : kUnit == 12 ? 16
                                   : std::max<std::int64_t>(64 / kUnit, kernels::TransposeUnit<kUnit>::kN);
    constexpr std::int64_t kWide = kUnit == 8 ? 32 : kUnit == 16 ? 16 : kNarrow;
    TransposePlan plan{4 * rowSets(dstStep) >= kWide ? kWide : kNarrow, 1024};
    if constexpr (std::is_same_v<T, Qvn32s> && L::kElems == 1) {
        if (std::min(roi.width, roi.height) >= 257) {
            int cacheBytes = 0;
            if (qvnGetMaxCacheSizeB(&cacheBytes) == 0 && cacheBytes > 0)
                plan.band = std::clamp<std::int64_t>(cacheBytes / 8 / 128, 64, 8192);
        }
    }
    return plan;
}

// In place: pointer, sizes, a square ROI.
template <class T, class L, class S>
inline QvnStatus transposeInPlace(T* p, S step, RoiL roi) {
    QVN_TRY(check::ptrs(p));
    QVN_TRY(check::roi(roi));
    if (roi.width != roi.height) return qvnErrSize;
    kernels::transposeSquare<L::kElems * int(sizeof(T))>({reinterpret_cast<std::uint8_t*>(p), std::int64_t(step)},
                                                          roi.width);
    return qvnOk;
}

// Out of place: the destination is roi with width and height exchanged. The
// same pointer and step for both is the in-place transpose.
template <class T, class L, class S>
inline QvnStatus transpose(const T* src, S srcStep, T* dst, S dstStep, RoiL roi) {
    if (src == dst && std::int64_t(srcStep) == std::int64_t(dstStep)) return transposeInPlace<T, L>(dst, dstStep, roi);
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    const TransposePlan plan = transposePlan<T, L>(roi, dstStep);
    kernels::transposeTiled<L::kElems * int(sizeof(T))>(
        {reinterpret_cast<const std::uint8_t*>(src), std::int64_t(srcStep)},
        {reinterpret_cast<std::uint8_t*>(dst), std::int64_t(dstStep)}, roi.width, roi.height, plan.strip, plan.band);
    return qvnOk;
}

}  // namespace move
QVN_TARGET_END

#endif
