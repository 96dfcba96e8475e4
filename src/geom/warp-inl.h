// qvniWarpAffineNearest, qvniWarpAffineLinear and qvniWarpAffineCubic: a tile
// of the destination that a spec describes, from the source image.
//
// Each destination row first gets the source positions of its pixels (the
// work buffer holds them). Positions move monotonically along a row, so the
// pixels whose taps (and what the vector rows read past them) all lie in the
// source memory the tile may read form one run: the vector rows produce it.
// The pixels before and after it are edge pixels, made one by one by the
// same arithmetic with the border rules of warp-spec-inl.h, except the runs
// at both ends whose taps all lie outside the extended source, which the
// constant kind fills and the transparent kinds leave as they are.
#ifndef QVN_GEOM_WARP_INL_H
#define QVN_GEOM_WARP_INL_H

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/fpround-inl.h"
#include "geom/warp-spec-inl.h"
#include "kernels/fill-inl.h"
#include "kernels/reverse-inl.h"
#include "kernels/store-inl.h"
#include "kernels/warp-inl.h"

QVN_TARGET_BEGIN
namespace geom {
namespace warp {

template <class T, int K, int Kind>
class Tile {
    using V = kernels::warp::V;
    static constexpr bool kNearest = Kind == qvnInterpNearest;
    static constexpr int kBefore = Kind == qvnInterpCubic ? 1 : 0;
    static constexpr int kAfter = Kind == qvnInterpNearest ? 0 : Kind == qvnInterpLinear ? 1 : 2;
    using Row = std::conditional_t<kNearest, kernels::warp::NearestRow<T, K>,
                                   std::conditional_t<Kind == qvnInterpLinear, kernels::warp::LinearRow<T, K>,
                                                      kernels::warp::CubicRow<T, K>>>;

public:
    // src: the source image's pixel (0, 0); dst: the tile's first pixel.
    Tile(const Spec* s, const T* src, std::int64_t srcStep, T* dst, std::int64_t dstStep, std::int64_t ox,
         std::int64_t oy, RoiL size, Qvn8u* buffer)
        : s_(s), src_(src), srcStep_(srcStep), dst_(dst), dstStep_(dstStep), ox_(ox), oy_(oy), w_(size.width),
          h_(size.height), e_(extended(s)), r_(clampSpan(tileTaps(s, ox, oy, size.width, size.height), e_)),
          constant_((s->border & 0xF) == qvnBorderConstant), transparent_(isTransparent(s->border)) {
        const std::int64_t n = (w_ + 15) & ~std::int64_t(15);
        unsigned char* b = spec::alignUp64(buffer);
        ix_ = reinterpret_cast<std::int32_t*>(b);
        iy_ = ix_ + n;
        fx_ = reinterpret_cast<float*>(iy_ + n);
        fy_ = fx_ + n;
    }

    void run() {
        for (std::int64_t y = 0; y < h_; ++y) {
            const std::int64_t at = oy_ + y;
            kernels::warp::positions<kNearest>(rowTerm(s_, 0, at), s_->map[0][0], ox_, w_, ix_, fx_);
            kernels::warp::positions<kNearest>(rowTerm(s_, 1, at), s_->map[1][0], ox_, w_, iy_, fy_);
            T* d = byteOffset(dst_, y * dstStep_);
            std::int64_t xa = 0, xb = w_;
            while (xa < w_ && !readable(xa)) ++xa;
            while (xb > xa && !readable(xb - 1)) --xb;
            edges(0, xa, d);
            std::int64_t m = 0;
            if (xa < xb) {
                if constexpr (Kind == qvnInterpCubic)
                    m = Row::row(src_, srcStep_, ix_ + xa, iy_ + xa, fx_ + xa, fy_ + xa, s_->poly, d + xa * K, xb - xa);
                else
                    m = Row::row(src_, srcStep_, ix_ + xa, iy_ + xa, fx_ + xa, fy_ + xa, d + xa * K, xb - xa);
            }
            edges(xa + m, w_, d);
        }
    }

private:
    // Every tap of pixel i, and the vector rows' reads past the last one, in
    // the memory the tile may read.
    bool readable(std::int64_t i) const {
        return ix_[i] - kBefore >= r_.x0 && ix_[i] + kAfter + Row::kOver <= r_.x1 && iy_[i] - kBefore >= r_.y0 &&
               iy_[i] + kAfter <= r_.y1;
    }
    // No tap of pixel i lies in the extended source.
    bool outside(std::int64_t i) const {
        return ix_[i] - kBefore > e_.x1 || ix_[i] + kAfter < e_.x0 || iy_[i] - kBefore > e_.y1 || iy_[i] + kAfter < e_.y0;
    }

    // Pixels [a, b) of row d one by one, the runs at both ends that lie
    // outside filled (constant) or skipped (transparent).
    void edges(std::int64_t a, std::int64_t b, T* d) const {
        if (constant_ || transparent_) {
            std::int64_t j = a, k = b;
            while (j < k && outside(j)) ++j;
            while (k > j && outside(k - 1)) --k;
            if (constant_) fill(d + a * K, j - a), fill(d + k * K, b - k);
            a = j, b = k;
        }
        for (std::int64_t i = a; i < b; ++i) pixel(i, d + i * K);
    }
    void fill(T* d, std::int64_t n) const {
        using U = kernels::Bits<T>;
        if (n > 0)
            kernels::fillRow<U, K, false, kernels::StoreRegular>(reinterpret_cast<U*>(d), n,
                                                                  reinterpret_cast<const U*>(s_->fillPixel));
    }

