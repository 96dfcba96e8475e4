/* The public headers as a C99 program sees them (compiled with -std=c99
 * -pedantic -Werror); C++ compiles them in every test. */
#include "qvncore.h"
#include "qvnip.h"

int qvnHeadersCompileAsC99(void) {
    QvnRoiSize roi = {1, 1};
    const QvnVersionInfo* v = qvniGetLibVersion();
    return roi.width + (v != 0) + qvnErrSize;
}
