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

/* An affine warp maps destination pixel (x, y) (pixel centres at whole
 * coordinates, in the whole destination whatever the tile) to the source
 * position X = c[0][0] * x + c[0][1] * y + c[0][2], Y = c[1][0] * x +
 * c[1][1] * y + c[1][2] of its backward coefficients c: the caller's for
 * direction 1 (qvnWarpBackward), their inverse for direction 0
 * (qvnWarpForward, the coefficients map source to destination). It is built
 * in three steps: qvniWarpAffineGetSize gives the sizes of a spec and of an
 * init buffer (0: no Init uses one); an Init fills the spec (aligned to 64
 * bytes inside the caller's memory; it holds no pointer, so one spec serves
 * any number of images and threads); qvniWarpGetBufferSize gives the size of
 * a call's work buffer. Border kinds: 1 replicates the source's edge pixels
 * for every tap beyond them; 6 gives every such tap the border value, so
 * that the image blends into it at its edges and is the value exactly where
 * no tap reaches the source; 7 writes only the destination pixels whose
 * position lies in the source (within the hull of its pixel centres;
 * nearest: whose pixel lies in it), replicating the edge for taps beyond
 * it. The in-memory flags (16 above, 32 below, 64 left, 128 right) give the
 * source as many rows or columns of real pixels beyond that edge as the
 * kernel reaches (none for nearest, 1 for linear, 2 for cubic), read from
 * memory, and the kinds act beyond them; exactly 240 reads all four sides
 * from memory and writes as 7.
 * Checks, in order: a null pSpecSize or pInitBufSize (qvnErrNullPointer); a
 * border other than exactly 240 (all sides in memory), or a value below 256
 * whose kind (low four bits) is 1 (replicate), 6 (constant) or 7
 * (transparent), flags free (qvnErrBorderKind); the coefficients, and for the
 * constant kind pBorderValue, null (qvnErrNullPointer); a width or height
 * below 1 of either size (qvnErrSize); a side above 33554431
 * (qvnErrSizeOverflow); a data type other than 8u, 16u, 16s, 32f and 64f
 * (qvnErrDataType); an interpolation other than 1 (nearest), 2 (linear) and 6
 * (cubic) (qvnErrInterpolationKind); a direction other than 0 and 1
 * (qvnErrDirection); singular coefficients: with a = c[1][1] * c[0][0] and b =
 * c[1][0] * c[0][1], |(a - b) / a| (or |b| when |a| is not above 1e-200) not
 * above 1e-10, or coefficients (or their inverse, for the forward direction)
 * that are not finite (qvnErrCoeffs); a source width of 1 (qvnErrSize); a spec
 * or init-buffer size above 2147483646 bytes (qvnErrSizeOverflow). */
QVN_API QvnStatus qvniWarpAffineGetSize(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnDataType dataType, const Qvn64f coeffs[2][3], QvnInterpolation interpolation, int direction, QvnBorderKind borderType, int* pSpecSize, int* pInitBufSize);

/* Fills a spec for images of dataType with numChannels channels. The border
 * value (one value per channel, read for kind 6 only) is rounded to nearest
 * and saturated to the data type. smoothEdge (non-zero: on) applies to
 * linear and cubic warps with kind 7 or 240: a destination pixel whose
 * position lies within one pixel outside the source is blended with its
 * previous value, by the share of it that the source covers (the product,
 * over both axes, of 1 minus the distance outside); other kinds already
 * make their edges from their taps and take no notice of it. Every Init
 * runs the checks of qvniWarpAffineGetSize in its order, pSpec standing for
 * its outputs; a source height of 1 is allowed. The _L forms build a spec
 * for the _L calls.
 * Checks, in order: a null pSpec (qvnErrNullPointer); a border other than
 * exactly 240 (all sides in memory), or a value below 256 whose kind (low four
 * bits) is 1 (replicate), 6 (constant) or 7 (transparent), flags free
 * (qvnErrBorderKind); the coefficients, and for the constant kind
 * pBorderValue, null (qvnErrNullPointer); a width or height below 1 of either
 * size (qvnErrSize); a side above 33554431 (qvnErrSizeOverflow); a data type
 * other than 8u, 16u, 16s, 32f and 64f (qvnErrDataType); a direction other
 * than 0 and 1 (qvnErrDirection); singular coefficients: with a = c[1][1] *
 * c[0][0] and b = c[1][0] * c[0][1], |(a - b) / a| (or |b| when |a| is not
 * above 1e-200) not above 1e-10, or coefficients (or their inverse, for the
 * forward direction) that are not finite (qvnErrCoeffs); a source width of 1
 * (qvnErrSize); numChannels other than 1, 3 and 4 (qvnErrChannelCount). */
