// Image allocation, release and the version record.
#ifndef QVN_CORE_IMAGE_INL_H
#define QVN_CORE_IMAGE_INL_H

#include <climits>
#include <cstdint>

#include "core/image.h"
#include "qvncore.h"

namespace qvn {
namespace core {

// Rows are padded to a multiple of 64 bytes so that every row of an image
// starts with the alignment of the first.
inline constexpr std::int64_t kRowAlign = 64;

// 32-bit form: the step and the total size must fit a signed 32-bit value.
template <class T, class L>
inline T* mallocImage(int width, int height, int* pStepBytes) {
    if (pStepBytes == nullptr) return nullptr;
    *pStepBytes = 0;
    if (width < 1 || height < 1) return nullptr;
    const std::int64_t rowBytes = std::int64_t(width) * L::kElems * std::int64_t(sizeof(T));
    if (rowBytes + (kRowAlign - 1) > INT_MAX) return nullptr;  // row or its rounding too long
    const std::int64_t step = (rowBytes + kRowAlign - 1) & ~(kRowAlign - 1);
    *pStepBytes = static_cast<int>(step);
    if (std::int64_t(height) * step > INT_MAX) return nullptr;
    return static_cast<T*>(qvnMalloc(static_cast<int>(std::int64_t(height) * step)));
}

// 64-bit form: the same rule in 64-bit arithmetic.
template <class T, class L>
inline T* mallocImage(QvnSizeL width, QvnSizeL height, QvnSizeL* pStepBytes) {
    if (pStepBytes == nullptr) return nullptr;
    *pStepBytes = 0;
    if (width < 1 || height < 1) return nullptr;
    std::int64_t rowBytes = 0, rounded = 0, total = 0;
    if (__builtin_mul_overflow(width, std::int64_t(L::kElems) * std::int64_t(sizeof(T)), &rowBytes) ||
        __builtin_add_overflow(rowBytes, kRowAlign - 1, &rounded))
        return nullptr;
    const std::int64_t step = rounded & ~(kRowAlign - 1) & INT64_MAX;
    *pStepBytes = step;
    if (__builtin_mul_overflow(height, step, &total)) return nullptr;
    return static_cast<T*>(qvnMalloc_L(total));
}

// Releases an image from mallocImage; no check of its own.
inline void freeImage(void* ptr) { qvnFree(ptr); }

// The version record of target t's build (read-only data).
const QvnVersionInfo* libVersion(Target t);

}  // namespace core
}  // namespace qvn

#endif
