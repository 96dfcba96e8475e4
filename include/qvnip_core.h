/* qvnIP core: exported functions. Generated from api/core*.txt by tools/apigen.py;
 * edit the table, not this file. */
#ifndef QVNIP_CORE_H
#define QVNIP_CORE_H

#include "qvnip_types.h"

QVN_BEGIN_DECLS


/* Allocates an image of widthPixels x heightPixels pixels. The row step, a
 * multiple of 64 bytes, is written through pStepBytes (0 when the size is
 * rejected before the step is known). Returns the first pixel, 64-byte
 * aligned, or null. Release with qvniFree. */
QVN_API Qvn8u* qvniMalloc_8u_C1(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn8u* qvniMalloc_8u_C1_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn8u* qvniMalloc_8u_C2(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn8u* qvniMalloc_8u_C2_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn8u* qvniMalloc_8u_C3(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn8u* qvniMalloc_8u_C3_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn8u* qvniMalloc_8u_C4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn8u* qvniMalloc_8u_C4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn8u* qvniMalloc_8u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn8u* qvniMalloc_8u_AC4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn16u* qvniMalloc_16u_C1(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn16u* qvniMalloc_16u_C1_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn16u* qvniMalloc_16u_C2(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn16u* qvniMalloc_16u_C2_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn16u* qvniMalloc_16u_C3(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn16u* qvniMalloc_16u_C3_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn16u* qvniMalloc_16u_C4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn16u* qvniMalloc_16u_C4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn16u* qvniMalloc_16u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn16u* qvniMalloc_16u_AC4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn16s* qvniMalloc_16s_C1(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn16s* qvniMalloc_16s_C1_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn16s* qvniMalloc_16s_C2(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn16s* qvniMalloc_16s_C2_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn16s* qvniMalloc_16s_C3(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn16s* qvniMalloc_16s_C3_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn16s* qvniMalloc_16s_C4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn16s* qvniMalloc_16s_C4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn16s* qvniMalloc_16s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn16s* qvniMalloc_16s_AC4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32s* qvniMalloc_32s_C1(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32s* qvniMalloc_32s_C1_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32s* qvniMalloc_32s_C2(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32s* qvniMalloc_32s_C2_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32s* qvniMalloc_32s_C3(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32s* qvniMalloc_32s_C3_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32s* qvniMalloc_32s_C4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32s* qvniMalloc_32s_C4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32s* qvniMalloc_32s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32s* qvniMalloc_32s_AC4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32f* qvniMalloc_32f_C1(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32f* qvniMalloc_32f_C1_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32f* qvniMalloc_32f_C2(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32f* qvniMalloc_32f_C2_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32f* qvniMalloc_32f_C3(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32f* qvniMalloc_32f_C3_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32f* qvniMalloc_32f_C4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32f* qvniMalloc_32f_C4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32f* qvniMalloc_32f_AC4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32f* qvniMalloc_32f_AC4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32sc* qvniMalloc_32sc_C1(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32sc* qvniMalloc_32sc_C1_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32sc* qvniMalloc_32sc_C2(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32sc* qvniMalloc_32sc_C2_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32sc* qvniMalloc_32sc_C3(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32sc* qvniMalloc_32sc_C3_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32sc* qvniMalloc_32sc_C4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32sc* qvniMalloc_32sc_C4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32sc* qvniMalloc_32sc_AC4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32sc* qvniMalloc_32sc_AC4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32fc* qvniMalloc_32fc_C1(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32fc* qvniMalloc_32fc_C1_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32fc* qvniMalloc_32fc_C2(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32fc* qvniMalloc_32fc_C2_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32fc* qvniMalloc_32fc_C3(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32fc* qvniMalloc_32fc_C3_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32fc* qvniMalloc_32fc_C4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32fc* qvniMalloc_32fc_C4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);
QVN_API Qvn32fc* qvniMalloc_32fc_AC4(int widthPixels, int heightPixels, int* pStepBytes);
QVN_API Qvn32fc* qvniMalloc_32fc_AC4_L(QvnSizeL widthPixels, QvnSizeL heightPixels, QvnSizeL* pStepBytes);

/* Releases an image from any qvniMalloc function. */
QVN_API void qvniFree(void* ptr);

/* The version record of this build; never null, never to be freed. */
QVN_API const QvnVersionInfo* qvniGetLibVersion(void);

QVN_END_DECLS

#endif /* QVNIP_CORE_H */
