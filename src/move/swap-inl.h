// qvniSwapChannels: destination channel i = source channel dstOrder[i]. Each
// layout keeps its own order of checks; the steps may be negative, only a zero
// step is an error.
#ifndef QVN_MOVE_SWAP_INL_H
#define QVN_MOVE_SWAP_INL_H

#include <cstdint>

#include "move/copy-inl.h"

QVN_TARGET_BEGIN
namespace move {

// Any of the first n entries not below limit, read as unsigned (so negative
// entries fail too): qvnErrChannelOrder.
inline QvnStatus orderBelow(const int* order, int n, unsigned limit) {
    for (int i = 0; i < n; ++i)
        if (unsigned(order[i]) >= limit) return qvnErrChannelOrder;
    return qvnOk;
}

template <int KS, int KD, class T>
inline kernels::PixelMap<T, KS, KD> orderMap(const int* order) {
    kernels::PixelMap<T, KS, KD> map{};
    for (int c = 0; c < KD; ++c) map.from[c] = order[c];
    return map;
}

template <class T, class S>
inline QvnStatus swapC3(const T* src, S srcStep, T* dst, S dstStep, RoiL roi, const int* order) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::ptrs(order));
    QVN_TRY(check::width(roi));
    QVN_TRY(check::height(roi));
    QVN_TRY(check::nonzeroSteps(srcStep, dstStep));
    QVN_TRY(orderBelow(order, 3, 3));
    return shuffle<T, 3, 3>(src, srcStep, dst, dstStep, roi, orderMap<3, 3, T>(order));
}

template <class T, class S>
inline QvnStatus swapC4(const T* src, S srcStep, T* dst, S dstStep, RoiL roi, const int* order) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::nonzeroSteps(srcStep, dstStep));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::ptrs(order));
    QVN_TRY(orderBelow(order, 4, 4));
    return shuffle<T, 4, 4>(src, srcStep, dst, dstStep, roi, orderMap<4, 4, T>(order));
}

// Alpha of the destination is not changed.
template <class T, class S>
inline QvnStatus swapAC4(const T* src, S srcStep, T* dst, S dstStep, RoiL roi, const int* order) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::nonzeroSteps(srcStep, dstStep));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::ptrs(order));
    QVN_TRY(orderBelow(order, 3, 3));
    const int from[4] = {order[0], order[1], order[2], 0};
    kernels::PixelMap<T, 4, 4> map = orderMap<4, 4, T>(from);
    map.keep = 0x8;
    return shuffle<T, 4, 4>(src, srcStep, dst, dstStep, roi, map);
}

template <class T, class S>
inline QvnStatus swapC3I(T* img, S step, RoiL roi, const int* order) {
    QVN_TRY(check::ptrs(img));
    QVN_TRY(check::nonzeroSteps(step));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::ptrs(order));
    QVN_TRY(orderBelow(order, 3, 3));
    return shuffle<T, 3, 3>(img, step, img, step, roi, orderMap<3, 3, T>(order));
}

template <class T, class S>
inline QvnStatus swapC4I(T* img, S step, RoiL roi, const int* order) {
    QVN_TRY(check::ptrs(img, order));
    QVN_TRY(check::nonzeroSteps(step));
    QVN_TRY(check::roi(roi));
    QVN_TRY(orderBelow(order, 4, 4));
    return shuffle<T, 4, 4>(img, step, img, step, roi, orderMap<4, 4, T>(order));
}

// Three entries 0..3: the source alpha may go into a colour channel.
template <class T, class S>
inline QvnStatus swapC4C3(const T* src, S srcStep, T* dst, S dstStep, RoiL roi, const int* order) {
    QVN_TRY(check::ptrs(src, dst, order));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::nonzeroSteps(srcStep, dstStep));
    QVN_TRY(orderBelow(order, 3, 4));
    if (order[0] == 0 && order[1] == 1 && order[2] == 2) return dropFourth(src, srcStep, dst, dstStep, roi);
    return shuffle<T, 4, 3>(src, srcStep, dst, dstStep, roi, orderMap<4, 3, T>(order));
}

// Four entries: 0..2 a source channel, 3 the fill value, above 3 the
// destination channel keeps its value. The common order {keep, 0, 1, 2}
// (three channels behind an untouched first one) has its own row, chosen
// here once per call: each destination pixel from channel 0 on lines up
// with the source elements from one before the source pixel, so it needs no
// interleaving (kernels::behindFirstRow tells how channel 0 is kept).
template <class T, class S>
inline QvnStatus swapC3C4(const T* src, S srcStep, T* dst, S dstStep, RoiL roi, const int* order, T fill) {
    QVN_TRY(check::ptrs(src, dst, order));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::nonzeroSteps(srcStep, dstStep));
    for (int c = 0; c < 4; ++c)
        if (order[c] < 0) return qvnErrChannelOrder;
    if (order[0] > 3 && order[1] == 0 && order[2] == 1 && order[3] == 2)
        return forEachRow(roi, [](const T* s, T* d, std::int64_t n) { kernels::behindFirstRow(s, d, n); },
                          rows(src, srcStep, 3), rows(dst, dstStep, 4));
    kernels::PixelMap<T, 3, 4> map{};
    map.fill = fill;
    for (int c = 0; c < 4; ++c) {
        if (order[c] > 3) map.keep |= 1u << c;
        map.from[c] = order[c] > 3 ? 0 : order[c];  // 3 names the fill value
    }
    return shuffle<T, 3, 4>(src, srcStep, dst, dstStep, roi, map);
}

}  // namespace move
QVN_TARGET_END

#endif
