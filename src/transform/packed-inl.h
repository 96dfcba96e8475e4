// The packed spectrum of a real image, element by element: where the
// transforms and the packed-spectrum operations read and write the values of
// its two real columns (column 0 and, for even widths, column W - 1).
#ifndef QVN_TRANSFORM_PACKED_INL_H
#define QVN_TRANSFORM_PACKED_INL_H

#include <cstdint>

#include "core/image.h"
#include "kernels/target.h"

QVN_TARGET_BEGIN
namespace transform {

template <class T>
inline T* rowAt(T* p, std::int64_t step, std::int64_t y) {
    return byteOffset(p, y * step);
}

// Element k of a real column's packed spectrum (column offset off): row 0
// the real F(0), rows 2k-1 and 2k F(k), row h-1 the real F(h/2) for even h,
// and conjugate symmetry beyond h/2.
inline void readPacked(const float* base, std::int64_t step, std::int64_t h, std::int64_t off, std::int64_t k,
                       float& re, float& im) {
    const bool upper = 2 * k > h;
    const std::int64_t j = upper ? h - k : k;
    if (j == 0 || 2 * j == h) {
        re = rowAt(base, step, j == 0 ? 0 : h - 1)[off];
        im = 0.0f;
    } else {
        re = rowAt(base, step, 2 * j - 1)[off];
        im = rowAt(base, step, 2 * j)[off];
        if (upper) im = -im;
    }
}

inline void writePacked(float* base, std::int64_t step, std::int64_t h, std::int64_t off, std::int64_t k, float re,
                        float im, bool scaled, float factor) {
    if (scaled) re *= factor, im *= factor;
    if (k == 0 || 2 * k == h) {
        rowAt(base, step, k == 0 ? 0 : h - 1)[off] = re;
    } else {
        rowAt(base, step, 2 * k - 1)[off] = re;
        rowAt(base, step, 2 * k)[off] = im;
    }
}

}  // namespace transform
QVN_TARGET_END

#endif
