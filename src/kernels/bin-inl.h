// 1-bit rows to and from grey rows, sixteen pixels (two bit bytes) at a time.
// A bit byte holds eight pixels, the first in its most significant bit; the
// callers handle partial bytes and pass whole bytes here.
#ifndef QVN_KERNELS_BIN_INL_H
#define QVN_KERNELS_BIN_INL_H

#include <cstdint>
#include <type_traits>

#include "kernels/isa/isa.h"
#include "qvnip_types.h"

QVN_TARGET_BEGIN
namespace kernels {

// The byte with its bit order reversed.
struct BitReverse {
    std::uint8_t v[256];
    constexpr BitReverse() : v() {
        for (int b = 0; b < 256; ++b) {
            int r = 0;
            for (int k = 0; k < 8; ++k) r |= ((b >> k) & 1) << (7 - k);
            v[b] = std::uint8_t(r);
        }
    }
};
inline constexpr BitReverse kBitReverse{};

// d[0..n) from the bits of s (n a multiple of 16): hi where the bit is 1, lo
// where it is 0.
template <class D>
inline void expandBits(const Qvn8u* s, D* d, std::int64_t n, D lo, D hi) {
    using namespace v128;  // sixteen pixels a step on every target
    using U8 = std::uint8_t;
    using U16 = std::uint16_t;
    using U32 = std::uint32_t;
    // Lane j of a 16-byte group tests bit 7 - j % 8 of its byte.
    const Vec<U8> sel = cast<U8>(set1<std::uint64_t>(0x0102040810204080ull));
    const Vec<D> loV = set1(lo), hiV = set1(hi);
    for (std::int64_t x = 0; x < n; x += 16, s += 2) {
        Vec<U8> b = cast<U8>(fromLow32(U32(s[0]) | U32(s[1]) << 8));
        b = zipLo(b, b);                                      // b0 b0 b1 b1
        b = cast<U8>(zipLo(cast<U16>(b), cast<U16>(b)));     // b0 x4, b1 x4
        b = cast<U8>(zipLo(cast<U32>(b), cast<U32>(b)));     // b0 x8, b1 x8
        const Vec<U8> m = cmpEq(bitAnd(b, sel), sel);        // all ones where the bit is set
        if constexpr (sizeof(D) == 1) {
            storeU(d + x, select(cast<D>(m), hiV, loV));
        } else {
            const Vec<U8> m2[2] = {zipLo(m, m), zipHi(m, m)};  // one mask per 16-bit lane
            for (int h = 0; h < 2; ++h) {
                if constexpr (sizeof(D) == 2) {
                    storeU(d + x + 8 * h, select(cast<D>(m2[h]), hiV, loV));
                } else {
                    const Vec<U16> w = cast<U16>(m2[h]);
                    storeU(d + x + 8 * h, select(cast<D>(zipLo(w, w)), hiV, loV));
                    storeU(d + x + 8 * h + 4, select(cast<D>(zipHi(w, w)), hiV, loV));
                }
            }
        }
    }
}

// The bits of s[0..n) > threshold (n a multiple of 16) into n / 8 whole bytes
// of d; NaN is not greater.
template <class S>
inline void packBits(const S* s, Qvn8u* d, std::int64_t n, S threshold) {
    using namespace v128;  // sixteen pixels a step on every target
    for (std::int64_t x = 0; x < n; x += 16, d += 2) {
        int mask;  // bit j: pixel x + j
        if constexpr (std::is_same_v<S, float>) {
            const Vec<float> t = set1(threshold);
            mask = 0;
            for (int k = 0; k < 4; ++k) mask |= moveMask(cmpGt(loadU(s + x + 4 * k), t)) << (4 * k);
        } else if constexpr (sizeof(S) == 1) {
            // unsigned order as signed order of values with the top bit flipped
            const Vec<std::int8_t> flip = set1<std::int8_t>(-128);
            const Vec<std::int8_t> t = bitXor(set1(std::int8_t(threshold)), flip);
            mask = moveMask8(cmpGt(bitXor(cast<std::int8_t>(loadU(s + x)), flip), t));
        } else {
            const Vec<std::int16_t> flip = set1<std::int16_t>(std::is_signed_v<S> ? 0 : -32768);
            const Vec<std::int16_t> t = bitXor(set1(std::int16_t(threshold)), flip);
            const Vec<std::int16_t> a = cmpGt(bitXor(cast<std::int16_t>(loadU(s + x)), flip), t);
            const Vec<std::int16_t> b = cmpGt(bitXor(cast<std::int16_t>(loadU(s + x + 8)), flip), t);
            mask = moveMask8(packSat<std::int8_t>(a, b));
        }
        d[0] = kBitReverse.v[mask & 0xFF];
        d[1] = kBitReverse.v[(mask >> 8) & 0xFF];
    }
}

}  // namespace kernels
QVN_TARGET_END

#endif
