/* qvnIP: shared types, enumerations and status codes.
 *
 * Every exported function of the library returns a QvnStatus (or a pointer for
 * the allocation and version functions), takes images as a pointer to the
 * first pixel of the region of interest plus a row step in bytes, and keeps no
 * state between calls. This header is valid C99 and C++.
 */
#ifndef QVNIP_TYPES_H
#define QVNIP_TYPES_H

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32)
#  define QVN_API_EXPORT __declspec(dllexport)
#else
#  define QVN_API_EXPORT __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
#  define QVN_EXTERN_C extern "C"
#  define QVN_BEGIN_DECLS extern "C" {
#  define QVN_END_DECLS }
#else
#  define QVN_EXTERN_C
#  define QVN_BEGIN_DECLS
#  define QVN_END_DECLS
#endif

/* Declarations carry the export attribute; the build exports nothing else. */
#define QVN_API QVN_EXTERN_C QVN_API_EXPORT

QVN_BEGIN_DECLS

/* ---- element types ---------------------------------------------------- */
typedef uint8_t  Qvn8u;
typedef int8_t   Qvn8s;
typedef uint16_t Qvn16u;
typedef int16_t  Qvn16s;
typedef uint32_t Qvn32u;
typedef int32_t  Qvn32s;
typedef int64_t  Qvn64s;
typedef float    Qvn32f;
typedef double   Qvn64f;
typedef struct { Qvn32s re, im; } Qvn32sc;
typedef struct { Qvn32f re, im; } Qvn32fc;
typedef struct { Qvn64f re, im; } Qvn64fc;

/* 64-bit size and step of the _L functions. */
typedef int64_t QvnSizeL;

/* ---- geometry ---------------------------------------------------------- */
/* Width counts pixels, not bytes or channel elements. */
typedef struct { int width; int height; } QvnRoiSize;
typedef struct { QvnSizeL width; QvnSizeL height; } QvnRoiSizeL;
typedef struct { int x; int y; } QvnPoint;
typedef struct { int x; int y; int width; int height; } QvnRect;

/* ---- status codes ------------------------------------------------------
 * 0 is success, a negative value an error (nothing was written), a positive
 * value a warning (the result was written and is defined). */
typedef int QvnStatus;
enum {
    qvnOk                   = 0,
    qvnWarnNoOperation      = 1,
    qvnWarnDivByZero        = 2,
    qvnWarnSqrtNegative     = 3,
    qvnWarnLnZeroArg        = 7,
    qvnWarnAntialiasIgnored = 46,
    qvnWarnTileTooLarge     = 48,
    qvnWarnModeIgnored      = 52,

    qvnErrThreshold         = -5,
    qvnErrSize              = -6,
    qvnErrBounds            = -7,
    qvnErrNullPointer       = -8,
    qvnErrDivByZero         = -10,
    qvnErrArgRange          = -11,
    qvnErrScaleRange        = -12,
    qvnErrBadSpec           = -13,
    qvnErrBadMode           = -14,
    qvnErrStep              = -16,
    qvnErrFftOrder          = -17,
    qvnErrFftFlag           = -18,
    qvnErrThresholdOrder    = -19,
    qvnErrAxis              = -22,
    qvnErrInterpolationKind = -23,
    qvnErrMaskSize          = -33,
    qvnErrAnchor            = -34,
    qvnErrEpsilon           = -36,
    qvnErrStepTooSmall      = -37,
    qvnErrChannel           = -47,
    qvnErrAlphaKind         = -50,
    qvnErrDivisor           = -51,
    qvnErrChannelCount      = -53,
    qvnErrCoeffs            = -56,
    qvnErrDataType          = -59,
    qvnErrChannelOrder      = -60,
    qvnErrLutLevels         = -106,
    qvnErrHistLevels        = -107,
    qvnErrStepMultiple      = -108,
    qvnErrNoise             = -125,
    qvnErrWeight            = -211,
    qvnErrRounding          = -213,
    qvnErrBorderKind        = -225,
    qvnErrAlgorithm         = -228,
    qvnErrDirection         = -231,
    qvnErrSizeOverflow      = -232
};

/* ---- argument enumerations --------------------------------------------- */
/* Element type code of functions that take the type as an argument. */
typedef int QvnDataType;
enum { qvn8u = 1, qvn16u = 5, qvn16s = 7, qvn32f = 13, qvn64f = 19 };

/* Rounding of a value to an integer. */
typedef int QvnRounding;
enum {
    qvnRndZero      = 0, /* toward zero */
    qvnRndNear      = 1, /* to nearest, halves to even */
    qvnRndFinancial = 2  /* to nearest, halves away from zero */
};

/* Speed/accuracy selection: kind 0..2 in the low byte; bits 16..23 reserved. */
typedef int QvnAccuracyHint;
enum { qvnAlgHintNone = 0, qvnAlgHintFast = 1, qvnAlgHintAccurate = 2 };

/* Border kind in the low four bits, in-memory flags above it. */
typedef int QvnBorderKind;
enum {
    qvnBorderReplicate   = 1,
    qvnBorderMirror      = 3,
    qvnBorderMirrorEdge  = 4,
    qvnBorderConstant    = 6,
    qvnBorderTransparent = 7,
    qvnBorderInMemTop    = 16,
    qvnBorderInMemBottom = 32,
    qvnBorderInMemLeft   = 64,
    qvnBorderInMemRight  = 128,
    qvnBorderInMem       = 240
};

typedef int QvnInterpolation;
enum {
    qvnInterpNone    = 0,
    qvnInterpNearest = 1,
    qvnInterpLinear  = 2,
    qvnInterpCubic   = 6,
    qvnInterpSuper   = 8,
    qvnInterpLanczos = 16
};

/* Comparison masks hold 255 where the comparison holds and 0 elsewhere. */
typedef int QvnCompareOp;
enum {
    qvnCmpLess      = 0,
    qvnCmpLessEq    = 1,
    qvnCmpEq        = 2,
    qvnCmpGreaterEq = 3,
    qvnCmpGreater   = 4
};

/* ---- version record ---------------------------------------------------- */
typedef struct {
    int         major;
    int         minor;
    int         majorBuild;
    int         build;
    char        targetCpu[4];
    const char* name;
    const char* version;
    const char* buildDate;
} QvnVersionInfo;

QVN_END_DECLS

#endif /* QVNIP_TYPES_H */
