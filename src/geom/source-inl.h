// The source image of a geometric transform: where the whole image lies
// relative to the pointer a call was given (a tile's pointer addresses the
// pixel at its source offset), and its rows read into the work buffer with
// the pixels beyond its edges made by the border fill, so that a tile reads
// the same pixels as a whole-image call.
#ifndef QVN_GEOM_SOURCE_INL_H
#define QVN_GEOM_SOURCE_INL_H

#include <cstdint>

#include "core/image.h"
#include "move/border-fill-inl.h"

QVN_TARGET_BEGIN
namespace geom {

template <class T, class L>
struct SourceImage {
    border::Source<T> image;

    // p addresses pixel (x, y) of a width x height image; border is a
    // validated QvnBorderKind (kind and in-memory flags).
    SourceImage(const T* p, std::int64_t step, std::int64_t x, std::int64_t y, std::int64_t width,
                std::int64_t height, int border)
        : image{byteOffset(p, -y * step) - x * L::kElems, step, width, height, border::kindOf(border),
                unsigned(border) & 0xF0u, nullptr} {}

    // Writes pixels [x0, x0 + n) of row y, beyond the edges as the border
    // says, to out.
    void readRow(std::int64_t x0, std::int64_t y, std::int64_t n, T* out) const {
        border::fillWindow<T, L>(image, x0, y, n, 1, out, 0);
    }
    // The memory row that row y reads: y itself inside the image or on a side
    // in memory, else the row the border gives (replicate and mirror kinds).
    const T* rowAt(std::int64_t y) const {
        const bool inMemory = (y < 0 && (image.inMemory & border::kInMemTop)) ||
                              (y >= image.height && (image.inMemory & border::kInMemBottom));
        return byteOffset(image.p, (inMemory ? y : border::sourceIndex(image.kind, y, image.height)) * image.step);
    }
};

}  // namespace geom
QVN_TARGET_END

#endif
