// The affine warp's set-up: the spec record and what builds and reads it (the
// size query, the Inits, the work-buffer query, the source rectangle of a
// tile), and the coefficient utilities (rotation shifts, the quadrangle and
// bound of a rectangle).
//
// Positions. Destination pixel (x, y) (absolute, whatever the tile) has its
// centre at source position
//   X = (m[0][1] * y + m[0][2]) + m[0][0] * x,  Y = (m[1][1] * y + m[1][2]) + m[1][0] * x
// in double, m the backward coefficients (the given ones, or their inverse for
// the forward direction), each then clamped to +-2^30 (far outside every
// source). Source pixel (i, j) has its centre at (i, j). Nearest takes the
// pixel floor(X + 0.5), floor(Y + 0.5); linear the taps floor(X) and
// floor(X) + 1 with weight f = X - floor(X) of the second (in float); cubic
// the taps floor(X) - 1 .. floor(X) + 2.
//
// The extended source. A side whose in-memory flag is set has as many
// columns (rows) of real pixels beyond the edge as the kernel reaches (its
// margin: 0 nearest, 1 linear, 2 cubic); the source with those margins is
// the extended source E, and every border rule works on E: replicate takes
// E's nearest pixel, constant the border value for every tap outside E, and
// the transparent kinds (7, and 240) write only the pixels whose position
// lies in the hull of E's pixel centres (nearest: whose pixel lies in E).
#ifndef QVN_GEOM_WARP_SPEC_INL_H
#define QVN_GEOM_WARP_SPEC_INL_H

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/check-inl.h"
#include "core/fpround-inl.h"
#include "core/spec-inl.h"
#include "geom/resize-spec-inl.h"

