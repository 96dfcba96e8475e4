/* qvnIP geom: exported functions. Generated from api/geom*.txt by tools/apigen.py;
 * edit the table, not this file. */
#ifndef QVNIP_GEOM_H
#define QVNIP_GEOM_H

#include "qvnip_types.h"

QVN_BEGIN_DECLS


/* Resizing is built in three steps. qvniResizeGetSize gives the sizes of a
 * spec and of an init buffer (no Init of nearest or linear uses it) for a
 * source size, a destination size and an interpolation; an Init fills the
 * spec (aligned to 64 bytes inside the caller's memory; it holds no pointer,
 * so one spec serves any number of images and threads);
 * qvniResizeGetBufferSize gives the size of the work buffer of the largest
 * tile that a call will produce. Sizes are also given for the kinds whose
 * Init this library does not offer yet (cubic, Lanczos, super-sampling,
 * antialiasing). A successful call returns qvnOk, or
 * qvnWarnAntialiasIgnored (with the sizes of the plain kind) when
 * antialiasing was asked of nearest or super-sampling.
 * Checks, in order: a null pointer (qvnErrNullPointer); a zero width or height
 * of either size (qvnWarnNoOperation; nothing is written); a negative width or
 * height (qvnErrSize); an interpolation other than 0, 1, 2, 6, 8 and 16
 * (qvnErrInterpolationKind); interpolation 0 (qvnErrBadMode); a source side
 * below the kind's smallest: 1 nearest, 2 linear, 4 cubic and Lanczos, the
 * destination's side for super-sampling (qvnErrSize); a spec or init-buffer
 * size above 2147483646 bytes (qvnErrSizeOverflow). */
QVN_API QvnStatus qvniResizeGetSize_8u(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnInterpolation interpolation, Qvn32u antialiasing, int* pSpecSize, int* pInitBufSize);
QVN_API QvnStatus qvniResizeGetSize_16u(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnInterpolation interpolation, Qvn32u antialiasing, int* pSpecSize, int* pInitBufSize);
QVN_API QvnStatus qvniResizeGetSize_16s(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnInterpolation interpolation, Qvn32u antialiasing, int* pSpecSize, int* pInitBufSize);
QVN_API QvnStatus qvniResizeGetSize_32f(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnInterpolation interpolation, Qvn32u antialiasing, int* pSpecSize, int* pInitBufSize);

/* 64f is resized by linear interpolation only.
 * Checks, in order: a null pointer (qvnErrNullPointer); a zero width or height
 * of either size (qvnWarnNoOperation; nothing is written); a negative width or
 * height (qvnErrSize); an interpolation other than 0, 1, 2, 6, 8 and 16
 * (qvnErrInterpolationKind); an interpolation other than linear without
 * antialiasing (qvnErrBadMode); interpolation 0 (qvnErrBadMode); a source side
 * below the kind's smallest: 1 nearest, 2 linear, 4 cubic and Lanczos, the
 * destination's side for super-sampling (qvnErrSize); a spec or init-buffer
 * size above 2147483646 bytes (qvnErrSizeOverflow). */
QVN_API QvnStatus qvniResizeGetSize_64f(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnInterpolation interpolation, Qvn32u antialiasing, int* pSpecSize, int* pInitBufSize);

/* The sizes of a spec for the _L functions, in 64 bits.
 * Checks, in order: a null pointer (qvnErrNullPointer); a zero width or height
 * of either size (qvnWarnNoOperation; nothing is written); a negative width or
 * height (qvnErrSize); an interpolation other than 0, 1, 2, 6, 8 and 16
 * (qvnErrInterpolationKind); a data type other than 8u, 16u, 16s, 32f and 64f,
 * or 64f with an interpolation other than linear (qvnErrDataType); 64f with
 * antialiasing equal to 1 (qvnErrBadMode); a side above 33554431
 * (qvnErrSizeOverflow); interpolation 0 (qvnErrBadMode); a source side below
 * the kind's smallest: 1 nearest, 2 linear, 4 cubic and Lanczos, the
 * destination's side for super-sampling (qvnErrSize). */
