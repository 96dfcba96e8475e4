/* qvnIP filter: exported functions. Generated from api/filter*.txt by tools/apigen.py;
 * edit the table, not this file. */
#ifndef QVNIP_FILTER_H
#define QVNIP_FILTER_H

#include "qvnip_types.h"

QVN_BEGIN_DECLS


/* The work-buffer bytes of the box filter and the window sums (one query
 * under two names) for a ROI of roiSize, a mask of maskSize, images of
 * dataType (qvn8u, qvn16u, qvn16s or qvn32f) with numChannels channels (1, 3
 * or 4; AC4 images count 4). The buffer serves every call with that ROI and
 * mask, in place or not.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a mask width or height below 1 (qvnErrMaskSize); a
 * data type other than 8u, 16u, 16s, 32f (qvnErrDataType); a channel count
 * other than 1, 3, 4 (qvnErrChannelCount); a buffer size above 2^31 - 1
 * (qvnErrSizeOverflow, nothing written). */
QVN_API QvnStatus qvniFilterBoxBorderGetBufferSize(QvnRoiSize roiSize, QvnRoiSize maskSize, QvnDataType dataType, int numChannels, int* pBufferSize);
QVN_API QvnStatus qvniSumWindowGetBufferSize(QvnRoiSize roiSize, QvnRoiSize maskSize, QvnDataType dataType, int numChannels, int* pBufferSize);

/* The mean of the maskSize.width x maskSize.height pixels around each pixel,
 * anchored at ((width - 1) / 2, (height - 1) / 2), so that an even mask reaches
 * one pixel further right (down) than left (up). Integer images: floor(sum *
 * (1.0f / (width * height)) + 0.5), in single precision, saturated; the sum is
 * exact while it fits 31 bits (a mask area of at most 8421504 for 8u, 32768 for
 * 16u, 65535 for 16s) and beyond that a float running sum, like every 32f sum
 * (a fixed order of additions, the same bits on every target). 32f images: the
 * float sum times that reciprocal. Neighbours beyond the ROI follow border as
 * in the general filter (qvnBorderReplicate, qvnBorderMirror or
 * qvnBorderConstant with one value per channel at pBorderValue, in-memory flags
 * free, or qvnBorderInMem). pSrc may equal pDst (in place, same step). pBuffer
 * holds the bytes the size query reports; each concurrent call needs its own.
 * The cost per pixel does not depend on the mask. AC4 leaves alpha as it was.
 * Checks, in order: a null pSrc or pDst or pBuffer (qvnErrNullPointer); a step
 * below 1 (qvnErrStep); a width or height below 1 (qvnErrSize); a mask width
 * or height below 1 (qvnErrMaskSize); a border kind the function does not
 * accept (qvnErrBorderKind); a null pBorderValue with the constant border kind
 * (qvnErrNullPointer). */
QVN_API QvnStatus qvniFilterBoxBorder_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_8u_AC4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_16u_AC4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_16s_AC4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterBoxBorder_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f* pBorderValue, Qvn8u* pBuffer);

/* The sum of the same window, in a wider type: exact for 8u (to 32s; beyond
 * 2^31 - 1, a saturated float sum) and for 16u and 16s (rounded to float once)
 * in the ranges above; 32f sums are float running sums in a fixed order.
 * Checks, in order: a null pSrc or pDst or pBuffer (qvnErrNullPointer); a step
 * below 1 (qvnErrStep); a width or height below 1 (qvnErrSize); a mask width
 * or height below 1 (qvnErrMaskSize); a border kind the function does not
 * accept (qvnErrBorderKind); a null pBorderValue with the constant border kind
 * (qvnErrNullPointer). */
