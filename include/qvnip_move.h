/* qvnIP move: exported functions. Generated from api/move*.txt by tools/apigen.py;
 * edit the table, not this file. */
#ifndef QVNIP_MOVE_H
#define QVNIP_MOVE_H

#include "qvnip_types.h"

QVN_BEGIN_DECLS


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

QVN_END_DECLS

#endif /* QVNIP_MOVE_H */
