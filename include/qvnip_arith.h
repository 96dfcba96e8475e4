/* qvnIP arith: exported functions. Generated from api/arith*.txt by tools/apigen.py;
 * edit the table, not this file. */
#ifndef QVNIP_ARITH_H
#define QVNIP_ARITH_H

#include "qvnip_types.h"

QVN_BEGIN_DECLS


/* Two sources: And gives src1 & src2, Or src1 | src2, Xor src1 ^ src2,
 * bit by bit. AC4 never changes the destination's alpha (the vector code may
 * store it back as it read it; see qvnip_types.h).
 * Checks, in order: a null pointer (qvnErrNullPointer); a step below 1
 * (qvnErrStep); a width or height below 1 (qvnErrSize). */
QVN_API QvnStatus qvniAnd_8u_C1R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_8u_C1IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_8u_C3R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_8u_C3IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_8u_C4R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_8u_C4IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_8u_AC4R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_8u_AC4IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_16u_C1R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_16u_C1IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_16u_C3R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_16u_C3IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_16u_C4R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_16u_C4IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_16u_AC4R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_16u_AC4IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_32s_C1R(const Qvn32s* pSrc1, int src1Step, const Qvn32s* pSrc2, int src2Step, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_32s_C1IR(const Qvn32s* pSrc, int srcStep, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_32s_C3R(const Qvn32s* pSrc1, int src1Step, const Qvn32s* pSrc2, int src2Step, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_32s_C3IR(const Qvn32s* pSrc, int srcStep, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_32s_C4R(const Qvn32s* pSrc1, int src1Step, const Qvn32s* pSrc2, int src2Step, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_32s_C4IR(const Qvn32s* pSrc, int srcStep, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_32s_AC4R(const Qvn32s* pSrc1, int src1Step, const Qvn32s* pSrc2, int src2Step, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAnd_32s_AC4IR(const Qvn32s* pSrc, int srcStep, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_8u_C1R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_8u_C1IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_8u_C3R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_8u_C3IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_8u_C4R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_8u_C4IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_8u_AC4R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_8u_AC4IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_16u_C1R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_16u_C1IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_16u_C3R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_16u_C3IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_16u_C4R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_16u_C4IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_16u_AC4R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_16u_AC4IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_32s_C1R(const Qvn32s* pSrc1, int src1Step, const Qvn32s* pSrc2, int src2Step, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_32s_C1IR(const Qvn32s* pSrc, int srcStep, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_32s_C3R(const Qvn32s* pSrc1, int src1Step, const Qvn32s* pSrc2, int src2Step, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_32s_C3IR(const Qvn32s* pSrc, int srcStep, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_32s_C4R(const Qvn32s* pSrc1, int src1Step, const Qvn32s* pSrc2, int src2Step, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_32s_C4IR(const Qvn32s* pSrc, int srcStep, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_32s_AC4R(const Qvn32s* pSrc1, int src1Step, const Qvn32s* pSrc2, int src2Step, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOr_32s_AC4IR(const Qvn32s* pSrc, int srcStep, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_8u_C1R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_8u_C1IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_8u_C3R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_8u_C3IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_8u_C4R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_8u_C4IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_8u_AC4R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_8u_AC4IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_16u_C1R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_16u_C1IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_16u_C3R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_16u_C3IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_16u_C4R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_16u_C4IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_16u_AC4R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_16u_AC4IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_32s_C1R(const Qvn32s* pSrc1, int src1Step, const Qvn32s* pSrc2, int src2Step, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_32s_C1IR(const Qvn32s* pSrc, int srcStep, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_32s_C3R(const Qvn32s* pSrc1, int src1Step, const Qvn32s* pSrc2, int src2Step, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_32s_C3IR(const Qvn32s* pSrc, int srcStep, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_32s_C4R(const Qvn32s* pSrc1, int src1Step, const Qvn32s* pSrc2, int src2Step, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_32s_C4IR(const Qvn32s* pSrc, int srcStep, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_32s_AC4R(const Qvn32s* pSrc1, int src1Step, const Qvn32s* pSrc2, int src2Step, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXor_32s_AC4IR(const Qvn32s* pSrc, int srcStep, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);

/* Image and constant: src & value, src | value, src ^ value; C3 and AC4
 * take 3 values, C4 takes 4. AC4 keeps alpha as the two-source forms do.
 * Checks, in order: a null pointer (qvnErrNullPointer); a step below 1
 * (qvnErrStep); a width or height below 1 (qvnErrSize). */
QVN_API QvnStatus qvniAndC_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_8u_C1IR(Qvn8u value, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_16u_C1IR(Qvn16u value, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_32s_C1R(const Qvn32s* pSrc, int srcStep, Qvn32s value, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_32s_C1IR(Qvn32s value, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_8u_C3R(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_8u_C3IR(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_8u_C4R(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_8u_C4IR(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_8u_AC4R(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_8u_AC4IR(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_16u_C3R(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_16u_C3IR(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_16u_C4R(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_16u_C4IR(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_16u_AC4R(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_16u_AC4IR(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_32s_C3R(const Qvn32s* pSrc, int srcStep, const Qvn32s* pValue, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_32s_C3IR(const Qvn32s* pValue, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_32s_C4R(const Qvn32s* pSrc, int srcStep, const Qvn32s* pValue, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_32s_C4IR(const Qvn32s* pValue, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_32s_AC4R(const Qvn32s* pSrc, int srcStep, const Qvn32s* pValue, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAndC_32s_AC4IR(const Qvn32s* pValue, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_8u_C1IR(Qvn8u value, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_16u_C1IR(Qvn16u value, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_32s_C1R(const Qvn32s* pSrc, int srcStep, Qvn32s value, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_32s_C1IR(Qvn32s value, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_8u_C3R(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_8u_C3IR(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_8u_C4R(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_8u_C4IR(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_8u_AC4R(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_8u_AC4IR(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_16u_C3R(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_16u_C3IR(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_16u_C4R(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_16u_C4IR(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_16u_AC4R(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_16u_AC4IR(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_32s_C3R(const Qvn32s* pSrc, int srcStep, const Qvn32s* pValue, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_32s_C3IR(const Qvn32s* pValue, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_32s_C4R(const Qvn32s* pSrc, int srcStep, const Qvn32s* pValue, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_32s_C4IR(const Qvn32s* pValue, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_32s_AC4R(const Qvn32s* pSrc, int srcStep, const Qvn32s* pValue, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniOrC_32s_AC4IR(const Qvn32s* pValue, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_8u_C1IR(Qvn8u value, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_16u_C1IR(Qvn16u value, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_32s_C1R(const Qvn32s* pSrc, int srcStep, Qvn32s value, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_32s_C1IR(Qvn32s value, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_8u_C3R(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_8u_C3IR(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_8u_C4R(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_8u_C4IR(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_8u_AC4R(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_8u_AC4IR(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_16u_C3R(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_16u_C3IR(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_16u_C4R(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_16u_C4IR(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_16u_AC4R(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_16u_AC4IR(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_32s_C3R(const Qvn32s* pSrc, int srcStep, const Qvn32s* pValue, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_32s_C3IR(const Qvn32s* pValue, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_32s_C4R(const Qvn32s* pSrc, int srcStep, const Qvn32s* pValue, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_32s_C4IR(const Qvn32s* pValue, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_32s_AC4R(const Qvn32s* pSrc, int srcStep, const Qvn32s* pValue, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniXorC_32s_AC4IR(const Qvn32s* pValue, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);

/* Not: the bitwise complement of every element. AC4 keeps alpha.
 * Checks, in order: a null pointer (qvnErrNullPointer); a step below 1
 * (qvnErrStep); a width or height below 1 (qvnErrSize). */
QVN_API QvnStatus qvniNot_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniNot_8u_C1IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniNot_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniNot_8u_C3IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniNot_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniNot_8u_C4IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniNot_8u_AC4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniNot_8u_AC4IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);

/* Complement: each element read as sign and magnitude (top bit the sign)
 * becomes the same number in two's complement: 0x8005 gives -5 (16s), a
 * clear sign bit leaves the element as it is, and the negative zero (0x8000
 * for 16s) gives the type's minimum. AC4 keeps alpha.
 * Checks, in order: a null pointer (qvnErrNullPointer); a step below 1
 * (qvnErrStep); a width or height below 1 (qvnErrSize). */
QVN_API QvnStatus qvniComplement_8s_C1R(const Qvn8s* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_8s_C1IR(Qvn8s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_8s_C3R(const Qvn8s* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_8s_C3IR(Qvn8s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_8s_C4R(const Qvn8s* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_8s_C4IR(Qvn8s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_8s_AC4R(const Qvn8s* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_8s_AC4IR(Qvn8s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_16s_C1IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_16s_C3IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_16s_C4IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_16s_AC4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_16s_AC4IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_32s_C1R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_32s_C1IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_32s_C3R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_32s_C3IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_32s_C4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_32s_C4IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_32s_AC4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniComplement_32s_AC4IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);

/* Shifts by a constant count, one count for C1 and one per channel
 * otherwise (3 for C3 and AC4, 4 for C4), read as unsigned: LShiftC gives
 * src << count, dropping the bits shifted out; RShiftC gives src >> count,
 * logical for 8u and 16u, arithmetic (filling with the sign) for 16s and 32s.
 * No count is an error: 0 copies, and from the bit width of the type up
 * (which takes in every count that is negative read as signed) the result is
 * 0, or for 16s and 32s the sign fill (0 or -1). AC4 keeps alpha.
 * Checks, in order: a null pointer (qvnErrNullPointer); a step below 1
 * (qvnErrStep); a width or height below 1 (qvnErrSize). */
QVN_API QvnStatus qvniLShiftC_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn32u count, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_8u_C1IR(Qvn32u count, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn32u count, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_16u_C1IR(Qvn32u count, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_32s_C1R(const Qvn32s* pSrc, int srcStep, Qvn32u count, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_32s_C1IR(Qvn32u count, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_8u_C3R(const Qvn8u* pSrc, int srcStep, const Qvn32u* pCount, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_8u_C3IR(const Qvn32u* pCount, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_8u_C4R(const Qvn8u* pSrc, int srcStep, const Qvn32u* pCount, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_8u_C4IR(const Qvn32u* pCount, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_8u_AC4R(const Qvn8u* pSrc, int srcStep, const Qvn32u* pCount, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_8u_AC4IR(const Qvn32u* pCount, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_16u_C3R(const Qvn16u* pSrc, int srcStep, const Qvn32u* pCount, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_16u_C3IR(const Qvn32u* pCount, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_16u_C4R(const Qvn16u* pSrc, int srcStep, const Qvn32u* pCount, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_16u_C4IR(const Qvn32u* pCount, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_16u_AC4R(const Qvn16u* pSrc, int srcStep, const Qvn32u* pCount, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_16u_AC4IR(const Qvn32u* pCount, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_32s_C3R(const Qvn32s* pSrc, int srcStep, const Qvn32u* pCount, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_32s_C3IR(const Qvn32u* pCount, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_32s_C4R(const Qvn32s* pSrc, int srcStep, const Qvn32u* pCount, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_32s_C4IR(const Qvn32u* pCount, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_32s_AC4R(const Qvn32s* pSrc, int srcStep, const Qvn32u* pCount, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLShiftC_32s_AC4IR(const Qvn32u* pCount, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn32u count, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_8u_C1IR(Qvn32u count, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn32u count, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16u_C1IR(Qvn32u count, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn32u count, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16s_C1IR(Qvn32u count, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_32s_C1R(const Qvn32s* pSrc, int srcStep, Qvn32u count, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_32s_C1IR(Qvn32u count, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_8u_C3R(const Qvn8u* pSrc, int srcStep, const Qvn32u* pCount, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_8u_C3IR(const Qvn32u* pCount, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_8u_C4R(const Qvn8u* pSrc, int srcStep, const Qvn32u* pCount, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_8u_C4IR(const Qvn32u* pCount, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_8u_AC4R(const Qvn8u* pSrc, int srcStep, const Qvn32u* pCount, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_8u_AC4IR(const Qvn32u* pCount, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16u_C3R(const Qvn16u* pSrc, int srcStep, const Qvn32u* pCount, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16u_C3IR(const Qvn32u* pCount, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16u_C4R(const Qvn16u* pSrc, int srcStep, const Qvn32u* pCount, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16u_C4IR(const Qvn32u* pCount, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16u_AC4R(const Qvn16u* pSrc, int srcStep, const Qvn32u* pCount, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16u_AC4IR(const Qvn32u* pCount, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16s_C3R(const Qvn16s* pSrc, int srcStep, const Qvn32u* pCount, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16s_C3IR(const Qvn32u* pCount, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16s_C4R(const Qvn16s* pSrc, int srcStep, const Qvn32u* pCount, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16s_C4IR(const Qvn32u* pCount, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16s_AC4R(const Qvn16s* pSrc, int srcStep, const Qvn32u* pCount, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_16s_AC4IR(const Qvn32u* pCount, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_32s_C3R(const Qvn32s* pSrc, int srcStep, const Qvn32u* pCount, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_32s_C3IR(const Qvn32u* pCount, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_32s_C4R(const Qvn32s* pSrc, int srcStep, const Qvn32u* pCount, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_32s_C4IR(const Qvn32u* pCount, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_32s_AC4R(const Qvn32s* pSrc, int srcStep, const Qvn32u* pCount, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniRShiftC_32s_AC4IR(const Qvn32u* pCount, Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);

/* |src|: 16s saturates, so -32768 gives 32767; 32f clears the sign bit (NaN
 * stays NaN). AC4 keeps alpha.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep). */
QVN_API QvnStatus qvniAbs_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_16s_C1IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_16s_C3IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_16s_C4IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_16s_AC4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_16s_AC4IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_32f_C4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAbs_32f_AC4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);

/* src * src: integer results multiplied by 2^-scaleFactor (ties to even)
 * and saturated, as Mul does; 32f the single product. AC4 keeps alpha.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep). */
QVN_API QvnStatus qvniSqr_8u_C1RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_8u_C1IRSfs(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_8u_C3RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_8u_C3IRSfs(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_8u_C4RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_8u_C4IRSfs(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_8u_AC4RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_8u_AC4IRSfs(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16u_C1RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16u_C1IRSfs(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16u_C3RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16u_C3IRSfs(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16u_C4RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16u_C4IRSfs(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16u_AC4RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16u_AC4IRSfs(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16s_C1RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16s_C1IRSfs(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16s_C3RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16s_C3IRSfs(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16s_C4RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16s_C4IRSfs(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16s_AC4RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_16s_AC4IRSfs(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqr_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSqr_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSqr_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSqr_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSqr_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSqr_32f_C4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSqr_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSqr_32f_AC4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);

/* The square root: integer results are sqrt(src) * 2^-scaleFactor rounded
 * to nearest (ties to even) and saturated, exactly for every input; a
 * negative 16s input gives 0. 32f is the correctly rounded root in the
 * caller's rounding mode; a negative input (not -0) gives NaN. Any negative
 * input makes the status qvnWarnSqrtNegative, after every pixel is written.
 * AC4 keeps alpha; the only 32f C4 form works in place.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep). */
QVN_API QvnStatus qvniSqrt_8u_C1RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_8u_C1IRSfs(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_8u_C3RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_8u_C3IRSfs(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_8u_AC4RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_8u_AC4IRSfs(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_16u_C1RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_16u_C1IRSfs(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_16u_C3RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_16u_C3IRSfs(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_16u_AC4RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_16u_AC4IRSfs(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_16s_C1RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_16s_C1IRSfs(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_16s_C3RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_16s_C3IRSfs(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_16s_AC4RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_16s_AC4IRSfs(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSqrt_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSqrt_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSqrt_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSqrt_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSqrt_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSqrt_32f_AC4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSqrt_32f_C4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);

/* e^src: integer results are e^src * 2^-scaleFactor rounded to nearest
 * (ties to even) and saturated, exactly for every input. 32f results are
 * within 0.86 units in the last place of e^src (measured over every input;
 * subnormal from -87.34 down, 0 from -103.98 down, +infinity above 88.723)
 * and do not depend on the caller's rounding mode; NaN gives NaN.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep). */
QVN_API QvnStatus qvniExp_8u_C1RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniExp_8u_C1IRSfs(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniExp_8u_C3RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniExp_8u_C3IRSfs(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniExp_16u_C1RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniExp_16u_C1IRSfs(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniExp_16u_C3RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniExp_16u_C3IRSfs(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniExp_16s_C1RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniExp_16s_C1IRSfs(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniExp_16s_C3RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniExp_16s_C3IRSfs(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniExp_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniExp_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniExp_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniExp_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);

/* ln(src): integer results are ln(src) * 2^-scaleFactor rounded to nearest
 * (ties to even) and limited to the maximum of the type, exactly for every
 * input; 0 (and a negative 16s input) gives the minimum of the type. 32f
 * results are within 0.83 units in the last place of ln(src) (measured over
 * every input) and do not depend on the caller's rounding mode; 0 gives
 * -infinity, a negative input or NaN gives NaN. A zero or negative input
 * makes the status qvnWarnLnZeroArg, after every pixel is written.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep). */
QVN_API QvnStatus qvniLn_8u_C1RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniLn_8u_C1IRSfs(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniLn_8u_C3RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniLn_8u_C3IRSfs(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniLn_16u_C1RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniLn_16u_C1IRSfs(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniLn_16u_C3RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniLn_16u_C3IRSfs(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniLn_16s_C1RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniLn_16s_C1IRSfs(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniLn_16s_C3RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniLn_16s_C3IRSfs(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniLn_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLn_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLn_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniLn_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);

/* Two-source arithmetic: Add gives src1 + src2, Sub src2 - src1, Mul src1 * src2.
 * Integer results are multiplied by 2^-scaleFactor (ties to even) and
 * saturated. AC4 never changes the destination's alpha (the vector code may
 * store it back as it read it; see qvnip_types.h).
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniAdd_8u_C1RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_C1RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_C1IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_C1IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_C3RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_C3RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_C3IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_C3IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_C4RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_C4RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_C4IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_C4IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_AC4RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_AC4RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_AC4IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_8u_AC4IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_C1RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_C1RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_C1IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_C1IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_C3RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_C3RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_C3IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_C3IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_C4RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_C4RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_C4IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_C4IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_AC4RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_AC4RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_AC4IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16u_AC4IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_C1RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_C1RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_C1IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_C1IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_C3RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_C3RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_C3IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_C3IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_C4RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_C4RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_C4IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_C4IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_AC4RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_AC4RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_AC4IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_16s_AC4IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_C1RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_C1RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_C1IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_C1IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_C3RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_C3RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_C3IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_C3IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_C4RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_C4RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_C4IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_C4IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_AC4RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_AC4RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_AC4IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_8u_AC4IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_C1RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_C1RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_C1IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_C1IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_C3RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_C3RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_C3IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_C3IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_C4RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_C4RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_C4IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_C4IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_AC4RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_AC4RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_AC4IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16u_AC4IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_C1RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_C1RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_C1IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_C1IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_C3RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_C3RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_C3IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_C3IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_C4RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_C4RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_C4IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_C4IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_AC4RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_AC4RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_AC4IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSub_16s_AC4IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_C1RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_C1RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_C1IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_C1IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_C3RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_C3RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_C3IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_C3IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_C4RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_C4RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_C4IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_C4IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_AC4RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_AC4RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_AC4IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_8u_AC4IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_C1RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_C1RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_C1IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_C1IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_C3RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_C3RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_C3IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_C3IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_C4RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_C4RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_C4IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_C4IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_AC4RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_AC4RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_AC4IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16u_AC4IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_C1RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_C1RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_C1IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_C1IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_C3RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_C3RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_C3IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_C3IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_C4RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_C4RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_C4IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_C4IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_AC4RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_AC4RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_AC4IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMul_16s_AC4IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAdd_32f_C1R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAdd_32f_C1R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAdd_32f_C1IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAdd_32f_C1IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAdd_32f_C3R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAdd_32f_C3R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAdd_32f_C3IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAdd_32f_C3IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAdd_32f_C4R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAdd_32f_C4R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAdd_32f_C4IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAdd_32f_C4IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAdd_32f_AC4R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAdd_32f_AC4R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAdd_32f_AC4IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAdd_32f_AC4IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSub_32f_C1R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSub_32f_C1R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSub_32f_C1IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSub_32f_C1IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSub_32f_C3R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSub_32f_C3R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSub_32f_C3IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSub_32f_C3IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSub_32f_C4R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSub_32f_C4R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSub_32f_C4IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSub_32f_C4IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSub_32f_AC4R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSub_32f_AC4R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSub_32f_AC4IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSub_32f_AC4IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMul_32f_C1R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMul_32f_C1R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMul_32f_C1IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMul_32f_C1IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMul_32f_C3R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMul_32f_C3R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMul_32f_C3IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMul_32f_C3IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMul_32f_C4R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMul_32f_C4R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMul_32f_C4IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMul_32f_C4IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMul_32f_AC4R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMul_32f_AC4R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMul_32f_AC4IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMul_32f_AC4IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);

/* Image and constant: AddC gives src + value, SubC src - value, MulC
 * src * value; C3 and AC4 take 3 values, C4 takes 4. AC4 keeps alpha as
 * the two-source forms do.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniAddC_8u_C1RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_C1RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u value, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_C1IRSfs(Qvn8u value, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_C1IRSfs_L(Qvn8u value, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_C1RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_C1RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u value, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_C1IRSfs(Qvn16u value, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_C1IRSfs_L(Qvn16u value, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_C1RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_C1RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s value, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_C1IRSfs(Qvn16s value, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_C1IRSfs_L(Qvn16s value, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_C3RSfs(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_C3RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, const Qvn8u* pValue, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_C3IRSfs(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_C3IRSfs_L(const Qvn8u* pValue, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_C4RSfs(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_C4RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, const Qvn8u* pValue, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_C4IRSfs(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_C4IRSfs_L(const Qvn8u* pValue, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_AC4RSfs(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_AC4RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, const Qvn8u* pValue, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_AC4IRSfs(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_8u_AC4IRSfs_L(const Qvn8u* pValue, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_C3RSfs(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_C3RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, const Qvn16u* pValue, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_C3IRSfs(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_C3IRSfs_L(const Qvn16u* pValue, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_C4RSfs(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_C4RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, const Qvn16u* pValue, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_C4IRSfs(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_C4IRSfs_L(const Qvn16u* pValue, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_AC4RSfs(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_AC4RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, const Qvn16u* pValue, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_AC4IRSfs(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16u_AC4IRSfs_L(const Qvn16u* pValue, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_C3RSfs(const Qvn16s* pSrc, int srcStep, const Qvn16s* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_C3RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, const Qvn16s* pValue, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_C3IRSfs(const Qvn16s* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_C3IRSfs_L(const Qvn16s* pValue, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_C4RSfs(const Qvn16s* pSrc, int srcStep, const Qvn16s* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_C4RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, const Qvn16s* pValue, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_C4IRSfs(const Qvn16s* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_C4IRSfs_L(const Qvn16s* pValue, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_AC4RSfs(const Qvn16s* pSrc, int srcStep, const Qvn16s* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_AC4RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, const Qvn16s* pValue, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_AC4IRSfs(const Qvn16s* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_16s_AC4IRSfs_L(const Qvn16s* pValue, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_C1RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_C1RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u value, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_C1IRSfs(Qvn8u value, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_C1IRSfs_L(Qvn8u value, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_C1RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_C1RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u value, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_C1IRSfs(Qvn16u value, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_C1IRSfs_L(Qvn16u value, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_C1RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_C1RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s value, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_C1IRSfs(Qvn16s value, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_C1IRSfs_L(Qvn16s value, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_C3RSfs(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_C3RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, const Qvn8u* pValue, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_C3IRSfs(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_C3IRSfs_L(const Qvn8u* pValue, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_C4RSfs(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_C4RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, const Qvn8u* pValue, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_C4IRSfs(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_C4IRSfs_L(const Qvn8u* pValue, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_AC4RSfs(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_AC4RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, const Qvn8u* pValue, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_AC4IRSfs(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_8u_AC4IRSfs_L(const Qvn8u* pValue, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_C3RSfs(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_C3RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, const Qvn16u* pValue, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_C3IRSfs(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_C3IRSfs_L(const Qvn16u* pValue, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_C4RSfs(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_C4RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, const Qvn16u* pValue, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_C4IRSfs(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_C4IRSfs_L(const Qvn16u* pValue, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_AC4RSfs(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_AC4RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, const Qvn16u* pValue, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_AC4IRSfs(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16u_AC4IRSfs_L(const Qvn16u* pValue, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_C3RSfs(const Qvn16s* pSrc, int srcStep, const Qvn16s* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_C3RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, const Qvn16s* pValue, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_C3IRSfs(const Qvn16s* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_C3IRSfs_L(const Qvn16s* pValue, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_C4RSfs(const Qvn16s* pSrc, int srcStep, const Qvn16s* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_C4RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, const Qvn16s* pValue, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_C4IRSfs(const Qvn16s* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_C4IRSfs_L(const Qvn16s* pValue, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_AC4RSfs(const Qvn16s* pSrc, int srcStep, const Qvn16s* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_AC4RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, const Qvn16s* pValue, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_AC4IRSfs(const Qvn16s* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniSubC_16s_AC4IRSfs_L(const Qvn16s* pValue, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_C1RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_C1RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u value, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_C1IRSfs(Qvn8u value, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_C1IRSfs_L(Qvn8u value, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_C1RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_C1RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u value, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_C1IRSfs(Qvn16u value, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_C1IRSfs_L(Qvn16u value, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_C1RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_C1RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s value, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_C1IRSfs(Qvn16s value, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_C1IRSfs_L(Qvn16s value, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_C3RSfs(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_C3RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, const Qvn8u* pValue, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_C3IRSfs(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_C3IRSfs_L(const Qvn8u* pValue, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_C4RSfs(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_C4RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, const Qvn8u* pValue, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_C4IRSfs(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_C4IRSfs_L(const Qvn8u* pValue, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_AC4RSfs(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_AC4RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, const Qvn8u* pValue, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_AC4IRSfs(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_8u_AC4IRSfs_L(const Qvn8u* pValue, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_C3RSfs(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_C3RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, const Qvn16u* pValue, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_C3IRSfs(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_C3IRSfs_L(const Qvn16u* pValue, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_C4RSfs(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_C4RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, const Qvn16u* pValue, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_C4IRSfs(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_C4IRSfs_L(const Qvn16u* pValue, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_AC4RSfs(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_AC4RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, const Qvn16u* pValue, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_AC4IRSfs(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16u_AC4IRSfs_L(const Qvn16u* pValue, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_C3RSfs(const Qvn16s* pSrc, int srcStep, const Qvn16s* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_C3RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, const Qvn16s* pValue, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_C3IRSfs(const Qvn16s* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_C3IRSfs_L(const Qvn16s* pValue, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_C4RSfs(const Qvn16s* pSrc, int srcStep, const Qvn16s* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_C4RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, const Qvn16s* pValue, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_C4IRSfs(const Qvn16s* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_C4IRSfs_L(const Qvn16s* pValue, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_AC4RSfs(const Qvn16s* pSrc, int srcStep, const Qvn16s* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_AC4RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, const Qvn16s* pValue, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_AC4IRSfs(const Qvn16s* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniMulC_16s_AC4IRSfs_L(const Qvn16s* pValue, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniAddC_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAddC_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f value, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAddC_32f_C1IR(Qvn32f value, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAddC_32f_C1IR_L(Qvn32f value, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAddC_32f_C3R(const Qvn32f* pSrc, int srcStep, const Qvn32f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAddC_32f_C3R_L(const Qvn32f* pSrc, QvnSizeL srcStep, const Qvn32f* pValue, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAddC_32f_C3IR(const Qvn32f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAddC_32f_C3IR_L(const Qvn32f* pValue, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAddC_32f_C4R(const Qvn32f* pSrc, int srcStep, const Qvn32f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAddC_32f_C4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, const Qvn32f* pValue, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAddC_32f_C4IR(const Qvn32f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAddC_32f_C4IR_L(const Qvn32f* pValue, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAddC_32f_AC4R(const Qvn32f* pSrc, int srcStep, const Qvn32f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAddC_32f_AC4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, const Qvn32f* pValue, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniAddC_32f_AC4IR(const Qvn32f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniAddC_32f_AC4IR_L(const Qvn32f* pValue, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSubC_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSubC_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f value, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSubC_32f_C1IR(Qvn32f value, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSubC_32f_C1IR_L(Qvn32f value, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSubC_32f_C3R(const Qvn32f* pSrc, int srcStep, const Qvn32f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSubC_32f_C3R_L(const Qvn32f* pSrc, QvnSizeL srcStep, const Qvn32f* pValue, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSubC_32f_C3IR(const Qvn32f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSubC_32f_C3IR_L(const Qvn32f* pValue, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSubC_32f_C4R(const Qvn32f* pSrc, int srcStep, const Qvn32f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSubC_32f_C4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, const Qvn32f* pValue, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSubC_32f_C4IR(const Qvn32f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSubC_32f_C4IR_L(const Qvn32f* pValue, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSubC_32f_AC4R(const Qvn32f* pSrc, int srcStep, const Qvn32f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSubC_32f_AC4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, const Qvn32f* pValue, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniSubC_32f_AC4IR(const Qvn32f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniSubC_32f_AC4IR_L(const Qvn32f* pValue, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMulC_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulC_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f value, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMulC_32f_C1IR(Qvn32f value, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulC_32f_C1IR_L(Qvn32f value, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMulC_32f_C3R(const Qvn32f* pSrc, int srcStep, const Qvn32f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulC_32f_C3R_L(const Qvn32f* pSrc, QvnSizeL srcStep, const Qvn32f* pValue, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMulC_32f_C3IR(const Qvn32f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulC_32f_C3IR_L(const Qvn32f* pValue, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMulC_32f_C4R(const Qvn32f* pSrc, int srcStep, const Qvn32f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulC_32f_C4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, const Qvn32f* pValue, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMulC_32f_C4IR(const Qvn32f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulC_32f_C4IR_L(const Qvn32f* pValue, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMulC_32f_AC4R(const Qvn32f* pSrc, int srcStep, const Qvn32f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulC_32f_AC4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, const Qvn32f* pValue, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniMulC_32f_AC4IR(const Qvn32f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulC_32f_AC4IR_L(const Qvn32f* pValue, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);

/* Division: Div gives src2 / src1 (source 1 is the divisor), rounded to
 * nearest with ties to even after the scale factor. A zero divisor gives 0
 * for a zero dividend, else the maximum of the type (16s: the minimum for a
 * negative dividend), and qvnWarnDivByZero; 32f gives +-infinity or NaN.
 * AC4 keeps alpha as Add does.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep). */
QVN_API QvnStatus qvniDiv_8u_C1RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_C1RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_C1IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_C1IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_C3RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_C3RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_C3IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_C3IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_C4RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_C4RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_C4IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_C4IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_AC4RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_AC4RSfs_L(const Qvn8u* pSrc1, QvnSizeL src1Step, const Qvn8u* pSrc2, QvnSizeL src2Step, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_AC4IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_8u_AC4IRSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_C1RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_C1RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_C1IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_C1IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_C3RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_C3RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_C3IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_C3IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_C4RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_C4RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_C4IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_C4IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_AC4RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_AC4RSfs_L(const Qvn16u* pSrc1, QvnSizeL src1Step, const Qvn16u* pSrc2, QvnSizeL src2Step, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_AC4IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16u_AC4IRSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_C1RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_C1RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_C1IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_C1IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_C3RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_C3RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_C3IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_C3IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_C4RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_C4RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_C4IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_C4IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_AC4RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_AC4RSfs_L(const Qvn16s* pSrc1, QvnSizeL src1Step, const Qvn16s* pSrc2, QvnSizeL src2Step, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_AC4IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_16s_AC4IRSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDiv_32f_C1R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDiv_32f_C1R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDiv_32f_C1IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDiv_32f_C1IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDiv_32f_C3R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDiv_32f_C3R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDiv_32f_C3IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDiv_32f_C3IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDiv_32f_C4R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDiv_32f_C4R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDiv_32f_C4IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDiv_32f_C4IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDiv_32f_AC4R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDiv_32f_AC4R_L(const Qvn32f* pSrc1, QvnSizeL src1Step, const Qvn32f* pSrc2, QvnSizeL src2Step, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDiv_32f_AC4IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDiv_32f_AC4IR_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);

/* Image by constant: src / value, rounded as Div. AC4 keeps alpha as Add
 * does; its fourth constant is not read.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep); a zero constant in a
 * channel the layout uses (qvnErrDivByZero). */
QVN_API QvnStatus qvniDivC_8u_C1RSfs(const Qvn8u* pSrc, int srcStep, Qvn8u value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_C1RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, Qvn8u value, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_C1IRSfs(Qvn8u value, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_C1IRSfs_L(Qvn8u value, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_C1RSfs(const Qvn16u* pSrc, int srcStep, Qvn16u value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_C1RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, Qvn16u value, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_C1IRSfs(Qvn16u value, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_C1IRSfs_L(Qvn16u value, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_C1RSfs(const Qvn16s* pSrc, int srcStep, Qvn16s value, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_C1RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, Qvn16s value, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_C1IRSfs(Qvn16s value, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_C1IRSfs_L(Qvn16s value, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_C3RSfs(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_C3RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, const Qvn8u* pValue, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_C3IRSfs(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_C3IRSfs_L(const Qvn8u* pValue, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_C4RSfs(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_C4RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, const Qvn8u* pValue, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_C4IRSfs(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_C4IRSfs_L(const Qvn8u* pValue, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_AC4RSfs(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_AC4RSfs_L(const Qvn8u* pSrc, QvnSizeL srcStep, const Qvn8u* pValue, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_AC4IRSfs(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_8u_AC4IRSfs_L(const Qvn8u* pValue, Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_C3RSfs(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_C3RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, const Qvn16u* pValue, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_C3IRSfs(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_C3IRSfs_L(const Qvn16u* pValue, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_C4RSfs(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_C4RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, const Qvn16u* pValue, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_C4IRSfs(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_C4IRSfs_L(const Qvn16u* pValue, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_AC4RSfs(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_AC4RSfs_L(const Qvn16u* pSrc, QvnSizeL srcStep, const Qvn16u* pValue, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_AC4IRSfs(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16u_AC4IRSfs_L(const Qvn16u* pValue, Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_C3RSfs(const Qvn16s* pSrc, int srcStep, const Qvn16s* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_C3RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, const Qvn16s* pValue, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_C3IRSfs(const Qvn16s* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_C3IRSfs_L(const Qvn16s* pValue, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_C4RSfs(const Qvn16s* pSrc, int srcStep, const Qvn16s* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_C4RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, const Qvn16s* pValue, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_C4IRSfs(const Qvn16s* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_C4IRSfs_L(const Qvn16s* pValue, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_AC4RSfs(const Qvn16s* pSrc, int srcStep, const Qvn16s* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_AC4RSfs_L(const Qvn16s* pSrc, QvnSizeL srcStep, const Qvn16s* pValue, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_AC4IRSfs(const Qvn16s* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_16s_AC4IRSfs_L(const Qvn16s* pValue, Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize, int scaleFactor);
QVN_API QvnStatus qvniDivC_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f value, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDivC_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, Qvn32f value, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDivC_32f_C1IR(Qvn32f value, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDivC_32f_C1IR_L(Qvn32f value, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDivC_32f_C3R(const Qvn32f* pSrc, int srcStep, const Qvn32f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDivC_32f_C3R_L(const Qvn32f* pSrc, QvnSizeL srcStep, const Qvn32f* pValue, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDivC_32f_C3IR(const Qvn32f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDivC_32f_C3IR_L(const Qvn32f* pValue, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDivC_32f_C4R(const Qvn32f* pSrc, int srcStep, const Qvn32f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDivC_32f_C4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, const Qvn32f* pValue, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDivC_32f_C4IR(const Qvn32f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDivC_32f_C4IR_L(const Qvn32f* pValue, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDivC_32f_AC4R(const Qvn32f* pSrc, int srcStep, const Qvn32f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDivC_32f_AC4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, const Qvn32f* pValue, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL roiSize);
QVN_API QvnStatus qvniDivC_32f_AC4IR(const Qvn32f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDivC_32f_AC4IR_L(const Qvn32f* pValue, Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL roiSize);

/* src2 / (src1 * 2^scaleFactor) in single precision, rounded by rndMode
 * (qvnRndZero, qvnRndNear, qvnRndFinancial). A zero divisor gives 0 for a
 * zero dividend, else the maximum of the type whatever the dividend's sign
 * (unlike Div), and qvnWarnDivByZero. The rounding control of the calling
 * thread is set for the call and restored. AC4 keeps alpha as Add does.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep); a rounding mode other
 * than 0, 1, 2 (qvnErrRounding). */
QVN_API QvnStatus qvniDiv_Round_8u_C1RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_8u_C1IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_8u_C3RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_8u_C3IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_8u_C4RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_8u_C4IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_8u_AC4RSfs(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_8u_AC4IRSfs(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16u_C1RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16u_C1IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16u_C3RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16u_C3IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16u_C4RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16u_C4IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16u_AC4RSfs(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16u_AC4IRSfs(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16s_C1RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16s_C1IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16s_C3RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16s_C3IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16s_C4RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16s_C4IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16s_AC4RSfs(const Qvn16s* pSrc1, int src1Step, const Qvn16s* pSrc2, int src2Step, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);
QVN_API QvnStatus qvniDiv_Round_16s_AC4IRSfs(const Qvn16s* pSrc, int srcStep, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnRounding rndMode, int scaleFactor);

/* Normalised products: floor(src1 * src2 / max) and floor(src * value / max),
 * max being 255 or 65535. Steps are checked before the sizes. AC4 keeps
 * alpha as Add does.
 * Checks, in order: a null pointer (qvnErrNullPointer); a step below 1
 * (qvnErrStep); a width or height below 1 (qvnErrSize). */
QVN_API QvnStatus qvniMulScale_8u_C1R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_8u_C1IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_8u_C3R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_8u_C3IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_8u_C4R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_8u_C4IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_8u_AC4R(const Qvn8u* pSrc1, int src1Step, const Qvn8u* pSrc2, int src2Step, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_8u_AC4IR(const Qvn8u* pSrc, int srcStep, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_16u_C1R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_16u_C1IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_16u_C3R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_16u_C3IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_16u_C4R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_16u_C4IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_16u_AC4R(const Qvn16u* pSrc1, int src1Step, const Qvn16u* pSrc2, int src2Step, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulScale_16u_AC4IR(const Qvn16u* pSrc, int srcStep, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u value, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_8u_C1IR(Qvn8u value, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u value, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_16u_C1IR(Qvn16u value, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_8u_C3R(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_8u_C3IR(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_8u_C4R(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_8u_C4IR(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_8u_AC4R(const Qvn8u* pSrc, int srcStep, const Qvn8u* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_8u_AC4IR(const Qvn8u* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_16u_C3R(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_16u_C3IR(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_16u_C4R(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_16u_C4IR(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_16u_AC4R(const Qvn16u* pSrc, int srcStep, const Qvn16u* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulCScale_16u_AC4IR(const Qvn16u* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);

/* src * value[channel] in double precision, narrowed to single precision and
 * limited to the range of the type: 32f products beyond the largest float
 * give that float (NaN stays NaN); integer results are rounded by rndMode.
 * Every valid hint gives the same result.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a rounding mode other than 0, 1, 2 (qvnErrRounding);
 * an invalid accuracy hint (qvnErrAlgorithm). Steps are not checked: a
 * negative step walks the rows upward, 0 repeats one row, a step shorter than
 * a row overlaps rows ("steps" in qvnip_types.h). */
QVN_API QvnStatus qvniMulC64f_8u_C1R(const Qvn8u* pSrc, int srcStep, const Qvn64f* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_8u_C1IR(const Qvn64f* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_8u_C3R(const Qvn8u* pSrc, int srcStep, const Qvn64f* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_8u_C3IR(const Qvn64f* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_8u_C4R(const Qvn8u* pSrc, int srcStep, const Qvn64f* pValue, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_8u_C4IR(const Qvn64f* pValue, Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_16u_C1R(const Qvn16u* pSrc, int srcStep, const Qvn64f* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_16u_C1IR(const Qvn64f* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_16u_C3R(const Qvn16u* pSrc, int srcStep, const Qvn64f* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_16u_C3IR(const Qvn64f* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_16u_C4R(const Qvn16u* pSrc, int srcStep, const Qvn64f* pValue, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_16u_C4IR(const Qvn64f* pValue, Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_16s_C1R(const Qvn16s* pSrc, int srcStep, const Qvn64f* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_16s_C1IR(const Qvn64f* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_16s_C3R(const Qvn16s* pSrc, int srcStep, const Qvn64f* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_16s_C3IR(const Qvn64f* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_16s_C4R(const Qvn16s* pSrc, int srcStep, const Qvn64f* pValue, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_16s_C4IR(const Qvn64f* pValue, Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_32f_C1R(const Qvn32f* pSrc, int srcStep, const Qvn64f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_32f_C1IR(const Qvn64f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_32f_C3R(const Qvn32f* pSrc, int srcStep, const Qvn64f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_32f_C3IR(const Qvn64f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_32f_C4R(const Qvn32f* pSrc, int srcStep, const Qvn64f* pValue, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);
QVN_API QvnStatus qvniMulC64f_32f_C4IR(const Qvn64f* pValue, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAccuracyHint hint, QvnRounding rndMode);

QVN_END_DECLS

#endif /* QVNIP_ARITH_H */
