#include "support/guarded_image.h"

#include <sanitizer/asan_interface.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <sstream>

namespace qvn::test {

namespace {
constexpr std::size_t kFrontGuard = 64, kBackGuard = 64;
const std::size_t kPage = std::size_t(sysconf(_SC_PAGESIZE));

// Mappings (each followed by its inaccessible page) are kept for reuse: a
// sweep builds thousands of small images, and mapping, protecting and
// unmapping each one costs more than the calls under test.
std::vector<std::pair<unsigned char*, std::size_t>> gFree;

unsigned char* acquire(std::size_t& usable) {
    for (auto m = gFree.begin(); m != gFree.end(); ++m)
        if (m->second >= usable && m->second <= usable + 4 * kPage) {
            unsigned char* p = m->first;
            usable = m->second;
            gFree.erase(m);
            return p;
        }
    void* m = mmap(nullptr, usable + kPage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (m == MAP_FAILED) std::abort();
    mprotect(static_cast<unsigned char*>(m) + usable, kPage, PROT_NONE);
    return static_cast<unsigned char*>(m);
}
}  // namespace

GuardedBuffer::GuardedBuffer(std::size_t elemSize, const Layout& layout) : layout_(layout) {
    std::mt19937 rng(layout.seed * 7919u + 1);
    int gap = layout.gapElems;
    if (gap < 0) {  // half of the random gaps are wide enough to be poisoned
        gap = int(rng() % 8);
        if (rng() % 2) gap += int((16 + elemSize - 1) / elemSize);
    }
    std::size_t offset = layout.startOffset >= 0 ? std::size_t(layout.startOffset) : rng() % 16;
    rowBytes_ = layout.width * layout.elemsPerPixel * std::int64_t(elemSize);
    step_ = rowBytes_ + gap * std::int64_t(elemSize);
    const std::size_t imageBytes = std::size_t(step_ * (layout.height - 1) + rowBytes_);
    usableBytes_ = (kFrontGuard + 16 + imageBytes + kBackGuard + kPage - 1) / kPage * kPage;
    map_ = acquire(usableBytes_);
    std::memset(map_, 0xA5, usableBytes_);
    first_ = layout.endAtPage ? map_ + usableBytes_ - imageBytes : map_ + kFrontGuard + offset - offset % elemSize;
    snapshot();
}

GuardedBuffer::~GuardedBuffer() {
    poison(false);
    if (gFree.size() < 64) gFree.emplace_back(map_, usableBytes_);
    else munmap(map_, usableBytes_ + kPage);
}

// In the AddressSanitizer build everything outside the ROI rows is poisoned
// (the sanitizer tracks 8-byte granules: bytes before a row start that share
// its granule stay accessible); the test's own scans lift it.
void GuardedBuffer::poison(bool outsideRoi) const {
#ifdef __SANITIZE_ADDRESS__
    ASAN_UNPOISON_MEMORY_REGION(map_, usableBytes_);
    if (!outsideRoi) return;
    ASAN_POISON_MEMORY_REGION(map_, usableBytes_);
    for (std::int64_t y = 0; y < layout_.height; ++y) ASAN_UNPOISON_MEMORY_REGION(first_ + y * step_, rowBytes_);
#else
    (void)outsideRoi;
#endif
}

void GuardedBuffer::snapshot() {
    poison(false);
    saved_.assign(map_, map_ + usableBytes_);
    poison(true);
}

std::vector<unsigned char> GuardedBuffer::roiBytes() const {
    std::vector<unsigned char> v;
    for (std::int64_t y = 0; y < layout_.height; ++y) v.insert(v.end(), first_ + y * step_, first_ + y * step_ + rowBytes_);
    return v;
}

std::vector<unsigned char> GuardedBuffer::savedRoi() const {
    std::vector<unsigned char> v;
    for (std::int64_t y = 0; y < layout_.height; ++y) v.insert(v.end(), saved(y * step_), saved(y * step_ + rowBytes_));
    return v;
}

void GuardedBuffer::putRoi(const std::vector<unsigned char>& bytes) {
    for (std::int64_t y = 0; y < layout_.height; ++y)
        std::memcpy(first_ + y * step_, bytes.data() + y * rowBytes_, std::size_t(rowBytes_));
}

std::string GuardedBuffer::firstChange(bool roiToo) const {
    poison(false);
    std::size_t at = usableBytes_;
    const auto scan = [&](std::size_t from, std::size_t to) {
        if (at == usableBytes_ && from < to && std::memcmp(map_ + from, saved_.data() + from, to - from) != 0)
            for (at = from; map_[at] == saved_[at]; ++at) {}
    };
    const std::size_t f = std::size_t(first_ - map_);
    scan(0, roiToo ? usableBytes_ : f);
    for (std::int64_t y = 0; y < layout_.height && !roiToo; ++y)
        scan(f + std::size_t(y * step_ + rowBytes_), y + 1 < layout_.height ? f + std::size_t((y + 1) * step_) : usableBytes_);
    poison(true);
    if (at == usableBytes_) return {};
    std::ostringstream s;
    s << "byte " << (roiToo ? "changed" : "written outside the ROI") << " at offset " << std::int64_t(at - f)
      << " from the first pixel (row step " << step_ << ", row bytes " << rowBytes_ << ")";
    return s.str();
}

}  // namespace qvn::test
