// Transposes of pixels of B bytes: out of place in strips of source columns,
// and of a square in place.
//
// Units of 1, 2, 4, 8 and 16 bytes move as register blocks of N x N units
// (N = 16 / B, one 16-byte vector per row): log2(N) rounds of interleaving
// turn N rows into N columns. The blocks are 16-byte on every target: a
// block of a wider vector needs as many registers as it has lanes (32 or 64
// for bytes), which no register file holds, and the transposes are bound by
// memory, not by the shuffles. Units of 3, 6 and 12 bytes (three-channel
// pixels) have no such interleave; they move one by one with a load and a
// store of the next power of two, each store running into the next pixel of
// its destination row, which is written after it.
#ifndef QVN_KERNELS_TRANSPOSE_INL_H
#define QVN_KERNELS_TRANSPOSE_INL_H

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "kernels/isa/v128.h"

QVN_TARGET_BEGIN
namespace kernels {

template <int B>
struct TransposeUnit {
    static constexpr bool kBlocks = B == 1 || B == 2 || B == 4 || B == 8 || B == 16;
    static constexpr int kN = kBlocks ? 16 / B : 1;  // units per block side
    // The lane type of a block row, and the size one unit is moved with.
    using Lane = std::conditional_t<
        B == 1, std::uint8_t,
        std::conditional_t<B == 2, std::uint16_t, std::conditional_t<B == 4, std::uint32_t, std::uint64_t>>>;
    static constexpr std::size_t kWide = B <= 4 ? 4 : B <= 8 ? 8 : 16;

    // The unit at s to d.
    static void exact(const std::uint8_t* s, std::uint8_t* d) { std::memcpy(d, s, B); }
    // The same with a wider load and store: kWide - B bytes after each are
    // read and written too.
    static void wide(const std::uint8_t* s, std::uint8_t* d) { std::memcpy(d, s, kWide); }
    // n units of a source row into a destination column, dstStep apart.
    static void wideRun(const std::uint8_t* s, std::uint8_t* d, std::int64_t dstStep, std::int64_t n) {
        std::int64_t i = 0;
        for (; i + 4 <= n; i += 4, s += 4 * B, d += 4 * dstStep) {
            wide(s, d);
            wide(s + B, d + dstStep);
            wide(s + 2 * B, d + 2 * dstStep);
            wide(s + 3 * B, d + 3 * dstStep);
        }
        for (; i < n; ++i, s += B, d += dstStep) wide(s, d);
    }
    static void swap(std::uint8_t* a, std::uint8_t* b) {
        std::uint8_t t[B];
        std::memcpy(t, a, B);
        std::memcpy(a, b, B);
        std::memcpy(b, t, B);
    }

