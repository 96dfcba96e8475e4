/* qvnIP transform: exported functions. Generated from api/transform*.txt by tools/apigen.py;
 * edit the table, not this file. */
#ifndef QVNIP_TRANSFORM_H
#define QVNIP_TRANSFORM_H

#include "qvnip_types.h"

QVN_BEGIN_DECLS


/* The 2D discrete Fourier transform F(v, u) = sum over y, x of
 * f(y, x) e^(-2 pi i (vy/H + ux/W)) and its inverse (e^(+2 pi i ...)),
 * through three calls: a size query gives the bytes of the spec, of the
 * init buffer (0: none needed, the pointer may be null) and of the work
 * buffer; the initialiser builds the spec in the caller's memory (aligned
 * inside it to 64 bytes); the transforms then read the spec, which any
 * number of threads may share, each with its own work buffer. The FFT takes
 * sides of 2^orderX by 2^orderY, the DFT any width and height. flag: qvnFftDivFwdByN, qvnFftDivInvByN, qvnFftDivBySqrtN or
 * qvnFftNoDivByAny (qvnip_types.h); each axis of length N applies its own
 * factor (1/sqrt(N) computed in double and stored in single precision).
 * hint is stored and changes nothing. Orders go to 28 for complex axes (the
 * columns of a real transform too) and to 30 for the rows of a real
 * transform; sizes that do not fit an int give qvnErrSizeOverflow.
 * Checks, in order: a null pointer (qvnErrNullPointer); an order above 30, or
 * above 28 along a complex axis or the columns of a real transform
 * (qvnErrFftOrder); a flag other than 1, 2, 4, 8 (qvnErrFftFlag); a size above
 * 2^31-1 bytes (qvnErrSizeOverflow). */
