/* qvnIP move: exported functions. Generated from api/move*.txt by tools/apigen.py;
 * edit the table, not this file. */
#ifndef QVNIP_MOVE_H
#define QVNIP_MOVE_H

#include "qvnip_types.h"

QVN_BEGIN_DECLS


/* Copies the ROI; AC4 leaves the destination alpha as it is. Steps are not
 * tested. */
QVN_API QvnStatus qvniCopy_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_8u_C1R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_8u_C3R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_8u_C4R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_8u_AC4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_8u_AC4R_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_C1R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_C3R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_C4R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_16u_AC4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_AC4R_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_C1R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_C3R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_C4R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_16s_AC4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_AC4R_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_32s_C1R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_C1R_L(const Qvn32s* pSrc, QvnSizeL srcStep, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_32s_C3R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_C3R_L(const Qvn32s* pSrc, QvnSizeL srcStep, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_32s_C4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_C4R_L(const Qvn32s* pSrc, QvnSizeL srcStep, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_32s_AC4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_AC4R_L(const Qvn32s* pSrc, QvnSizeL srcStep, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_C3R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_C4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniCopy_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_AC4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);

/* Masked copy: a pixel is copied where its element of the 8u mask (of the
 * ROI's size) is non-zero and keeps its contents where it is zero. */
QVN_API QvnStatus qvniCopy_8u_C1MR(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_8u_C3MR(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_8u_C4MR(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_8u_AC4MR(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_16u_C1MR(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_16u_C3MR(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_16u_C4MR(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_16u_AC4MR(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_16s_C1MR(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_16s_C3MR(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_16s_C4MR(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_16s_AC4MR(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_32s_C1MR(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_32s_C3MR(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_32s_C4MR(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_32s_AC4MR(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_32f_C1MR(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_32f_C3MR(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_32f_C4MR(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniCopy_32f_AC4MR(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);

/* One channel out: pSrc addresses the chosen channel of the first ROI pixel. */
QVN_API QvnStatus qvniCopy_8u_C3C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_8u_C4C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_C3C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_C4C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_C3C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_C4C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_C3C1R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_C4C1R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_C3C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_C4C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);

/* One channel in: pDst addresses the chosen channel of the first ROI pixel;
 * the other channels are not written. */
QVN_API QvnStatus qvniCopy_8u_C1C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_8u_C1C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_C1C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_C1C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_C1C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_C1C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_C1C3R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_C1C4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_C1C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_C1C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);

/* One channel to the same channel: both pointers address it. */
QVN_API QvnStatus qvniCopy_8u_C3CR(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_8u_C4CR(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_C3CR(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_C4CR(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_C3CR(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_C4CR(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_C3CR(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_C4CR(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_C3CR(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_C4CR(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);

/* The colour channels of four-element pixels to three-element pixels and
 * back; C3AC4 does not write the destination alpha. */
QVN_API QvnStatus qvniCopy_8u_AC4C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_AC4C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_AC4C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_AC4C3R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_AC4C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_8u_C3AC4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_C3AC4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_C3AC4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_C3AC4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_C3AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);

/* Interleaved pixels to planes and back; one step serves every plane. */
QVN_API QvnStatus qvniCopy_8u_C3P3R(const Qvn8u* pSrc, int srcStep, Qvn8u* const pDst[3], int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_C3P3R(const Qvn16u* pSrc, int srcStep, Qvn16u* const pDst[3], int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_C3P3R(const Qvn16s* pSrc, int srcStep, Qvn16s* const pDst[3], int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_C3P3R(const Qvn32s* pSrc, int srcStep, Qvn32s* const pDst[3], int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_C3P3R(const Qvn32f* pSrc, int srcStep, Qvn32f* const pDst[3], int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_8u_C4P4R(const Qvn8u* pSrc, int srcStep, Qvn8u* const pDst[4], int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_C4P4R(const Qvn16u* pSrc, int srcStep, Qvn16u* const pDst[4], int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_C4P4R(const Qvn16s* pSrc, int srcStep, Qvn16s* const pDst[4], int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_C4P4R(const Qvn32s* pSrc, int srcStep, Qvn32s* const pDst[4], int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_C4P4R(const Qvn32f* pSrc, int srcStep, Qvn32f* const pDst[4], int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_8u_P3C3R(const Qvn8u* const pSrc[3], int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_P3C3R(const Qvn16u* const pSrc[3], int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_P3C3R(const Qvn16s* const pSrc[3], int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_P3C3R(const Qvn32s* const pSrc[3], int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_P3C3R(const Qvn32f* const pSrc[3], int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_8u_P4C4R(const Qvn8u* const pSrc[4], int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16u_P4C4R(const Qvn16u* const pSrc[4], int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_16s_P4C4R(const Qvn16s* const pSrc[4], int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32s_P4C4R(const Qvn32s* const pSrc[4], int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCopy_32f_P4C4R(const Qvn32f* const pSrc[4], int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);

/* Copies the ROI. flags: 2 writes with non-temporal stores (for a destination
 * that will not be read soon); other bits are ignored. */
QVN_API QvnStatus qvniCopyManaged_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int flags);

/* Every destination channel receives the source pixel's value. */
QVN_API QvnStatus qvniDup_8u_C1C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDup_8u_C1C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);

/* Destination channel i receives source channel dstOrder[i]. Only a zero step
 * is an error; entries naming no source channel give qvnErrChannelOrder. */
QVN_API QvnStatus qvniSwapChannels_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_32s_C3R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4]);
QVN_API QvnStatus qvniSwapChannels_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4]);
QVN_API QvnStatus qvniSwapChannels_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4]);
QVN_API QvnStatus qvniSwapChannels_32s_C4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4]);
QVN_API QvnStatus qvniSwapChannels_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4]);

/* AC4: three entries 0..2; the destination alpha is not changed. */
QVN_API QvnStatus qvniSwapChannels_8u_AC4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_16u_AC4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_16s_AC4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_32s_AC4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_8u_C3IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_8u_C4IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, const int dstOrder[4]);

/* Three entries 0..3: the source alpha may go into a colour channel. */
QVN_API QvnStatus qvniSwapChannels_8u_C4C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_16u_C4C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_16s_C4C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_32s_C4C3R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_32f_C4C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);

/* Four entries: 0..2 copies that source channel, 3 writes val, above 3 leaves
 * the destination channel unchanged; a negative entry is an error. */
QVN_API QvnStatus qvniSwapChannels_8u_C3C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4], Qvn8u val);
QVN_API QvnStatus qvniSwapChannels_16u_C3C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4], Qvn16u val);
QVN_API QvnStatus qvniSwapChannels_16s_C3C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4], Qvn16s val);
QVN_API QvnStatus qvniSwapChannels_32s_C3C4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4], Qvn32s val);
QVN_API QvnStatus qvniSwapChannels_32f_C3C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4], Qvn32f val);

/* Fills the ROI with one value (C1) or one pixel (C3 and AC4: 3 values, C4: 4
 * values); AC4 leaves alpha as it is. Steps are not tested. */
QVN_API QvnStatus qvniSet_8u_C1R(Qvn8u value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_16u_C1R(Qvn16u value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_16s_C1R(Qvn16s value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_32s_C1R(Qvn32s value, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_32f_C1R(Qvn32f value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_8u_C3R(const Qvn8u* value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_8u_C4R(const Qvn8u* value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_8u_AC4R(const Qvn8u* value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_16u_C3R(const Qvn16u* value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_16u_C4R(const Qvn16u* value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_16u_AC4R(const Qvn16u* value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_16s_C3R(const Qvn16s* value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_16s_C4R(const Qvn16s* value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_16s_AC4R(const Qvn16s* value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_32s_C3R(const Qvn32s* value, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_32s_C4R(const Qvn32s* value, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_32s_AC4R(const Qvn32s* value, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_32f_C3R(const Qvn32f* value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_32f_C4R(const Qvn32f* value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_32f_AC4R(const Qvn32f* value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);

/* Masked fills: a pixel takes the value where its element of the 8u mask (of
 * the ROI's size) is non-zero and keeps its contents where it is zero. */
QVN_API QvnStatus qvniSet_8u_C1MR(Qvn8u value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_16u_C1MR(Qvn16u value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_16s_C1MR(Qvn16s value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_32s_C1MR(Qvn32s value, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_32f_C1MR(Qvn32f value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_8u_C3MR(const Qvn8u* value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_8u_C4MR(const Qvn8u* value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_8u_AC4MR(const Qvn8u* value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_16u_C3MR(const Qvn16u* value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_16u_C4MR(const Qvn16u* value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_16u_AC4MR(const Qvn16u* value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_16s_C3MR(const Qvn16s* value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_16s_C4MR(const Qvn16s* value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_16s_AC4MR(const Qvn16s* value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_32s_C3MR(const Qvn32s* value, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_32s_C4MR(const Qvn32s* value, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_32s_AC4MR(const Qvn32s* value, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_32f_C3MR(const Qvn32f* value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_32f_C4MR(const Qvn32f* value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);
QVN_API QvnStatus qvniSet_32f_AC4MR(const Qvn32f* value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const Qvn8u* pMask, int maskStep);

/* Fills one channel: pDst addresses that channel of the first ROI pixel; the
 * other channels are not written. */
QVN_API QvnStatus qvniSet_8u_C3CR(Qvn8u value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_8u_C4CR(Qvn8u value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_16u_C3CR(Qvn16u value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_16u_C4CR(Qvn16u value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_16s_C3CR(Qvn16s value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_16s_C4CR(Qvn16s value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_32s_C3CR(Qvn32s value, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_32s_C4CR(Qvn32s value, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_32f_C3CR(Qvn32f value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSet_32f_C4CR(Qvn32f value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);

QVN_END_DECLS

#endif /* QVNIP_MOVE_H */