QVN_API QvnStatus qvniWarpAffineNearestInit(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnDataType dataType, const Qvn64f coeffs[2][3], int direction, int numChannels, QvnBorderKind borderType, const Qvn64f* pBorderValue, int smoothEdge, QvnWarpAffineSpec* pSpec);
QVN_API QvnStatus qvniWarpAffineNearestInit_L(QvnRoiSizeL srcSize, QvnRoiSizeL dstSize, QvnDataType dataType, const Qvn64f coeffs[2][3], int direction, int numChannels, QvnBorderKind borderType, const Qvn64f* pBorderValue, int smoothEdge, QvnWarpAffineSpec* pSpec);
QVN_API QvnStatus qvniWarpAffineLinearInit(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnDataType dataType, const Qvn64f coeffs[2][3], int direction, int numChannels, QvnBorderKind borderType, const Qvn64f* pBorderValue, int smoothEdge, QvnWarpAffineSpec* pSpec);
QVN_API QvnStatus qvniWarpAffineLinearInit_L(QvnRoiSizeL srcSize, QvnRoiSizeL dstSize, QvnDataType dataType, const Qvn64f coeffs[2][3], int direction, int numChannels, QvnBorderKind borderType, const Qvn64f* pBorderValue, int smoothEdge, QvnWarpAffineSpec* pSpec);

/* Cubic weights of the two-parameter family: a tap at distance t has weight
 * ((12 - 9B - 6C)|t|^3 + (-18 + 12B + 6C)|t|^2 + 6 - 2B) / 6 for |t| < 1 and
 * ((-B - 6C)|t|^3 + (6B + 30C)|t|^2 - (12B + 48C)|t| + 8B + 24C) / 6 for
 * 1 <= |t| < 2 (B = valueB, C = valueC: 0 and 0.5 Catmull-Rom, 1/3 and 1/3
 * Mitchell-Netravali, 1 and 0 the B-spline).
 * Checks, in order: a null pSpec (qvnErrNullPointer); a border other than
 * exactly 240 (all sides in memory), or a value below 256 whose kind (low four
 * bits) is 1 (replicate), 6 (constant) or 7 (transparent), flags free
 * (qvnErrBorderKind); the coefficients, and for the constant kind
 * pBorderValue, null (qvnErrNullPointer); a width or height below 1 of either
 * size (qvnErrSize); a side above 33554431 (qvnErrSizeOverflow); a data type
 * other than 8u, 16u, 16s, 32f and 64f (qvnErrDataType); a direction other
 * than 0 and 1 (qvnErrDirection); singular coefficients: with a = c[1][1] *
 * c[0][0] and b = c[1][0] * c[0][1], |(a - b) / a| (or |b| when |a| is not
 * above 1e-200) not above 1e-10, or coefficients (or their inverse, for the
 * forward direction) that are not finite (qvnErrCoeffs); a source width of 1
 * (qvnErrSize); numChannels other than 1, 3 and 4 (qvnErrChannelCount); valueB
 * or valueC not finite (qvnErrBadMode). */
