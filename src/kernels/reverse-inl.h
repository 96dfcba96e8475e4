// Reversed rows: pixels in the opposite order, out of place and in place, and
// rows exchanged. The mirror family and the mirror border fill use them.
//
// Pixels are K elements of U (an unsigned type of the element's size): K = 1,
// 3 or 4; with Keep (AC4) the fourth element of every destination pixel is
// never changed. A vector block holds whole pixels: one vector of 1- or
// 4-element pixels, reversed as units of the pixel's size, or three vectors of
// 3-element pixels, split into planes, each plane reversed, and interleaved
// again.
#ifndef QVN_KERNELS_REVERSE_INL_H
#define QVN_KERNELS_REVERSE_INL_H

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "kernels/copy-inl.h"
#include "kernels/isa/isa.h"
#include "kernels/store-inl.h"

QVN_TARGET_BEGIN
namespace kernels {

// The unsigned type of T's size: rows that only move elements move their
// bits, whatever they mean.
template <class T>
using Bits = std::conditional_t<
    sizeof(T) == 1, std::uint8_t,
    std::conditional_t<sizeof(T) == 2, std::uint16_t, std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>>>;

// Three-element pixels of P bytes (3 or 6) reversed in blocks of 48 bytes
// (three 16-byte vectors, 48 / P pixels) on the targets with a byte shuffle:
// each output vector takes its bytes from the input vectors by byte tables.
// Without one (the sse3 target) the pixels move one by one.
template <int P>
struct Reverse3 {
    static constexpr std::int64_t kPixels = 48 / P;
#if QVN_TARGET_LEVEL >= 2
    struct Tables {
        std::uint8_t t[3][3][16];  // output vector, input vector, byte
    };
    static constexpr Tables make() {
        Tables r{};
        for (int j = 0; j < 48; ++j) {
            const int from = (kPixels - 1 - j / P) * P + j % P;
            for (int m = 0; m < 3; ++m) r.t[j / 16][m][j % 16] = from / 16 == m ? std::uint8_t(from % 16) : 0x80;
        }
        return r;
    }
    static constexpr Tables kTables = make();
    static void block(const std::uint8_t* s, std::uint8_t* d) {
        using V = v128::Vec<std::uint8_t>;
        const V in[3] = {v128::loadU(s), v128::loadU(s + 16), v128::loadU(s + 32)};
        for (int k = 0; k < 3; ++k) {
            const V o = v128::bitOr(v128::bitOr(v128::byteTable(in[0], kTables.t[k][0]), v128::byteTable(in[1], kTables.t[k][1])),
                                    v128::byteTable(in[2], kTables.t[k][2]));
            v128::storeU(d + 16 * k, o);
        }
    }
#endif
};

// Pixels of K elements of U in blocks of kPixels (none where there is no block
// code): a block is read whole (load) before it is written reversed
// (store), so in-place reversals can exchange blocks.
template <class U, int K, bool Keep>
struct Reversal {
    static_assert(K == 1 || K == 3 || K == 4, "1, 3 or 4 elements per pixel");
    static_assert(K == 4 || !Keep, "alpha is the fourth element");
    static constexpr std::size_t kPixelBytes = K * sizeof(U);
    static constexpr std::size_t kWritten = (Keep ? K - 1 : K) * sizeof(U);
#if QVN_TARGET_LEVEL >= 2
    static constexpr bool kBlocks3 = kPixelBytes < 12;
#else
    static constexpr bool kBlocks3 = false;
#endif
    // pixels of more than 16 bytes (64f C3, C4) move one by one
    static constexpr std::int64_t kPixels = K != 3 ? (kPixelBytes > 16 ? 0 : std::int64_t(isa::kVectorBytes / kPixelBytes))
                                            : kBlocks3 ? Reverse3<int(kPixelBytes)>::kPixels : 0;

    // One pixel; with Keep its alpha stays.
    static void pixel(const U* s, U* d) { std::memcpy(d, s, kWritten); }

    // A block: one vector reversed as it is read, or 48 bytes reversed as
    // they are written.
    struct Block {
        isa::Vec<U> v;
        std::uint8_t bytes[K == 3 ? 48 : 1];
    };
    static void load(const U* s, Block& b) {
        if constexpr (K == 3) std::memcpy(b.bytes, s, 48);
        else if constexpr (kPixels > 0) b.v = isa::reverseUnits<int(kPixelBytes)>(isa::loadU(s));
    }
    template <class Store>
    static void store(const Block& b, U* d, isa::Vec<U> keep, bool aligned) {
        if constexpr (K == 3) {
#if QVN_TARGET_LEVEL >= 2
            if constexpr (kBlocks3) Reverse3<int(kPixelBytes)>::block(b.bytes, reinterpret_cast<std::uint8_t*>(d));
#endif
        } else if constexpr (Keep) {
            isa::storeKeep(d, b.v, keep);
        } else if (aligned) {
            Store::store(d, b.v);
        } else {
            isa::storeU(d, b.v);
        }
    }