QVN_API QvnStatus qvniResizeGetSize_L(QvnRoiSizeL srcSize, QvnRoiSizeL dstSize, QvnDataType dataType, QvnInterpolation interpolation, Qvn32u antialiasing, QvnSizeL* pSpecSize, QvnSizeL* pInitBufSize);

/* Fills a nearest-neighbour spec: destination pixel (x, y) takes source pixel
 * (trunc((x + 0.5) * (srcWidth / dstWidth) - 1e-10), the same for y), so a
 * position on a pixel boundary takes the lower pixel.
 * Checks, in order: a null pointer (qvnErrNullPointer); a zero width or height
 * of either size (qvnWarnNoOperation; nothing is written); a negative width or
 * height (qvnErrSize). */
QVN_API QvnStatus qvniResizeNearestInit_8u(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnResizeSpec* pSpec);
QVN_API QvnStatus qvniResizeNearestInit_16u(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnResizeSpec* pSpec);
QVN_API QvnStatus qvniResizeNearestInit_16s(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnResizeSpec* pSpec);
QVN_API QvnStatus qvniResizeNearestInit_32f(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnResizeSpec* pSpec);

/* Checks, in order: a null pointer (qvnErrNullPointer); a zero width or height
 * of either size (qvnWarnNoOperation; nothing is written); a negative width or
 * height (qvnErrSize); a data type other than 8u, 16u, 16s, 32f and 64f, or
 * 64f for nearest (qvnErrDataType). */
QVN_API QvnStatus qvniResizeNearestInit_L(QvnRoiSizeL srcSize, QvnRoiSizeL dstSize, QvnDataType dataType, QvnResizeSpec* pSpec);

/* Fills a linear spec: destination pixel i of an axis is centred on source
 * position (i + 0.5) * s - 0.5 (s = srcLength / dstLength), between the two
 * pixels around it; in the accurate mode (after Init) with single-precision
 * weights (double for 64f). The _L forms take the data type of the images.
 * Checks, in order: a null pointer (qvnErrNullPointer); a zero width or height
 * of either size (qvnWarnNoOperation; nothing is written); a negative width or
 * height (qvnErrSize); a source width or height of 1 (qvnErrSize). */
QVN_API QvnStatus qvniResizeLinearInit_8u(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnResizeSpec* pSpec);
QVN_API QvnStatus qvniResizeLinearInit_16u(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnResizeSpec* pSpec);
QVN_API QvnStatus qvniResizeLinearInit_16s(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnResizeSpec* pSpec);
QVN_API QvnStatus qvniResizeLinearInit_32f(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnResizeSpec* pSpec);
QVN_API QvnStatus qvniResizeLinearInit_64f(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnResizeSpec* pSpec);

/* Checks, in order: a null pointer (qvnErrNullPointer); a zero width or height
 * of either size (qvnWarnNoOperation; nothing is written); a negative width or
 * height (qvnErrSize); a source width or height of 1 (qvnErrSize); a data type
 * other than 8u, 16u, 16s, 32f and 64f, or 64f for nearest (qvnErrDataType). */
QVN_API QvnStatus qvniResizeLinearInit_L(QvnRoiSizeL srcSize, QvnRoiSizeL dstSize, QvnDataType dataType, QvnResizeSpec* pSpec);
QVN_API QvnStatus qvniResizeLinearInit_8u_L(QvnRoiSizeL srcSize, QvnRoiSizeL dstSize, QvnDataType dataType, QvnResizeSpec* pSpec);

/* The work-buffer size of calls that produce tiles of up to dstSize with
 * numChannels channels, for the data type the spec was built for.
 * Checks, in order: a null pointer (qvnErrNullPointer); a zero width or height
 * of dstSize (qvnWarnNoOperation; nothing is written); a spec not built by
 * this interface's Init, or whose coefficients are not of this data type
 * (qvnErrBadSpec); numChannels other than 1, 3 and 4 (qvnErrChannelCount); a
 * negative width or height of dstSize (qvnErrSize); a buffer size above
 * 2147483646 bytes (qvnErrSizeOverflow). */
