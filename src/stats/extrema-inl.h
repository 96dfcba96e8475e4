// qvniMin, qvniMax, qvniMinMax, qvniMinIndx and qvniMaxIndx: the extremes of
// each channel of a ROI, with or without the position of the first pixel
// that holds them.
//
// Values are ordered as numbers, with -0 below +0, and NaN elements are
// ignored; a channel of NaNs alone reports its first element, at (0, 0).
#ifndef QVN_STATS_EXTREMA_INL_H
#define QVN_STATS_EXTREMA_INL_H

#include <cstdint>
#include <type_traits>

#include "core/check-inl.h"
#include "core/rows-inl.h"
#include "kernels/stats-inl.h"

QVN_TARGET_BEGIN
namespace stats {

using kernels::stats::Higher;
using kernels::stats::Lower;

// The first pixel at or below row `from` whose channel c holds the bits of v:
// its (x, y), or false.
template <class T, int E>
inline bool locate(const T* src, std::int64_t step, RoiL roi, int c, T v, std::int64_t from, std::int64_t xy[2]) {
    for (std::int64_t y = from; y < roi.height; ++y) {
        const std::int64_t x = kernels::stats::findFirst<T, E>(byteOffset(src, y * step), roi.width * E, c, v);
        if (x >= 0) {
            xy[0] = x, xy[1] = y;
            return true;
        }
    }
    return false;
}

// Where an extreme is still an operation's start value (+inf for a float
// minimum), the channel holds that value and NaNs only, or NaNs alone: then
// the channel reports its first element.
template <class Op, class T, int E>
inline T settle(const T* src, std::int64_t step, RoiL roi, int c, T v) {
    std::int64_t xy[2];
    if (!kernels::stats::sameBits(v, Op::template start<T>()) || locate<T, E>(src, step, roi, c, v, 0, xy)) return v;
    return src[c];
}

// The extremes of Ops (Lower, Higher or both) of every channel, into
// out[k][c]; contiguous rows are walked as one.
template <class T, class L, class... Ops>
inline void extremes(const T* src, std::int64_t step, RoiL roi, T out[][4]) {
    constexpr int E = L::kElems;
    kernels::stats::Extremes<T, E, Ops...> e;
    forEachRow(roi, [&](const T* r, std::int64_t w) { e.row(r, w * E); }, rows(src, step, E));
    e.channels(out);
    constexpr bool kLower[] = {std::is_same_v<Ops, Lower>...};
    for (int k = 0; k < int(sizeof...(Ops)); ++k)
        for (int c = 0; c < L::kChannels; ++c)
            out[k][c] = kLower[k] ? settle<Lower, T, E>(src, step, roi, c, out[k][c])
                                  : settle<Higher, T, E>(src, step, roi, c, out[k][c]);
}

// The exported minimum (Op Lower) or maximum (Higher): pointers, then the
// ROI; steps are not tested.
template <class Op, class T, class L>
inline QvnStatus extreme(const T* pSrc, std::int64_t srcStep, RoiL roi, T* pOut) {
    QVN_TRY(check::ptrs(pSrc, pOut));
    QVN_TRY(check::roi(roi));
    T v[1][4];
    extremes<T, L, Op>(pSrc, srcStep, roi, v);
    for (int c = 0; c < L::kChannels; ++c) pOut[c] = v[0][c];
    return qvnOk;
}

template <class T, class L>
inline QvnStatus minMax(const T* pSrc, std::int64_t srcStep, RoiL roi, T* pMin, T* pMax) {
    QVN_TRY(check::ptrs(pSrc, pMin, pMax));
    QVN_TRY(check::roi(roi));
    T v[2][4];
    extremes<T, L, Lower, Higher>(pSrc, srcStep, roi, v);
    for (int c = 0; c < L::kChannels; ++c) pMin[c] = v[0][c], pMax[c] = v[1][c];
    return qvnOk;
}

// The extreme of Op with the first pixel that holds it, in row-major order.
// Each row is reduced to its extremes, which replace the running ones only
// when strictly beyond them (so the earliest row wins); the vector lanes of a
// row are reduced only when some lane passes the running extremes. Rows stop
// once every channel has reached the value nothing can pass (0 for an 8u
// minimum); the column is that of the first element of the recorded row that
// holds the extreme.
template <class Op, class T, class L>
inline QvnStatus extremeIndex(const T* pSrc, std::int64_t srcStep, RoiL roi, T* pVal, int* pIndexX, int* pIndexY) {
    namespace ks = kernels::stats;
    QVN_TRY(check::ptrs(pSrc, pVal, pIndexX, pIndexY));
    QVN_TRY(check::roi(roi));
    constexpr int E = L::kElems, C = L::kChannels;
    T run[4];
    std::int64_t at[4] = {};
    // AC4's alpha starts where nothing passes it, so it never moves
    for (int c = 0; c < 4; ++c) run[c] = c < C ? Op::template start<T>() : Op::template bound<T>();
    ks::V<T> runV[ks::kBlockVecs<E>];
    ks::pattern<T, E>(run, runV);
    for (std::int64_t y = 0; y < roi.height; ++y) {
        ks::Extremes<T, E, Op> e;
        e.row(byteOffset(pSrc, y * srcStep), roi.width * E);
        if (e.vectorLanes() && !e.passes(runV)) continue;
        T row[1][4];
        e.channels(row);
        bool done = true;
        for (int c = 0; c < C; ++c) {
            const T v = Op::scalar(row[0][c], run[c]);
            if (!ks::sameBits(v, run[c])) run[c] = v, at[c] = y;
            done &= ks::sameBits(run[c], Op::template bound<T>());
        }
        if (done) break;
        ks::pattern<T, E>(run, runV);
    }
    for (int c = 0; c < C; ++c) {
        std::int64_t xy[2] = {0, 0};
        if (!locate<T, E>(pSrc, srcStep, roi, c, run[c], at[c], xy)) run[c] = pSrc[c];  // NaNs alone
        pVal[c] = run[c];
        pIndexX[c] = int(xy[0]);
        pIndexY[c] = int(xy[1]);
    }
    return qvnOk;
}

}  // namespace stats
QVN_TARGET_END

#endif