    // A position p of an axis [lo, hi] of the extended source: inside the
    // hull of its pixel centres.
    static bool inHull(std::int32_t p, float f, std::int64_t lo, std::int64_t hi) {
        return p >= lo && (p < hi || (p == hi && f == 0));
    }
    // The share of an axis that a position within one pixel outside the
    // hull covers: f left of it, 1 - f right of it; 1 inside, 0 beyond.
    static float cover(std::int32_t p, float f, std::int64_t lo, std::int64_t hi) {
        if (inHull(p, f, lo, hi)) return 1;
        if (p == lo - 1) return f;
        if (p == hi) return 1 - f;
        return 0;
    }

    // The source column (row) that tap position p reads, or -1 for the
    // constant's value; lo and hi: the extended source's axis.
    std::int64_t tapAt(std::int64_t p, std::int64_t lo, std::int64_t hi) const {
        if (p >= lo && p <= hi) return p;
        if (constant_) return INT64_MIN;
        return p < lo ? lo : hi;
    }
    V tap(std::int64_t col, std::int64_t row) const {
        if (col == INT64_MIN || row == INT64_MIN) return v128::loadU(s_->fill);
        return kernels::warp::loadPixel<T, K>(byteOffset(src_, row * srcStep_) + col * K);
    }

    // Edge pixel i: the vector rows' arithmetic on taps made by the border rules.
    void pixel(std::int64_t i, T* d) const {
        const std::int32_t x = ix_[i], y = iy_[i];
        const float fx = kNearest ? 0.0f : fx_[i], fy = kNearest ? 0.0f : fy_[i];
        float coverage = 1;
        if (transparent_) {
            const bool inside = kNearest ? x >= e_.x0 && x <= e_.x1 && y >= e_.y0 && y <= e_.y1
                                         : inHull(x, fx, e_.x0, e_.x1) && inHull(y, fy, e_.y0, e_.y1);
            if (!inside) {
                if (kNearest || !s_->smoothEdge) return;
                coverage = cover(x, fx, e_.x0, e_.x1) * cover(y, fy, e_.y0, e_.y1);
                if (!(coverage > 0)) return;
            }
        }
        constexpr int kTaps = kBefore + kAfter + 1;
        std::int64_t cols[kTaps], rows[kTaps];
        bool any[2] = {false, false};
        for (int k = 0; k < kTaps; ++k) {
            cols[k] = tapAt(x - kBefore + k, e_.x0, e_.x1), rows[k] = tapAt(y - kBefore + k, e_.y0, e_.y1);
            any[0] |= cols[k] != INT64_MIN, any[1] |= rows[k] != INT64_MIN;
        }
        if (!any[0] || !any[1]) {  // the constant's value, exactly
            std::memcpy(d, s_->fillPixel, K * sizeof(T));
            return;
        }
        if constexpr (kNearest) {
            std::memcpy(d, byteOffset(src_, rows[0] * srcStep_) + cols[0] * K, K * sizeof(T));
            return;
        }
        V v;
        if constexpr (Kind == qvnInterpLinear) {
            const V f = v128::set1(fx);
            v = kernels::warp::lerp(kernels::warp::lerp(tap(cols[0], rows[0]), tap(cols[1], rows[0]), f),
                                    kernels::warp::lerp(tap(cols[0], rows[1]), tap(cols[1], rows[1]), f), v128::set1(fy));
        } else {
            alignas(16) float wx[4], wy[4];
            v128::storeU(wx, kernels::warp::cubicWeights(fx, s_->poly));
            v128::storeU(wy, kernels::warp::cubicWeights(fy, s_->poly));
            V h[4];
            for (int j = 0; j < 4; ++j) {
                const V t[4] = {tap(cols[0], rows[j]), tap(cols[1], rows[j]), tap(cols[2], rows[j]), tap(cols[3], rows[j])};
                h[j] = kernels::warp::cubicRow(t, wx);
            }
            v = kernels::warp::cubicRow(h, wy);
        }
        if (coverage != 1) v = kernels::warp::lerp(kernels::warp::loadPixel<T, K>(d), v, v128::set1(coverage));
        kernels::warp::storeSome(d, v, K);
    }

    const Spec* s_;
    const T* src_;
    std::int64_t srcStep_;
    T* dst_;
    std::int64_t dstStep_, ox_, oy_, w_, h_;
    Span e_, r_;
    bool constant_, transparent_;
    std::int32_t *ix_, *iy_;
    float *fx_, *fy_;
};

}  // namespace warp

template <class T, class L, int Kind, class S, class P>
inline QvnStatus warpAffine(const T* pSrc, S srcStep, T* pDst, S dstStep, P dstOffset, RoiL dstSize,
                            const QvnWarpAffineSpec* pSpec, Qvn8u* pBuffer) {
    using namespace warp;
    QVN_TRY(check::ptrs(pSrc, pDst, pSpec, pBuffer));
    QVN_TRY(check::roi(dstSize));
    if (srcStep % S(sizeof(T)) != 0 || dstStep % S(sizeof(T)) != 0) return qvnErrStep;
    const Spec* s = find(pSpec, std::is_same_v<P, QvnPointL>);
    if (s == nullptr || s->dataType != resize::kDataType<T> || s->channels != L::kElems || s->kind != Kind)
        return qvnErrBadSpec;
    QVN_TRY(tileOffset(s, dstOffset));
    const RoundingScope nearest(qvnRndNear);
    Tile<T, L::kElems, Kind>(s, pSrc, srcStep, pDst, dstStep, dstOffset.x, dstOffset.y, dstSize, pBuffer).run();
    return dstSize.width > s->dstWidth - dstOffset.x || dstSize.height > s->dstHeight - dstOffset.y ? qvnWarnTileTooLarge
                                                                                                  : qvnOk;
}

}  // namespace geom
QVN_TARGET_END

#endif
