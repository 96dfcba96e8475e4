// Border copies, mirrors and transposes: qvniCopy*Border, qvniMirror and
// qvniTranspose against cv::copyMakeBorder, cv::flip and cv::transpose.
#include <opencv2/core.hpp>

#include "bench.h"

namespace qbench {
namespace {

using I8 = Image<Qvn8u>;
using I16 = Image<Qvn16u>;
using I32f = Image<Qvn32f>;
using I32s = Image<Qvn32s>;

// Eight pixels of border on every side.
constexpr int kB = 8;
[[maybe_unused]] Opts bordered() {
    return Opts().resized([](Size z) { return Size{z.w + 2 * kB, z.h + 2 * kB}; });
}
[[maybe_unused]] Opts transposed() {
    return Opts().resized([](Size z) { return Size{z.h, z.w}; });
}

#define QB_BORDER(name, T, ch, cvKind, ...)                                                                 \
    QB_REGISTER(#name "_+8", unary<T, T>(ch, ch, [](const Image<T>& s, Image<T>& d) {                           \
        return qvni##name(s.p(), s.step(), s.roi(), d.p(), d.step(), d.roi(), kB, kB, ##__VA_ARGS__);               \
    }, opencv([](const Image<T>& s, Image<T>& d) {                                                                \
        cv::Mat out = d.mat();                                                                                    \
        cv::copyMakeBorder(s.mat(), out, kB, kB, kB, kB, cvKind, cv::Scalar(7, 100, 33, 5));                      \
    }), bordered()));

#ifdef QVN_HAS_qvniCopyReplicateBorder_8u_C1R
QB_BORDER(CopyReplicateBorder_8u_C1R, Qvn8u, 1, cv::BORDER_REPLICATE)
QB_BORDER(CopyReplicateBorder_8u_C3R, Qvn8u, 3, cv::BORDER_REPLICATE)
QB_BORDER(CopyReplicateBorder_32f_C1R, Qvn32f, 1, cv::BORDER_REPLICATE)
QB_BORDER(CopyMirrorBorder_8u_C1R, Qvn8u, 1, cv::BORDER_REFLECT_101)
QB_BORDER(CopyMirrorBorder_32f_C3R, Qvn32f, 3, cv::BORDER_REFLECT_101)
QB_BORDER(CopyWrapBorder_32f_C1R, Qvn32f, 1, cv::BORDER_WRAP)
QB_BORDER(CopyConstBorder_8u_C1R, Qvn8u, 1, cv::BORDER_CONSTANT, Qvn8u(7))
static const Qvn8u kValue8u[3] = {7, 100, 33};
QB_BORDER(CopyConstBorder_8u_C3R, Qvn8u, 3, cv::BORDER_CONSTANT, kValue8u)
#endif

// flip codes: 0 reverses the rows (our horizontal axis), 1 each row, -1 both.
#define QB_MIRROR(t, T, form, ch, axis, flipCode, suffix)                                                        \
    QB_REGISTER("Mirror_" #t "_" #form "R_" suffix, unary<T, T>(ch, ch, [](const Image<T>& s, Image<T>& d) {     \
        return qvniMirror_##t##_##form##R(s.p(), s.step(), d.p(), d.step(), s.roi(), axis);                      \
    }, opencv([](const Image<T>& s, Image<T>& d) {                                                                \
        cv::Mat out = d.mat();                                                                                    \
        cv::flip(s.mat(), out, flipCode);                                                                         \
    })));

#ifdef QVN_HAS_qvniMirror_8u_C4R
QB_MIRROR(8u, Qvn8u, C4, 4, qvnAxisBoth, -1, "both")
QB_MIRROR(8u, Qvn8u, C1, 1, qvnAxisVertical, 1, "vertical")
QB_MIRROR(8u, Qvn8u, C3, 3, qvnAxisVertical, 1, "vertical")
QB_MIRROR(16u, Qvn16u, C1, 1, qvnAxisBoth, -1, "both")
QB_MIRROR(32f, Qvn32f, C1, 1, qvnAxisHorizontal, 0, "horizontal")
QB_MIRROR(32f, Qvn32f, C3, 3, qvnAxisVertical, 1, "vertical")
#endif

// Every pixel size: 1, 2, 3, 4, 6, 8, 12 and 16 bytes.
#define QB_TRANSPOSE(t, T, form, ch)                                                                              \
    QB_REGISTER("Transpose_" #t "_" #form "R", unary<T, T>(ch, ch, [](const Image<T>& s, Image<T>& d) {          \
        return qvniTranspose_##t##_##form##R(s.p(), s.step(), d.p(), d.step(), s.roi());                         \
    }, opencv([](const Image<T>& s, Image<T>& d) {                                                                \
        cv::Mat out = d.mat();                                                                                    \
        cv::transpose(s.mat(), out);                                                                              \
    }), transposed()));

#ifdef QVN_HAS_qvniTranspose_8u_C1R
QB_TRANSPOSE(8u, Qvn8u, C1, 1)
QB_TRANSPOSE(16u, Qvn16u, C1, 1)
QB_TRANSPOSE(8u, Qvn8u, C3, 3)
QB_TRANSPOSE(32f, Qvn32f, C1, 1)
QB_TRANSPOSE(32s, Qvn32s, C1, 1)
QB_TRANSPOSE(16u, Qvn16u, C3, 3)
QB_TRANSPOSE(16u, Qvn16u, C4, 4)
QB_TRANSPOSE(32f, Qvn32f, C3, 3)
QB_TRANSPOSE(32f, Qvn32f, C4, 4)
#endif

}  // namespace
}  // namespace qbench