    using V = v128::Vec<Lane>;
    // (The loops are unrolled by hand-off to the compiler: kept as loops, the
    // blocks would live on the stack between rounds.)
    static void load(const std::uint8_t* s, std::int64_t step, V r[kN]) {
#pragma GCC unroll 16
        for (int i = 0; i < kN; ++i) r[i] = v128::loadU(reinterpret_cast<const Lane*>(s + i * step));
    }
    static void store(std::uint8_t* d, std::int64_t step, const V r[kN]) {
#pragma GCC unroll 16
        for (int i = 0; i < kN; ++i) v128::storeU(reinterpret_cast<Lane*>(d + i * step), r[i]);
    }
    // Row i of the block becomes column i: each round pairs row i with row
    // i + N/2 and interleaves them, and log2(N) rounds transpose.
    static void transpose(V r[kN]) {
#pragma GCC unroll 4
        for (int round = 1; round < kN; round *= 2) {
            V t[kN];
#pragma GCC unroll 8
            for (int i = 0; i < kN / 2; ++i) {
                t[2 * i] = v128::zipLo(r[i], r[i + kN / 2]);
                t[2 * i + 1] = v128::zipHi(r[i], r[i + kN / 2]);
            }
#pragma GCC unroll 16
            for (int i = 0; i < kN; ++i) r[i] = t[i];
        }
    }
};

// Image of units: the first unit, the row step in bytes, and unit (x, y).
template <class Byte>
struct UnitImage {
    Byte* p;
    std::int64_t step;
    template <int B>
    Byte* at(std::int64_t x, std::int64_t y) const {
        return p + y * step + x * B;
    }
};

// Destination units (y, x) = source units (x, y) for x < w, y < h. The source
// goes in bands of band rows, each band in strips of strip columns from left
// to right, each strip from its top row down: a strip reads whole cache lines
// of its rows once and writes its strip destination rows from left to right,
// so only strip destination lines and one block's source lines are open at a
// time, whatever the steps (steps that are powers of two put every row of a
// tile into the same cache set). The band bounds the source rows, and so the
// pages, that successive strips share.
template <int B>
inline void transposeTiled(UnitImage<const std::uint8_t> s, UnitImage<std::uint8_t> d, std::int64_t w, std::int64_t h,
                           std::int64_t strip, std::int64_t band) {
    using U = TransposeUnit<B>;
    constexpr std::int64_t N = U::kN;
    // with blocks, the block-covered part first; the rest unit by unit
    const std::int64_t wf = U::kBlocks ? w - w % N : w, hf = U::kBlocks ? h - h % N : h;
    for (std::int64_t y0 = 0; y0 < hf; y0 += band) {
        const std::int64_t ye = std::min(y0 + band, hf);
        for (std::int64_t x0 = 0; x0 < wf; x0 += strip) {
            const std::int64_t xe = std::min(x0 + strip, wf);
            if constexpr (U::kBlocks) {
                for (std::int64_t y = y0; y < ye; y += N)
                    for (std::int64_t x = x0; x < xe; x += N) {
                        typename U::V r[N];
                        U::load(s.at<B>(x, y), s.step, r);
                        U::transpose(r);
                        U::store(d.at<B>(y, x), d.step, r);
                    }
            } else {
                // a wide move reads the next source unit of its row and
                // writes over the next unit of its destination row, which is
                // written later (at the next y, here or in the next band)
                const std::int64_t xw = std::min(xe, w - 1);  // columns with a unit after them
                for (std::int64_t y = y0; y < ye; ++y) {
                    const std::int64_t n = y + 1 < h ? xw - x0 : 0;
                    U::wideRun(s.at<B>(x0, y), d.at<B>(y, x0), d.step, n);
                    for (std::int64_t x = x0 + n; x < xe; ++x) U::exact(s.at<B>(x, y), d.at<B>(y, x));
                }
            }
        }
    }
    // what the blocks leave: the last w % N columns, then the last h % N rows
    for (std::int64_t x = wf; x < w; ++x)
        for (std::int64_t y = 0; y < h; ++y) U::exact(s.at<B>(x, y), d.at<B>(y, x));
    for (std::int64_t y = hf; y < h; ++y)
        for (std::int64_t x = 0; x < wf; ++x) U::exact(s.at<B>(x, y), d.at<B>(y, x));
}

// The n x n square at p transposed in place: pairs of blocks on either side
// of the diagonal exchanged, diagonal blocks transposed where they are, and
// the units the blocks leave exchanged one pair at a time.
template <int B>
inline void transposeSquare(UnitImage<std::uint8_t> p, std::int64_t n) {
    using U = TransposeUnit<B>;
    constexpr std::int64_t N = U::kN;
    const std::int64_t nf = U::kBlocks ? n - n % N : 0;
    if constexpr (U::kBlocks) {
        for (std::int64_t by = 0; by < nf; by += N) {
            typename U::V a[N], b[N];
            U::load(p.at<B>(by, by), p.step, a);
            U::transpose(a);
            U::store(p.at<B>(by, by), p.step, a);
            for (std::int64_t bx = by + N; bx < nf; bx += N) {
                U::load(p.at<B>(bx, by), p.step, a);
                U::load(p.at<B>(by, bx), p.step, b);
                U::transpose(a);
                U::transpose(b);
                U::store(p.at<B>(by, bx), p.step, a);
                U::store(p.at<B>(bx, by), p.step, b);
            }
        }
    }
    for (std::int64_t y = nf; y < n; ++y)
        for (std::int64_t x = 0; x < y; ++x) U::swap(p.at<B>(x, y), p.at<B>(y, x));
}

}  // namespace kernels
QVN_TARGET_END

#endif
