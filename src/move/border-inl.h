// qvniCopyConstBorder, qvniCopyReplicateBorder, qvniCopyMirrorBorder and
// qvniCopyWrapBorder: the source ROI copied into a larger destination ROI
// with a frame around it, out of place or around the source in its own
// buffer. The frame is the border fill's (border-fill-inl.h).
#ifndef QVN_MOVE_BORDER_INL_H
#define QVN_MOVE_BORDER_INL_H

#include <cstdint>
#include <cstring>

#include "core/check-inl.h"
#include "move/border-fill-inl.h"

QVN_TARGET_BEGIN
namespace move {

// Negative border widths, or a destination smaller than the source and the
// top and left borders: qvnErrSize.
inline QvnStatus borderFits(RoiL src, RoiL dst, std::int64_t top, std::int64_t left) {
    if (top < 0 || left < 0) return qvnErrSize;
    return (left > dst.width - src.width || top > dst.height - src.height) ? qvnErrSize : qvnOk;
}

// Rows of width bytes at p, srcStep apart, moved to dstStep apart (row 0 stays
// where it is), in the order that never overwrites a row still to be moved.
inline void moveRows(std::uint8_t* p, std::int64_t srcStep, std::int64_t dstStep, std::int64_t bytes,
                     std::int64_t height) {
    if (dstStep > srcStep) {
        for (std::int64_t y = height - 1; y > 0; --y) std::memmove(p + y * dstStep, p + y * srcStep, std::size_t(bytes));
    } else {
        for (std::int64_t y = 1; y < height; ++y) std::memmove(p + y * dstStep, p + y * srcStep, std::size_t(bytes));
    }
}

// The border copies. Out of place: src and dst address the two ROIs. In
// place (InPlace, or an out-of-place mirror or wrap call with src == dst):
// src addresses the source ROI, srcStep apart, and the destination ROI is the
// frame around it, dstStep apart (the IR forms pass one step twice); with
// different steps the source rows move to their place first.
//
// Checks, in order: the pointers (and the constant kind's value); both steps
// below 1; the four sizes below 1; negative border widths or a destination
// too small. The mirror forms hand an equal pointer pair to the in-place
// routine before checking anything, the wrap forms after the checks.
template <border::Kind Kind, class T, class L, bool InPlace, class S, class Z>
inline QvnStatus copyBorder(const T* src, S srcStep, RoiL srcRoi, T* dst, S dstStep, RoiL dstRoi, Z top, Z left,
                            const T* value) {
    if constexpr (Kind == border::Kind::kMirror && !InPlace)
        if (src == dst) return copyBorder<Kind, T, L, true>(src, srcStep, srcRoi, dst, dstStep, dstRoi, top, left, value);
    if constexpr (Kind == border::Kind::kConstant) QVN_TRY(check::ptrs(src, dst, value));
    else QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(check::roi(srcRoi));
    QVN_TRY(check::roi(dstRoi));
    QVN_TRY(borderFits(srcRoi, dstRoi, top, left));
    const border::Source<T> s{src, std::int64_t(srcStep), srcRoi.width, srcRoi.height, Kind, 0, value};
    if (InPlace || (Kind == border::Kind::kWrap && src == dst)) {
        T* p = dst;
        if (std::int64_t(srcStep) != std::int64_t(dstStep))
            moveRows(reinterpret_cast<std::uint8_t*>(p), srcStep, dstStep,
                     srcRoi.width * L::kElems * std::int64_t(sizeof(T)), srcRoi.height);
        border::Source<T> inPlace = s;
        inPlace.step = dstStep;
        dst = byteOffset(p, -std::int64_t(top) * dstStep) - std::int64_t(left) * L::kElems;
        border::fillWindow<T, L>(inPlace, -left, -top, dstRoi.width, dstRoi.height, dst, dstStep);
        return qvnOk;
    }
    border::fillWindow<T, L>(s, -left, -top, dstRoi.width, dstRoi.height, dst, dstStep);
    return qvnOk;
}

}  // namespace move
QVN_TARGET_END

#endif