QVN_API QvnStatus qvniResizeGetBufferSize_8u(const QvnResizeSpec* pSpec, QvnRoiSize dstSize, Qvn32u numChannels, int* pBufSize);
QVN_API QvnStatus qvniResizeGetBufferSize_16u(const QvnResizeSpec* pSpec, QvnRoiSize dstSize, Qvn32u numChannels, int* pBufSize);
QVN_API QvnStatus qvniResizeGetBufferSize_16s(const QvnResizeSpec* pSpec, QvnRoiSize dstSize, Qvn32u numChannels, int* pBufSize);
QVN_API QvnStatus qvniResizeGetBufferSize_32f(const QvnResizeSpec* pSpec, QvnRoiSize dstSize, Qvn32u numChannels, int* pBufSize);
QVN_API QvnStatus qvniResizeGetBufferSize_64f(const QvnResizeSpec* pSpec, QvnRoiSize dstSize, Qvn32u numChannels, int* pBufSize);

/* Checks, in order: a null pointer (qvnErrNullPointer); a zero width or height
 * of dstSize (qvnWarnNoOperation; nothing is written); a spec not built by an
 * _L Init (qvnErrBadSpec); numChannels other than 1, 3 and 4
 * (qvnErrChannelCount); a negative width or height of dstSize (qvnErrSize). */
QVN_API QvnStatus qvniResizeGetBufferSize_L(const QvnResizeSpec* pSpec, QvnRoiSizeL dstSize, Qvn32u numChannels, QvnSizeL* pBufSize);

/* How many source pixels beyond each edge of the source image the spec's
 * kernel reads: 0 for nearest, 1 for linear.
 * Checks, in order: a null pointer (qvnErrNullPointer); a spec not built by
 * this interface's Init, or whose coefficients are not of this data type
 * (qvnErrBadSpec). */
QVN_API QvnStatus qvniResizeGetBorderSize_8u(const QvnResizeSpec* pSpec, QvnBorderSize* pBorderSize);
QVN_API QvnStatus qvniResizeGetBorderSize_16u(const QvnResizeSpec* pSpec, QvnBorderSize* pBorderSize);
QVN_API QvnStatus qvniResizeGetBorderSize_16s(const QvnResizeSpec* pSpec, QvnBorderSize* pBorderSize);
QVN_API QvnStatus qvniResizeGetBorderSize_32f(const QvnResizeSpec* pSpec, QvnBorderSize* pBorderSize);
QVN_API QvnStatus qvniResizeGetBorderSize_64f(const QvnResizeSpec* pSpec, QvnBorderSize* pBorderSize);

/* Checks, in order: a null pointer (qvnErrNullPointer); a spec not built by an
 * _L Init (qvnErrBadSpec). */
QVN_API QvnStatus qvniResizeGetBorderSize_L(const QvnResizeSpec* pSpec, QvnBorderSize* pBorderSize);

/* The source position of a tile's destination offset, per axis
 * floor(dstOffset * (srcLength / g) / (dstLength / g)) with g the gcd of the
 * two lengths: pass the source pointer advanced to it with the tile.
 * Checks, in order: a null pointer (qvnErrNullPointer); a spec not built by
 * this interface's Init, or whose coefficients are not of this data type
 * (qvnErrBadSpec); a negative offset, or one not less than the destination
 * size of the spec (qvnErrArgRange). */
