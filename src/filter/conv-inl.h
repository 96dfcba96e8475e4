// qvniConv_<T>_<C>R with qvniConvGetBufferSize, and the older border-less
// qvniFilter_64f_C1R with qvniFilterGetBufSize_64f_C1R: the window kernels
// of the general filter (kernels/filter-inl.h) on operands that need no
// border synthesis.
//
// The convolution of two images is computed directly: the operand with the
// smaller area is the kernel, reversed into the work buffer (as the general
// filter's correlation blocks), and each channel of the other operand is
// copied to a plane of the buffer with kernel-1 zeros around it, over which
// the kernel runs; channels other than the only one go through an output
// plane.
#ifndef QVN_FILTER_CONV_INL_H
#define QVN_FILTER_CONV_INL_H

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/check-inl.h"
#include "core/fpround-inl.h"
#include "core/spec-inl.h"
#include "kernels/filter-inl.h"

QVN_TARGET_BEGIN
namespace filter {

namespace kc = kernels::filt;

// ---- the older filter ----------------------------------------------------------------------------
// dst(x, y) = sum over j, i of kernel(j, i) * src(x + anchor.x - i, y + anchor.y - j): a
// convolution, every neighbour read from memory around the ROI.
inline QvnStatus filter64f(const Qvn64f* pSrc, std::int64_t srcStep, Qvn64f* pDst, std::int64_t dstStep,
                           RoiL roi, const Qvn64f* pKernel, QvnRoiSize kernelSize, QvnPoint anchor) {
    QVN_TRY(check::ptrs(pSrc, pDst, pKernel));
    QVN_TRY(check::roi(roi));
    QVN_TRY(check::roi(kernelSize));
    if (srcStep < roi.width * 8 || dstStep < roi.width * 8) return qvnErrStep;
    const int kw = kernelSize.width, kh = kernelSize.height;
    // the caller's kernel read backwards is the correlation of the window
    // that starts (kw - 1 - anchor.x, kh - 1 - anchor.y) before each pixel
    const Qvn64f* window =
        byteOffset(pSrc, -(std::int64_t(kh) - 1 - anchor.y) * srcStep) - (std::int64_t(kw) - 1 - anchor.x);
    const RoundingScope nearest(qvnRndNear);
    kc::Float2D<double, double, double>{{}, pKernel + (std::int64_t(kw) * kh - 1), kw, kh, 1, {}}(
        window, srcStep, pDst, dstStep, roi.width, roi.height);
    return qvnOk;
}

inline QvnStatus filterGetBufSize64f(QvnRoiSize kernelSize, int roiWidth, int* pBufferSize) {
    QVN_TRY(check::ptrs(pBufferSize));
    QVN_TRY(check::roi(kernelSize));
    if (roiWidth < 1) return qvnErrSize;
    *pBufferSize = 0;
    return qvnOk;
}

// ---- convolution ------------------------------------------------------------------------------------
// The shapes and operands of a convolution, from the sizes and algType.
struct ConvPlan {
    RoiL kernel{1, 1}, image{1, 1}, out{1, 1};
    std::int64_t ox = 0, oy = 0;  // the output's first pixel in the full convolution
    bool swapped = false;         // the first operand is the kernel