QVN_API QvnStatus qvniSumWindow_8u32s_C1R(const Qvn8u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_8u32s_C3R(const Qvn8u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_8u32s_C4R(const Qvn8u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_8u32s_AC4R(const Qvn8u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_16u32f_C1R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_16u32f_C3R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_16u32f_C4R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_16u32f_AC4R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_16s32f_C1R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_16s32f_C3R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_16s32f_C4R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_16s32f_AC4R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f* pBorderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniSumWindow_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f* pBorderValue, Qvn8u* pBuffer);

/* One-dimensional window sums, every neighbour read from memory:
 * dst(x, y) = sum over k < maskSize of src(x - anchor + k, y) (Row) or of
 * src(x, y - anchor + k) (Column), per channel, exact and rounded to float
 * once. The caller provides anchor pixels before and maskSize - 1 - anchor
 * after each row (rows above and below) at srcStep.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width below 1
 * (qvnErrSize); a maskSize below 1 (qvnErrMaskSize); an anchor outside
 * 0..maskSize - 1, compared unsigned (qvnErrAnchor); a height below 1 is no
 * error: nothing is written. Steps are not checked: a negative step walks the
 * rows upward, 0 repeats one row, a step shorter than a row overlaps rows
 * ("steps" in qvnip_types.h). */
QVN_API QvnStatus qvniSumWindowRow_8u32f_C1R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowRow_8u32f_C3R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowRow_8u32f_C4R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowRow_16u32f_C1R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowRow_16u32f_C3R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowRow_16u32f_C4R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowRow_16s32f_C1R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowRow_16s32f_C3R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowRow_16s32f_C4R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowColumn_8u32f_C1R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowColumn_8u32f_C3R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowColumn_8u32f_C4R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowColumn_16u32f_C1R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowColumn_16u32f_C3R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowColumn_16u32f_C4R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowColumn_16s32f_C1R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowColumn_16s32f_C3R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);
QVN_API QvnStatus qvniSumWindowColumn_16s32f_C4R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int maskSize, int anchor);

/* The older mean, without border synthesis: dst(x, y) = (sum over j <
 * maskSize.height, i < maskSize.width of src(x - anchor.x + i, y - anchor.y +
 * j)) / (width * height) in double precision, every neighbour read from memory
 * around the source ROI (the caller provides it). Mask dimensions below 1 are
 * qvnErrSize here.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a source step below (maskSize.width + width - 1) x 8
 * or a destination step below width x 8 (qvnErrStep). */
QVN_API QvnStatus qvniFilterBox_64f_C1R(const Qvn64f* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnRoiSize dstRoiSize, QvnRoiSize maskSize, QvnPoint anchor);

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

/* The work-buffer size of qvniFilterMedianBorder for a ROI of roiSize, a
 * mask of maskSize, images of dataType (qvn8u, qvn16u, qvn16s with 1, 3 or
 * 4 channels; qvn32f with 1) and numChannels channels. The buffer serves
 * every call with that ROI and mask, in place or not.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a mask side below 1 or even (qvnErrMaskSize); with 3
 * or 4 channels a data type other than 8u, 16u, 16s (qvnErrDataType),
 * otherwise a channel count other than 1 (qvnErrChannelCount) or a data type
 * other than 8u, 16u, 16s, 32f (qvnErrDataType); a size of 2^31 bytes or more
 * (qvnErrSizeOverflow, 0 written). */
QVN_API QvnStatus qvniFilterMedianBorderGetBufferSize(QvnRoiSize roiSize, QvnRoiSize maskSize, QvnDataType dataType, int numChannels, int* pBufferSize);

/* The median filter: each pixel of pDst becomes, per channel, the median of
 * the maskSize.width x maskSize.height pixels of pSrc around it (both sides
 * odd; the value of rank (n + 1) / 2 in ascending order of the n values),
 * exactly, whatever the mask. Neighbours beyond the ROI follow border:
 * qvnBorderReplicate or qvnBorderConstant (borderValue, per channel for C3,
 * C4 and AC4), with any in-memory flags (that side is read from memory
 * around the ROI, at srcStep), or qvnBorderInMem alone; mirror is not
 * offered. pDst may be pSrc (in place, same step). A 1 x 1 mask copies (in
 * place it does nothing). 32f values are ordered as numbers; a NaN among
 * them gives an unspecified value, the same on every target. pBuffer holds
 * the bytes that qvniFilterMedianBorderGetBufferSize reported for the ROI
 * and mask.
 * Checks, in order: a null pSrc or pDst or pBuffer (qvnErrNullPointer); a
 * width or height below 1 (qvnErrSize); a mask side below 1 or even
 * (qvnErrMaskSize); a border kind other than qvnBorderInMem, or
 * qvnBorderReplicate or qvnBorderConstant with any in-memory flags
 * (qvnErrBorderKind). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniFilterMedianBorder_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, Qvn8u borderValue, Qvn8u* pBuffer);

/* Checks, in order: a null pSrc or pDst or pBuffer (qvnErrNullPointer); a
 * width or height below 1 (qvnErrSize); a mask side below 1 or even
 * (qvnErrMaskSize); a border kind other than qvnBorderInMem, or
 * qvnBorderReplicate or qvnBorderConstant with any in-memory flags
 * (qvnErrBorderKind); a null borderValue with the constant border kind
 * (qvnErrNullPointer). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniFilterMedianBorder_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMedianBorder_8u_AC4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMedianBorder_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u borderValue[4], Qvn8u* pBuffer);

/* Checks, in order: a null pSrc or pDst or pBuffer (qvnErrNullPointer); a
 * width or height below 1 (qvnErrSize); an odd srcStep or dstStep, not a whole
 * number of elements (qvnErrStepMultiple); a mask side below 1 or even
 * (qvnErrMaskSize); a border kind other than qvnBorderInMem, or
 * qvnBorderReplicate or qvnBorderConstant with any in-memory flags
 * (qvnErrBorderKind). */
QVN_API QvnStatus qvniFilterMedianBorder_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, Qvn16u borderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMedianBorder_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, Qvn16s borderValue, Qvn8u* pBuffer);

/* Checks, in order: a null pSrc or pDst or pBuffer (qvnErrNullPointer); a
 * width or height below 1 (qvnErrSize); an odd srcStep or dstStep, not a whole
 * number of elements (qvnErrStepMultiple); a mask side below 1 or even
 * (qvnErrMaskSize); a border kind other than qvnBorderInMem, or
 * qvnBorderReplicate or qvnBorderConstant with any in-memory flags
 * (qvnErrBorderKind); a null borderValue with the constant border kind
 * (qvnErrNullPointer). */