QVN_API QvnStatus qvniResizeGetSrcOffset_8u(const QvnResizeSpec* pSpec, QvnPoint dstOffset, QvnPoint* pSrcOffset);
QVN_API QvnStatus qvniResizeGetSrcOffset_16u(const QvnResizeSpec* pSpec, QvnPoint dstOffset, QvnPoint* pSrcOffset);
QVN_API QvnStatus qvniResizeGetSrcOffset_16s(const QvnResizeSpec* pSpec, QvnPoint dstOffset, QvnPoint* pSrcOffset);
QVN_API QvnStatus qvniResizeGetSrcOffset_32f(const QvnResizeSpec* pSpec, QvnPoint dstOffset, QvnPoint* pSrcOffset);
QVN_API QvnStatus qvniResizeGetSrcOffset_64f(const QvnResizeSpec* pSpec, QvnPoint dstOffset, QvnPoint* pSrcOffset);

/* Checks, in order: a null pointer (qvnErrNullPointer); a spec not built by an
 * _L Init (qvnErrBadSpec); a negative offset, or one not less than the
 * destination size of the spec (qvnErrArgRange). */
QVN_API QvnStatus qvniResizeGetSrcOffset_L(const QvnResizeSpec* pSpec, QvnPointL dstOffset, QvnPointL* pSrcOffset);

/* The source rectangle that a destination rectangle reads, inside the
 * source image (border pixels left out).
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a spec not built by this interface's Init, or whose
 * coefficients are not of this data type (qvnErrBadSpec); a negative offset,
 * or one not less than the destination size of the spec (qvnErrArgRange). */
QVN_API QvnStatus qvniResizeGetSrcRoi_8u(const QvnResizeSpec* pSpec, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, QvnPoint* pSrcRoiOffset, QvnRoiSize* pSrcRoiSize);
QVN_API QvnStatus qvniResizeGetSrcRoi_16u(const QvnResizeSpec* pSpec, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, QvnPoint* pSrcRoiOffset, QvnRoiSize* pSrcRoiSize);
QVN_API QvnStatus qvniResizeGetSrcRoi_16s(const QvnResizeSpec* pSpec, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, QvnPoint* pSrcRoiOffset, QvnRoiSize* pSrcRoiSize);
QVN_API QvnStatus qvniResizeGetSrcRoi_32f(const QvnResizeSpec* pSpec, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, QvnPoint* pSrcRoiOffset, QvnRoiSize* pSrcRoiSize);
QVN_API QvnStatus qvniResizeGetSrcRoi_64f(const QvnResizeSpec* pSpec, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, QvnPoint* pSrcRoiOffset, QvnRoiSize* pSrcRoiSize);

/* Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a spec not built by an _L Init (qvnErrBadSpec); a
 * negative offset, or one not less than the destination size of the spec
 * (qvnErrArgRange). */
QVN_API QvnStatus qvniResizeGetSrcRoi_L(const QvnResizeSpec* pSpec, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, QvnPointL* pSrcRoiOffset, QvnRoiSizeL* pSrcRoiSize);

/* Chooses the arithmetic of a linear spec: 2 (accurate, after every Init)
 * single-precision weights, 1 (fast, 8u only) weights of 14 fraction bits:
 * each row is first interpolated across as (w0 * a + w1 * b + 64) >> 7,
 * then down as (w0 * r0 + w1 * r1 + 2^20) >> 21, with w0 + w1 = 16384 on
 * both axes. Asking for the mode the spec has returns at once.
 * Checks, in order: a null pointer (qvnErrNullPointer); a hint other than 1
 * (fast) and 2 (accurate) (qvnErrBadMode); a pointer that holds no resize spec
 * (qvnErrBadSpec); fast mode for a spec not built for 8u, or a spec other than
 * linear, cubic or Lanczos (qvnErrBadMode). */
QVN_API QvnStatus qvniResizeSetMode(QvnAccuracyHint hint, QvnResizeSpec* pSpec);

