#include <stdio.h>

#include <qvnip.h>

int main(void) {
    int step = 0;
    Qvn8u* img = qvniMalloc_8u_C1(320, 200, &step);
    const QvnVersionInfo* v = qvniGetLibVersion();
    if (img == NULL || step != 320) return 1;
    qvniFree(img);
    printf("%s: ok\n", v->name);
    return 0;
}
