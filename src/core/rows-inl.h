// The row walker: every family's loop over the ROI.
#ifndef QVN_CORE_ROWS_INL_H
#define QVN_CORE_ROWS_INL_H

#include <cstdint>
#include <type_traits>

#include "core/image.h"
#include "kernels/target.h"

QVN_TARGET_BEGIN

// One image of a row walk: the first ROI row, its step in bytes and how many
// elements of T one pixel occupies (3 for C3, 4 for AC4, 1 for a plane).
template <class T>
struct Rows {
    T* p;
    std::int64_t step;
    int elemsPerPixel;
};

template <class T, class S>
inline Rows<T> rows(T* p, S step, int elemsPerPixel) {
    return {p, static_cast<std::int64_t>(step), elemsPerPixel};
}

// Calls fn(row pointers..., width) for every row of the ROI and returns the
// first non-zero status that a row produced, after all rows are done (fn may
// also return void).
//
// When every image's step equals the byte length of its ROI row, the rows are
// contiguous and are walked as one row of width x height pixels. Rows are
// visited eight at a time, then the remainder one by one.
template <class Fn, class... T>
inline QvnStatus forEachRow(RoiL roi, Fn&& fn, Rows<T>... im) {
    std::int64_t width = roi.width, height = roi.height;
    if (height > 1 &&
        ((im.step == width * im.elemsPerPixel * static_cast<std::int64_t>(sizeof(T))) && ...)) {
        width *= height;
        height = 1;
    }
    QvnStatus first = qvnOk;
    const auto row = [&](std::int64_t y) {
        if constexpr (std::is_void_v<decltype(fn(im.p..., width))>) {
            fn(byteOffset(im.p, y * im.step)..., width);
        } else {
            const QvnStatus s = fn(byteOffset(im.p, y * im.step)..., width);
            if (first == qvnOk) first = s;
        }
    };
    std::int64_t y = 0;
    for (; y + 8 <= height; y += 8) {
        for (int k = 0; k < 8; ++k) row(y + k);
    }
    for (; y < height; ++y) row(y);
    return first;
}

QVN_TARGET_END

#endif