    ConvPlan(RoiL a, RoiL b, int algType) {
        swapped = a.width * a.height < b.width * b.height;
        kernel = swapped ? a : b, image = swapped ? b : a;
        if ((algType >> 16 & 0xFF) == 1) {
            out = {std::max(a.width, b.width) - std::min(a.width, b.width) + 1,
                   std::max(a.height, b.height) - std::min(a.height, b.height) + 1};
            ox = std::min(a.width, b.width) - 1, oy = std::min(a.height, b.height) - 1;
        } else {
            out = {a.width + b.width - 1, a.height + b.height - 1};
        }
    }
    // The zero-padded plane of one channel of the image.
    std::int64_t padWidth() const { return image.width + 2 * (kernel.width - 1); }
    std::int64_t padHeight() const { return image.height + 2 * (kernel.height - 1); }
    template <class T>
    std::int64_t bytes(std::int64_t channels) const {
        const std::int64_t blocks = std::is_same_v<T, Qvn32f> ? 16 * kernel.width * kernel.height
                                                               : 16 * kernel.height * ((kernel.width + 1) / 2);
        const std::int64_t outPlane = channels > 1 ? spec::align64(out.width * out.height * std::int64_t(sizeof(T))) : 0;
        return spec::align64(padWidth() * padHeight() * std::int64_t(sizeof(T))) + spec::align64(blocks) + outPlane + 63;
    }
};

inline QvnStatus algorithm(int algType) {
    return (algType & 0xFF) > 2 || (algType >> 16 & 0xFF) > 1 ? qvnErrAlgorithm : qvnOk;
}

inline QvnStatus convGetBufferSize(QvnRoiSize src1Size, QvnRoiSize src2Size, int dataType, int numChannels,
                                   int algType, int* pBufferSize) {
    QVN_TRY(check::ptrs(pBufferSize));
    QVN_TRY(check::roi(src1Size));
    QVN_TRY(check::roi(src2Size));
    if ((algType & 0xFF) > 2) return qvnErrAlgorithm;
    if (numChannels != 1 && numChannels != 3 && numChannels != 4) return qvnErrChannelCount;
    QVN_TRY(algorithm(algType));
    const ConvPlan plan(src1Size, src2Size, algType);
    std::int64_t bytes;
    if (dataType == qvn8u) bytes = plan.bytes<Qvn8u>(numChannels);
    else if (dataType == qvn16s) bytes = plan.bytes<Qvn16s>(numChannels);
    else if (dataType == qvn32f) bytes = plan.bytes<Qvn32f>(numChannels);
    else return qvnErrDataType;
    if (bytes > INT_MAX) return qvnErrSizeOverflow;
    *pBufferSize = int(bytes);
    return qvnOk;
}

// The integer results: sum / divisor rounded to nearest, halves to even.
inline kc::IntFinish convFinish(int divisor) {
    kc::IntFinish f;
    if (divisor > 0 && (divisor & (divisor - 1)) == 0) {
        int k = 0;
        while ((1 << k) != divisor) ++k;
        f.shiftBy(k, qvnRndNear);
    } else {
        f.kind = kc::IntFinish::kExact, f.divisor = divisor, f.mode = qvnRndNear;
    }
    return f;
}

// Checks, in order: a null pointer; either size; a step shorter than its
// image's row (the destination's row is the output shape's); a zero divisor
// (integer types); an invalid algType.
template <class T, class L>
inline QvnStatus conv(const T* pSrc1, std::int64_t src1Step, RoiL src1Size, const T* pSrc2, std::int64_t src2Step,
                      RoiL src2Size, T* pDst, std::int64_t dstStep, int divisor, int algType, Qvn8u* pBuffer) {
    constexpr std::int64_t C = L::kElems, E = sizeof(T);
    QVN_TRY(check::ptrs(pSrc1, pSrc2, pDst, pBuffer));
    QVN_TRY(check::roi(src1Size));
    QVN_TRY(check::roi(src2Size));
    const ConvPlan plan(src1Size, src2Size, algType);
    if (src1Step < src1Size.width * C * E || src2Step < src2Size.width * C * E || dstStep < plan.out.width * C * E)
        return qvnErrStep;
    if (divisor == 0) return qvnErrDivisor;
    QVN_TRY(algorithm(algType));

    const T* kp = plan.swapped ? pSrc1 : pSrc2;
    const T* ip = plan.swapped ? pSrc2 : pSrc1;
    const std::int64_t ks = plan.swapped ? src1Step : src2Step, is = plan.swapped ? src2Step : src1Step;
    const std::int64_t kw = plan.kernel.width, kh = plan.kernel.height, pw = plan.padWidth(), ph = plan.padHeight();
    T* pad = spec::alignUp64(reinterpret_cast<T*>(pBuffer));
    unsigned char* blocks = reinterpret_cast<unsigned char*>(pad) + spec::align64(pw * ph * E);
    T* outPlane = reinterpret_cast<T*>(blocks + spec::align64(std::is_same_v<T, Qvn32f> ? 16 * kw * kh
                                                                                         : 16 * kh * ((kw + 1) / 2)));
    const RoundingScope nearest(qvnRndNear);
    for (std::int64_t c = 0; c < C; ++c) {
        // the image's channel with kernel - 1 zeros on every side
        std::memset(pad, 0, std::size_t(pw * ph * E));
        for (std::int64_t y = 0; y < plan.image.height; ++y) {
            const T* s = byteOffset(ip, y * is) + c;
            T* d = pad + (y + kh - 1) * pw + (kw - 1);
            for (std::int64_t x = 0; x < plan.image.width; ++x) d[x] = s[x * C];
        }
        // the kernel's channel reversed: correlation index j * kw + i holds
        // kernel(kh - 1 - j, kw - 1 - i)
        const auto coef = [&](std::int64_t j, std::int64_t i) {
            return byteOffset(kp, (kh - 1 - j) * ks)[(kw - 1 - i) * C + c];
        };
        const T* window = pad + plan.oy * pw + plan.ox;
        T* out = C == 1 ? pDst : outPlane;
        const std::int64_t outStep = C == 1 ? dstStep : plan.out.width * E;
        if constexpr (std::is_same_v<T, Qvn32f>) {
            float* b = reinterpret_cast<float*>(blocks);
            for (std::int64_t j = 0; j < kh; ++j)
                for (std::int64_t i = 0; i < kw; ++i) {
                    const float v = coef(j, i);
                    kc::makeBlocks(&v, 1, b + 4 * (j * kw + i));
                }
            kc::Float2D<float, T, T>{{}, b, int(kw), int(kh), 1, {}}(window, pw * E, out, outStep, plan.out.width,
                                                                 plan.out.height);
        } else {
            std::int32_t* pairs = reinterpret_cast<std::int32_t*>(blocks);
            kc::makePairs(coef, int(kw), int(kh), pairs);
            kc::Int2D<T, T>{{}, pairs, int(kw), int(kh), 1, convFinish(divisor)}(window, pw * E, out, outStep,
                                                                             plan.out.width, plan.out.height);
        }
        if (C > 1)
            for (std::int64_t y = 0; y < plan.out.height; ++y) {
                const T* s = outPlane + y * plan.out.width;
                T* d = byteOffset(pDst, y * dstStep) + c;
                for (std::int64_t x = 0; x < plan.out.width; ++x) d[x * C] = s[x];
            }
    }
    return qvnOk;
}

}  // namespace filter
QVN_TARGET_END

#endif
