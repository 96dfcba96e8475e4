/* qvnIP move: exported functions. Generated from api/move*.txt by tools/apigen.py;
 * edit the table, not this file. */
#ifndef QVNIP_MOVE_H
#define QVNIP_MOVE_H

#include "qvnip_types.h"

QVN_BEGIN_DECLS


/* The border copies. The source ROI goes to the destination ROI at row
 * topBorderHeight and column leftBorderWidth; the other rows and columns of
 * the destination ROI (the frame: dstRoiSize.width - srcRoiSize.width -
 * leftBorderWidth columns on the right, and so many rows below) are filled.
 * The IR forms extend an image inside its own buffer: pSrcDst addresses the
 * source ROI, and the destination ROI begins topBorderHeight rows above and
 * leftBorderWidth pixels left of it, at the same step; only the frame is
 * written.
 * Const: every frame pixel takes value (C1), or the pixel value points at
 * (C3 and AC4: 3 values, C4: 4 values). AC4 never changes the destination's
 * alpha (the vector code may store it back as it read it; see qvnip_types.h).
 * Checks, in order: a null pointer (qvnErrNullPointer); a step below 1
 * (qvnErrStep); a width or height below 1 (qvnErrSize); a negative
 * topBorderHeight or leftBorderWidth, or a destination narrower than the
 * source width plus leftBorderWidth or lower than the source height plus
 * topBorderHeight (qvnErrSize). */
