// qvniBinToGray and qvniGrayToBin: 1-bit packed images to and from grey
// images. A 1-bit row holds eight pixels per byte, the first pixel of a byte
// in its most significant bit; the bit offset (0..7) is the position of the
// first ROI pixel counted from that most significant bit.
#ifndef QVN_MOVE_BIN_INL_H
#define QVN_MOVE_BIN_INL_H

#include <cstdint>

#include "core/check-inl.h"
#include "core/image.h"
#include "kernels/bin-inl.h"

QVN_TARGET_BEGIN
namespace move {

// A bit offset outside 0..7: qvnErrArgRange.
inline QvnStatus checkBitOffset(int offset) { return unsigned(offset) > 7u ? qvnErrArgRange : qvnOk; }

// Pointers, ROI, steps, bit offset; then every pixel becomes hiVal where its
// bit is 1 and loVal where it is 0.
template <class D>
inline QvnStatus binToGray(const Qvn8u* src, std::int64_t srcStep, int srcBitOffset, D* dst, std::int64_t dstStep,
                           RoiL roi, D loVal, D hiVal) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(checkBitOffset(srcBitOffset));
    const D value[2] = {loVal, hiVal};
    for (std::int64_t y = 0; y < roi.height; ++y) {
        const Qvn8u* s = byteOffset(src, y * srcStep);
        D* d = byteOffset(dst, y * dstStep);
        std::int64_t x = 0;
        int pos = srcBitOffset;
        while (x < roi.width) {
            if (pos == 0 && roi.width - x >= 16) {
                // whole bytes from here on: sixteen pixels at a time
                const std::int64_t n = (roi.width - x) / 16 * 16;
                kernels::expandBits(s, d + x, n, loVal, hiVal);
                x += n;
                s += n / 8;
                continue;
            }
            const unsigned bits = *s++;
            for (; pos < 8 && x < roi.width; ++pos, ++x) d[x] = value[(bits >> (7 - pos)) & 1u];
            pos = 0;
        }
    }
    return qvnOk;
}

// Pointers, ROI, steps, bit offset; then every pixel greater than threshold
// sets its bit and every other pixel (NaN included) clears it. Bits of the
// first and last destination bytes that lie outside the ROI keep their value.
template <class S>
inline QvnStatus grayToBin(const S* src, std::int64_t srcStep, Qvn8u* dst, std::int64_t dstStep, int dstBitOffset,
                           RoiL roi, S threshold) {
    QVN_TRY(check::ptrs(src, dst));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::steps(srcStep, dstStep));
    QVN_TRY(checkBitOffset(dstBitOffset));
    for (std::int64_t y = 0; y < roi.height; ++y) {
        const S* s = byteOffset(src, y * srcStep);
        Qvn8u* d = byteOffset(dst, y * dstStep);
        std::int64_t x = 0;
        int pos = dstBitOffset;
        while (x < roi.width) {
            if (pos == 0 && roi.width - x >= 16) {
                // whole destination bytes from here on: sixteen pixels at a time
                const std::int64_t n = (roi.width - x) / 16 * 16;
                kernels::packBits(s + x, d, n, threshold);
                x += n;
                d += n / 8;
                continue;
            }
            unsigned acc = 0, mask = 0;
            for (; pos < 8 && x < roi.width; ++pos, ++x) {
                const unsigned bit = 0x80u >> pos;
                mask |= bit;
                if (s[x] > threshold) acc |= bit;
            }
            *d = Qvn8u(mask == 0xFFu ? acc : ((*d & ~mask) | acc));
            ++d;
            pos = 0;
        }
    }
    return qvnOk;
}

}  // namespace move
QVN_TARGET_END

#endif