QVN_API QvnStatus qvniFFTGetSize_C_32fc(int orderX, int orderY, int flag, QvnAccuracyHint hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
QVN_API QvnStatus qvniFFTGetSize_R_32f(int orderX, int orderY, int flag, QvnAccuracyHint hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);

/* The initialisers check their arguments before they write anything.
 * Checks, in order: an order of 31 or more along either axis (qvnErrFftOrder);
 * a null pSpec (qvnErrNullPointer); an order above 30, or above 28 along a
 * complex axis or the columns of a real transform (qvnErrFftOrder); a flag
 * other than 1, 2, 4, 8 (qvnErrFftFlag); a size above 2^31-1 bytes
 * (qvnErrSizeOverflow). */
QVN_API QvnStatus qvniFFTInit_C_32fc(int orderX, int orderY, int flag, QvnAccuracyHint hint, QvnFftSpec* pSpec, Qvn8u* pMemInit);
QVN_API QvnStatus qvniFFTInit_R_32f(int orderX, int orderY, int flag, QvnAccuracyHint hint, QvnFftSpec* pSpec, Qvn8u* pMemInit);

/* Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a flag other than 1, 2, 4, 8 (qvnErrFftFlag); a size
 * above 2^31-1 bytes (qvnErrSizeOverflow). */
QVN_API QvnStatus qvniDFTGetSize_C_32fc(QvnRoiSize roiSize, int flag, QvnAccuracyHint hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);
QVN_API QvnStatus qvniDFTGetSize_R_32f(QvnRoiSize roiSize, int flag, QvnAccuracyHint hint, int* pSpecSize, int* pInitBufSize, int* pBufSize);

/* Checks, in order: a null pSpec (qvnErrNullPointer); a width or height below
 * 1 (qvnErrSize); a flag other than 1, 2, 4, 8 (qvnErrFftFlag); a size above
 * 2^31-1 bytes (qvnErrSizeOverflow); a null pMemInit where the init buffer is
 * not of size 0 (qvnErrNullPointer). */
QVN_API QvnStatus qvniDFTInit_C_32fc(QvnRoiSize roiSize, int flag, QvnAccuracyHint hint, QvnDftSpec* pSpec, Qvn8u* pMemInit);
QVN_API QvnStatus qvniDFTInit_R_32f(QvnRoiSize roiSize, int flag, QvnAccuracyHint hint, QvnDftSpec* pSpec, Qvn8u* pMemInit);

/* Real image to packed spectrum (RToPack) and back (PackToR). The packed
 * spectrum of a W x H image is W x H floats: columns 0 and (even W) W-1
 * hold the spectra of real columns, F(0, c) in row 0, the real and
 * imaginary parts of F(k, c) in rows 2k-1 and 2k, F(H/2, c) in row H-1 for
 * even H (c = 0, W/2); every other row v holds F(v, u) as a pair in
 * columns 2u-1 and 2u, u = 1..(W-1)/2. The rest follows from
 * F(v, u) = conj F(-v, -u). Channels are transformed one by one, each into
 * its own spectrum in the same interleaved layout; AC4 leaves alpha as it
 * is. Rows are transformed first, then columns (the inverse backwards).
 * Accuracy, measured against the transform in double precision: the
 * largest error is below 1.6 single-precision ulp times log2(W H) of the
 * largest magnitude of the exact result, below 0.5 of them from 256
 * points up (0.16 at 1024 x 1024 and 4096 x 2048, 0.3 for the prime
 * lengths of Bluestein's algorithm); the FFT and the DFT of a power-of-two
 * size agree to that.
 * Checks, in order: a null pSpec (qvnErrNullPointer); a spec of another kind
 * (qvnErrBadSpec); a null image or work-buffer pointer (qvnErrNullPointer); a
 * step below 1 (qvnErrStep). */
QVN_API QvnStatus qvniFFTFwd_RToPack_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTFwd_RToPack_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTFwd_RToPack_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTFwd_RToPack_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTFwd_RToPack_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTFwd_RToPack_32f_C4IR(Qvn32f* pSrcDst, int srcDstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTFwd_RToPack_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTFwd_RToPack_32f_AC4IR(Qvn32f* pSrcDst, int srcDstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTInv_PackToR_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTInv_PackToR_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTInv_PackToR_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTInv_PackToR_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTInv_PackToR_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTInv_PackToR_32f_C4IR(Qvn32f* pSrcDst, int srcDstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTInv_PackToR_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTInv_PackToR_32f_AC4IR(Qvn32f* pSrcDst, int srcDstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTFwd_RToPack_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTFwd_RToPack_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTFwd_RToPack_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTFwd_RToPack_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTFwd_RToPack_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTFwd_RToPack_32f_C4IR(Qvn32f* pSrcDst, int srcDstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTFwd_RToPack_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTFwd_RToPack_32f_AC4IR(Qvn32f* pSrcDst, int srcDstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTInv_PackToR_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTInv_PackToR_32f_C1IR(Qvn32f* pSrcDst, int srcDstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTInv_PackToR_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTInv_PackToR_32f_C3IR(Qvn32f* pSrcDst, int srcDstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTInv_PackToR_32f_C4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTInv_PackToR_32f_C4IR(Qvn32f* pSrcDst, int srcDstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTInv_PackToR_32f_AC4R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTInv_PackToR_32f_AC4IR(Qvn32f* pSrcDst, int srcDstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);

/* Complex image to complex spectrum and back.
 * Checks, in order: a null pSpec (qvnErrNullPointer); a spec of another kind
 * (qvnErrBadSpec); a null image or work-buffer pointer (qvnErrNullPointer); a
 * step below 1 (qvnErrStep). */
QVN_API QvnStatus qvniFFTFwd_CToC_32fc_C1R(const Qvn32fc* pSrc, int srcStep, Qvn32fc* pDst, int dstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTFwd_CToC_32fc_C1IR(Qvn32fc* pSrcDst, int srcDstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTInv_CToC_32fc_C1R(const Qvn32fc* pSrc, int srcStep, Qvn32fc* pDst, int dstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniFFTInv_CToC_32fc_C1IR(Qvn32fc* pSrcDst, int srcDstStep, const QvnFftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTFwd_CToC_32fc_C1R(const Qvn32fc* pSrc, int srcStep, Qvn32fc* pDst, int dstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTFwd_CToC_32fc_C1IR(Qvn32fc* pSrcDst, int srcDstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTInv_CToC_32fc_C1R(const Qvn32fc* pSrc, int srcStep, Qvn32fc* pDst, int dstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);
QVN_API QvnStatus qvniDFTInv_CToC_32fc_C1IR(Qvn32fc* pSrcDst, int srcDstStep, const QvnDftSpec* pSpec, Qvn8u* pBuffer);

/* Products of packed spectra (the layout of qvniFFTFwd_RToPack) in the
 * complex sense: each pair (columns 2u-1, 2u) and each split pair of the
 * real columns 0 and (even W) W-1 (rows 2k-1, 2k) as a complex number, the real
 * entries (rows 0 and H-1 of those columns) as reals. MulPack gives
 * src1 x src2; MulPackConj gives src1 x conj(src2), (a c + b d, b c - a d)
 * for (a, b) of src1 and (c, d) of src2 (the in-place forms write it over
 * src2). Each part is rounded as written there; AC4 leaves alpha as it is.
 * Checks, in order: a null pointer (qvnErrNullPointer); a step below 1
 * (qvnErrStep); a width or height below 1 (qvnErrSize). */
QVN_API QvnStatus qvniMulPack_32f_C1R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPack_32f_C1IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPack_32f_C3R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPack_32f_C3IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPack_32f_C4R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPack_32f_C4IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPack_32f_AC4R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPack_32f_AC4IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPackConj_32f_C1R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPackConj_32f_C1IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPackConj_32f_C3R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPackConj_32f_C3IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPackConj_32f_C4R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPackConj_32f_C4IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPackConj_32f_AC4R(const Qvn32f* pSrc1, int src1Step, const Qvn32f* pSrc2, int src2Step, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMulPackConj_32f_AC4IR(const Qvn32f* pSrc, int srcStep, Qvn32f* pSrcDst, int srcDstStep, QvnRoiSize roiSize);

/* Magnitude (|F|) and phase (atan2(Im F, Re F), in [-pi, pi]) of every
 * frequency of a packed spectrum, written as the W x H image of the full
 * spectrum: dst(x, y) is the value of F(y, x), the frequencies the packed
 * form does not hold following from conjugate symmetry. pBuffer holds one
 * expanded row: qvniMagnitudePackGetBufferSize_32f and
 * qvniPhasePackGetBufferSize_32f give 8 x width + 64 bytes for one channel,
 * 24 x width + 64 for three. Results are computed in double precision and
 * rounded once (phase: within 1 ulp).
 * Checks, in order: a null pointer (qvnErrNullPointer); a step below 1
 * (qvnErrStep); a width or height below 1 (qvnErrSize). */
QVN_API QvnStatus qvniMagnitudePack_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn8u* pBuffer);
QVN_API QvnStatus qvniMagnitudePack_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn8u* pBuffer);
QVN_API QvnStatus qvniPhasePack_32f_C1R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn8u* pBuffer);
QVN_API QvnStatus qvniPhasePack_32f_C3R(const Qvn32f* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize, Qvn8u* pBuffer);

/* Checks, in order: a null pointer (qvnErrNullPointer); a width below 1
 * (qvnErrSize); a channel count other than 1 or 3 (qvnErrChannelCount); a size
 * above 2^31-1 bytes (qvnErrSizeOverflow). */
QVN_API QvnStatus qvniMagnitudePackGetBufferSize_32f(int numChannels, int width, int* pSize);
QVN_API QvnStatus qvniPhasePackGetBufferSize_32f(int numChannels, int width, int* pSize);

/* Full complex spectrum (W x H) to packed form: the entries the packed
 * layout keeps, taken as they are; and a packed spectrum to the full complex
 * one, conjugate symmetry filling in the rest.
 * Checks, in order: a null pointer (qvnErrNullPointer); a step below 1
 * (qvnErrStep); a width or height below 1 (qvnErrSize). */
QVN_API QvnStatus qvniCplxExtendToPack_32fc32f_C1R(const Qvn32fc* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniCplxExtendToPack_32fc32f_C3R(const Qvn32fc* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniPackToCplxExtend_32f32fc_C1R(const Qvn32f* pSrc, int srcStep, Qvn32fc* pDst, int dstStep, QvnRoiSize roiSize);

/* Magnitude and phase of every element of a complex image, computed in
 * double precision and rounded once (phase in [-pi, pi], within 1 ulp;
 * atan2's signed zeros and infinities); PolarToCart gives magnitude x
 * (cos phase, sin phase), within 1 ulp of the exact product, and NaN for
 * phases that are infinite, NaN or of magnitude 2^30 or more.
 * Checks, in order: a null pointer (qvnErrNullPointer); a width or height
 * below 1 (qvnErrSize); a step below 1 (qvnErrStep). */
QVN_API QvnStatus qvniMagnitude_32fc32f_C1R(const Qvn32fc* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniMagnitude_32fc32f_C3R(const Qvn32fc* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniPhase_32fc32f_C1R(const Qvn32fc* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniPhase_32fc32f_C3R(const Qvn32fc* pSrc, int srcStep, Qvn32f* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniPolarToCart_32fc_C1R(const Qvn32f* pSrcMagn, int srcMagnStep, const Qvn32f* pSrcPhase, int srcPhaseStep, Qvn32fc* pDst, int dstStep, QvnRoiSize roiSize);
QVN_API QvnStatus qvniPolarToCart_32fc_C3R(const Qvn32f* pSrcMagn, int srcMagnStep, const Qvn32f* pSrcPhase, int srcPhaseStep, Qvn32fc* pDst, int dstStep, QvnRoiSize roiSize);

QVN_END_DECLS

#endif /* QVNIP_TRANSFORM_H */
