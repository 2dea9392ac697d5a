// A native whose parameters disagree with its Java declaration (one int too many). Built only by
// the native-signatures test, which expects the compiler to reject it.
#include <com_zq_OrvexCore_IOrvexCore.h>

extern "C" JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1Destroy(JNIEnv*, jclass,
                                                                                  jint, jint) {
    return 0;
}
