// The 256-bin histogram of 8u rows.
#ifndef QVN_KERNELS_HISTOGRAM_INL_H
#define QVN_KERNELS_HISTOGRAM_INL_H

#include <cstdint>
#include <cstring>

#include "kernels/target.h"

QVN_TARGET_BEGIN
namespace kernels {

// Counts the bytes of rows added to it, eight at a time: eight bytes of one
// level take one update; otherwise consecutive bytes go to four partial
// histograms in turn, so that repeated levels do not wait on their own
// counter's last increment. The parts are 32-bit and are added into the
// 64-bit totals before any of them could overflow.
class Histogram8u {
public:
    void add(const std::uint8_t* s, std::int64_t n) {
        while (n > 0) {
            const std::int64_t chunk = n < kChunk ? n : kChunk;
            if (pending_ + std::uint64_t(chunk) > 0xFFFFFFFFu) flush();
            count(s, chunk);
            pending_ += std::uint64_t(chunk);
            s += chunk;
            n -= chunk;
        }
    }
    // The totals of everything added.
    const std::uint64_t* totals() {
        flush();
        return total_;
    }

private:
    static constexpr std::int64_t kChunk = std::int64_t(1) << 31;

    void count(const std::uint8_t* s, std::int64_t n) {
        std::uint32_t *h0 = part_[0], *h1 = part_[1], *h2 = part_[2], *h3 = part_[3];
        std::int64_t i = 0;
        for (; i + 8 <= n; i += 8) {
            std::uint64_t w;
            std::memcpy(&w, s + i, 8);
            if (w == (w & 255) * 0x0101010101010101u) {  // eight of one level (flat areas): one update
                h0[w & 255] += 8;
                continue;
            }
            ++h0[w & 255], ++h1[(w >> 8) & 255], ++h2[(w >> 16) & 255], ++h3[(w >> 24) & 255];
            ++h0[(w >> 32) & 255], ++h1[(w >> 40) & 255], ++h2[(w >> 48) & 255], ++h3[w >> 56];
        }
        for (; i < n; ++i) ++h0[s[i]];
    }
    void flush() {
        for (int v = 0; v < 256; ++v) {
            total_[v] += std::uint64_t(part_[0][v]) + part_[1][v] + part_[2][v] + part_[3][v];
            part_[0][v] = part_[1][v] = part_[2][v] = part_[3][v] = 0;
        }
        pending_ = 0;
    }

    std::uint32_t part_[4][256] = {};
    std::uint64_t total_[256] = {};
    std::uint64_t pending_ = 0;  // bytes counted in the parts since the last flush
};

}  // namespace kernels
QVN_TARGET_END

#endif
