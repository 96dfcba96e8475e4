// Bordered sources for the tests of the filters that take a QvnBorderKind:
// the border cases worth meeting (each kind, in-memory sides alone and
// mixed, all of them), and a source image with room on the sides a case
// reads from memory, with the model of its extended neighbourhood.
#ifndef QVN_TESTS_SUPPORT_BORDERED_H
#define QVN_TESTS_SUPPORT_BORDERED_H

#include <cstdint>
#include <memory>
#include <random>
#include <type_traits>
#include <vector>

#include "qvnip.h"
#include "ref/filter_ref.h"
#include "support/sweep.h"

namespace qvn::test {

struct BorderCase {
    int border;
    ref::Bordered model;
};

inline const std::vector<BorderCase>& borderCases() {
    static const std::vector<BorderCase> cases = {
        {qvnBorderReplicate, {ref::Border::kReplicate}},
        {qvnBorderMirror, {ref::Border::kMirror}},
        {qvnBorderConstant, {ref::Border::kConst}},
        {qvnBorderReplicate | qvnBorderInMemTop | qvnBorderInMemLeft, {ref::Border::kReplicate, true, false, true, false}},
        {qvnBorderMirror | qvnBorderInMemBottom | qvnBorderInMemRight, {ref::Border::kMirror, false, true, false, true}},
        {qvnBorderConstant | qvnBorderInMemTop | qvnBorderInMemRight, {ref::Border::kConst, true, false, false, true}},
        {qvnBorderInMem, {ref::Border::kReplicate, true, true, true, true}},
        {qvnBorderMirror | qvnBorderInMemLeft, {ref::Border::kMirror, false, false, true, false}},
    };
    return cases;
}

// Random pixels: every bit pattern of an integer type; floats in [-1000,
// 1000] in steps of 1/8, whose sums of up to 2^14 terms are exact in float.
template <class T>
T randomPixel(std::mt19937& rng) {
    if constexpr (std::is_floating_point_v<T>) return T(int(rng() % 16001) - 8000) / T(8);
    else return T(rng());
}

// A w x h ROI of `elems` elements per pixel inside a guarded image with
// `left`, `top`, `right` and `bottom` more pixels on the sides that the case
// reads from memory; at(x, y, e) is element e of the extended source at
// (x, y), ROI coordinates, as the model says (value: the constant pixel).
template <class T>
struct BorderedSource {
    BorderedSource(int w_, int h_, int elems_, int left, int top, int right, int bottom, const BorderCase& c,
                   std::uint32_t seed)
        : w(w_), h(h_), elems(elems_), bc(c), l(bc.model.left ? left : 0), t(bc.model.top ? top : 0),
          img(placed(w + l + (bc.model.right ? right : 0), h + t + (bc.model.bottom ? bottom : 0), elems, -1, seed, 0)) {
        std::mt19937 rng(seed);
        for (std::int64_t y = 0; y < img.height(); ++y)
            for (std::int64_t e = 0; e < img.rowElems(); ++e) img.at(e, y) = randomPixel<T>(rng);
        img.snapshot();
    }
    T* roi() const { return img.row(t) + l * elems; }
    int step() const { return int(img.step()); }
    bool inRoi(std::int64_t e, std::int64_t y) const { return y >= t && y < t + h && e >= l * elems && e < (l + w) * elems; }
    T at(std::int64_t x, std::int64_t y, int e, const T* value) const {
        return ref::extended<T>(bc.model, x, y, w, h, [&](std::int64_t sx, std::int64_t sy) {
            return img.saved((sx + l) * elems + e, sy + t);
        }, value[e]);
    }

    int w, h, elems;
    BorderCase bc;
    int l, t;
    GuardedImage<T> img;
};

// A guarded byte area of n bytes (a work buffer or spec) ending at a page.
inline std::unique_ptr<GuardedImage<Qvn8u>> guardedBytes(int n, std::uint32_t seed) {
    return std::make_unique<GuardedImage<Qvn8u>>(Layout{n, 1, 1, 0, true, seed});
}

}  // namespace qvn::test

#endif