QVN_API QvnStatus qvniCopyConstBorder_8u_C1R(const Qvn8u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn8u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvn8u value);
QVN_API QvnStatus qvniCopyConstBorder_8u_C1R_L(const Qvn8u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, Qvn8u value);
QVN_API QvnStatus qvniCopyConstBorder_8u_C1IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvn8u value);
QVN_API QvnStatus qvniCopyConstBorder_8u_C1IR_L(Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, Qvn8u value);
QVN_API QvnStatus qvniCopyConstBorder_16s_C1R(const Qvn16s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvn16s value);
QVN_API QvnStatus qvniCopyConstBorder_16s_C1R_L(const Qvn16s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, Qvn16s value);
QVN_API QvnStatus qvniCopyConstBorder_16s_C1IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvn16s value);
QVN_API QvnStatus qvniCopyConstBorder_16s_C1IR_L(Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, Qvn16s value);
QVN_API QvnStatus qvniCopyConstBorder_16u_C1R(const Qvn16u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvn16u value);
QVN_API QvnStatus qvniCopyConstBorder_16u_C1R_L(const Qvn16u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, Qvn16u value);
QVN_API QvnStatus qvniCopyConstBorder_16u_C1IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvn16u value);
QVN_API QvnStatus qvniCopyConstBorder_16u_C1IR_L(Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, Qvn16u value);
QVN_API QvnStatus qvniCopyConstBorder_32f_C1R(const Qvn32f* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvn32f value);
QVN_API QvnStatus qvniCopyConstBorder_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, Qvn32f value);
QVN_API QvnStatus qvniCopyConstBorder_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvn32f value);
QVN_API QvnStatus qvniCopyConstBorder_32f_C1IR_L(Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, Qvn32f value);
QVN_API QvnStatus qvniCopyConstBorder_32s_C1R(const Qvn32s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvn32s value);
QVN_API QvnStatus qvniCopyConstBorder_32s_C1R_L(const Qvn32s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, Qvn32s value);
QVN_API QvnStatus qvniCopyConstBorder_32s_C1IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvn32s value);
QVN_API QvnStatus qvniCopyConstBorder_32s_C1IR_L(Qvn32s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, Qvn32s value);
QVN_API QvnStatus qvniCopyConstBorder_8u_C3R(const Qvn8u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn8u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn8u* value);
QVN_API QvnStatus qvniCopyConstBorder_8u_C3R_L(const Qvn8u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn8u* value);
QVN_API QvnStatus qvniCopyConstBorder_8u_C3IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn8u* value);
QVN_API QvnStatus qvniCopyConstBorder_8u_C3IR_L(Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn8u* value);
QVN_API QvnStatus qvniCopyConstBorder_8u_C4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn8u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn8u* value);
QVN_API QvnStatus qvniCopyConstBorder_8u_C4R_L(const Qvn8u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn8u* value);
QVN_API QvnStatus qvniCopyConstBorder_8u_C4IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn8u* value);
QVN_API QvnStatus qvniCopyConstBorder_8u_C4IR_L(Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn8u* value);
QVN_API QvnStatus qvniCopyConstBorder_8u_AC4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn8u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn8u* value);
QVN_API QvnStatus qvniCopyConstBorder_8u_AC4R_L(const Qvn8u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn8u* value);
QVN_API QvnStatus qvniCopyConstBorder_8u_AC4IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn8u* value);
QVN_API QvnStatus qvniCopyConstBorder_8u_AC4IR_L(Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn8u* value);
QVN_API QvnStatus qvniCopyConstBorder_16s_C3R(const Qvn16s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn16s* value);
QVN_API QvnStatus qvniCopyConstBorder_16s_C3R_L(const Qvn16s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn16s* value);
QVN_API QvnStatus qvniCopyConstBorder_16s_C3IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn16s* value);
QVN_API QvnStatus qvniCopyConstBorder_16s_C3IR_L(Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn16s* value);
QVN_API QvnStatus qvniCopyConstBorder_16s_C4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn16s* value);
QVN_API QvnStatus qvniCopyConstBorder_16s_C4R_L(const Qvn16s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn16s* value);
QVN_API QvnStatus qvniCopyConstBorder_16s_C4IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn16s* value);
QVN_API QvnStatus qvniCopyConstBorder_16s_C4IR_L(Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn16s* value);
QVN_API QvnStatus qvniCopyConstBorder_16s_AC4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn16s* value);
QVN_API QvnStatus qvniCopyConstBorder_16s_AC4R_L(const Qvn16s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn16s* value);
QVN_API QvnStatus qvniCopyConstBorder_16s_AC4IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn16s* value);
QVN_API QvnStatus qvniCopyConstBorder_16s_AC4IR_L(Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn16s* value);
QVN_API QvnStatus qvniCopyConstBorder_16u_C3R(const Qvn16u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn16u* value);
QVN_API QvnStatus qvniCopyConstBorder_16u_C3R_L(const Qvn16u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn16u* value);
QVN_API QvnStatus qvniCopyConstBorder_16u_C3IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn16u* value);
QVN_API QvnStatus qvniCopyConstBorder_16u_C3IR_L(Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn16u* value);
QVN_API QvnStatus qvniCopyConstBorder_16u_C4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn16u* value);
QVN_API QvnStatus qvniCopyConstBorder_16u_C4R_L(const Qvn16u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn16u* value);
QVN_API QvnStatus qvniCopyConstBorder_16u_C4IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn16u* value);
QVN_API QvnStatus qvniCopyConstBorder_16u_C4IR_L(Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn16u* value);
QVN_API QvnStatus qvniCopyConstBorder_16u_AC4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn16u* value);
QVN_API QvnStatus qvniCopyConstBorder_16u_AC4R_L(const Qvn16u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn16u* value);
QVN_API QvnStatus qvniCopyConstBorder_16u_AC4IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn16u* value);
QVN_API QvnStatus qvniCopyConstBorder_16u_AC4IR_L(Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn16u* value);
QVN_API QvnStatus qvniCopyConstBorder_32f_C3R(const Qvn32f* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn32f* value);
QVN_API QvnStatus qvniCopyConstBorder_32f_C3R_L(const Qvn32f* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn32f* value);
QVN_API QvnStatus qvniCopyConstBorder_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn32f* value);
QVN_API QvnStatus qvniCopyConstBorder_32f_C3IR_L(Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn32f* value);
QVN_API QvnStatus qvniCopyConstBorder_32f_C4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn32f* value);
QVN_API QvnStatus qvniCopyConstBorder_32f_C4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn32f* value);
QVN_API QvnStatus qvniCopyConstBorder_32f_C4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn32f* value);
QVN_API QvnStatus qvniCopyConstBorder_32f_C4IR_L(Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn32f* value);
QVN_API QvnStatus qvniCopyConstBorder_32f_AC4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn32f* value);
QVN_API QvnStatus qvniCopyConstBorder_32f_AC4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn32f* value);
QVN_API QvnStatus qvniCopyConstBorder_32f_AC4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn32f* value);
QVN_API QvnStatus qvniCopyConstBorder_32f_AC4IR_L(Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn32f* value);
QVN_API QvnStatus qvniCopyConstBorder_32s_C3R(const Qvn32s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn32s* value);
QVN_API QvnStatus qvniCopyConstBorder_32s_C3R_L(const Qvn32s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn32s* value);
QVN_API QvnStatus qvniCopyConstBorder_32s_C3IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn32s* value);
QVN_API QvnStatus qvniCopyConstBorder_32s_C3IR_L(Qvn32s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn32s* value);
QVN_API QvnStatus qvniCopyConstBorder_32s_C4R(const Qvn32s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn32s* value);
QVN_API QvnStatus qvniCopyConstBorder_32s_C4R_L(const Qvn32s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn32s* value);
QVN_API QvnStatus qvniCopyConstBorder_32s_C4IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn32s* value);
QVN_API QvnStatus qvniCopyConstBorder_32s_C4IR_L(Qvn32s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn32s* value);
QVN_API QvnStatus qvniCopyConstBorder_32s_AC4R(const Qvn32s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn32s* value);
QVN_API QvnStatus qvniCopyConstBorder_32s_AC4R_L(const Qvn32s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn32s* value);
QVN_API QvnStatus qvniCopyConstBorder_32s_AC4IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvn32s* value);
QVN_API QvnStatus qvniCopyConstBorder_32s_AC4IR_L(Qvn32s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth, const Qvn32s* value);

/* Replicate: a frame pixel repeats the nearest edge pixel of the source.
 * AC4 as above.
 * Checks, in order: a null pointer (qvnErrNullPointer); a step below 1
 * (qvnErrStep); a width or height below 1 (qvnErrSize); a negative
 * topBorderHeight or leftBorderWidth, or a destination narrower than the
 * source width plus leftBorderWidth or lower than the source height plus
 * topBorderHeight (qvnErrSize). */
