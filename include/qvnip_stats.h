/* qvnIP stats: exported functions. Generated from api/stats*.txt by tools/apigen.py;
 * edit the table, not this file. */
#ifndef QVNIP_STATS_H
#define QVNIP_STATS_H

#include "qvnip_types.h"

QVN_BEGIN_DECLS


/* The sum of every channel's elements over the ROI, one double per channel
 * (C3: three, C4: four, in channel order). Integer sums are exact, and so is
 * their double up to 2^53. When the step equals the ROI row's bytes the whole
 * ROI is summed as one row; a step of 0 sums the first row height times.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniSum_8u_C1R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f* pSum);
QVN_API QvnStatus qvniSum_16u_C1R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f* pSum);
QVN_API QvnStatus qvniSum_16s_C1R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f* pSum);
QVN_API QvnStatus qvniSum_8u_C3R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pSum[3]);
QVN_API QvnStatus qvniSum_16u_C3R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pSum[3]);
QVN_API QvnStatus qvniSum_16s_C3R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pSum[3]);
QVN_API QvnStatus qvniSum_8u_C4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pSum[4]);
QVN_API QvnStatus qvniSum_16u_C4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pSum[4]);
QVN_API QvnStatus qvniSum_16s_C4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pSum[4]);

/* 32f sums are formed in double precision, in an order that is the same on
 * every processor: element i of a row goes to partial sum i mod 24, and the
 * partials of a channel are added in increasing order. With n elements in a
 * channel and u = 2^-53, hint kinds 0 and 1 (fast) err by at most
 * g(n) * sum|x|, where g(n) = n*u / (1 - n*u); kind 2 (accurate) also adds
 * back the exact rounding error of every addition (Knuth's two-sum) and errs
 * by at most u * |sum| + 2 * g(n)^2 * sum|x|: as if summed in twice the
 * precision and rounded once. Both bounds hold in the default rounding mode
 * (the arithmetic follows the caller's). Infinities and NaN give the IEEE
 * sum; a sum of negative zeros is -0.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); an invalid accuracy hint (qvnErrAlgorithm). Steps are
 * not checked: a negative step walks the rows upward, 0 repeats one row, a
 * step shorter than a row overlaps rows ("steps" in qvnip_types.h). */
QVN_API QvnStatus qvniSum_32f_C1R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f* pSum, QvnAccuracyHint hint);
QVN_API QvnStatus qvniSum_32f_C3R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pSum[3], QvnAccuracyHint hint);
QVN_API QvnStatus qvniSum_32f_C4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pSum[4], QvnAccuracyHint hint);

/* The mean of every channel: its sum as qvniSum gives it (32f: with the same
 * hint), divided by the pixel count width x height (C1), or multiplied by
 * the reciprocal of that count (C3, C4; the two ways may differ in the last
 * bit for the same data). The count is exact for any ROI size. A null pMean
 * is reported before the sum's own checks.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniMean_8u_C1R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f* pMean);
QVN_API QvnStatus qvniMean_16u_C1R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f* pMean);
QVN_API QvnStatus qvniMean_16s_C1R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f* pMean);
QVN_API QvnStatus qvniMean_8u_C3R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pMean[3]);
QVN_API QvnStatus qvniMean_16u_C3R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pMean[3]);
QVN_API QvnStatus qvniMean_16s_C3R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pMean[3]);
QVN_API QvnStatus qvniMean_8u_C4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pMean[4]);
QVN_API QvnStatus qvniMean_16u_C4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pMean[4]);
QVN_API QvnStatus qvniMean_16s_C4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pMean[4]);

/* Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); an invalid accuracy hint (qvnErrAlgorithm). Steps are
 * not checked: a negative step walks the rows upward, 0 repeats one row, a
 * step shorter than a row overlaps rows ("steps" in qvnip_types.h). */