QVN_API QvnStatus qvniWarpAffineCubicInit(QvnRoiSize srcSize, QvnRoiSize dstSize, QvnDataType dataType, const Qvn64f coeffs[2][3], int direction, int numChannels, Qvn64f valueB, Qvn64f valueC, QvnBorderKind borderType, const Qvn64f* pBorderValue, int smoothEdge, QvnWarpAffineSpec* pSpec);
QVN_API QvnStatus qvniWarpAffineCubicInit_L(QvnRoiSizeL srcSize, QvnRoiSizeL dstSize, QvnDataType dataType, const Qvn64f coeffs[2][3], int direction, int numChannels, Qvn64f valueB, Qvn64f valueC, QvnBorderKind borderType, const Qvn64f* pBorderValue, int smoothEdge, QvnWarpAffineSpec* pSpec);

/* The work-buffer size of warp calls over tiles up to dstSize wide. The
 * 32-bit query refuses a spec of the _L Inits, and the _L query one of the
 * 32-bit Inits.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a pointer that holds no warp spec of this interface
 * (qvnErrBadSpec); a buffer size above 2147483646 bytes (qvnErrSizeOverflow). */
QVN_API QvnStatus qvniWarpGetBufferSize(const QvnWarpAffineSpec* pSpec, QvnRoiSize dstSize, int* pBufSize);
QVN_API QvnStatus qvniWarpGetBufferSize_L(const QvnWarpAffineSpec* pSpec, QvnRoiSizeL dstSize, QvnSizeL* pBufSize);

/* The shifts that make a rotation by angle degrees keep (xCenter, yCenter)
 * in place, for the coefficients {{c, s, xShift}, {-s, c, yShift}} with
 * c = cos(angle) and s = sin(angle). The angle is reduced to [0, 360) first;
 * 0, 90, 180 and 270 degrees give exact shifts.
 * Checks, in order: a null pointer (qvnErrNullPointer). */
QVN_API QvnStatus qvniGetRotateShift(Qvn64f xCenter, Qvn64f yCenter, Qvn64f angle, Qvn64f* pxShift, Qvn64f* pyShift);

/* The corners of srcRoi's first and last pixels ((x, y), (x + width - 1, y),
 * (x + width - 1, y + height - 1), (x, y + height - 1)) mapped by the
 * forward coefficients; the quadrangle is written even when the
 * coefficients are singular.
 * Checks, in order: a null pointer (qvnErrNullPointer); a negative x or y of
 * srcRoi, or a width or height below 1 (qvnErrSize); singular coefficients as
 * qvniWarpAffineGetSize tests them, after the outputs are written
 * (qvnErrCoeffs). */
QVN_API QvnStatus qvniGetAffineQuad(QvnRect srcRoi, Qvn64f quad[4][2], const Qvn64f coeffs[2][3]);

/* The bounding box of that quadrangle: bound[0] its smallest x and y,
 * bound[1] its largest; written even when the coefficients are singular.
 * Checks, in order: a null pointer (qvnErrNullPointer); a negative x or y of
 * srcRoi, or a width or height below 1 (qvnErrSize); singular coefficients as
 * qvniWarpAffineGetSize tests them, after the outputs are written
 * (qvnErrCoeffs). */
QVN_API QvnStatus qvniGetAffineBound(QvnRect srcRoi, Qvn64f bound[2][2], const Qvn64f coeffs[2][3]);

/* The source rectangle that a warp call over a destination tile reads, inside
 * the source image (the in-memory rows and columns beyond its edges left
 * out): a caller may split the destination into tiles and hold only each
 * tile's source rectangle in memory.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a side of dstRoiSize above 33554431
 * (qvnErrSizeOverflow); a pointer that holds no warp spec of this interface
 * (qvnErrBadSpec); a negative offset, or one not less than the destination
 * size of the spec (qvnErrArgRange). */
