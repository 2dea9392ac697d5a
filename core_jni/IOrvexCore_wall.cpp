// Video walls: the walls and the screens of a wall, then control of screens and windows.
#include <com_zq_OrvexCore_IOrvexCore.h>

#include <cstdint>

#include "BridgeFrame.h"
#include "JniKits.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"

namespace {

// The wall and screen members that lead every screen request.
template <typename Info>
void ReadWallAndScreen(JNIEnv* env, jobject jo, jclass cls, Info& info) {
    info.nTvWallId = IntFieldAs<uint32_t>(env, jo, cls, "nTvWallId");
    info.nScreenId = IntFieldAs<uint32_t>(env, jo, cls, "nScreenId");
}

// TvWall_List_Info_t: the capacity in, the walls out.
struct WallListFetch {
    using Info = TvWall_List_Info_t;
    using Record = TvWall_Info_t;
    static constexpr const char* kClass = "com/zq/OrvexCore/TvWall/TvWall_List_Info_t";
    static constexpr const char* kElementClass = "com/zq/OrvexCore/TvWall/TvWall_Info_t";
    static constexpr const char* kArrayField = "pTvWallInfo";
    static constexpr const char* kArraySignature = "[Lcom/zq/OrvexCore/TvWall/TvWall_Info_t;";
    static uint32_t& Count(Info& info) { return info.nCount; }
    static Record*& Records(Info& info) { return info.pTvWallInfo; }
    static void Read(JNIEnv* env, jobject jo, jclass cls, Info& info) {
        info.nCount = IntFieldAs<uint32_t>(env, jo, cls, "nCount");
    }
    static void Write(JNIEnv* env, jobject jo, jclass cls, const Record& wall) {
        CJniKits::SetStuIntField(env, jo, cls, "nTvWallId", static_cast<int>(wall.nTvWallId));
        CJniKits::SetStuIntField(env, jo, cls, "nState", static_cast<int>(wall.nState));
        SetTextField(env, jo, cls, "szName", wall.szName);
    }
};

// TvWall_Layout_Info_t: the wall and the capacity in, the screens out. bCombine is never carried
// to Java; the Java screen class has no such field.
struct WallLayoutFetch {
    using Info = TvWall_Layout_Info_t;
    using Record = TvWall_Screen_Info_t;
    static constexpr const char* kClass = "com/zq/OrvexCore/TvWall/TvWall_Layout_Info_t";
    static constexpr const char* kElementClass = "com/zq/OrvexCore/TvWall/TvWall_Screen_Info_t";
    static constexpr const char* kArrayField = "pScreenInfo";
    static constexpr const char* kArraySignature =
        "[Lcom/zq/OrvexCore/TvWall/TvWall_Screen_Info_t;";
    static uint32_t& Count(Info& info) { return info.nCount; }
    static Record*& Records(Info& info) { return info.pScreenInfo; }
    static void Read(JNIEnv* env, jobject jo, jclass cls, Info& info) {
        info.nTvWallId = IntFieldAs<uint32_t>(env, jo, cls, "nTvWallId");
        info.nCount = IntFieldAs<uint32_t>(env, jo, cls, "nCount");
    }
    static void Write(JNIEnv* env, jobject jo, jclass cls, const Record& screen) {
        CJniKits::SetStuIntField(env, jo, cls, "nScreenId", static_cast<int>(screen.nScreenId));
        SetTextField(env, jo, cls, "szName", screen.szName);
        SetTextField(env, jo, cls, "szDecoderId", screen.szDecoderId);
        CJniKits::SetStuFloatField(env, jo, cls, "fLeft", screen.fLeft);
        CJniKits::SetStuFloatField(env, jo, cls, "fTop", screen.fTop);
        CJniKits::SetStuFloatField(env, jo, cls, "fWidth", screen.fWidth);
        CJniKits::SetStuFloatField(env, jo, cls, "fHeight", screen.fHeight);
        CJniKits::SetStuBoolField(env, jo, cls, "bBind", screen.bBind ? 1 : 0);
    }
};

// A wall or screen count, written into the holder whatever the result: 0 unless the library
// wrote one before failing.
template <typename Call>
jint WallCount(JNIEnv* env, jobject joCount, Call call) {
    return StoreResult(
        ValueIntoHolder<uint32_t>(env, joCount, "joCount", call, HolderWrite::Always));
}

// A wall or screen fetch: a null request or a zero count is 1009, and the elements are written
// also after a failed call, from the zeroed records.
template <typename Fetch, typename Call>
jint WallFetch(JNIEnv* env, jobject joRequest, Call call) {
    if (joRequest == nullptr) {
        return RefuseInput();
    }
    return FetchRecords<Fetch>(env, joRequest, ZeroCount::Invalid, WriteBack::Always, call);
}

// A screen command sends one request structure; these methods test the request for null
// themselves and answer 1009 without an exception. Every request structure is zeroed whole:
// for the padding-free close and split requests that is the same as zeroing member by member.
template <typename Info, typename Read, typename Call>
jint ScreenCommand(JNIEnv* env, jobject joRequest, const char* classPath, Read read, Call call) {
    if (joRequest == nullptr) {
        return RefuseInput();
    }
    return SendRequest<Info>(env, joRequest, classPath, read, call);
}

constexpr const char* kOpenWindowClass = "com/zq/OrvexCore/TvWall/TvWall_Screen_Open_Window_t";

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetTvWallListCount(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joCount, jint jiTimeout) {
    return WallCount(env, joCount, [&](uint32_t* pnCount) {
        return ORVEX_GetTvWallListCount(jiHandle, pnCount, jiTimeout);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetTvWallList(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joTvWallListInfo) {
    return WallFetch<WallListFetch>(env, joTvWallListInfo, [&](TvWall_List_Info_t* pInfo) {
        return ORVEX_GetTvWallList(jiHandle, pInfo);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetTvWallLayoutCount(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jint jiTvWallId, jobject joCount, jint jiTimeout) {
    return WallCount(env, joCount, [&](uint32_t* pnCount) {
        return ORVEX_GetTvWallLayoutCount(jiHandle, static_cast<uint32_t>(jiTvWallId), pnCount,
                                          jiTimeout);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetTvWallLayout(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joTvWallLayoutInfo) {
    return WallFetch<WallLayoutFetch>(env, joTvWallLayoutInfo, [&](TvWall_Layout_Info_t* pInfo) {
        return ORVEX_GetTvWallLayout(jiHandle, pInfo);
    });
}

// szCameraId is copied whole into its 64-byte member; a longer Java array is refused.
JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetTvWallScreenWindowSource(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joWindowSourceInfo, jint jiTimeout) {
    using Info = Set_TvWall_Screen_Window_Source_t;
    return ScreenCommand<Info>(
        env, joWindowSourceInfo, "com/zq/OrvexCore/TvWall/Set_TvWall_Screen_Window_Source_t",
        [&](jclass cls, Info& info) {
            jobject jo = joWindowSourceInfo;
            ReadWallAndScreen(env, jo, cls, info);
            info.nWindowId = IntFieldAs<uint32_t>(env, jo, cls, "nWindowId");
            CJniKits::GetStuByteArrayField(env, jo, cls, "szCameraId", info.szCameraId);
            info.nStayTime =
                static_cast<uint64_t>(CJniKits::GetStuLongField(env, jo, cls, "nStayTime"));
            info.enStreamType = static_cast<orvex_stream_type_e>(
                CJniKits::GetStuIntField(env, jo, cls, "enStreamType"));
        },
        [&](Info* pInfo) { return ORVEX_SetTvWallScreenWindowSource(jiHandle, pInfo, jiTimeout); });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1CloseTvWallScreenWindowSource(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joCloseSourceInfo, jint jiTimeout) {
    using Info = TvWall_Screen_Close_Source_t;
    return ScreenCommand<Info>(
        env, joCloseSourceInfo, "com/zq/OrvexCore/TvWall/TvWall_Screen_Close_Source_t",
        [&](jclass cls, Info& info) {
            jobject jo = joCloseSourceInfo;
            ReadWallAndScreen(env, jo, cls, info);
            info.nWindowId = IntFieldAs<uint32_t>(env, jo, cls, "nWindowId");
        },
        [&](Info* pInfo) {
            return ORVEX_CloseTvWallScreenWindowSource(jiHandle, pInfo, jiTimeout);
        });
}

// The split is not checked against 1, 4, 9 and 16: the library or the platform rejects others.
JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetTvWallScreenSplit(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joSplitInfo, jint jiTimeout) {
    using Info = TvWall_Screen_Split_t;
    return ScreenCommand<Info>(
        env, joSplitInfo, "com/zq/OrvexCore/TvWall/TvWall_Screen_Split_t",
        [&](jclass cls, Info& info) {
            jobject jo = joSplitInfo;
            ReadWallAndScreen(env, jo, cls, info);
            info.enSplitNum = static_cast<tvwall_screen_split_caps>(
                CJniKits::GetStuIntField(env, jo, cls, "enSplitNum"));
        },
        [&](Info* pInfo) { return ORVEX_SetTvWallScreenSplit(jiHandle, pInfo, jiTimeout); });
}

// The new window's identifier and stacking order are written back only on success; the Java
// values of both are never read.
JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1TvWallScreenOpenWindow(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joOpenWindowInfo, jint jiTimeout) {
    using Info = TvWall_Screen_Open_Window_t;
    jobject jo = joOpenWindowInfo;
    return ScreenCommand<Info>(
        env, jo, kOpenWindowClass,
        [&](jclass cls, Info& info) {
            ReadWallAndScreen(env, jo, cls, info);
            info.fLeft = CJniKits::GetStuFloatField(env, jo, cls, "fLeft");
            info.fTop = CJniKits::GetStuFloatField(env, jo, cls, "fTop");
            info.fWidth = CJniKits::GetStuFloatField(env, jo, cls, "fWidth");
            info.fHeight = CJniKits::GetStuFloatField(env, jo, cls, "fHeight");
        },
        [&](Info* pInfo) {
            const int nResult = ORVEX_TvWallScreenOpenWindow(jiHandle, pInfo, jiTimeout);
            if (nResult == ORVEX_RET_SUCCESS) {
                LocalClass cls = FindValueClass(env, kOpenWindowClass);
                CJniKits::SetStuIntField(env, jo, cls.get(), "nWindowId",
                                         static_cast<int>(pInfo->nWindowId));
                CJniKits::SetStuIntField(env, jo, cls.get(), "nZorder",
                                         static_cast<int>(pInfo->nZorder));
            }
            return nResult;
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1ClearTvWallScreen(
    JNIEnv* /*env*/, jclass /*thiz*/, jint jiHandle, jint jiTvWallId, jint jiTimeout) {
    return StoreResult(
        ORVEX_ClearTvWallScreen(jiHandle, static_cast<uint32_t>(jiTvWallId), jiTimeout));
}

// The decoder identifier goes with its exact length and a terminator; null or empty is 1009.
JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1ClearTvWallScreenByDecodeId(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jint jiTvWallId, jbyteArray jbDecodeId,
    jint jiTimeout) {
    return WithCheckedText(env, jbDecodeId, EmptyText::Invalid, [&](const char* szDecodeId) {
        return ORVEX_ClearTvWallScreenByDecodeId(jiHandle, static_cast<uint32_t>(jiTvWallId),
                                                 szDecodeId, jiTimeout);
    });
}

}  // extern "C"