QVN_TARGET_BEGIN
namespace geom {
namespace warp {

inline constexpr std::uint32_t kId = 0x4B617394;   // built by the 32-bit Inits
inline constexpr std::uint32_t kIdL = 0x4B617395;  // built by the _L Inits
inline constexpr std::int64_t kMaxSide = resize::kMaxSideL;
inline constexpr std::int64_t kMaxBytes32 = resize::kMaxBytes32;
// Positions are clamped to this distance: beyond every source, and their
// floor fits 32 bits.
inline constexpr double kFar = 1073741824.0;  // 2^30

struct Spec {
    std::uint32_t id;
    std::int32_t dataType;   // QvnDataType of the images
    std::int32_t kind;       // QvnInterpolation
    std::int32_t channels;   // 1, 3 or 4
    std::int32_t direction;  // as given
    std::int32_t border;     // the validated QvnBorderKind
    std::int32_t smoothEdge;
    std::int32_t margin[4];  // real pixels beyond the left, top, right and bottom edges
    std::int32_t reserved0;
    std::int64_t srcWidth, srcHeight, dstWidth, dstHeight;
    double coeffs[2][3];     // as given
    double map[2][3];        // destination to source
    double value[4];         // the border value as given (constant kind)
    double valueB, valueC;   // the cubic's parameters
    // The cubic's weights of the four taps of a fraction f, lane i at
    // t_i = (1 + f, f, 1 - f, 2 - f): ((p[0] t + p[1]) t + p[2]) t + p[3],
    // lanes 0 and 3 the outer piece (1 <= |t| < 2), 1 and 2 the inner one.
    float poly[4][4];
    float fill[4];           // the border value as a tap: the image type's value, in float
    unsigned char fillPixel[16];  // the border value in the image type
};
static_assert(sizeof(Spec) % 16 == 0, "a whole number of vectors");

inline constexpr bool isTransparent(int border) { return (border & 0xF) == qvnBorderTransparent || border == qvnBorderInMem; }

// The border kinds of the warp: exactly 240, or a value below 256 whose kind
// is 1, 6 or 7, flags free.
inline bool borderAccepted(int border) {
    if (unsigned(border) >= 256u) return false;
    const int kind = border & 0xF;
    return border == qvnBorderInMem || kind == qvnBorderReplicate || kind == qvnBorderConstant ||
           kind == qvnBorderTransparent;
}

// Tap reach of a kind: taps before and after floor(X) (nearest: its pixel).
inline int tapsBefore(int kind) { return kind == qvnInterpCubic ? 1 : 0; }
inline int tapsAfter(int kind) { return kind == qvnInterpNearest ? 0 : kind == qvnInterpLinear ? 1 : 2; }

// ---- coefficients -------------------------------------------------------------------

inline bool finite(const double c[2][3]) {
    for (int r = 0; r < 2; ++r)
        for (int k = 0; k < 3; ++k)
            if (!std::isfinite(c[r][k])) return false;
    return true;
}

// The Part's relative singularity test: with a = c11 c00 and b = c10 c01,
// r = |(a - b) / a| when |a| > 1e-200, else |b|; singular unless r > 1e-10.
// Coefficients that are not finite count as singular too.
inline bool singular(const double c[2][3]) {
    if (!finite(c)) return true;
    const double a = c[1][1] * c[0][0], b = c[1][0] * c[0][1];
    const double r = std::fabs(a) > 1e-200 ? std::fabs((a - b) / a) : std::fabs(b);
    return !(r > 1e-10);
}

// The inverse of the affine map c, in this order of operations.
inline void invert(const double c[2][3], double out[2][3]) {
    const double det = c[0][0] * c[1][1] - c[0][1] * c[1][0];
    out[0][0] = c[1][1] / det, out[0][1] = -c[0][1] / det;
    out[1][0] = -c[1][0] / det, out[1][1] = c[0][0] / det;
    out[0][2] = -(out[0][0] * c[0][2] + out[0][1] * c[1][2]);
    out[1][2] = -(out[1][0] * c[0][2] + out[1][1] * c[1][2]);
}

// The backward map of c for a direction; false when it is not finite.
inline bool backward(const double c[2][3], int direction, double out[2][3]) {
    if (direction == qvnWarpBackward) std::memcpy(out, c, 6 * sizeof(double));
    else invert(c, out);
    return finite(out);
}

// ---- positions --------------------------------------------------------------------

// v clamped to +-kFar as the vector pass does (maxpd, then minpd: a NaN
// becomes -kFar), plus 0 (a -0 becomes +0).
inline double clampFar(double v) {
    v = v > -kFar ? v : -kFar;
    return (v < kFar ? v : kFar) + 0.0;
}
// Axis a's position of destination pixel (x, y), before the clamp.
inline double rowTerm(const Spec* s, int a, std::int64_t y) { return s->map[a][1] * double(y) + s->map[a][2]; }
inline double position(const Spec* s, int a, std::int64_t x, std::int64_t y) {
    return clampFar(rowTerm(s, a, y) + s->map[a][0] * double(x));
}
// The first tap (nearest: the pixel) of a clamped position.
inline std::int64_t firstTap(int kind, double p) {
    return std::int64_t(std::floor(kind == qvnInterpNearest ? p + 0.5 : p)) - tapsBefore(kind);
}

// A rectangle of source pixels, both ends included.
struct Span {
    std::int64_t x0, y0, x1, y1;
};

// The taps of a destination rectangle, unclamped: positions are monotonic
// along each axis of the destination, so the corners bound them.
inline Span tileTaps(const Spec* s, std::int64_t ox, std::int64_t oy, std::int64_t w, std::int64_t h) {
    Span t{INT64_MAX, INT64_MAX, INT64_MIN, INT64_MIN};
    const int last = tapsBefore(s->kind) + tapsAfter(s->kind);
    for (const std::int64_t y : {oy, oy + h - 1})
        for (const std::int64_t x : {ox, ox + w - 1}) {
            const std::int64_t i = firstTap(s->kind, position(s, 0, x, y)), j = firstTap(s->kind, position(s, 1, x, y));
            t.x0 = std::min(t.x0, i), t.x1 = std::max(t.x1, i + last);
            t.y0 = std::min(t.y0, j), t.y1 = std::max(t.y1, j + last);
        }
    return t;
}
// t clamped to [lo, hi] on each axis (at least one pixel).
inline Span clampSpan(Span t, Span limit) {
    const auto axis = [](std::int64_t& a, std::int64_t& b, std::int64_t lo, std::int64_t hi) {
        a = std::min(std::max(a, lo), hi), b = std::min(std::max(b, lo), hi);
    };
    axis(t.x0, t.x1, limit.x0, limit.x1);
    axis(t.y0, t.y1, limit.y0, limit.y1);
    return t;
}
// The source image, and the extended source (with the in-memory margins).
inline Span image(const Spec* s) { return {0, 0, s->srcWidth - 1, s->srcHeight - 1}; }
inline Span extended(const Spec* s) {
    return {-s->margin[0], -s->margin[1], s->srcWidth - 1 + s->margin[2], s->srcHeight - 1 + s->margin[3]};
}

// ---- sizes -------------------------------------------------------------------------

inline std::int64_t specBytes() { return resize::alignBytes(sizeof(Spec), 64) + 64; }
// The work buffer of tiles up to width w: each column's first tap and
// fraction on both axes (16 bytes), whole vectors of 64 bytes, and the
// 64-byte alignment allowance.
inline std::int64_t bufferBytes(std::int64_t w) { return 16 * ((w + 15) & ~std::int64_t(15)) + 64; }

// The set-up's checks from the sizes on (steps 4 to 10 of the size query).
inline QvnStatus setupChecks(RoiL src, RoiL dst, int dataType, int kind, int direction, const double c[2][3]) {
    QVN_TRY(check::roi(src));
    QVN_TRY(check::roi(dst));
    if (std::max({src.width, src.height, dst.width, dst.height}) > kMaxSide) return qvnErrSizeOverflow;
    QVN_TRY(check::dataType(dataType));
    if (kind != qvnInterpNearest && kind != qvnInterpLinear && kind != qvnInterpCubic) return qvnErrInterpolationKind;
    if (unsigned(direction) > 1u) return qvnErrDirection;
    double map[2][3];
    if (singular(c) || !backward(c, direction, map)) return qvnErrCoeffs;
    if (src.width == 1) return qvnErrSize;
    return qvnOk;
}

// ---- the border value ------------------------------------------------------------------

// v rounded to nearest (ties to even) and saturated to T, whatever the
// caller's rounding control; NaN gives 0. Floats are converted as they are.
template <class T>
inline T toType(double v) {
    if constexpr (std::is_floating_point_v<T>) {
        return T(v);
    } else {
        if (std::isnan(v)) return T(0);
        const double lo = double(std::numeric_limits<T>::min()), hi = double(std::numeric_limits<T>::max());
        v = std::min(std::max(v, lo), hi);
        double r = std::floor(v + 0.5);
        if (r - v == 0.5 && std::fmod(r, 2.0) != 0.0) r -= 1.0;
        return T(r);
    }
}

template <class T>
inline void setFill(Spec* s) {
    T px[4] = {};
    for (int c = 0; c < s->channels; ++c) px[c] = toType<T>(s->value[c]), s->fill[c] = float(px[c]);
    std::memcpy(s->fillPixel, px, sizeof px);
}

// The cubic's weight polynomials: k(t) = ((12 - 9B - 6C) t^3 + (-18 + 12B + 6C) t^2
// + (6 - 2B)) / 6 for |t| < 1, ((-B - 6C) t^3 + (6B + 30C) t^2 + (-12B - 48C) t
// + (8B + 24C)) / 6 for 1 <= |t| < 2.
inline void setCubic(Spec* s, double b, double c) {
    const double inner[4] = {(12 - 9 * b - 6 * c) / 6, (-18 + 12 * b + 6 * c) / 6, 0, (6 - 2 * b) / 6};
    const double outer[4] = {(-b - 6 * c) / 6, (6 * b + 30 * c) / 6, (-12 * b - 48 * c) / 6, (8 * b + 24 * c) / 6};
    for (int d = 0; d < 4; ++d) {
        s->poly[d][0] = s->poly[d][3] = float(outer[d]);
        s->poly[d][1] = s->poly[d][2] = float(inner[d]);
    }
}

}  // namespace warp

// ---- the exported set-up ------------------------------------------------------------

inline QvnStatus warpAffineGetSize(QvnRoiSize src, QvnRoiSize dst, int dataType, const double coeffs[2][3],
                                   int kind, int direction, int border, int* pSpecSize, int* pInitBufSize) {
    using namespace warp;
    const RoundingScope nearest(qvnRndNear);
    QVN_TRY(check::ptrs(pSpecSize, pInitBufSize));
    if (!borderAccepted(border)) return qvnErrBorderKind;
    QVN_TRY(check::ptrs(pSpecSize, pInitBufSize, coeffs));
    QVN_TRY(setupChecks(src, dst, dataType, kind, direction, coeffs));
    const std::int64_t spec = specBytes(), init = 0;
    if (spec > kMaxBytes32 || init > kMaxBytes32) return qvnErrSizeOverflow;
    *pSpecSize = int(spec), *pInitBufSize = int(init);
    return qvnOk;
}

// The Inits: the size query's checks (the spec pointer standing for its
// outputs, and the border value's pointer checked with the coefficients'
// for the constant kind), then the channel count and the cubic's parameters.
template <int Kind, class R>
inline QvnStatus warpAffineInit(R src, R dst, int dataType, const double coeffs[2][3], int direction, int channels,
                                double valueB, double valueC, int border, const double* pBorderValue, int smoothEdge,
                                QvnWarpAffineSpec* pSpec) {
    using namespace warp;
    constexpr bool kWide = std::is_same_v<R, QvnRoiSizeL>;
    const RoundingScope nearest(qvnRndNear);
    QVN_TRY(check::ptrs(pSpec));
    if (!borderAccepted(border)) return qvnErrBorderKind;
    QVN_TRY(check::ptrs(pSpec, coeffs));
    if ((border & 0xF) == qvnBorderConstant) QVN_TRY(check::ptrs(pBorderValue));
    QVN_TRY(setupChecks(src, dst, dataType, Kind, direction, coeffs));
    if (channels != 1 && channels != 3 && channels != 4) return qvnErrChannelCount;
    if (!std::isfinite(valueB) || !std::isfinite(valueC)) return qvnErrBadMode;

    Spec* s = spec::place<Spec>(pSpec, kWide ? kIdL : kId);
    s->dataType = dataType, s->kind = Kind, s->channels = channels;
    s->direction = direction, s->border = border, s->smoothEdge = smoothEdge != 0;
    const int reach = Kind == qvnInterpNearest ? 0 : Kind == qvnInterpLinear ? 1 : 2;
    const unsigned flags[4] = {qvnBorderInMemLeft, qvnBorderInMemTop, qvnBorderInMemRight, qvnBorderInMemBottom};
    for (int i = 0; i < 4; ++i) s->margin[i] = (unsigned(border) & flags[i]) ? reach : 0;
    s->srcWidth = src.width, s->srcHeight = src.height, s->dstWidth = dst.width, s->dstHeight = dst.height;
    std::memcpy(s->coeffs, coeffs, sizeof s->coeffs);
    backward(coeffs, direction, s->map);
    if ((border & 0xF) == qvnBorderConstant)
        for (int c = 0; c < channels; ++c) s->value[c] = pBorderValue[c];
    s->valueB = valueB, s->valueC = valueC;
    setCubic(s, valueB, valueC);
    switch (dataType) {
        case qvn8u: setFill<Qvn8u>(s); break;
        case qvn16u: setFill<Qvn16u>(s); break;
        case qvn16s: setFill<Qvn16s>(s); break;
        case qvn32f: setFill<Qvn32f>(s); break;
        default: break;  // 64f: no warp call takes it yet
    }
    return qvnOk;
}

template <int Kind, class R>
inline QvnStatus warpAffineInitPlain(R src, R dst, int dataType, const double coeffs[2][3], int direction,
                                     int channels, int border, const double* pBorderValue, int smoothEdge,
                                     QvnWarpAffineSpec* pSpec) {
    return warpAffineInit<Kind>(src, dst, dataType, coeffs, direction, channels, 0.0, 0.5, border, pBorderValue,
                                      smoothEdge, pSpec);
}

namespace warp {

// The spec of an interface in the caller's buffer, or null.
inline const Spec* find(const QvnWarpAffineSpec* buffer, bool wide) {
    return spec::find<Spec>(buffer, wide ? kIdL : kId);
}

template <bool Wide, class S>
inline QvnStatus getBufferSize(const QvnWarpAffineSpec* pSpec, RoiL dst, S* pBufSize) {
    QVN_TRY(check::ptrs(pSpec, pBufSize));
    QVN_TRY(check::roi(dst));
    if (find(pSpec, Wide) == nullptr) return qvnErrBadSpec;
    const std::int64_t bytes = bufferBytes(dst.width);
    if (!Wide && bytes > kMaxBytes32) return qvnErrSizeOverflow;
    *pBufSize = S(bytes);
    return qvnOk;
}

// A tile at (x, y) of size z: inside the spec's destination at its offset,
// and no side above 2^25 - 1.
template <class P>
inline QvnStatus tileOffset(const Spec* s, P o) {
    return o.x < 0 || o.y < 0 || o.x >= s->dstWidth || o.y >= s->dstHeight ? qvnErrArgRange : qvnOk;
}

template <bool Wide, class P, class R>
inline QvnStatus srcRoi(const QvnWarpAffineSpec* pSpec, P offset, R size, P* pOffset, R* pSize) {
    QVN_TRY(check::ptrs(pSpec, pOffset, pSize));
    QVN_TRY(check::roi(size));
    if (std::max<std::int64_t>(size.width, size.height) > kMaxSide) return qvnErrSizeOverflow;
    const Spec* s = find(pSpec, Wide);
    if (s == nullptr) return qvnErrBadSpec;
    QVN_TRY(tileOffset(s, offset));
    const RoundingScope nearest(qvnRndNear);
    const Span t = clampSpan(tileTaps(s, offset.x, offset.y, size.width, size.height), image(s));
    using C = decltype(pOffset->x);
    using Z = decltype(pSize->width);
    pOffset->x = C(t.x0), pOffset->y = C(t.y0);
    pSize->width = Z(t.x1 - t.x0 + 1), pSize->height = Z(t.y1 - t.y0 + 1);
    return qvnOk;
}

}  // namespace warp

inline QvnStatus warpGetBufferSize(const QvnWarpAffineSpec* pSpec, QvnRoiSize dst, int* pBufSize) {
    return warp::getBufferSize<false>(pSpec, dst, pBufSize);
}
inline QvnStatus warpGetBufferSize(const QvnWarpAffineSpec* pSpec, QvnRoiSizeL dst, QvnSizeL* pBufSize) {
    return warp::getBufferSize<true>(pSpec, dst, pBufSize);
}
inline QvnStatus getAffineSrcRoi(const QvnWarpAffineSpec* pSpec, QvnPoint offset, QvnRoiSize size, QvnPoint* pOffset,
                                 QvnRoiSize* pSize) {
    return warp::srcRoi<false>(pSpec, offset, size, pOffset, pSize);
}
inline QvnStatus getAffineSrcRoi(const QvnWarpAffineSpec* pSpec, QvnPointL offset, QvnRoiSizeL size,
                                  QvnPointL* pOffset, QvnRoiSizeL* pSize) {
    return warp::srcRoi<true>(pSpec, offset, size, pOffset, pSize);
}

// ---- coefficient utilities ------------------------------------------------------------

inline QvnStatus getRotateShift(double xCenter, double yCenter, double angle, double* pxShift, double* pyShift) {
    QVN_TRY(check::ptrs(pxShift, pyShift));
    const RoundingScope nearest(qvnRndNear);
    double a = angle - std::trunc(angle * (1.0 / 360.0)) * 360.0;
    if (a < 0) a += 360.0;
    if (a == 0) {
        *pxShift = 0, *pyShift = 0;
    } else if (a == 90) {
        *pxShift = xCenter - yCenter, *pyShift = yCenter + xCenter;
    } else if (a == 180) {
        *pxShift = 2 * xCenter, *pyShift = 2 * yCenter;
    } else if (a == 270) {
        *pxShift = xCenter + yCenter, *pyShift = yCenter - xCenter;
    } else {
        const double r = a * 0.017453292519943295, c = std::cos(r), s = std::sin(r);
        *pxShift = xCenter - c * xCenter - s * yCenter;
        *pyShift = yCenter + s * xCenter - c * yCenter;
    }
    return qvnOk;
}

namespace warp {
// The corners of srcRoi's pixels (first and last included), clockwise from
// the first: (x, y), (x + w - 1, y), (x + w - 1, y + h - 1), (x, y + h - 1),
// mapped by c.
inline QvnStatus quad(QvnRect r, double q[4][2], const double c[2][3]) {
    QVN_TRY(check::ptrs(q, c));
    if (r.x < 0 || r.y < 0 || r.width < 1 || r.height < 1) return qvnErrSize;
    const RoundingScope nearest(qvnRndNear);
    const double x0 = r.x, y0 = r.y, x1 = double(r.x) + r.width - 1, y1 = double(r.y) + r.height - 1;
    const double corners[4][2] = {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}};
    for (int k = 0; k < 4; ++k) {
        const double x = corners[k][0], y = corners[k][1];
        q[k][0] = c[0][0] * x + c[0][1] * y + c[0][2];
        q[k][1] = c[1][0] * x + c[1][1] * y + c[1][2];
    }
    return singular(c) ? qvnErrCoeffs : qvnOk;
}
}  // namespace warp

inline QvnStatus getAffineQuad(QvnRect srcRoi, double q[4][2], const double c[2][3]) { return warp::quad(srcRoi, q, c); }

inline QvnStatus getAffineBound(QvnRect srcRoi, double bound[2][2], const double c[2][3]) {
    QVN_TRY(check::ptrs(bound, c));
    double q[4][2];
    const QvnStatus s = warp::quad(srcRoi, q, c);
    if (s != qvnOk && s != qvnErrCoeffs) return s;
    bound[0][0] = bound[1][0] = q[0][0], bound[0][1] = bound[1][1] = q[0][1];
    for (int k = 1; k < 4; ++k)
        for (int a = 0; a < 2; ++a)
            bound[0][a] = std::min(bound[0][a], q[k][a]), bound[1][a] = std::max(bound[1][a], q[k][a]);
    return s;
}

}  // namespace geom
QVN_TARGET_END

#endif