/* Nearest-neighbour resize of a tile: dstSize pixels at dstOffset of the
 * destination the spec was built for, from pSrc advanced to the tile's
 * qvniResizeGetSrcOffset (the source's first pixel for a whole image). Reads
 * only pixels of the source image; a tile larger than the spec's destination
 * is produced all the same, with qvnWarnTileTooLarge. The buffer holds the
 * tile's tables (qvniResizeGetBufferSize). Tiles give the same pixels as one
 * whole call, and any number of threads may resize with one spec, each with
 * its own buffer.
 * Checks, in order: a null pointer (qvnErrNullPointer); a zero width or height
 * of dstSize (qvnWarnNoOperation; nothing is written); a spec not built by
 * this interface's Init, or whose coefficients are not of this data type
 * (qvnErrBadSpec); a negative width or height of dstSize (qvnErrSize); a step
 * that is not a whole number of elements (qvnErrStep; steps of any sign are
 * used as given, a negative one walks the rows upward); a negative offset, or
 * one not less than the destination size of the spec (qvnErrArgRange); a spec
 * with antialiasing (qvnErrBadMode); a spec of another interpolation kind
 * (qvnErrBadSpec). */
QVN_API QvnStatus qvniResizeNearest_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_8u_C1R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_8u_C3R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_8u_C4R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_16u_C1R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_16u_C3R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_16u_C4R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_16s_C1R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_16s_C3R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_16s_C4R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_32f_C3R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeNearest_32f_C4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);

/* Linear resize of a tile, as for nearest. Pixels beyond the source's edges
 * are replicated (kinds 1 and 4) or mirrored (3), or read from memory on the
 * sides whose in-memory flag is set (16 above, 32 below, 64 left, 128
 * right); pBorderValue is not used. Integer results are rounded to nearest
 * (ties to even in the accurate mode) and saturated; arithmetic is done in
 * round-to-nearest whatever the caller's rounding control.
 * Checks, in order: a border other than exactly 240 (all sides in memory), or
 * a value below 256 whose kind (low four bits) is 1 (replicate), 3 (mirror) or
 * 4 (mirror with the edge repeated, which for a one-pixel margin is
 * replicate), flags free (qvnErrBorderKind); a null pSrc or pDst or pSpec or
 * pBuffer (qvnErrNullPointer); a zero width or height of dstSize
 * (qvnWarnNoOperation; nothing is written); a spec not built by this
 * interface's Init, or whose coefficients are not of this data type
 * (qvnErrBadSpec); a negative width or height of dstSize (qvnErrSize); a step
 * that is not a whole number of elements (qvnErrStep; steps of any sign are
 * used as given, a negative one walks the rows upward); a negative offset, or
 * one not less than the destination size of the spec (qvnErrArgRange); a spec
 * with antialiasing (qvnErrBadMode); a spec of another interpolation kind
 * (qvnErrBadSpec). */
QVN_API QvnStatus qvniResizeLinear_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn8u* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_8u_C1R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn8u* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn8u* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_8u_C3R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn8u* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn8u* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_8u_C4R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn8u* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn16u* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_16u_C1R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn16u* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn16u* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_16u_C3R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn16u* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn16u* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_16u_C4R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn16u* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn16s* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_16s_C1R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn16s* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn16s* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_16s_C3R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn16s* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn16s* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_16s_C4R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn16s* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn32f* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn32f* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn32f* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_32f_C3R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn32f* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn32f* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_32f_C4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn32f* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_64f_C1R(const Qvn64f* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn64f* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_64f_C1R_L(const Qvn64f* pSrc, QvnSizeL srcStep, Qvn64f* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn64f* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_64f_C3R(const Qvn64f* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn64f* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_64f_C3R_L(const Qvn64f* pSrc, QvnSizeL srcStep, Qvn64f* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn64f* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_64f_C4R(const Qvn64f* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnPoint dstOffset, QvnRoiSize dstSize, QvnBorderKind border, const Qvn64f* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniResizeLinear_64f_C4R_L(const Qvn64f* pSrc, QvnSizeL srcStep, Qvn64f* pDst, QvnSizeL dstStep, QvnPointL dstOffset, QvnRoiSizeL dstSize, QvnBorderKind border, const Qvn64f* pBorderValue, const QvnResizeSpec* pSpec, Qvn8u* pBuffer);

QVN_END_DECLS

#endif /* QVNIP_GEOM_H */