QVN_API QvnStatus qvniCopyReplicateBorder_8u_C1R(const Qvn8u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn8u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_C1R_L(const Qvn8u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_C1IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_C1IR_L(Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_C3R(const Qvn8u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn8u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_C3R_L(const Qvn8u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_C3IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_C3IR_L(Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_C4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn8u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_C4R_L(const Qvn8u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_C4IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_C4IR_L(Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_AC4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn8u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_AC4R_L(const Qvn8u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_AC4IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_8u_AC4IR_L(Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_C1R(const Qvn16s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_C1R_L(const Qvn16s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_C1IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_C1IR_L(Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_C3R(const Qvn16s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_C3R_L(const Qvn16s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_C3IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_C3IR_L(Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_C4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_C4R_L(const Qvn16s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_C4IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_C4IR_L(Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_AC4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_AC4R_L(const Qvn16s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_AC4IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16s_AC4IR_L(Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_C1R(const Qvn16u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_C1R_L(const Qvn16u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_C1IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_C1IR_L(Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_C3R(const Qvn16u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_C3R_L(const Qvn16u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_C3IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_C3IR_L(Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_C4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_C4R_L(const Qvn16u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_C4IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_C4IR_L(Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_AC4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_AC4R_L(const Qvn16u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_AC4IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_16u_AC4IR_L(Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_C1R(const Qvn32f* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_C1IR_L(Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_C3R(const Qvn32f* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_C3R_L(const Qvn32f* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_C3IR_L(Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_C4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_C4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_C4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_C4IR_L(Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_AC4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_AC4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_AC4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32f_AC4IR_L(Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_C1R(const Qvn32s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_C1R_L(const Qvn32s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_C1IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_C1IR_L(Qvn32s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_C3R(const Qvn32s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_C3R_L(const Qvn32s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_C3IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_C3IR_L(Qvn32s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_C4R(const Qvn32s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_C4R_L(const Qvn32s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_C4IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_C4IR_L(Qvn32s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_AC4R(const Qvn32s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_AC4R_L(const Qvn32s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_AC4IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyReplicateBorder_32s_AC4IR_L(Qvn32s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);

/* Mirror: the frame reflects the source about its edge pixels, which are not
 * repeated (the left border of width L takes source columns L, L-1, ..., 1);
 * a border as wide as the source or wider reflects again at the far edge, as
 * often as needed, and never reads outside the source. An out-of-place call
 * with pSrc equal to pDst is the IR form with srcStep for the source rows and
 * dstStep for the destination (source rows move to dstStep first); this
 * comparison comes before every check.
 * Checks, in order: a null pointer (qvnErrNullPointer); a step below 1
 * (qvnErrStep); a width or height below 1 (qvnErrSize); a negative
 * topBorderHeight or leftBorderWidth, or a destination narrower than the
 * source width plus leftBorderWidth or lower than the source height plus
 * topBorderHeight (qvnErrSize). */
QVN_API QvnStatus qvniCopyMirrorBorder_8u_C1R(const Qvn8u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn8u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_8u_C1R_L(const Qvn8u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_8u_C1IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_8u_C1IR_L(Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_8u_C3R(const Qvn8u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn8u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_8u_C3R_L(const Qvn8u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_8u_C3IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_8u_C3IR_L(Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_8u_C4R(const Qvn8u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn8u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_8u_C4R_L(const Qvn8u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn8u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_8u_C4IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_8u_C4IR_L(Qvn8u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16s_C1R(const Qvn16s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16s_C1R_L(const Qvn16s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16s_C1IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16s_C1IR_L(Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16s_C3R(const Qvn16s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16s_C3R_L(const Qvn16s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16s_C3IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16s_C3IR_L(Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16s_C4R(const Qvn16s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16s_C4R_L(const Qvn16s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16s_C4IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16s_C4IR_L(Qvn16s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16u_C1R(const Qvn16u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16u_C1R_L(const Qvn16u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16u_C1IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16u_C1IR_L(Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16u_C3R(const Qvn16u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16u_C3R_L(const Qvn16u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16u_C3IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16u_C3IR_L(Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16u_C4R(const Qvn16u* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn16u* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16u_C4R_L(const Qvn16u* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn16u* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16u_C4IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_16u_C4IR_L(Qvn16u* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32f_C1R(const Qvn32f* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32f_C1IR_L(Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32f_C3R(const Qvn32f* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32f_C3R_L(const Qvn32f* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32f_C3IR_L(Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32f_C4R(const Qvn32f* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32f_C4R_L(const Qvn32f* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32f_C4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32f_C4IR_L(Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32s_C1R(const Qvn32s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32s_C1R_L(const Qvn32s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32s_C1IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32s_C1IR_L(Qvn32s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32s_C3R(const Qvn32s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32s_C3R_L(const Qvn32s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32s_C3IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32s_C3IR_L(Qvn32s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32s_C4R(const Qvn32s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32s_C4R_L(const Qvn32s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32s_C4IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyMirrorBorder_32s_C4IR_L(Qvn32s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);

/* Wrap: a frame pixel takes the source pixel from the opposite side (column
 * -1 is the last column, and so on, repeated for borders wider than the
 * source). An out-of-place call with pSrc equal to pDst passes every check
 * and is then the IR form, as for the mirror border.
 * Checks, in order: a null pointer (qvnErrNullPointer); a step below 1
 * (qvnErrStep); a width or height below 1 (qvnErrSize); a negative
 * topBorderHeight or leftBorderWidth, or a destination narrower than the
 * source width plus leftBorderWidth or lower than the source height plus
 * topBorderHeight (qvnErrSize). */
QVN_API QvnStatus qvniCopyWrapBorder_32f_C1R(const Qvn32f* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32f* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyWrapBorder_32f_C1R_L(const Qvn32f* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32f* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyWrapBorder_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyWrapBorder_32f_C1IR_L(Qvn32f* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyWrapBorder_32s_C1R(const Qvn32s* pSrc, int srcStep, QvnRoiSize srcRoiSize, Qvn32s* pDst, int dstStep, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyWrapBorder_32s_C1R_L(const Qvn32s* pSrc, QvnSizeL srcStep, QvnRoiSizeL srcRoiSize, Qvn32s* pDst, QvnSizeL dstStep, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);
QVN_API QvnStatus qvniCopyWrapBorder_32s_C1IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize srcRoiSize, QvnRoiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QVN_API QvnStatus qvniCopyWrapBorder_32s_C1IR_L(Qvn32s* pSrcDst, QvnSizeL srcDstStep, QvnRoiSizeL srcRoiSize, QvnRoiSizeL dstRoiSize, QvnSizeL topBorderHeight, QvnSizeL leftBorderWidth);

/* Widening conversions: every value is copied exactly. AC4 never changes the
 * destination's alpha (the vector code may store it back as it read it; see
 * qvnip_types.h). Large C1, C3 and C4 images of 8s to 32s or 32f, 16u or 16s
 * to 32f, and C1 images of 8u to 16s, 32s or 32f are written with
 * cache-bypassing stores.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniConvert_8u16u_C1R(const Qvn8u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u16u_C3R(const Qvn8u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u16u_C4R(const Qvn8u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u16u_AC4R(const Qvn8u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u16s_C1R(const Qvn8u* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u16s_C3R(const Qvn8u* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u16s_C4R(const Qvn8u* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u16s_AC4R(const Qvn8u* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u32s_C1R(const Qvn8u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u32s_C3R(const Qvn8u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u32s_C4R(const Qvn8u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u32s_AC4R(const Qvn8u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u32f_C1R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u32f_C3R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u32f_C4R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8u32f_AC4R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8s32s_C1R(const Qvn8s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8s32s_C3R(const Qvn8s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8s32s_C4R(const Qvn8s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8s32s_AC4R(const Qvn8s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8s32f_C1R(const Qvn8s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8s32f_C3R(const Qvn8s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8s32f_C4R(const Qvn8s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8s32f_AC4R(const Qvn8s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16u32s_C1R(const Qvn16u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16u32s_C3R(const Qvn16u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16u32s_C4R(const Qvn16u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16u32s_AC4R(const Qvn16u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16u32f_C1R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16u32f_C3R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16u32f_C4R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16u32f_AC4R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s32s_C1R(const Qvn16s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s32s_C3R(const Qvn16s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s32s_C4R(const Qvn16s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s32s_AC4R(const Qvn16s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s32f_C1R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s32f_C3R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s32f_C4R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s32f_AC4R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);

/* Narrowing integer conversions: values are saturated to the destination
 * range. AC4 keeps alpha as the widening conversions do.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniConvert_16u8u_C1R(const Qvn16u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16u8u_C3R(const Qvn16u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16u8u_C4R(const Qvn16u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16u8u_AC4R(const Qvn16u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s8u_C1R(const Qvn16s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s8u_C3R(const Qvn16s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s8u_C4R(const Qvn16s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s8u_AC4R(const Qvn16s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_32s8u_C1R(const Qvn32s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_32s8u_C3R(const Qvn32s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_32s8u_C4R(const Qvn32s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_32s8u_AC4R(const Qvn32s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_32s8s_C1R(const Qvn32s* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_32s8s_C3R(const Qvn32s* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_32s8s_C4R(const Qvn32s* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_32s8s_AC4R(const Qvn32s* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize);

/* Narrowing conversions from 32f: each value is rounded by roundMode
 * (qvnRndZero toward zero, qvnRndNear to nearest with halves to even,
 * qvnRndFinancial to nearest with halves away from zero) and saturated; NaN
 * gives 0. The processor's rounding control is set for the call and restored
 * before it returns. AC4 keeps alpha as the widening conversions do.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep); a rounding mode other
 * than 0, 1, 2 (qvnErrRounding). */
QVN_API QvnStatus qvniConvert_32f8u_C1R(const Qvn32f* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f8u_C3R(const Qvn32f* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f8u_C4R(const Qvn32f* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f8u_AC4R(const Qvn32f* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f8s_C1R(const Qvn32f* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f8s_C3R(const Qvn32f* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f8s_C4R(const Qvn32f* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f8s_AC4R(const Qvn32f* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f16u_C1R(const Qvn32f* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f16u_C3R(const Qvn32f* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f16u_C4R(const Qvn32f* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f16u_AC4R(const Qvn32f* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f16s_C1R(const Qvn32f* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f16s_C3R(const Qvn32f* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f16s_C4R(const Qvn32f* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);
QVN_API QvnStatus qvniConvert_32f16s_AC4R(const Qvn32f* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode);

/* One-channel conversions: exact, except 32s and 32u to 32f, which round to
 * nearest with halves to even.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniConvert_8s16s_C1R(const Qvn8s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8s64f_C1R(const Qvn8s* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16u32u_C1R(const Qvn16u* pSrc, int srcStep, Qvn32u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_32s32f_C1R(const Qvn32s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_32u32f_C1R(const Qvn32u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);

/* Saturating signed-to-unsigned conversions: negative values become 0, the
 * others are copied.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniConvert_8s8u_C1Rs(const Qvn8s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8s16u_C1Rs(const Qvn8s* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_8s32u_C1Rs(const Qvn8s* pSrc, int srcStep, Qvn32u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s16u_C1Rs(const Qvn16s* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_16s32u_C1Rs(const Qvn16s* pSrc, int srcStep, Qvn32u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniConvert_32s32u_C1Rs(const Qvn32s* pSrc, int srcStep, Qvn32u* pDst, int dstStep, QvnRoiSize roiSize);

/* Scaled integer conversions: each value is multiplied by 2^-scaleFactor
 * (any factor; a negative one multiplies by a power of two), rounded to
 * nearest with halves to even and saturated.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep). */
QVN_API QvnStatus qvniConvert_8u8s_C1RSfs(const Qvn8u* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniConvert_16u8s_C1RSfs(const Qvn16u* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniConvert_16u16s_C1RSfs(const Qvn16u* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniConvert_16s8s_C1RSfs(const Qvn16s* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniConvert_32s16u_C1RSfs(const Qvn32s* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniConvert_32s16s_C1RSfs(const Qvn32s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniConvert_32u8u_C1RSfs(const Qvn32u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniConvert_32u8s_C1RSfs(const Qvn32u* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniConvert_32u16u_C1RSfs(const Qvn32u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniConvert_32u16s_C1RSfs(const Qvn32u* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);
QVN_API QvnStatus qvniConvert_32u32s_C1RSfs(const Qvn32u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, int scaleFactor);

/* Scaled conversions from floats: each value is multiplied by 2^-scaleFactor,
 * then values not below the destination maximum give the maximum, values not
 * above its minimum give the minimum, NaN gives 0, and the rest is rounded by
 * roundMode. Any scale factor gives the exactly scaled value, however far it
 * lies outside the exponent range. The in-place 32f to 32u form reuses the
 * source memory.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep); a rounding mode other
 * than 0, 1, 2 (qvnErrRounding). */
QVN_API QvnStatus qvniConvert_32f8u_C1RSfs(const Qvn32f* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode, int scaleFactor);
QVN_API QvnStatus qvniConvert_32f8s_C1RSfs(const Qvn32f* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode, int scaleFactor);
QVN_API QvnStatus qvniConvert_32f16u_C1RSfs(const Qvn32f* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode, int scaleFactor);
QVN_API QvnStatus qvniConvert_32f16s_C1RSfs(const Qvn32f* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode, int scaleFactor);
QVN_API QvnStatus qvniConvert_32f32s_C1RSfs(const Qvn32f* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode, int scaleFactor);
QVN_API QvnStatus qvniConvert_64f8u_C1RSfs(const Qvn64f* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode, int scaleFactor);
QVN_API QvnStatus qvniConvert_64f8s_C1RSfs(const Qvn64f* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode, int scaleFactor);
QVN_API QvnStatus qvniConvert_64f16u_C1RSfs(const Qvn64f* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode, int scaleFactor);
QVN_API QvnStatus qvniConvert_64f16s_C1RSfs(const Qvn64f* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode, int scaleFactor);
QVN_API QvnStatus qvniConvert_32f32u_C1RSfs(const Qvn32f* pSrc, int srcStep, Qvn32u* pDst, int dstStep, QvnRoiSize roiSize, QvnRounding roundMode, int scaleFactor);
QVN_API QvnStatus qvniConvert_32f32u_C1IRSfs(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnRounding roundMode, int scaleFactor);

/* Range mapping from 8u: d = s * 257 (16u), s * 257 - 32768 (16s),
 * s * 16843009 - 2147483648 (32s), so 0 and 255 map to the ends of the
 * destination range. AC4 keeps alpha as the widening conversions do.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep). */
QVN_API QvnStatus qvniScale_8u16u_C1R(const Qvn8u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniScale_8u16u_C3R(const Qvn8u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniScale_8u16u_C4R(const Qvn8u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniScale_8u16u_AC4R(const Qvn8u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniScale_8u16s_C1R(const Qvn8u* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniScale_8u16s_C3R(const Qvn8u* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniScale_8u16s_C4R(const Qvn8u* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniScale_8u16s_AC4R(const Qvn8u* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniScale_8u32s_C1R(const Qvn8u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniScale_8u32s_C3R(const Qvn8u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniScale_8u32s_C4R(const Qvn8u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniScale_8u32s_AC4R(const Qvn8u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize);

/* Range mapping to 8u: the source type's range onto 0..255, d = (s - min) /
 * 257 (16u, 16s) or / 16843009 (32s), rounded to nearest (never a tie). Every
 * valid hint gives this exact result. AC4 keeps alpha as the widening
 * conversions do.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep); an invalid accuracy hint
 * (qvnErrAlgorithm). */
QVN_API QvnStatus qvniScale_16u8u_C1R(const Qvn16u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScale_16u8u_C3R(const Qvn16u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScale_16u8u_C4R(const Qvn16u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScale_16u8u_AC4R(const Qvn16u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScale_16s8u_C1R(const Qvn16s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScale_16s8u_C3R(const Qvn16s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScale_16s8u_C4R(const Qvn16s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScale_16s8u_AC4R(const Qvn16s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScale_32s8u_C1R(const Qvn32s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScale_32s8u_C3R(const Qvn32s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScale_32s8u_C4R(const Qvn32s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScale_32s8u_AC4R(const Qvn32s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAccuracyHint hint);

/* Range mapping with float bounds. 8u to 32f: d = s * ((vMax - vMin) / 255)
 * + vMin. 32f to 8u: d = s * k + b with k = 255 / (vMax - vMin) and b = -vMin
 * * k, clamped to 0..255 and rounded to nearest with halves to even (NaN
 * gives 0); all in float. AC4 keeps alpha as the widening conversions do.
 * Checks, in order: vMax - vMin not above 0 (qvnErrScaleRange), before any
 * other; a null pointer (qvnErrNullPointer); a width or height below 1
 * (qvnErrSize); a step below 1 (qvnErrStep). */
QVN_API QvnStatus qvniScale_8u32f_C1R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn32f vMin, Qvn32f vMax);
QVN_API QvnStatus qvniScale_8u32f_C3R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn32f vMin, Qvn32f vMax);
QVN_API QvnStatus qvniScale_8u32f_C4R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn32f vMin, Qvn32f vMax);
QVN_API QvnStatus qvniScale_8u32f_AC4R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn32f vMin, Qvn32f vMax);
QVN_API QvnStatus qvniScale_32f8u_C1R(const Qvn32f* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, Qvn32f vMin, Qvn32f vMax);
QVN_API QvnStatus qvniScale_32f8u_C3R(const Qvn32f* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, Qvn32f vMin, Qvn32f vMax);
QVN_API QvnStatus qvniScale_32f8u_C4R(const Qvn32f* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, Qvn32f vMin, Qvn32f vMax);
QVN_API QvnStatus qvniScale_32f8u_AC4R(const Qvn32f* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, Qvn32f vMin, Qvn32f vMax);

/* Linear mapping d = s * mVal + aVal, computed in double; integer results are
 * rounded to nearest with halves to even and saturated (NaN gives 0), 32f
 * results rounded to nearest. Every valid hint gives this result.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep); an invalid accuracy hint
 * (qvnErrAlgorithm). */
QVN_API QvnStatus qvniScaleC_8u8s_C1R(const Qvn8u* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8u16u_C1R(const Qvn8u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8u16s_C1R(const Qvn8u* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8u32s_C1R(const Qvn8u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8u32f_C1R(const Qvn8u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8u64f_C1R(const Qvn8u* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8s8u_C1R(const Qvn8s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8s16u_C1R(const Qvn8s* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8s16s_C1R(const Qvn8s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8s32s_C1R(const Qvn8s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8s32f_C1R(const Qvn8s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8s64f_C1R(const Qvn8s* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16u8u_C1R(const Qvn16u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16u8s_C1R(const Qvn16u* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16u16s_C1R(const Qvn16u* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16u32s_C1R(const Qvn16u* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16u32f_C1R(const Qvn16u* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16u64f_C1R(const Qvn16u* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16s8u_C1R(const Qvn16s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16s8s_C1R(const Qvn16s* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16s16u_C1R(const Qvn16s* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16s32s_C1R(const Qvn16s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16s32f_C1R(const Qvn16s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16s64f_C1R(const Qvn16s* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32s8u_C1R(const Qvn32s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32s8s_C1R(const Qvn32s* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32s16u_C1R(const Qvn32s* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32s16s_C1R(const Qvn32s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32s32f_C1R(const Qvn32s* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32s64f_C1R(const Qvn32s* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32f8u_C1R(const Qvn32f* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32f8s_C1R(const Qvn32f* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32f16u_C1R(const Qvn32f* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32f16s_C1R(const Qvn32f* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32f32s_C1R(const Qvn32f* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32f64f_C1R(const Qvn32f* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_64f8u_C1R(const Qvn64f* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_64f8s_C1R(const Qvn64f* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_64f16u_C1R(const Qvn64f* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_64f16s_C1R(const Qvn64f* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_64f32s_C1R(const Qvn64f* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_64f32f_C1R(const Qvn64f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8u_C1IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8s_C1R(const Qvn8s* pSrc, int srcStep, Qvn8s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_8s_C1IR(Qvn8s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16u_C1IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_16s_C1IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32s_C1R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32s_C1IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_64f_C1R(const Qvn64f* pSrc, int srcStep, Qvn64f* pDst, int dstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);
QVN_API QvnStatus qvniScaleC_64f_C1IR(Qvn64f* pSrcDst, int srcDstStep, QvnRoiSize roiSize, Qvn64f mVal, Qvn64f aVal, QvnAccuracyHint hint);

/* 1-bit to grey: each pixel becomes hiVal where its bit is 1, loVal where it
 * is 0. Eight pixels per byte, the first in the most significant bit;
 * srcBitOffset (0..7) is the bit of the first ROI pixel, counted from the
 * most significant one.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep); a bit offset outside 0..7
 * (qvnErrArgRange). */
QVN_API QvnStatus qvniBinToGray_1u8u_C1R(const Qvn8u* pSrc, int srcStep, int srcBitOffset, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, Qvn8u loVal, Qvn8u hiVal);
QVN_API QvnStatus qvniBinToGray_1u16u_C1R(const Qvn8u* pSrc, int srcStep, int srcBitOffset, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, Qvn16u loVal, Qvn16u hiVal);
QVN_API QvnStatus qvniBinToGray_1u16s_C1R(const Qvn8u* pSrc, int srcStep, int srcBitOffset, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, Qvn16s loVal, Qvn16s hiVal);
QVN_API QvnStatus qvniBinToGray_1u32f_C1R(const Qvn8u* pSrc, int srcStep, int srcBitOffset, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn32f loVal, Qvn32f hiVal);

/* Grey to 1-bit: a pixel greater than threshold sets its bit, any other
 * (NaN too) clears it. Bits are packed as for qvniBinToGray from dstBitOffset
 * on; bits of the first and last byte of a row outside the ROI keep their
 * value (those bytes are read and written whole).
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep); a bit offset outside 0..7
 * (qvnErrArgRange). */
QVN_API QvnStatus qvniGrayToBin_8u1u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, int dstBitOffset, QvnRoiSize roiSize, Qvn8u threshold);
QVN_API QvnStatus qvniGrayToBin_16u1u_C1R(const Qvn16u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, int dstBitOffset, QvnRoiSize roiSize, Qvn16u threshold);
QVN_API QvnStatus qvniGrayToBin_16s1u_C1R(const Qvn16s* pSrc, int srcStep, Qvn8u* pDst, int dstStep, int dstBitOffset, QvnRoiSize roiSize, Qvn16s threshold);
QVN_API QvnStatus qvniGrayToBin_32f1u_C1R(const Qvn32f* pSrc, int srcStep, Qvn8u* pDst, int dstStep, int dstBitOffset, QvnRoiSize roiSize, Qvn32f threshold);

/* Copies the ROI. AC4 never changes the destination's alpha (the vector
 * code may store it back as it read it; see qvnip_types.h).
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
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
 * ROI's size) is non-zero and keeps its value where it is zero (AC4: and the
 * alpha of every pixel); in blocks with a mixed mask the vector code may
 * store kept bytes back as it read them (qvnip_types.h).
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
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

/* One channel out: pSrc addresses the chosen channel of the first ROI pixel.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
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
 * the other channels never change (the vector code may store them back as
 * it read them; see qvnip_types.h).
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
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

/* One channel to the same channel: both pointers address it; the other
 * channels are kept as by the one-channel insert.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
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
 * back; C3AC4 never changes the destination alpha (the vector code may store
 * it back as it read it; see qvnip_types.h).
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
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

/* Interleaved pixels to planes and back; one step serves every plane.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
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
 * that will not be read soon); other bits are ignored.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniCopyManaged_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, int flags);

/* Every destination channel receives the source pixel's value.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniDup_8u_C1C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniDup_8u_C1C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize);

/* Destination channel i receives source channel dstOrder[i]: three entries
 * 0..2 for C3, four entries 0..3 for C4.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step of 0 (qvnErrStep; negative steps are used as
 * given); a channel-order entry out of range (qvnErrChannelOrder). */
QVN_API QvnStatus qvniSwapChannels_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_32s_C3R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);

/* Checks, in order: a null pSrc or pDst (qvnErrNullPointer); a step of 0
 * (qvnErrStep; negative steps are used as given); a width or height below 1
 * (qvnErrSize); a null dstOrder (qvnErrNullPointer); a channel-order entry out
 * of range (qvnErrChannelOrder). */
QVN_API QvnStatus qvniSwapChannels_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4]);
QVN_API QvnStatus qvniSwapChannels_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4]);
QVN_API QvnStatus qvniSwapChannels_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4]);
QVN_API QvnStatus qvniSwapChannels_32s_C4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4]);
QVN_API QvnStatus qvniSwapChannels_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4]);

/* AC4: three entries 0..2; the destination alpha never changes (the vector
 * code may store it back as it read it; see qvnip_types.h).
 * Checks, in order: a null pSrc or pDst (qvnErrNullPointer); a step of 0
 * (qvnErrStep; negative steps are used as given); a width or height below 1
 * (qvnErrSize); a null dstOrder (qvnErrNullPointer); a channel-order entry out
 * of range (qvnErrChannelOrder). */
QVN_API QvnStatus qvniSwapChannels_8u_AC4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_16u_AC4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_16s_AC4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_32s_AC4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);

/* Checks, in order: a null pSrcDst (qvnErrNullPointer); a step of 0
 * (qvnErrStep; negative steps are used as given); a width or height below 1
 * (qvnErrSize); a null dstOrder (qvnErrNullPointer); a channel-order entry out
 * of range (qvnErrChannelOrder). */
QVN_API QvnStatus qvniSwapChannels_8u_C3IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, const int dstOrder[3]);

/* Checks, in order: a null pointer (qvnErrNullPointer); a step of 0
 * (qvnErrStep; negative steps are used as given); a width or height below 1
 * (qvnErrSize); a channel-order entry out of range (qvnErrChannelOrder). */
QVN_API QvnStatus qvniSwapChannels_8u_C4IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, const int dstOrder[4]);

/* Three entries 0..3: the source alpha may go into a colour channel.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step of 0 (qvnErrStep; negative steps are used as
 * given); a channel-order entry out of range (qvnErrChannelOrder). */
QVN_API QvnStatus qvniSwapChannels_8u_C4C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_16u_C4C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_16s_C4C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_32s_C4C3R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);
QVN_API QvnStatus qvniSwapChannels_32f_C4C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[3]);

/* Four entries: 0..2 copies that source channel, 3 writes val, above 3 keeps
 * the destination channel (the vector code may store it back as it read it;
 * see qvnip_types.h); a negative entry is an error.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step of 0 (qvnErrStep; negative steps are used as
 * given); a channel-order entry out of range (qvnErrChannelOrder). */
QVN_API QvnStatus qvniSwapChannels_8u_C3C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4], Qvn8u val);
QVN_API QvnStatus qvniSwapChannels_16u_C3C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4], Qvn16u val);
QVN_API QvnStatus qvniSwapChannels_16s_C3C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4], Qvn16s val);
QVN_API QvnStatus qvniSwapChannels_32s_C3C4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4], Qvn32s val);
QVN_API QvnStatus qvniSwapChannels_32f_C3C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, const int dstOrder[4], Qvn32f val);

/* Mirrors the ROI: flip qvnAxisHorizontal (0) reverses the order of the rows,
 * qvnAxisVertical (1) reverses each row, qvnAxisBoth (2) does both (a half
 * turn); pixels move whole. In place, a one-row ROI about the horizontal axis
 * returns at once. An out-of-place call with the same pointer and step for
 * source and destination mirrors in place. AC4 never changes the
 * destination's alpha (the vector code may store it back as it read it; see
 * qvnip_types.h). The C4 forms of 8u, 16u and 32s write with non-temporal
 * stores once the bytes read and written reach 1,048,577 and the largest
 * cache.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); an axis other than 0, 1, 2, compared unsigned
 * (qvnErrAxis). Steps are not checked: a negative step walks the rows upward,
 * 0 repeats one row, a step shorter than a row overlaps rows ("steps" in
 * qvnip_types.h). */
QVN_API QvnStatus qvniMirror_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_8u_C1IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_8u_C3IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_8u_C4IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_8u_AC4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_8u_AC4IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16s_C1IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16s_C3IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16s_C4IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16s_AC4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16s_AC4IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16u_C1IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16u_C3IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16u_C4IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16u_AC4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_16u_AC4IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32f_C4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32f_AC4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32s_C1R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32s_C1IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32s_C3R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32s_C3IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32s_C4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32s_C4IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32s_AC4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize roiSize, QvnAxis flip);
QVN_API QvnStatus qvniMirror_32s_AC4IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize, QvnAxis flip);

/* Transposes: destination pixel (y, x) is source pixel (x, y); the
 * destination ROI is srcRoi with width and height exchanged. The same pointer
 * and step for source and destination is the in-place transpose, tested
 * before anything else. Pixels move in blocks, not row by row: where rows
 * overlap (a step shorter than a row) the bytes they share end up with one
 * of the values written to them.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
QVN_API QvnStatus qvniTranspose_8u_C1R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_8u_C3R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_8u_C4R(const Qvn8u* pSrc, int srcStep, Qvn8u* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_16s_C1R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_16s_C3R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_16s_C4R(const Qvn16s* pSrc, int srcStep, Qvn16s* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_16u_C1R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_16u_C3R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_16u_C4R(const Qvn16u* pSrc, int srcStep, Qvn16u* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_32s_C1R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_32s_C3R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_32s_C4R(const Qvn32s* pSrc, int srcStep, Qvn32s* pDst, int dstStep, QvnRoiSize srcRoi);
QVN_API QvnStatus qvniTranspose_32fc_C1R(const Qvn32fc* pSrc, int srcStep, Qvn32fc* pDst, int dstStep, QvnRoiSize srcRoi);

/* In place on a square ROI.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a width different from the height (qvnErrSize). Steps
 * are not checked: a negative step walks the rows upward, 0 repeats one row, a
 * step shorter than a row overlaps rows ("steps" in qvnip_types.h). */
QVN_API QvnStatus qvniTranspose_8u_C1IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_8u_C3IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_8u_C4IR(Qvn8u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_16s_C1IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_16s_C3IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_16s_C4IR(Qvn16s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_16u_C1IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_16u_C3IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_16u_C4IR(Qvn16u* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_32f_C4IR(Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_32s_C1IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_32s_C3IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniTranspose_32s_C4IR(Qvn32s* pSrcDst, int srcDstStep, QvnRoiSize roiSize);

/* Fills the ROI with one value (C1) or one pixel (C3 and AC4: 3 values, C4: 4
 * values). AC4 never changes the destination's alpha (the vector code may
 * store it back as it read it; see qvnip_types.h).
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
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
 * the ROI's size) is non-zero and keeps its value where it is zero (AC4: and
 * the alpha of every pixel); kept bytes are handled as by the masked copy.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
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
 * other channels never change (the vector code may store them back as it
 * read them; see qvnip_types.h).
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize). Steps are not checked: a negative step walks the rows
 * upward, 0 repeats one row, a step shorter than a row overlaps rows ("steps"
 * in qvnip_types.h). */
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
