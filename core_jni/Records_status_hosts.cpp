#include "Records_status_hosts.h"

#include "JniKits.h"
#include "NativeShapes.h"

void WriteDefenceStatus(JNIEnv* env, jobject joStatus, jclass clsStatus,
                        const orvex_AHostDefenceStatus_t& status) {
    SetTextField(env, joStatus, clsStatus, "szNodeID", status.szNodeID);
    CJniKits::SetStuIntField(env, joStatus, clsStatus, "nAlarm", status.nAlarm);
    CJniKits::SetStuIntField(env, joStatus, clsStatus, "nUndefendAlarm", status.nUndefendAlarm);
    CJniKits::SetStuBoolField(env, joStatus, clsStatus, "bByPass", status.bByPass);
    CJniKits::SetStuBoolField(env, joStatus, clsStatus, "bDefend", status.bDefend);
}
