// The rows that write three-element 8u pixels with overlapping 8-byte stores,
// the one that reads them as overlapping 8-byte pairs into planes, and the row that puts three-element pixels behind an untouched channel 0:
// every count around their vector steps, every pointer misalignment within a
// vector, against the element-by-element rule. Sources end exactly at the end
// of their allocation (and start at it when not shifted), so the sanitizer
// build sees any read outside the row; destinations carry sentinels on both
// sides.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <random>
#include <vector>

#include "kernels/shuffle-inl.h"

namespace qvn::QVN_TARGET {
namespace {

constexpr int kMaxCount = 70;  // past four 16-pixel steps and their tails
constexpr std::uint8_t kSentinel = 0xA5;

// count elements of T starting lead elements into an allocation of exactly
// lead + count elements, filled with random bits.
template <class T>
struct Source {
    std::unique_ptr<T[]> mem;
    T* p;
    Source(std::int64_t lead, std::int64_t count, std::mt19937& rng)
        : mem(new T[std::size_t(lead + count) + (lead + count == 0)]), p(mem.get() + lead) {
        auto* b = reinterpret_cast<unsigned char*>(mem.get());
        for (std::size_t i = 0; i < std::size_t(lead + count) * sizeof(T); ++i) b[i] = static_cast<unsigned char>(rng());
    }
};

// A destination of count elements, lead elements into a buffer of sentinels
// (or of random bits, for rows that must keep some of them).
template <class T>
struct Dest {
    std::vector<T> mem;
    std::int64_t lead, count;
    Dest(std::int64_t lead_, std::int64_t count_) : mem(std::size_t(lead_ + count_ + 32)), lead(lead_), count(count_) {
        std::memset(mem.data(), kSentinel, mem.size() * sizeof(T));
    }
    T* p() { return mem.data() + lead; }
    void expectSentinelsAround(const char* what, std::int64_t n) const {
        const auto* b = reinterpret_cast<const unsigned char*>(mem.data());
        for (std::size_t i = 0; i < mem.size() * sizeof(T); ++i) {
            if (i >= std::size_t(lead) * sizeof(T) && i < std::size_t(lead + count) * sizeof(T)) continue;
            ASSERT_EQ(b[i], kSentinel) << what << " n " << n << " lead " << lead << ": byte " << i << " written";
        }
    }
};

TEST(ThreeElementRows, PackedRowsMatchTheRuleAtEveryCountAndAlignment) {
    std::mt19937 rng(7);
    for (int n = 0; n <= kMaxCount; ++n)
        for (int ls = 0; ls < 16; ls += 5)
            for (int ld = 0; ld < 16; ++ld) {
                Source<std::uint8_t> four(ls, 4 * n, rng), one(ls, n, rng), r(ls, n, rng), g(0, n, rng), b(ld, n, rng);
                Dest<std::uint8_t> drop(ld, 3 * n), dup(ld, 3 * n), merge(ld, 3 * n);
                Source<std::uint8_t> three(ls, 3 * n, rng);
                Dest<std::uint8_t> split[3] = {{ld, n}, {ld, n}, {ld % 2 ? (ld + 5) % 16 : ld, n}};  // planes aligned together or not
                kernels::dropFourthRow(four.p, drop.p(), n);
                kernels::dup3Row(one.p, dup.p(), n);
                const std::uint8_t* const planes[3] = {r.p, g.p, b.p};
                kernels::merge3Row(planes, merge.p(), n);
                std::uint8_t* const outPlanes[3] = {split[0].p(), split[1].p(), split[2].p()};
                kernels::split3Row<kernels::StoreRegular>(three.p, outPlanes, n);
                for (int x = 0; x < n; ++x)
                    for (int c = 0; c < 3; ++c) {
                        ASSERT_EQ(drop.p()[3 * x + c], four.p[4 * x + c]) << "AC4C3 n " << n << " at " << x << "," << c;
                        ASSERT_EQ(dup.p()[3 * x + c], one.p[x]) << "Dup n " << n << " at " << x << "," << c;
                        ASSERT_EQ(merge.p()[3 * x + c], planes[c][x]) << "P3C3 n " << n << " at " << x << "," << c;
                        ASSERT_EQ(outPlanes[c][x], three.p[3 * x + c]) << "C3P3 n " << n << " at " << x << "," << c;
                    }
                drop.expectSentinelsAround("AC4C3", n);
                dup.expectSentinelsAround("Dup", n);
                merge.expectSentinelsAround("P3C3", n);
                for (const auto& plane : split) plane.expectSentinelsAround("C3P3", n);
            }
}

template <class T>
void behindFirstAtEveryCountAndAlignment() {
    std::mt19937 rng(11);
    constexpr int kVecElems = int(16 / sizeof(T));
    for (int n = 0; n <= kMaxCount / int(sizeof(T)); ++n)
        for (int ls : {0, 1, kVecElems - 1})
            for (int ld = 0; ld < kVecElems; ++ld) {
                Source<T> src(ls, 3 * n, rng);
                Dest<T> dst(ld, 4 * n);
                for (std::int64_t i = 0; i < 4 * n; ++i) std::memset(&dst.p()[i], int(rng() & 0xFF), sizeof(T));
                const std::vector<T> before(dst.mem);
                kernels::behindFirstRow(src.p, dst.p(), n);
                for (int x = 0; x < n; ++x) {
                    ASSERT_EQ(std::memcmp(&dst.p()[4 * x], &before[std::size_t(ld + 4 * x)], sizeof(T)), 0)
                        << sizeof(T) << "-byte n " << n << " lead " << ld << ": channel 0 of pixel " << x << " changed";
                    ASSERT_EQ(std::memcmp(&dst.p()[4 * x + 1], &src.p[3 * x], 3 * sizeof(T)), 0)
                        << sizeof(T) << "-byte n " << n << " lead " << ld << ": pixel " << x;
                }
                dst.expectSentinelsAround("C3C4 behind channel 0", n);
            }
}

TEST(ThreeElementRows, BehindFirstKeepsChannelZeroForEveryElementSize) {
    behindFirstAtEveryCountAndAlignment<std::uint8_t>();
    behindFirstAtEveryCountAndAlignment<std::uint16_t>();
    behindFirstAtEveryCountAndAlignment<float>();
}

}  // namespace
}  // namespace qvn::QVN_TARGET
