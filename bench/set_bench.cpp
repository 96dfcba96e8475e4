// Fills: qvniSet against cv::Mat::setTo.
#include "bench.h"

namespace qbench {
namespace {

using Imgs8u = std::vector<Image<Qvn8u>>;
using Imgs32f = std::vector<Image<Qvn32f>>;
const Qvn8u kPixel[4] = {10, 200, 30, 77};

#ifdef QVN_HAS_qvniSet_8u_C1R
QB_REGISTER("Set_8u_C1R",
            images<Qvn8u, Qvn8u>({}, {1}, [](const Imgs8u&, Imgs8u& d) {
                return qvniSet_8u_C1R(kPixel[0], d[0].p(), d[0].step(), d[0].roi());
            }, opencv([](const Imgs8u&, Imgs8u& d) { d[0].mat().setTo(cv::Scalar(kPixel[0])); })));
#endif

#ifdef QVN_HAS_qvniSet_8u_C3R
QB_REGISTER("Set_8u_C3R",
            images<Qvn8u, Qvn8u>({}, {3}, [](const Imgs8u&, Imgs8u& d) {
                return qvniSet_8u_C3R(kPixel, d[0].p(), d[0].step(), d[0].roi());
            }, opencv([](const Imgs8u&, Imgs8u& d) {
                d[0].mat().setTo(cv::Scalar(kPixel[0], kPixel[1], kPixel[2]));
            })));
#endif

#ifdef QVN_HAS_qvniSet_8u_C4R
QB_REGISTER("Set_8u_C4R",
            images<Qvn8u, Qvn8u>({}, {4}, [](const Imgs8u&, Imgs8u& d) {
                return qvniSet_8u_C4R(kPixel, d[0].p(), d[0].step(), d[0].roi());
            }, opencv([](const Imgs8u&, Imgs8u& d) {
                d[0].mat().setTo(cv::Scalar(kPixel[0], kPixel[1], kPixel[2], kPixel[3]));
            })));
#endif

// No peer keeps the fourth channel while filling the other three.
#ifdef QVN_HAS_qvniSet_8u_AC4R
QB_REGISTER("Set_8u_AC4R",
            images<Qvn8u, Qvn8u>({}, {4}, [](const Imgs8u&, Imgs8u& d) {
                return qvniSet_8u_AC4R(kPixel, d[0].p(), d[0].step(), d[0].roi());
            }, reference([](const Imgs8u&, Imgs8u& d) {
                Image<Qvn8u>& img = d[0];
                for (int y = 0; y < img.height(); ++y)
                    for (int x = 0; x < img.width(); ++x)
                        for (int c = 0; c < 3; ++c) img.row(y)[4 * x + c] = kPixel[c];
            }), Opts().readsDestination()));
#endif

#ifdef QVN_HAS_qvniSet_32f_C1R
QB_REGISTER("Set_32f_C1R",
            images<Qvn32f, Qvn32f>({}, {1}, [](const Imgs32f&, Imgs32f& d) {
                return qvniSet_32f_C1R(1.5f, d[0].p(), d[0].step(), d[0].roi());
            }, opencv([](const Imgs32f&, Imgs32f& d) { d[0].mat().setTo(cv::Scalar(1.5)); })));
#endif

}  // namespace
}  // namespace qbench
