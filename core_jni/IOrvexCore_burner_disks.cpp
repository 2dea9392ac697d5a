// Evidence burner control and its case header; the disks of a recording device.
#include <com_zq_OrvexCore_IOrvexCore.h>

#include <cstring>
#include <memory>
#include <new>

#include "BridgeFrame.h"
#include "JniKits.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"

namespace {

// The twenty form labels, all char[32], in the structure's order.
using LabelMember = char (TrialFormAttrName_t::*)[32];
struct Label {
    const char* field;
    LabelMember member;
};
constexpr Label kLabels[] = {
    {"m_caseIdAttr", &TrialFormAttrName_t::m_caseIdAttr},
    {"m_trialSeqAttr", &TrialFormAttrName_t::m_trialSeqAttr},
    {"m_caseUnderTakerAttr", &TrialFormAttrName_t::m_caseUnderTakerAttr},
    {"m_caseDepAttr", &TrialFormAttrName_t::m_caseDepAttr},
    {"m_caseReasonAttr", &TrialFormAttrName_t::m_caseReasonAttr},
    {"m_caseReferPersonAttr", &TrialFormAttrName_t::m_caseReferPersonAttr},
    {"m_caseRemarkAttr", &TrialFormAttrName_t::m_caseRemarkAttr},
    {"m_caseRecordNameAttr", &TrialFormAttrName_t::m_caseRecordNameAttr},
    {"m_trialObjNameAttr", &TrialFormAttrName_t::m_trialObjNameAttr},
    {"m_trialObjSexAttr", &TrialFormAttrName_t::m_trialObjSexAttr},
    {"m_trialObjIDAttr", &TrialFormAttrName_t::m_trialObjIDAttr},
    {"m_trialObjNationAttr", &TrialFormAttrName_t::m_trialObjNationAttr},
    {"m_trialObjBirthdayAttr", &TrialFormAttrName_t::m_trialObjBirthdayAttr},
    {"m_trialObjHomeAddrAttr", &TrialFormAttrName_t::m_trialObjHomeAddrAttr},
    {"m_trialObjWorkUnitsAttr", &TrialFormAttrName_t::m_trialObjWorkUnitsAttr},
    {"m_trialObjTelephoneAttr", &TrialFormAttrName_t::m_trialObjTelephoneAttr},
    {"m_CDIDAttr", &TrialFormAttrName_t::m_CDIDAttr},
    {"m_recordPersonAttr", &TrialFormAttrName_t::m_recordPersonAttr},
    {"m_caseAssistantAttr", &TrialFormAttrName_t::m_caseAssistantAttr},
    {"m_trialObjAgeAttr", &TrialFormAttrName_t::m_trialObjAgeAttr},
};

void ReadBurnerHeader(JNIEnv* env, jobject jo, DevBurnerInfoHeader_t& header) {
    LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/DevBurnerInfoHeader_t");
    jclass c = cls.get();
    CJniKits::GetStuByteArrayField(env, jo, c, "m_deviceId", header.m_deviceId);
    CJniKits::GetStuByteArrayField(env, jo, c, "m_password", header.m_password);
    CJniKits::GetStuByteArrayField(env, jo, c, "m_caseId", header.m_caseId);
    CJniKits::GetStuByteArrayField(env, jo, c, "m_trialSeq", header.m_trialSeq);
    CJniKits::GetStuByteArrayField(env, jo, c, "m_caseUnderTaker", header.m_caseUnderTaker);
    CJniKits::GetStuByteArrayField(env, jo, c, "m_caseDep", header.m_caseDep);
    CJniKits::GetStuByteArrayField(env, jo, c, "m_caseReason", header.m_caseReason);
    CJniKits::GetStuByteArrayField(env, jo, c, "m_caseReferPerson", header.m_caseReferPerson);
    CJniKits::GetStuByteArrayField(env, jo, c, "m_caseRemark", header.m_caseRemark);
    CJniKits::GetStuByteArrayField(env, jo, c, "m_caseRecordName", header.m_caseRecordName);
    CJniKits::GetStuByteArrayField(env, jo, c, "m_RecordNum", header.m_RecordNum);
    CJniKits::GetStuByteArrayField(env, jo, c, "m_recordPerson", header.m_recordPerson);
    header.m_dataCheckOsdEn = CJniKits::GetStuBoolField(env, jo, c, "m_dataCheckOsdEn") != 0;
    header.m_AttachFileEn = CJniKits::GetStuBoolField(env, jo, c, "m_AttachFileEn") != 0;
    header.m_multiBurnerDataCheck =
        CJniKits::GetStuBoolField(env, jo, c, "m_multiBurnerDataCheck") != 0;
    header.m_multiBurnerDataCheckSpeed =
        IntFieldAs<uint32_t>(env, jo, c, "m_multiBurnerDataCheckSpeed");
}

void ReadFormLabels(JNIEnv* env, jobject jo, TrialFormAttrName_t& labels) {
    LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/TrialFormAttrName_t");
    for (const Label& label : kLabels) {
        CJniKits::GetStuByteArrayField(env, jo, cls.get(), label.field, labels.*label.member);
    }
}

// Copies the disks the library reported into the Java record. The list holds `capacity` C
// records, so a larger reported count is cut there (and at the Java array's end), with
// ArrayIndexOutOfBoundsException pending.
void WriteDiskInfo(JNIEnv* env, jobject jbDiskInfo, const Device_Disk_Info_t& info, jint capacity) {
    LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/Device_Disk_Info_t");
    CJniKits::SetStuByteArrayField(env, jbDiskInfo, cls.get(), "szDevId", info.szDevId,
                                   static_cast<int>(strnlen(info.szDevId, sizeof(info.szDevId))));
    CJniKits::SetStuIntField(env, jbDiskInfo, cls.get(), "nDiskInfoSize", info.nDiskInfoSize);

    CJniKits::ExceptionStash stash(env);
    const jint count = info.nDiskInfoSize < capacity ? info.nDiskInfoSize : capacity;
    auto list = ObjectField<jobjectArray>(env, jbDiskInfo, cls.get(), "pDiskInfoList",
                                          "[Lcom/zq/OrvexCore/Single_Disk_Info_t;");
    LocalClass diskCls = FindValueClass(env, "com/zq/OrvexCore/Single_Disk_Info_t");
    jclass dc = diskCls.get();
    ForEachElement(env, list.get(), count, [&](jsize i, jobject disk) {
        const Single_Disk_Info_t& d = info.pDiskInfoList[i];
        CJniKits::SetStuIntField(env, disk, dc, "nDiskId", d.nDiskId);
        CJniKits::SetStuIntField(env, disk, dc, "uVolume", static_cast<int>(d.uVolume));
        CJniKits::SetStuIntField(env, disk, dc, "uFreeSpace", static_cast<int>(d.uFreeSpace));
        // Unsigned bytes widen to chars 0 to 255, never sign-extended.
        CJniKits::SetStuCharField(env, disk, dc, "diskState", d.diskState);
        CJniKits::SetStuCharField(env, disk, dc, "diskNum", d.diskNum);
        CJniKits::SetStuCharField(env, disk, dc, "subareaNum", d.subareaNum);
        CJniKits::SetStuCharField(env, disk, dc, "signal", d.signal);
    });
    if (info.nDiskInfoSize > capacity) {
        CJniKits::ThrowIndexOutOfBounds(env, "the library reported more disks than were asked for");
    }
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1ControlDevBurner(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbControlDevBurnerRequest,
    jint jiTimeout) {
    return SendRequest<Control_Dev_Burner_Request_t>(
        env, jbControlDevBurnerRequest, "com/zq/OrvexCore/Control_Dev_Burner_Request_t",
        [&](jclass cls, Control_Dev_Burner_Request_t& rq) {
            jobject jo = jbControlDevBurnerRequest;
            CJniKits::GetStuByteArrayField(env, jo, cls, "deviceId", rq.deviceId);
            rq.cmd = static_cast<Core_EnumControlBurnerCmd>(
                CJniKits::GetStuIntField(env, jo, cls, "cmd"));
            rq.channelMask = CJniKits::GetStuIntField(env, jo, cls, "channelMask");
            rq.burnerMask = CJniKits::GetStuIntField(env, jo, cls, "burnerMask");
            rq.emMode = CJniKits::GetStuIntField(env, jo, cls, "emMode");
            rq.emPack = CJniKits::GetStuIntField(env, jo, cls, "emPack");
        },
        [&](Control_Dev_Burner_Request_t* rq) {
            return ORVEX_ControlDevBurner(jiHandle, rq, jiTimeout);
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetDevBurnerHeader(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbInfoHeader, jobject jbAttrName,
    jint jiTimeout) {
    if (IsNullArg(env, jbInfoHeader, "jbInfoHeader") || IsNullArg(env, jbAttrName, "jbAttrName")) {
        return RefuseInput();
    }
    DevBurnerInfoHeader_t header = Zeroed<DevBurnerInfoHeader_t>();
    TrialFormAttrName_t labels = Zeroed<TrialFormAttrName_t>();
    ReadBurnerHeader(env, jbInfoHeader, header);
    if (InputFailed(env)) {
        return RefuseInput();
    }
    ReadFormLabels(env, jbAttrName, labels);
    if (InputFailed(env)) {
        return RefuseInput();
    }
    return StoreResult(ORVEX_SetDevBurnerHeader(jiHandle, &header, &labels, jiTimeout));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDeviceDiskInfoCount(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbDeviceID, jobject jbInfoCount,
    jobject jbSequence, jint jiTimeout) {
    if (jbDeviceID == nullptr) {  // answered with 1009 alone, as callers have always seen
        return RefuseInput();
    }
    return WithText(
        env, jbDeviceID, "jbDeviceID", EmptyText::KeepLastResult, [&](const char* szDeviceId) {
            if (IsNullArg(env, jbInfoCount, "jbInfoCount") ||
                IsNullArg(env, jbSequence, "jbSequence")) {
                return static_cast<int>(ORVEX_CORE_ERROR_INVALID_PARAM);
            }
            int32_t nCount = 0;
            int32_t nSequence = 0;
            const int nResult =
                ORVEX_GetDeviceDiskInfoCount(jiHandle, szDeviceId, &nCount, &nSequence, jiTimeout);
            // Both holders receive the count: Java callers have always read the
            // second one that way, and the sequence is discarded.
            ReturnValueOnSuccess(env, jbInfoCount, nResult, nCount);
            ReturnValueOnSuccess(env, jbSequence, nResult, nCount);
            return nResult;
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDeviceDiskInfo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jint jiSequence, jint jiInfoCount,
    jobject jbDiskInfo) {
    if (jbDiskInfo == nullptr) {
        return RefuseInput();
    }
    std::unique_ptr<Device_Disk_Info_t> info(new (std::nothrow) Device_Disk_Info_t);
    if (!info) {
        return ORVEX_CORE_ERROR_GET_MEMORY_FAIL;  // returned, not stored
    }
    std::unique_ptr<Single_Disk_Info_t[]> list = NewRecords<Single_Disk_Info_t>(env, jiInfoCount);
    if (!list) {
        return RefuseInput();
    }
    info->pDiskInfoList = list.get();
    const int nResult = ORVEX_GetDeviceDiskInfo(jiHandle, jiSequence, info.get());
    StoreResult(nResult);
    if (nResult == ORVEX_RET_SUCCESS) {
        WriteDiskInfo(env, jbDiskInfo, *info, jiInfoCount);
    }
    // The list is released exactly once, by `list`; the record's destructor would release it a
    // second time, which aborts the process, so the record lets go of it before it is destroyed.
    info->pDiskInfoList = nullptr;
    return LastResult();
}

}  // extern "C"
