/* qvncore: the companion core library of qvnIP.
 *
 * Aligned allocation, the size of the processor's largest data cache and one
 * processor-feature query. Valid C99 and C++.
 */
#ifndef QVNCORE_H
#define QVNCORE_H

#include "qvnip_types.h"

QVN_BEGIN_DECLS

/* Alignment of every block that qvnMalloc and qvnMalloc_L return. */
#define QVN_MALLOC_ALIGNMENT 64

/* Allocates size bytes aligned to QVN_MALLOC_ALIGNMENT; null when size < 1 or
 * the memory cannot be had. Release with qvnFree. */
QVN_API void* qvnMalloc(int size);
/* The same with a 64-bit size. */
QVN_API void* qvnMalloc_L(QvnSizeL size);
/* Releases a block from qvnMalloc or qvnMalloc_L; null is ignored. */
QVN_API void qvnFree(void* ptr);

/* Writes the size in bytes of the largest data cache of the running processor
 * through pSize. Returns 0 on success; non-zero (with 0 written) when the size
 * cannot be told, or qvnErrNullPointer when pSize is null. */
QVN_API QvnStatus qvnGetMaxCacheSizeB(int* pSize);

/* Feature bits that ownGetFeature answers, from CPUID. */
#define qvnCpuSSE      0x1ULL
#define qvnCpuSSE2     0x2ULL
#define qvnCpuSSE3     0x4ULL
#define qvnCpuSSSE3    0x8ULL
#define qvnCpuSSE41    0x10ULL
#define qvnCpuSSE42    0x20ULL
#define qvnCpuPOPCNT   0x40ULL
#define qvnCpuMOVBE    0x80ULL
#define qvnCpuAVX      0x100ULL
#define qvnCpuF16C     0x400ULL
#define qvnCpuLZCNT    0x800ULL
#define qvnCpuFMA      0x1000ULL
#define qvnCpuBMI1     0x2000ULL
#define qvnCpuBMI2     0x4000ULL
#define qvnCpuAVX2     0x8000ULL
#define qvnCpuAVX512F  0x10000ULL
#define qvnCpuAVX512CD 0x20000ULL
#define qvnCpuAVX512BW 0x40000ULL
#define qvnCpuAVX512DQ 0x80000ULL
#define qvnCpuAVX512VL 0x100000ULL
/* Asked by the general border filter's size query: the running build may use
 * the wider per-row scratch area (set when AVX-512F is usable). */
#define qvnCpuWideScratch 0x8000000ULL

/* Non-zero when every bit of mask is a feature of the running processor that
 * its operating system has enabled. */
QVN_API int ownGetFeature(Qvn64s mask);

QVN_END_DECLS

#endif /* QVNCORE_H */