QVN_API QvnStatus qvniMean_32f_C1R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f* pMean, QvnAccuracyHint hint);
QVN_API QvnStatus qvniMean_32f_C3R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pMean[3], QvnAccuracyHint hint);
QVN_API QvnStatus qvniMean_32f_C4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn64f pMean[4], QvnAccuracyHint hint);

/* The minimum, the maximum, or both, of every channel (C3 and AC4: three
 * values, C4: four). 32f values are ordered as numbers with -0 below +0;
 * NaN elements are ignored, and a channel of NaNs alone reports its first
 * element.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniMin_8u_C1R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u* pMin);
QVN_API QvnStatus qvniMin_16u_C1R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u* pMin);
QVN_API QvnStatus qvniMin_16s_C1R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s* pMin);
QVN_API QvnStatus qvniMin_32f_C1R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f* pMin);
QVN_API QvnStatus qvniMin_8u_C3R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMin[3]);
QVN_API QvnStatus qvniMin_8u_AC4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMin[3]);
QVN_API QvnStatus qvniMin_16u_C3R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMin[3]);
QVN_API QvnStatus qvniMin_16u_AC4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMin[3]);
QVN_API QvnStatus qvniMin_16s_C3R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMin[3]);
QVN_API QvnStatus qvniMin_16s_AC4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMin[3]);
QVN_API QvnStatus qvniMin_32f_C3R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMin[3]);
QVN_API QvnStatus qvniMin_32f_AC4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMin[3]);
QVN_API QvnStatus qvniMin_8u_C4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMin[4]);
QVN_API QvnStatus qvniMin_16u_C4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMin[4]);
QVN_API QvnStatus qvniMin_16s_C4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMin[4]);
QVN_API QvnStatus qvniMin_32f_C4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMin[4]);
QVN_API QvnStatus qvniMax_8u_C1R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u* pMax);
QVN_API QvnStatus qvniMax_16u_C1R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u* pMax);
QVN_API QvnStatus qvniMax_16s_C1R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s* pMax);
QVN_API QvnStatus qvniMax_32f_C1R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f* pMax);
QVN_API QvnStatus qvniMax_8u_C3R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMax[3]);
QVN_API QvnStatus qvniMax_8u_AC4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMax[3]);
QVN_API QvnStatus qvniMax_16u_C3R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMax[3]);
QVN_API QvnStatus qvniMax_16u_AC4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMax[3]);
QVN_API QvnStatus qvniMax_16s_C3R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMax[3]);
QVN_API QvnStatus qvniMax_16s_AC4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMax[3]);
QVN_API QvnStatus qvniMax_32f_C3R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMax[3]);
QVN_API QvnStatus qvniMax_32f_AC4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMax[3]);
QVN_API QvnStatus qvniMax_8u_C4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMax[4]);
QVN_API QvnStatus qvniMax_16u_C4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMax[4]);
QVN_API QvnStatus qvniMax_16s_C4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMax[4]);
QVN_API QvnStatus qvniMax_32f_C4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMax[4]);
QVN_API QvnStatus qvniMinMax_8u_C1R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u* pMin, Qvn8u* pMax);
QVN_API QvnStatus qvniMinMax_16u_C1R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u* pMin, Qvn16u* pMax);
QVN_API QvnStatus qvniMinMax_16s_C1R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s* pMin, Qvn16s* pMax);
QVN_API QvnStatus qvniMinMax_32f_C1R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f* pMin, Qvn32f* pMax);
QVN_API QvnStatus qvniMinMax_8u_C3R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMin[3], Qvn8u pMax[3]);
QVN_API QvnStatus qvniMinMax_8u_AC4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMin[3], Qvn8u pMax[3]);
QVN_API QvnStatus qvniMinMax_16u_C3R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMin[3], Qvn16u pMax[3]);
QVN_API QvnStatus qvniMinMax_16u_AC4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMin[3], Qvn16u pMax[3]);
QVN_API QvnStatus qvniMinMax_16s_C3R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMin[3], Qvn16s pMax[3]);
QVN_API QvnStatus qvniMinMax_16s_AC4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMin[3], Qvn16s pMax[3]);
QVN_API QvnStatus qvniMinMax_32f_C3R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMin[3], Qvn32f pMax[3]);
QVN_API QvnStatus qvniMinMax_32f_AC4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMin[3], Qvn32f pMax[3]);
QVN_API QvnStatus qvniMinMax_8u_C4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMin[4], Qvn8u pMax[4]);
QVN_API QvnStatus qvniMinMax_16u_C4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMin[4], Qvn16u pMax[4]);
QVN_API QvnStatus qvniMinMax_16s_C4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMin[4], Qvn16s pMax[4]);
QVN_API QvnStatus qvniMinMax_32f_C4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMin[4], Qvn32f pMax[4]);

/* The minimum or maximum of every channel, ordered as qvniMin orders them,
 * with the column and row of the first pixel that holds it in row-major
 * order (the lowest row, then the lowest column). A channel of NaNs alone
 * reports its first element at (0, 0).
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniMinIndx_8u_C1R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u* pMin, int* pIndexX, int* pIndexY);
QVN_API QvnStatus qvniMinIndx_16u_C1R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u* pMin, int* pIndexX, int* pIndexY);
QVN_API QvnStatus qvniMinIndx_16s_C1R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s* pMin, int* pIndexX, int* pIndexY);
QVN_API QvnStatus qvniMinIndx_32f_C1R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f* pMin, int* pIndexX, int* pIndexY);
QVN_API QvnStatus qvniMinIndx_8u_C3R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMin[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMinIndx_8u_AC4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMin[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMinIndx_16u_C3R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMin[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMinIndx_16u_AC4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMin[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMinIndx_16s_C3R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMin[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMinIndx_16s_AC4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMin[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMinIndx_32f_C3R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMin[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMinIndx_32f_AC4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMin[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMinIndx_8u_C4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMin[4], int pIndexX[4], int pIndexY[4]);
QVN_API QvnStatus qvniMinIndx_16u_C4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMin[4], int pIndexX[4], int pIndexY[4]);
QVN_API QvnStatus qvniMinIndx_16s_C4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMin[4], int pIndexX[4], int pIndexY[4]);
QVN_API QvnStatus qvniMinIndx_32f_C4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMin[4], int pIndexX[4], int pIndexY[4]);
QVN_API QvnStatus qvniMaxIndx_8u_C1R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u* pMax, int* pIndexX, int* pIndexY);
QVN_API QvnStatus qvniMaxIndx_16u_C1R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u* pMax, int* pIndexX, int* pIndexY);
QVN_API QvnStatus qvniMaxIndx_16s_C1R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s* pMax, int* pIndexX, int* pIndexY);
QVN_API QvnStatus qvniMaxIndx_32f_C1R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f* pMax, int* pIndexX, int* pIndexY);
QVN_API QvnStatus qvniMaxIndx_8u_C3R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMax[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMaxIndx_8u_AC4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMax[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMaxIndx_16u_C3R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMax[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMaxIndx_16u_AC4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMax[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMaxIndx_16s_C3R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMax[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMaxIndx_16s_AC4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMax[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMaxIndx_32f_C3R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMax[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMaxIndx_32f_AC4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMax[3], int pIndexX[3], int pIndexY[3]);
QVN_API QvnStatus qvniMaxIndx_8u_C4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn8u pMax[4], int pIndexX[4], int pIndexY[4]);
QVN_API QvnStatus qvniMaxIndx_16u_C4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16u pMax[4], int pIndexX[4], int pIndexY[4]);
QVN_API QvnStatus qvniMaxIndx_16s_C4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize roiSize, Qvn16s pMax[4], int pIndexX[4], int pIndexY[4]);
QVN_API QvnStatus qvniMaxIndx_32f_C4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize roiSize, Qvn32f pMax[4], int pIndexX[4], int pIndexY[4]);

QVN_END_DECLS

#endif /* QVNIP_STATS_H */
