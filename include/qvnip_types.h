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
 * 0 is success, a negative value an error (the call wrote nothing), a
 * positive value a warning (the result was written and is defined, but
 * something about it is special). Each family's header text says which
 * checks it makes, in which order; the first failing check decides. */
typedef int QvnStatus;
enum {
    qvnOk                   = 0,    /* success */
    qvnWarnNoOperation      = 1,    /* nothing done, not an error: an initialiser got a zero width or height; a min/max filter a 1 x 1 mask with a synthesised border */
    qvnWarnDivByZero        = 2,    /* a divisor was zero: all pixels written, those with the documented value */
    qvnWarnSqrtNegative     = 3,    /* a square root met a negative input; every pixel is written */
    qvnWarnLnZeroArg        = 7,    /* a logarithm met a zero input; every pixel is written */
    qvnWarnAntialiasIgnored = 46,   /* antialiasing was asked of a resize kind that has none; done without it */
    qvnWarnTileTooLarge     = 48,   /* a resize tile reaches beyond the destination size in the spec; done anyway */
    qvnWarnModeIgnored      = 52,   /* a filter initialiser's accuracy flag does not apply to this type and layout */

    qvnErrThreshold         = -5,   /* a float threshold below single-precision epsilon (1.1920929e-7) */
    qvnErrSize              = -6,   /* a width or height below 1 (of the ROI, the source or the destination) */
    qvnErrBounds            = -7,   /* a lower bound above its upper bound, in any channel */
    qvnErrNullPointer       = -8,   /* a required pointer is null */
    qvnErrDivByZero         = -10,  /* a constant divisor is zero (integer or float division by a constant) */
    qvnErrArgRange          = -11,  /* an integer argument outside its allowed range (say a bit offset above 7) */
    qvnErrScaleRange        = -12,  /* a value range whose maximum is not above its minimum */
    qvnErrBadSpec           = -13,  /* a spec that was not built for this operation or these parameters */
    qvnErrBadMode           = -14,  /* an option, or a combination of options, that the operation does not offer */
    qvnErrStep              = -16,  /* a row step below 1 (some families: only a step of 0) */
    qvnErrFftOrder          = -17,  /* an FFT order of 31 or more in either direction */
    qvnErrFftFlag           = -18,  /* an FFT or DFT normalisation flag other than 1, 2, 4 or 8 */
    qvnErrThresholdOrder    = -19,  /* an upper threshold below the lower one, in any channel */
    qvnErrAxis              = -22,  /* a mirror axis other than 0, 1 or 2 */
    qvnErrInterpolationKind = -23,  /* an interpolation kind that the operation does not offer */
    qvnErrMaskSize          = -33,  /* a mask, window or kernel width or height below 1 */
    qvnErrAnchor            = -34,  /* an anchor outside its mask (negative, or not below the mask's size) */
    qvnErrEpsilon           = -36,  /* a negative epsilon */
    qvnErrStepTooSmall      = -37,  /* a row step shorter than the bytes that one row of the operation needs */
    qvnErrChannel           = -47,  /* a channel count outside 1..4 given to a filter's size query */
    qvnErrAlphaKind         = -50,  /* an alpha-composition kind above 11 */
    qvnErrDivisor           = -51,  /* a zero divisor of an integer convolution */
    qvnErrChannelCount      = -53,  /* a channel count other than 1, 3 or 4 */
    qvnErrCoeffs            = -56,  /* transform coefficients that are singular or degenerate */
    qvnErrDataType          = -59,  /* a QvnDataType that the function does not accept */
    qvnErrChannelOrder      = -60,  /* a channel-order entry that names no source channel */
    qvnErrLutLevels         = -106, /* a lookup table with fewer than 2 levels */
    qvnErrHistLevels        = -107, /* a histogram with fewer than 2 levels in some channel */
    qvnErrStepMultiple      = -108, /* a row step that is not a whole number of elements (16-bit median filters) */
    qvnErrNoise             = -125, /* a noise level below 0 or not below 1 */
    qvnErrWeight            = -211, /* a centre weight of 0 or less */
    qvnErrRounding          = -213, /* a QvnRounding other than 0, 1 or 2 */
    qvnErrBorderKind        = -225, /* a QvnBorderKind (with its flags) that the operation does not support */
    qvnErrAlgorithm         = -228, /* a QvnAccuracyHint whose kind (low byte) is above 2, or with a bit of 16..23 set */
    qvnErrDirection         = -231, /* a warp direction other than 0 (forward) or 1 (backward) */
    qvnErrSizeOverflow      = -232  /* a derived size too large: work buffer over 2^31-1 bytes, dimension over 2^25-1 */
};

