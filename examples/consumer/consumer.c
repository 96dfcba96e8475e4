/* Fills an image (large enough for the fill to ask the core library for the
 * cache size), divides it by a constant and prints the library's name: a C
 * program that links qvnIP as a user would. */
#include <stdio.h>

#include <qvnip.h>

int main(void) {
    enum { W = 1024, H = 1024 };
    const QvnRoiSize roi = {W, H};
    const QvnVersionInfo* v = qvniGetLibVersion();
    int step = 0, ok;
    Qvn8u* img = qvniMalloc_8u_C1(W, H, &step);
    if (img == NULL || step != W) return 1;
    /* 200 / 7 = 28.57 rounds to 29 */
    ok = qvniSet_8u_C1R(200, img, step, roi) == qvnOk && qvniDivC_8u_C1IRSfs(7, img, step, roi, 0) == qvnOk &&
         img[0] == 29 && img[(size_t)H * step - 1] == 29;
    qvniFree(img);
    if (!ok) return 1;
    printf("%s: ok\n", v->name);
    return 0;
}
