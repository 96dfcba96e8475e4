/* qvnIP filter: exported functions. Generated from api/filter*.txt by tools/apigen.py;
 * edit the table, not this file. */
#ifndef QVNIP_FILTER_H
#define QVNIP_FILTER_H

#include "qvnip_types.h"

QVN_BEGIN_DECLS


/* The general filter in three calls. qvniFilterBorderGetSize reports the
 * bytes of the spec and of the work buffer for a kernel of kernelSize over a
 * ROI of roiSize: dataType is the image type (qvn8u, qvn16u, qvn16s or qvn32f
 * with kernelType qvn16s or qvn32f and 1 to 4 channels; qvn64f with kernelType
 * qvn64f and one channel). The buffer serves every ROI for which this query
 * reports no more bytes (in particular every ROI of the same size or smaller
 * with the kernel smaller than it).
 * Checks, in order: a width or height below 1 (qvnErrSize); for 8u, 16u, 16s
 * and 32f images a channel count outside 1..4, a null size pointer, a kernel
 * type other than 16s and 32f (qvnErrChannel, qvnErrNullPointer,
 * qvnErrDataType; the first two are qvnErrDataType when the kernel type is
 * neither 16s nor 32f); for 64f images a kernel type other than 64f
 * (qvnErrDataType), a channel count other than 1 (qvnErrChannel), a null size
 * pointer (qvnErrNullPointer); any other data type (qvnErrDataType); a buffer
 * size above 2^31 - 1 (qvnErrSizeOverflow, 0 written as the buffer size). */
QVN_API QvnStatus qvniFilterBorderGetSize(QvnRoiSize kernelSize, QvnRoiSize roiSize, QvnDataType dataType, QvnDataType kernelType, int numChannels, int* pSpecSize, int* pBufferSize);

/* The initialisers write the spec (memory of the size reported above) for
 * images of dataType with numChannels channels. The kernel (kernelSize.width
 * x kernelSize.height coefficients, row after row) is applied as a
 * correlation around the fixed anchor ((width - 1) / 2, (height - 1) / 2):
 * dst(x, y) = sum over j, i of kernel(j, i) * src(x - ax + i, y - ay + j).
 * Init_16s: integer coefficients and a divisor, for 8u and 16s images
 * (16u images are filtered in floats with kernel / divisor). Integer sums are
 * exact in signed 32 bits (wrapping beyond them) and divided by the divisor:
 * 1 keeps the sum, a power of two 2^k shifts it with the rounding of
 * roundMode, any other divisor multiplies the sum as a float by the
 * single-precision 1 / divisor and rounds; with bit 16 of roundMode (8u, and
 * 16s with one channel; elsewhere qvnWarnModeIgnored and it is dropped) that
 * division is exact. Init_32f: float coefficients for 8u, 16u, 16s and 32f
 * images; sums in single precision, rounded by roundMode and saturated for
 * integer images (bit 16 is dropped with qvnWarnModeIgnored). Init_64f: double
 * coefficients for 64f images; roundMode must be qvnRndNear.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a data type other than 8u, 16u, 16s (qvnErrDataType);
 * a channel count outside 1..4 (qvnErrChannel); a rounding mode without bit 16
 * above 2 (qvnErrRounding); a zero divisor (qvnErrDivisor). */
QVN_API QvnStatus qvniFilterBorderInit_16s(const Qvn16s* pKernel, QvnRoiSize kernelSize, int divisor, QvnDataType dataType, int numChannels, QvnRounding roundMode, QvnFilterBorderSpec* pSpec);

/* Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a data type other than 8u, 16u, 16s, 32f
 * (qvnErrDataType); a channel count outside 1..4 (qvnErrChannel); a rounding
 * mode without bit 16 above 2 (qvnErrRounding). */
QVN_API QvnStatus qvniFilterBorderInit_32f(const Qvn32f* pKernel, QvnRoiSize kernelSize, QvnDataType dataType, int numChannels, QvnRounding roundMode, QvnFilterBorderSpec* pSpec);

/* Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a data type other than 64f (qvnErrDataType); a channel
 * count other than 1 (qvnErrChannel); a rounding mode without bit 16 other
 * than qvnRndNear (qvnErrRounding). */
