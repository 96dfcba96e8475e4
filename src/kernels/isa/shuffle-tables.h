// Byte-shuffle controls for channel (de)interleaving within 16-byte lanes,
// computed at compile time for an element size E (1, 2 or 4 bytes). Index
// 0x80 gives a zero byte. The layers with a byte shuffle (SSSE3 and wider)
// use them on every 16-byte lane; no intrinsics here.
#ifndef QVN_KERNELS_ISA_SHUFFLE_TABLES_H
#define QVN_KERNELS_ISA_SHUFFLE_TABLES_H

#include <cstdint>

namespace qvn {
namespace isa_tables {

struct Control {
    std::uint8_t b[16];
};

// Four-element pixels: the lane's bytes regrouped channel by channel, each
// channel's elements of the lane in one 4-byte group (E < 4).
constexpr Control deinterleave4(int e) {
    Control c{};
    const int pixels = 4 / e;
    for (int ch = 0; ch < 4; ++ch)
        for (int j = 0; j < pixels; ++j)
            for (int b = 0; b < e; ++b) c.b[ch * 4 + j * e + b] = std::uint8_t(j * 4 * e + ch * e + b);
    return c;
}
// Its inverse: 4-byte channel groups back to pixels.
constexpr Control interleave4(int e) {
    const Control f = deinterleave4(e);
    Control c{};
    for (int i = 0; i < 16; ++i) c.b[f.b[i]] = std::uint8_t(i);
    return c;
}

// Three-element pixels over three 16-byte chunks s = 0, 1, 2 (48 bytes, 16 / E
// pixels): the bytes that chunk s gives to plane ch, at their place in the
// plane's 16 bytes (0x80 elsewhere). A plane is the OR of the three shuffles.
constexpr Control deinterleave3(int e, int s, int ch) {
    Control c{};
    for (int i = 0; i < 16; ++i) c.b[i] = 0x80;
    for (int j = 0; j < 16 / e; ++j)
        for (int b = 0; b < e; ++b) {
            const int g = (3 * j + ch) * e + b;  // byte of the 48
            if (g / 16 == s) c.b[j * e + b] = std::uint8_t(g % 16);
        }
    return c;
}
// The bytes of chunk s that plane ch gives, at their place in the chunk.
constexpr Control interleave3(int e, int s, int ch) {
    Control c{};
    for (int p = 0; p < 16; ++p) {
        const int g = 16 * s + p, elem = g / e, b = g % e;
        c.b[p] = elem % 3 == ch ? std::uint8_t((elem / 3) * e + b) : std::uint8_t(0x80);
    }
    return c;
}

// The tables, as data a vector can be loaded from.
template <int E>
struct Controls {
    static constexpr Control kDeinterleave4 = deinterleave4(E < 4 ? E : 1);
    static constexpr Control kInterleave4 = interleave4(E < 4 ? E : 1);
    static constexpr Control kDeinterleave3[3][3] = {
        {deinterleave3(E, 0, 0), deinterleave3(E, 0, 1), deinterleave3(E, 0, 2)},
        {deinterleave3(E, 1, 0), deinterleave3(E, 1, 1), deinterleave3(E, 1, 2)},
        {deinterleave3(E, 2, 0), deinterleave3(E, 2, 1), deinterleave3(E, 2, 2)}};
    static constexpr Control kInterleave3[3][3] = {
        {interleave3(E, 0, 0), interleave3(E, 0, 1), interleave3(E, 0, 2)},
        {interleave3(E, 1, 0), interleave3(E, 1, 1), interleave3(E, 1, 2)},
        {interleave3(E, 2, 0), interleave3(E, 2, 1), interleave3(E, 2, 2)}};
};

}  // namespace isa_tables
}  // namespace qvn

#endif
