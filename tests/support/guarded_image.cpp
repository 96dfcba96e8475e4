#include "support/guarded_image.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <sstream>

namespace qvn::test {

namespace {
constexpr std::size_t kFrontGuard = 64, kBackGuard = 64;
constexpr unsigned char kPattern = 0xA5;
}  // namespace

GuardedBuffer::GuardedBuffer(std::size_t elemSize, const Layout& layout)
    : layout_(layout), elemSize_(elemSize) {
    std::mt19937 rng(layout.seed * 7919u + 1);
    const int gap = layout.gapElems >= 0 ? layout.gapElems : int(rng() % 8);
    rowBytes_ = layout.width * layout.elemsPerPixel * std::int64_t(elemSize);
    step_ = rowBytes_ + gap * std::int64_t(elemSize);
    const std::size_t imageBytes = std::size_t(step_ * (layout.height - 1) + rowBytes_);
    const std::size_t page = std::size_t(sysconf(_SC_PAGESIZE));
    usableBytes_ = kFrontGuard + imageBytes + (layout.endAtPage ? 0 : kBackGuard);
    usableBytes_ = (usableBytes_ + page - 1) / page * page;
    mapBytes_ = usableBytes_ + page;
    void* m = mmap(nullptr, mapBytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (m == MAP_FAILED) std::abort();
    map_ = static_cast<unsigned char*>(m);
    mprotect(map_ + usableBytes_, page, PROT_NONE);
    std::memset(map_, kPattern, usableBytes_);
    // Place the image so that it ends at the protected page, or a back guard
    // before it; the start's alignment then varies with the sizes.
    const std::size_t end = usableBytes_ - (layout.endAtPage ? 0 : kBackGuard);
    first_ = map_ + (end - imageBytes);
    snapshot();
}

GuardedBuffer::~GuardedBuffer() { munmap(map_, mapBytes_); }

void GuardedBuffer::snapshot() { saved_.assign(map_, map_ + usableBytes_); }

std::string GuardedBuffer::changedOutsideRoi() const {
    const std::int64_t firstOff = first_ - map_;
    for (std::size_t i = 0; i < usableBytes_; ++i) {
        const std::int64_t rel = std::int64_t(i) - firstOff;
        const bool inRoi = rel >= 0 && rel / step_ < layout_.height && rel % step_ < rowBytes_;
        if (!inRoi && map_[i] != saved_[i]) {
            std::ostringstream s;
            s << "byte written outside the ROI at offset " << rel << " from the first pixel (row step "
              << step_ << ", row bytes " << rowBytes_ << ")";
            return s.str();
        }
    }
    return {};
}

std::string GuardedBuffer::changedAnywhere() const {
    for (std::size_t i = 0; i < usableBytes_; ++i)
        if (map_[i] != saved_[i]) {
            std::ostringstream s;
            s << "byte changed at offset " << (std::int64_t(i) - (first_ - map_)) << " from the first pixel";
            return s.str();
        }
    return {};
}

}  // namespace qvn::test