QVN_API QvnStatus qvniFilterBorderInit_64f(const Qvn64f* pKernel, QvnRoiSize kernelSize, QvnDataType dataType, int numChannels, QvnRounding roundMode, QvnFilterBorderSpec* pSpec);

/* Sets the accuracy hint and an offset added to every result before
 * saturation (8u and 16u specs; the others take only 0, and a 64f spec is
 * left as it is). Hint 2 asks for exact integer division where the spec
 * honours it (8u, 16s with one channel); any other hint clears that request.
 * Must not run while filter calls use the spec.
 * Checks, in order: a null pointer (qvnErrNullPointer); a spec that no
 * initialiser of the family built (qvnErrBadSpec); a nonzero offset for a 16s,
 * 32f or 64f spec (qvnErrBadMode). */
QVN_API QvnStatus qvniFilterBorderSetMode(QvnAccuracyHint hint, int offset, QvnFilterBorderSpec* pSpec);

/* Filters the ROI of pSrc into pDst (same size) with the spec's kernel.
 * Neighbours beyond the ROI follow border: the low four bits qvnBorderReplicate,
 * qvnBorderMirror or qvnBorderConstant (one value per channel at
 * pBorderValue), and any in-memory flags (qvnBorderInMemTop, ...: that side is
 * read from memory around the ROI, at srcStep); qvnBorderInMem alone reads
 * every side. pBuffer holds the bytes that qvniFilterBorderGetSize reported;
 * calls with one spec may run at once, each with its own buffer.
 * Checks, in order: a null pSrc or pDst or pSpec or pBuffer
 * (qvnErrNullPointer); a null pBorderValue with the constant border kind
 * (qvnErrNullPointer); a width or height below 1 (qvnErrSize); a source step
 * below 1 or a destination step shorter than its row (qvnErrStep); a border
 * kind the function does not accept (qvnErrBorderKind); a spec not built for
 * this data type and channel count (qvnErrBadSpec). */
QVN_API QvnStatus qvniFilterBorder_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnBorderKind border, const Qvn8u* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBorder_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnBorderKind border, const Qvn8u* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBorder_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnBorderKind border, const Qvn8u* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBorder_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnBorderKind border, const Qvn16u* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBorder_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnBorderKind border, const Qvn16u* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBorder_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnBorderKind border, const Qvn16u* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBorder_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnBorderKind border, const Qvn16s* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBorder_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnBorderKind border, const Qvn16s* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBorder_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnBorderKind border, const Qvn16s* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBorder_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnBorderKind border, const Qvn32f* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBorder_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnBorderKind border, const Qvn32f* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBorder_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnBorderKind border, const Qvn32f* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBorder_64f_C1R(const Qvn64f* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnRoiSize roiSize, QvnBorderKind border, const Qvn64f* pBorderValue, const QvnFilterBorderSpec* pSpec, Qvn8u* pBuffer);

/* The older filter: dst(x, y) = sum over j, i of pKernel(j, i) * src(x +
 * anchor.x - i, y + anchor.y - j), a convolution around the caller's anchor
 * with every neighbour read from memory around the source ROI (the caller
 * provides it); sums in double precision. Its buffer size is 0 bytes.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step shorter than its image's row (qvnErrStep). */
QVN_API QvnStatus qvniFilter_64f_C1R(const Qvn64f* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnRoiSize dstRoiSize, const Qvn64f* pKernel, QvnRoiSize kernelSize, QvnPoint anchor);

/* Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). */
QVN_API QvnStatus qvniFilterGetBufSize_64f_C1R(QvnRoiSize kernelSize, int roiWidth, int* pBufferSize);

/* The convolution of two images: dst(x, y) = sum over u, v of src1(u, v) *
 * src2(x - u, y - v), for each channel, pixels outside either image being 0.
 * Bits 16 to 23 of algType choose the output: 0 the full convolution,
 * (w1 + w2 - 1) x (h1 + h2 - 1) pixels; 1 the valid part, (|w1 - w2| + 1) x
 * (|h1 - h2| + 1) pixels, where the smaller extent lies wholly inside the
 * larger in each direction (starting at full position (min w - 1, min h - 1)).
 * The low byte chooses the method (0 automatic, 1 direct, 2 Fourier); every
 * method computes directly for now. Integer sums are exact in signed 32 bits
 * (wrapping beyond them) and divided by divisor, rounded to nearest with
 * halves to even, then saturated; 32f sums are in single precision. pBuffer
 * holds the bytes that qvniConvGetBufferSize reports for the same sizes,
 * type, channel count and algType.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step shorter than its image's row (qvnErrStep); a
 * zero divisor (qvnErrDivisor); an algType whose low byte is above 2 or whose
 * bits 16 to 23 are neither 0 nor 1 (qvnErrAlgorithm). */
