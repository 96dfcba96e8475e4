// Test images that catch writes outside the ROI and reads past its end.
//
// The ROI rows lie inside one mapping, with a guard frame before the first row,
// a gap after every row and a guard after the last row, all filled with a
// pattern that expectUntouchedOutsideRoi() checks. With endAtPage the last
// byte of the last row is the last byte before an inaccessible page, so a
// vector tail that reads past the ROI faults.
#ifndef QVN_TESTS_GUARDED_IMAGE_H
#define QVN_TESTS_GUARDED_IMAGE_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace qvn::test {

struct Layout {
    std::int64_t width = 1, height = 1;
    int elemsPerPixel = 1;  // elements of T per pixel (3 for C3, 4 for AC4)
    int gapElems = -1;      // elements between rows; -1 picks 0..7 at random
    bool endAtPage = false; // last ROI byte right before a PROT_NONE page
    std::uint32_t seed = 1;
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
    // Bytes outside the ROI are as at snapshot(); returns a description of the
    // first difference, or an empty string.
    std::string changedOutsideRoi() const;
    // Every byte is as at snapshot().
    std::string changedAnywhere() const;

private:
    Layout layout_;
    std::size_t elemSize_;
    unsigned char* map_ = nullptr;
    std::size_t mapBytes_ = 0, usableBytes_ = 0;
    unsigned char* first_ = nullptr;
    std::int64_t step_ = 0, rowBytes_ = 0;
    std::vector<unsigned char> saved_;
};

// A typed image on a guarded buffer, filled with random values by default.
template <class T>
class GuardedImage {
public:
    explicit GuardedImage(const Layout& l) : buf_(sizeof(T), l) {
        std::mt19937 rng(l.seed);
        for (std::int64_t y = 0; y < l.height; ++y)
            for (std::int64_t x = 0; x < l.width * l.elemsPerPixel; ++x) {
                T v;
                unsigned char bytes[sizeof(T)];
                for (auto& b : bytes) b = static_cast<unsigned char>(rng());
                std::memcpy(&v, bytes, sizeof(T));
                at(x, y) = v;
            }
        buf_.snapshot();
    }
    T* row(std::int64_t y) const { return reinterpret_cast<T*>(buf_.first() + y * buf_.step()); }
    T& at(std::int64_t elem, std::int64_t y) const { return row(y)[elem]; }
    T* data() const { return row(0); }
    std::int64_t step() const { return buf_.step(); }
    std::int64_t width() const { return buf_.layout().width; }
    std::int64_t height() const { return buf_.layout().height; }
    std::int64_t rowElems() const { return buf_.layout().width * buf_.layout().elemsPerPixel; }
    // Call after filling the ROI by hand, before the call under test.
    void snapshot() { buf_.snapshot(); }
    void expectUntouchedOutsideRoi() const {
        const std::string d = buf_.changedOutsideRoi();
        EXPECT_TRUE(d.empty()) << d;
    }
    void expectUnchanged() const {
        const std::string d = buf_.changedAnywhere();
        EXPECT_TRUE(d.empty()) << d;
    }

private:
    GuardedBuffer buf_;
};

}  // namespace qvn::test

#endif