    // All-ones lanes over the alpha elements (Keep only).
    static isa::Vec<U> alphaLanes() {
        isa::Vec<U> m[3];
        channelLanes<U, 4>(0, 0x8, m);
        return m[0];
    }
};

// d pixel j = s pixel n - 1 - j for j < n; s and d do not overlap. The body
// stores whole vectors from the first vector-aligned destination pixel (with
// Store), or unaligned from the first pixel when no pixel of the row is
// aligned (then Store is not used).
template <class U, int K, bool Keep, class Store>
inline void reverseRow(const U* s, U* d, std::int64_t n) {
    using R = Reversal<U, K, Keep>;
    if constexpr (K == 3) {
        constexpr int kP = int(R::kPixelBytes);
        const auto* sb = reinterpret_cast<const std::uint8_t*>(s);
        auto* db = reinterpret_cast<std::uint8_t*>(d);
        std::int64_t j = 0;
#if QVN_TARGET_LEVEL >= 2
        if constexpr (kP < 12)  // 12-byte pixels move as fast one by one, a vector each
            for (constexpr std::int64_t B = Reverse3<kP>::kPixels; j + B <= n; j += B)
                Reverse3<kP>::block(sb + (n - j - B) * kP, db + j * kP);
#endif
        // one by one: a move of the next power of two reads into the source
        // pixel after (there is one unless j is 0) and writes into the next
        // destination pixel (written next unless j is n - 1)
        constexpr std::size_t kWide = kP == 3 ? 4 : kP == 6 ? 8 : kP == 12 ? 16 : 32;
        if (j == 0 && n > 0) std::memcpy(db, sb + (n - 1) * kP, kP), j = 1;
        for (; j < n - 1; ++j) std::memcpy(db + j * kP, sb + (n - 1 - j) * kP, kWide);
        if (j < n) std::memcpy(db + j * kP, sb + (n - 1 - j) * kP, kP);
        return;
    }
    constexpr std::int64_t P = R::kPixels;
    if constexpr (P == 0) {
        for (std::int64_t j = 0; j < n; ++j) R::pixel(s + (n - 1 - j) * K, d + j * K);
        return;
    }
    std::int64_t j = 0;
    while (j < P && j < n && !isa::alignedV(d + j * K)) ++j;
    const bool aligned = j < P;
    if (!aligned) j = 0;
    for (std::int64_t h = 0; h < j; ++h) R::pixel(s + (n - 1 - h) * K, d + h * K);
    if (j + P <= n) {
        isa::Vec<U> keep{};
        if constexpr (Keep) keep = R::alphaLanes();
        typename R::Block b;
        for (; j + P <= n; j += P) {
            R::load(s + (n - j - P) * K, b);
            R::template store<Store>(b, d + j * K, keep, aligned);
        }
    }
    for (; j < n; ++j) R::pixel(s + (n - 1 - j) * K, d + j * K);
}

// In place: a pixel j = old b pixel n - 1 - j and b pixel j = old a pixel
// n - 1 - j. a and b are two rows, or the same row (then it is reversed).
// Blocks are taken from both ends towards the middle, the middle pixels
// pairwise.
template <class U, int K, bool Keep>
inline void reverseSwapRows(U* a, U* b, std::int64_t n) {
    using R = Reversal<U, K, Keep>;
    using S = StoreRegular;
    constexpr std::int64_t P = R::kPixels;
    const bool same = a == b;
    isa::Vec<U> keep{};
    if constexpr (Keep) keep = R::alphaLanes();
    std::int64_t i = 0;
    if constexpr (P > 0) {
        for (; 2 * (i + P) <= n; i += P) {
            const std::int64_t r = n - i - P;
            typename R::Block toA, toB;  // into a at i, into b at r
            R::load(b + r * K, toA);
            R::load(a + i * K, toB);
            if (same) {
                R::template store<S>(toA, a + i * K, keep, false);
                R::template store<S>(toB, a + r * K, keep, false);
            } else {
                typename R::Block toB2, toA2;  // into b at i, into a at r
                R::load(a + r * K, toB2);
                R::load(b + i * K, toA2);
                R::template store<S>(toA, a + i * K, keep, false);
                R::template store<S>(toB, b + r * K, keep, false);
                R::template store<S>(toB2, b + i * K, keep, false);
                R::template store<S>(toA2, a + r * K, keep, false);
            }
        }
    }
    for (std::int64_t j = i; j < n - i; ++j) {
        const std::int64_t m = n - 1 - j;
        if (same && j >= m) break;
        U t[K];
        R::pixel(a + j * K, t);
        R::pixel(b + m * K, a + j * K);
        R::pixel(t, b + m * K);
    }
}

// Exchanges n pixels of rows a and b (a == b changes nothing).
template <class U, int K, bool Keep>
inline void swapRows(U* a, U* b, std::int64_t n) {
    using V = isa::Vec<U>;
    constexpr std::int64_t kLanes = isa::kLanes<U>;
    const std::int64_t total = n * K;
    std::int64_t i = 0;
    V keep{};
    if constexpr (Keep) keep = Reversal<U, K, Keep>::alphaLanes();
    for (; i + kLanes <= total; i += kLanes) {  // kLanes is a multiple of 4: blocks start on pixels
        const V x = isa::loadU(a + i), y = isa::loadU(b + i);
        if constexpr (Keep) {
            isa::storeKeep(a + i, y, keep);
            isa::storeKeep(b + i, x, keep);
        } else {
            isa::storeU(a + i, y);
            isa::storeU(b + i, x);
        }
    }
    for (; i < total; ++i) {
        if (Keep && i % K == K - 1) continue;
        const U t = a[i];
        a[i] = b[i];
        b[i] = t;
    }
}

}  // namespace kernels
QVN_TARGET_END

#endif