QVN_API QvnStatus qvniConv_8u_C1R(const Qvn8u* pSrc1, int src1Step, QvnRoiSize src1Size, const Qvn8u* pSrc2, int src2Step, QvnRoiSize src2Size, Qvn8u* pDst, int dstStep, int divisor, int algType, Qvn8u* pBuffer);
QVN_API QvnStatus qvniConv_8u_C3R(const Qvn8u* pSrc1, int src1Step, QvnRoiSize src1Size, const Qvn8u* pSrc2, int src2Step, QvnRoiSize src2Size, Qvn8u* pDst, int dstStep, int divisor, int algType, Qvn8u* pBuffer);
QVN_API QvnStatus qvniConv_8u_C4R(const Qvn8u* pSrc1, int src1Step, QvnRoiSize src1Size, const Qvn8u* pSrc2, int src2Step, QvnRoiSize src2Size, Qvn8u* pDst, int dstStep, int divisor, int algType, Qvn8u* pBuffer);
QVN_API QvnStatus qvniConv_16s_C1R(const Qvn16s* pSrc1, int src1Step, QvnRoiSize src1Size, const Qvn16s* pSrc2, int src2Step, QvnRoiSize src2Size, Qvn16s* pDst, int dstStep, int divisor, int algType, Qvn8u* pBuffer);
QVN_API QvnStatus qvniConv_16s_C3R(const Qvn16s* pSrc1, int src1Step, QvnRoiSize src1Size, const Qvn16s* pSrc2, int src2Step, QvnRoiSize src2Size, Qvn16s* pDst, int dstStep, int divisor, int algType, Qvn8u* pBuffer);
QVN_API QvnStatus qvniConv_16s_C4R(const Qvn16s* pSrc1, int src1Step, QvnRoiSize src1Size, const Qvn16s* pSrc2, int src2Step, QvnRoiSize src2Size, Qvn16s* pDst, int dstStep, int divisor, int algType, Qvn8u* pBuffer);

/* Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step shorter than its image's row (qvnErrStep); an
 * algType whose low byte is above 2 or whose bits 16 to 23 are neither 0 nor 1
 * (qvnErrAlgorithm). */
QVN_API QvnStatus qvniConv_32f_C1R(const Qvn32f* pSrc1, int src1Step, QvnRoiSize src1Size, const Qvn32f* pSrc2, int src2Step, QvnRoiSize src2Size, Qvn32f* pDst, int dstStep, int algType, Qvn8u* pBuffer);
QVN_API QvnStatus qvniConv_32f_C3R(const Qvn32f* pSrc1, int src1Step, QvnRoiSize src1Size, const Qvn32f* pSrc2, int src2Step, QvnRoiSize src2Size, Qvn32f* pDst, int dstStep, int algType, Qvn8u* pBuffer);
QVN_API QvnStatus qvniConv_32f_C4R(const Qvn32f* pSrc1, int src1Step, QvnRoiSize src1Size, const Qvn32f* pSrc2, int src2Step, QvnRoiSize src2Size, Qvn32f* pDst, int dstStep, int algType, Qvn8u* pBuffer);

/* Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); an algType whose low byte is above 2
 * (qvnErrAlgorithm); a channel count other than 1, 3, 4 (qvnErrChannelCount);
 * bits 16 to 23 of algType neither 0 nor 1 (qvnErrAlgorithm); a data type
 * other than 8u, 16s, 32f (qvnErrDataType); a buffer size above 2^31 - 1
 * (qvnErrSizeOverflow). */
QVN_API QvnStatus qvniConvGetBufferSize(QvnRoiSize src1Size, QvnRoiSize src2Size, QvnDataType dataType, int numChannels, int algType, int* pBufferSize);

QVN_END_DECLS

#endif /* QVNIP_FILTER_H */