QVN_API QvnStatus qvniFilterMedianBorder_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMedianBorder_16u_AC4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMedianBorder_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMedianBorder_16s_AC4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMedianBorder_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u borderValue[4], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMedianBorder_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s borderValue[4], Qvn8u* pBuffer);

/* Checks, in order: a null pSrc or pDst or pBuffer (qvnErrNullPointer); a
 * width or height below 1 (qvnErrSize); a mask side below 1 or even
 * (qvnErrMaskSize); a border kind other than qvnBorderInMem, or
 * qvnBorderReplicate or qvnBorderConstant with any in-memory flags
 * (qvnErrBorderKind). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniFilterMedianBorder_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, Qvn32f borderValue, Qvn8u* pBuffer);

/* The work-buffer size of qvniFilterMinBorder and qvniFilterMaxBorder (one
 * operation under two names) for a ROI of roiSize, a mask of maskSize and
 * images of dataType (qvn8u, qvn16u, qvn16s, qvn32f) with numChannels (1, 3
 * or 4) channels.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a mask side below 1 (qvnErrMaskSize); a data type
 * other than 8u, 16u, 16s, 32f (qvnErrDataType); a channel count other than 1,
 * 3, 4 (qvnErrChannelCount); a size of 2^31 bytes or more (qvnErrSizeOverflow,
 * 0 written). */
QVN_API QvnStatus qvniFilterMaxBorderGetBufferSize(QvnRoiSize roiSize, QvnRoiSize maskSize, QvnDataType dataType, int numChannels, int* pBufferSize);
QVN_API QvnStatus qvniFilterMinBorderGetBufferSize(QvnRoiSize roiSize, QvnRoiSize maskSize, QvnDataType dataType, int numChannels, int* pBufferSize);

/* The maximum and minimum filters: each pixel of pDst becomes, per channel,
 * the largest (smallest) value of the maskSize rectangle around it, any
 * sides; the anchor is ((width - 1) / 2, (height - 1) / 2), so an even side
 * reaches one pixel further right (down). Borders as for the general filter:
 * qvnBorderReplicate, qvnBorderMirror or qvnBorderConstant (borderValue, per
 * channel for C3, C4 and AC4) with any in-memory flags, or qvnBorderInMem.
 * A 1 x 1 mask copies with qvnBorderInMem and writes nothing with any other
 * kind (qvnWarnNoOperation). 32f: a NaN in the rectangle gives a NaN; -0
 * and +0 are equal values, and which of them a tie gives is unspecified (the
 * same on every target). pDst may be pSrc. The cost per pixel does not grow
 * with the mask's height and grows with the logarithm of its width beyond 8.
 * Checks, in order: a null pSrc or pDst or pBuffer (qvnErrNullPointer); a
 * width or height below 1 (qvnErrSize); a mask width or height below 1
 * (qvnErrMaskSize); a border kind the function does not accept
 * (qvnErrBorderKind). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniFilterMaxBorder_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, Qvn8u borderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, Qvn16u borderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, Qvn16s borderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, Qvn32f borderValue, Qvn8u* pBuffer);

/* Checks, in order: a null pSrc or pDst or pBuffer (qvnErrNullPointer); a
 * width or height below 1 (qvnErrSize); a mask width or height below 1
 * (qvnErrMaskSize); a border kind the function does not accept
 * (qvnErrBorderKind); a null borderValue with the constant border kind
 * (qvnErrNullPointer). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniFilterMaxBorder_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_8u_AC4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_16u_AC4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_16s_AC4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u borderValue[4], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u borderValue[4], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s borderValue[4], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMaxBorder_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f borderValue[4], Qvn8u* pBuffer);

/* Checks, in order: a null pSrc or pDst or pBuffer (qvnErrNullPointer); a
 * width or height below 1 (qvnErrSize); a mask width or height below 1
 * (qvnErrMaskSize); a border kind the function does not accept
 * (qvnErrBorderKind). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniFilterMinBorder_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, Qvn8u borderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, Qvn16u borderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, Qvn16s borderValue, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, Qvn32f borderValue, Qvn8u* pBuffer);

/* Checks, in order: a null pSrc or pDst or pBuffer (qvnErrNullPointer); a
 * width or height below 1 (qvnErrSize); a mask width or height below 1
 * (qvnErrMaskSize); a border kind the function does not accept
 * (qvnErrBorderKind); a null borderValue with the constant border kind
 * (qvnErrNullPointer). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniFilterMinBorder_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_8u_AC4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_16u_AC4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_16s_AC4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f borderValue[3], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn8u borderValue[4], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16u borderValue[4], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn16s borderValue[4], Qvn8u* pBuffer);
QVN_API QvnStatus qvniFilterMinBorder_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnRoiSize maskSize, QvnBorderKind border, const Qvn32f borderValue[4], Qvn8u* pBuffer);

QVN_END_DECLS

#endif /* QVNIP_FILTER_H */
