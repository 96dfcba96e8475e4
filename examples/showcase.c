/* A short tour of the library: allocate an image, describe this build. */
#include <stdio.h>

#include "qvnip.h"

int main(void) {
    const QvnVersionInfo* v = qvniGetLibVersion();
    int step = 0;
    Qvn8u* img;
    printf("%s, version %s, built %s\n", v->name, v->version, v->buildDate);
    img = qvniMalloc_8u_C3(640, 480, &step);
    if (img == NULL) return 1;
    printf("a 640 x 480 8u C3 image: step %d bytes\n", step);
    qvniFree(img);
    return 0;
}
