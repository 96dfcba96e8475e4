// Test images that catch writes outside the ROI and reads past its end.
//
// The ROI rows lie inside one mapping, with a guard frame before the first row,
// a gap after every row and a guard after the last row, all filled with a
// pattern that expectUntouchedOutsideRoi() checks. The first row starts at
// its own offset within a 16-byte block, or (endAtPage) the last byte of the
// last row is the last byte before an inaccessible page, so that an access
// past the ROI faults. In the AddressSanitizer build everything outside the
// ROI is poisoned too, so that any access there is reported, read or write,
// whatever the value.
#ifndef QVN_TESTS_GUARDED_IMAGE_H
#define QVN_TESTS_GUARDED_IMAGE_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qvnip_types.h"

namespace qvn::test {

struct Layout {
    std::int64_t width = 1, height = 1;
    int elemsPerPixel = 1;  // elements of T per pixel (3 for C3, 4 for AC4)
    int gapElems = -1;      // elements between rows; -1 picks 0..7, half the time 16 bytes more
    bool endAtPage = false; // last ROI byte right before a PROT_NONE page
    std::uint32_t seed = 1;
    int startOffset = -1;   // without endAtPage: bytes (whole elements) past a 16-byte
                            // boundary where the first pixel lies; -1 picks one
};

class GuardedBuffer {
public:
    GuardedBuffer(std::size_t elemSize, const Layout& layout);
    ~GuardedBuffer();
    GuardedBuffer(const GuardedBuffer&) = delete;
    GuardedBuffer& operator=(const GuardedBuffer&) = delete;

    unsigned char* first() const { return first_; }
    std::int64_t step() const { return step_; }
    std::int64_t rowBytes() const { return rowBytes_; }
    const Layout& layout() const { return layout_; }

    // Remembers every byte of the mapping (after the test filled the ROI).
    void snapshot();
    // A description of the first byte outside the ROI (or anywhere) that
    // differs from the snapshot, or an empty string.
    std::string changedOutsideRoi() const { return firstChange(false); }
    std::string changedAnywhere() const { return firstChange(true); }
    // The byte at offset bytes from the first pixel, as at snapshot().
    const unsigned char* saved(std::int64_t bytes) const { return saved_.data() + (first_ - map_) + bytes; }
    // The ROI's bytes, row after row; putRoi() writes such a copy back, and
    // restoreRoi() the ROI as at snapshot().
    std::vector<unsigned char> roiBytes() const;
    void putRoi(const std::vector<unsigned char>& bytes);
    void restoreRoi() { putRoi(savedRoi()); }

private:
    void poison(bool outsideRoi) const;
    std::string firstChange(bool roiToo) const;
    std::vector<unsigned char> savedRoi() const;

    Layout layout_;
    unsigned char *map_ = nullptr, *first_ = nullptr;
    std::size_t usableBytes_ = 0;
    std::int64_t step_ = 0, rowBytes_ = 0;
    std::vector<unsigned char> saved_;
};

// A typed image on a guarded buffer, filled with random bytes.
template <class T>
class GuardedImage : public GuardedBuffer {
public:
    explicit GuardedImage(const Layout& l) : GuardedBuffer(sizeof(T), l) {
        std::mt19937 rng(l.seed);
        for (std::int64_t y = 0; y < l.height; ++y)
            for (std::int64_t i = 0; i < rowBytes(); ++i) first()[y * step() + i] = static_cast<unsigned char>(rng());
        snapshot();
    }
    T* row(std::int64_t y) const { return reinterpret_cast<T*>(first() + y * step()); }
    T& at(std::int64_t elem, std::int64_t y) const { return row(y)[elem]; }
    T* data() const { return row(0); }
    std::int64_t width() const { return layout().width; }
    std::int64_t height() const { return layout().height; }
    std::int64_t rowElems() const { return layout().width * layout().elemsPerPixel; }
    // Element elem of row y as it was at the last snapshot.
    T saved(std::int64_t elem, std::int64_t y) const {
        T v;
        std::memcpy(&v, GuardedBuffer::saved(y * step() + elem * std::int64_t(sizeof(T))), sizeof(T));
        return v;
    }
    void expectUntouchedOutsideRoi() const { EXPECT_EQ(changedOutsideRoi(), ""); }
    void expectUnchanged() const { EXPECT_EQ(changedAnywhere(), ""); }
};

// Exactly n bytes that end where an inaccessible page begins (and are
// poisoned around under AddressSanitizer): a spec or work buffer that the
// library must not overrun.
class ExactBuffer {
public:
    explicit ExactBuffer(std::int64_t n, std::uint32_t seed = 5) : b_(1, Layout{n, 1, 1, 0, true, seed}) {}
    unsigned char* p() const { return b_.first(); }
    // The buffer as a spec.
    QvnResizeSpec* spec() const { return reinterpret_cast<QvnResizeSpec*>(p()); }
    QvnWarpAffineSpec* warpSpec() const { return reinterpret_cast<QvnWarpAffineSpec*>(p()); }
    // The word of type W at byte offset i of the spec, which starts at the first 64-byte boundary.
    template <class W = std::int32_t>
    W& word(int i) const {
        const auto at = (reinterpret_cast<std::uintptr_t>(p()) + 63) & ~std::uintptr_t(63);
        return *reinterpret_cast<W*>(at + std::uintptr_t(i));
    }

private:
    GuardedBuffer b_;
};

}  // namespace qvn::test

#endif