QVN_API QvnStatus qvniGetAffineSrcRoi(const QvnWarpAffineSpec* pSpec, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, QvnPoint* pSrcRoiOffset, QvnRoiSize* pSrcRoiSize);
QVN_API QvnStatus qvniGetAffineSrcRoi_L(const QvnWarpAffineSpec* pSpec, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, QvnPointL* pSrcRoiOffset, QvnRoiSizeL* pSrcRoiSize);

/* Nearest-neighbour warp of a tile: dstRoiSize pixels at dstRoiOffset of the
 * destination the spec was built for, pDst at the tile's first pixel; pSrc
 * is the source image's first pixel (its size is the spec's). Destination
 * pixel (x, y) takes source pixel (floor(X + 0.5), floor(Y + 0.5)), with X
 * and Y computed in double as above and clamped to +-2^30; the border kind
 * and value are the spec's. The call reads no source pixel outside the
 * rectangle qvniGetAffineSrcRoi gives for the tile (and the in-memory
 * margins); tiles give the same pixels as one whole call, and any number of
 * threads may warp with one spec, each with its own buffer. A tile that
 * reaches beyond the spec's destination is produced all the same, with
 * qvnWarnTileTooLarge.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step that is not a whole number of elements
 * (qvnErrStep; steps of any sign are used as given, a negative one walks the
 * rows upward); a spec not built for this interface, data type, channel count
 * and interpolation (qvnErrBadSpec); a negative offset, or one not less than
 * the destination size of the spec (qvnErrArgRange). */
QVN_API QvnStatus qvniWarpAffineNearest_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_8u_C1R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_8u_C3R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_8u_C4R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_16u_C1R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_16u_C3R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_16u_C4R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_16s_C1R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_16s_C3R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_16s_C4R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_32f_C3R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineNearest_32f_C4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);

/* Linear warp of a tile, as for nearest: the taps floor(X), floor(X) + 1 on
 * each axis, f = X - floor(X) (rounded to float), each row interpolated as
 * a + (b - a) * fx, then the two rows as r0 + (r1 - r0) * fy, in float.
 * Integer results are rounded to nearest (ties to even) and saturated;
 * arithmetic is done in round-to-nearest whatever the caller's rounding
 * control, and is the same on every processor.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step that is not a whole number of elements
 * (qvnErrStep; steps of any sign are used as given, a negative one walks the
 * rows upward); a spec not built for this interface, data type, channel count
 * and interpolation (qvnErrBadSpec); a negative offset, or one not less than
 * the destination size of the spec (qvnErrArgRange). */
QVN_API QvnStatus qvniWarpAffineLinear_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_8u_C1R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_8u_C3R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_8u_C4R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_16u_C1R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_16u_C3R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_16u_C4R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_16s_C1R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_16s_C3R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_16s_C4R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_32f_C3R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineLinear_32f_C4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);

/* Cubic warp of a tile, as for nearest: the taps floor(X) - 1 to floor(X) + 2
 * on each axis with the Init's weights (computed in float from the fraction
 * by the polynomials above), each row summed as (t0 w0 + t1 w1) + (t2 w2 +
 * t3 w3), then the four rows the same way, in float; integers rounded and
 * saturated as for linear.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step that is not a whole number of elements
 * (qvnErrStep; steps of any sign are used as given, a negative one walks the
 * rows upward); a spec not built for this interface, data type, channel count
 * and interpolation (qvnErrBadSpec); a negative offset, or one not less than
 * the destination size of the spec (qvnErrArgRange). */
QVN_API QvnStatus qvniWarpAffineCubic_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_8u_C1R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_8u_C3R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_8u_C4R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_16u_C1R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_16u_C3R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_16u_C4R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_16s_C1R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_16s_C3R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_16s_C4R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_32f_C3R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnPoint dstRoiOffset, QvnRoiSize dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniWarpAffineCubic_32f_C4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnPointL dstRoiOffset, QvnRoiSizeL dstRoiSize, const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer);

QVN_END_DECLS

#endif /* QVNIP_GEOM_H */
