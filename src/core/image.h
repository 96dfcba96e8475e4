// The image model shared by every family: sizes, image views and layouts.
// Target-independent: no vector code here.
#ifndef QVN_CORE_IMAGE_H
#define QVN_CORE_IMAGE_H

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "qvnip_types.h"

namespace qvn {

// The build targets, narrowest first: x86-64 with SSE3 (16-byte vectors),
// with AVX2, FMA, BMI2 and F16C (32-byte), with AVX-512 F, BW, DQ and VL
// (64-byte).
enum class Target : int { kSse3 = 0, kAvx2 = 1, kAvx512 = 2 };
inline constexpr int kTargetCount = 3;

// ROI size in 64-bit arithmetic; both public forms convert to it, so a 32-bit
// function and its _L twin run the same implementation.
struct RoiL {
    std::int64_t width;
    std::int64_t height;
    RoiL(QvnRoiSize r) : width(r.width), height(r.height) {}  // NOLINT: implicit on purpose
    RoiL(QvnRoiSizeL r) : width(r.width), height(r.height) {} // NOLINT
    RoiL(std::int64_t w, std::int64_t h) : width(w), height(h) {}
};

// Byte offsets: rows are addressed in bytes, whatever the element type.
template <class T>
inline T* byteOffset(T* p, std::int64_t bytes) {
    using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + bytes);
}

// Interleaved layouts. kElems is the number of elements a pixel occupies,
// kChannels the number an operation reads and writes (AC4 leaves alpha alone).
struct C1 { static constexpr int kElems = 1, kChannels = 1; static constexpr bool kAlpha = false; };
struct C2 { static constexpr int kElems = 2, kChannels = 2; static constexpr bool kAlpha = false; };
struct C3 { static constexpr int kElems = 3, kChannels = 3; static constexpr bool kAlpha = false; };
struct C4 { static constexpr int kElems = 4, kChannels = 4; static constexpr bool kAlpha = false; };
struct AC4 { static constexpr int kElems = 4, kChannels = 3; static constexpr bool kAlpha = true; };

}  // namespace qvn

#endif