/* ---- steps ---------------------------------------------------------------
 * A step is the distance in bytes from the start of one row to the start of
 * the next: row y of an image starts y x step bytes after its pointer. The
 * families that check steps refuse a step below 1 with qvnErrStep (the
 * channel-order family refuses only 0). The others use any step as given:
 *  - a negative step walks the rows upward in memory (a bottom-up image:
 *    pass its last row and minus its step);
 *  - a step of 0 makes every row of the ROI the same memory row: a source
 *    row is read once per ROI row, a destination row is written once per ROI
 *    row (an in-place call applies its operation that many times over);
 *  - a step shorter than a row makes rows overlap: rows are done from the
 *    first to the last, so bytes that destination rows share keep the last
 *    row's result, and a row may read what the rows before it wrote.
 * In every case only the bytes of the ROI that pointer, step and size
 * describe are touched.
 *
 * ---- bytes that a call leaves as they are ---------------------------------
 * Some calls change only some channels of each destination pixel: the fourth
 * element of AC4 pixels, the other channels of a one-channel insert or fill
 * (C1C3, C1C4, C3CR, C4CR), pixels whose mask element is 0 (M forms), and
 * channels that a channel order keeps. Those bytes never change value, but
 * the vector code may read them and store them back with the value it read,
 * during the call: only a thread that writes the same bytes while the call
 * runs can tell (its write may be undone). Each family's text names what it
 * keeps.
 *
 * ---- builds for wider processors -------------------------------------------
 * The library holds code for SSE3, AVX2 and AVX-512 processors and picks the
 * widest one the processor and operating system support when it is loaded
 * (the version record names it). Every target gives the same result bits for
 * every call, with one exception: where a float result is NaN, its sign and
 * payload (which the hardware takes from one of the NaN operands) may differ
 * between targets. */

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

/* Mirror axis: the order of the rows reversed, each row reversed, or both. */
typedef int QvnAxis;
enum { qvnAxisHorizontal = 0, qvnAxisVertical = 1, qvnAxisBoth = 2 };

typedef int QvnInterpolation;
enum {
    qvnInterpNone    = 0,
    qvnInterpNearest = 1,
    qvnInterpLinear  = 2,
    qvnInterpCubic   = 6,
    qvnInterpSuper   = 8,
    qvnInterpLanczos = 16
};

/* ---- resize ------------------------------------------------------------- */
/* The resize spec: caller memory of the size qvniResizeGetSize reports,
 * filled by an Init function; opaque. */
typedef struct QvnResizeSpec QvnResizeSpec;
/* A point of the _L functions. */
typedef struct { QvnSizeL x; QvnSizeL y; } QvnPointL;
/* How many pixels beyond each edge of a source image an operation reads. */
typedef struct { Qvn32u borderLeft; Qvn32u borderTop; Qvn32u borderRight; Qvn32u borderBottom; } QvnBorderSize;

/* ---- affine warp --------------------------------------------------------- */
/* The affine warp spec: caller memory of the size qvniWarpAffineGetSize
 * reports, filled by a qvniWarpAffine*Init function; opaque. */
typedef struct QvnWarpAffineSpec QvnWarpAffineSpec;
/* Warp direction: the coefficients map source to destination (forward) or
 * destination to source (backward). */
enum { qvnWarpForward = 0, qvnWarpBackward = 1 };

/* Comparison masks hold 255 where the comparison holds and 0 elsewhere. */
typedef int QvnCompareOp;
enum {
    qvnCmpLess      = 0,
    qvnCmpLessEq    = 1,
    qvnCmpEq        = 2,
    qvnCmpGreaterEq = 3,
    qvnCmpGreater   = 4
};

/* Normalisation of the FFT and DFT (the flag of their size queries and
 * initialisers): each axis of length N multiplies the forward or the inverse
 * result by the factor named, so that the 2D factor is the product. */
enum {
    qvnFftDivFwdByN  = 1, /* forward times 1/N, inverse times 1 */
    qvnFftDivInvByN  = 2, /* forward times 1, inverse times 1/N */
    qvnFftDivBySqrtN = 4, /* both times 1/sqrt(N) */
    qvnFftNoDivByAny = 8  /* neither */
};

/* ---- specs ---------------------------------------------------------------
 * Precomputed state in caller memory of the size that the family's size
 * query reports; the library places it at the first 64-byte boundary of that
 * memory and never frees it. */
typedef struct QvnFilterBorderSpec QvnFilterBorderSpec;
typedef struct QvnFftSpec QvnFftSpec;
typedef struct QvnDftSpec QvnDftSpec;

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
