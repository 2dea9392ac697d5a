#include "Records_catalogue.h"

#include "JniKits.h"
#include "NativeShapes.h"

namespace {

// A text member at its full size: terminator and the bytes after it included.
template <std::size_t N>
void WholeText(JNIEnv* env, jobject jo, jclass cls, const char* field, const char (&member)[N]) {
    CJniKits::SetStuByteArrayField(env, jo, cls, field, member, static_cast<int>(N));
}

// A text member at its strlen: only the text, no terminator.
template <std::size_t N>
void ShortText(JNIEnv* env, jobject jo, jclass cls, const char* field, const char (&member)[N]) {
    CJniKits::SetStuByteArrayField(env, jo, cls, field, member, TextLength(member));
}

// The three fields both channel records begin with.
template <typename Channel>
void WriteChannelHead(JNIEnv* env, jobject jo, jclass cls, const Channel& channel) {
    CJniKits::SetStuIntField(env, jo, cls, "nCameraType", channel.nCameraType);
    ShortText(env, jo, cls, "szId", channel.szId);
    ShortText(env, jo, cls, "szName", channel.szName);
}

}  // namespace

void WriteDepInfo(JNIEnv* env, jobject joDep, jclass clsDep, const Dep_Info_t& dep) {
    WholeText(env, joDep, clsDep, "szCoding", dep.szCoding);
    WholeText(env, joDep, clsDep, "szDepName", dep.szDepName);
}

void WriteDepInfoEx(JNIEnv* env, jobject joDep, jclass clsDep, const Dep_Info_Ex_t& dep) {
    WholeText(env, joDep, clsDep, "szCoding", dep.szCoding);
    WholeText(env, joDep, clsDep, "szDepName", dep.szDepName);
    WholeText(env, joDep, clsDep, "szModifyTime", dep.szModifyTime);
    WholeText(env, joDep, clsDep, "szSN", dep.szSN);
    WholeText(env, joDep, clsDep, "szMemo", dep.szMemo);
    CJniKits::SetStuIntField(env, joDep, clsDep, "nDepType", dep.nDepType);
    CJniKits::SetStuIntField(env, joDep, clsDep, "nDepSort", dep.nDepSort);
    CJniKits::SetStuIntField(env, joDep, clsDep, "nChargebooth", dep.nChargebooth);
    CJniKits::SetStuIntField(env, joDep, clsDep, "nDepExtType", dep.nDepExtType);
}

void WriteChannelInfo(JNIEnv* env, jobject joChannel, jclass clsChannel,
                      const Enc_Channel_Info_t& channel) {
    WriteChannelHead(env, joChannel, clsChannel, channel);
}

void WriteChannelInfoEx(JNIEnv* env, jobject joChannel, jclass clsChannel,
                        const Enc_Channel_Info_Ex_t& channel) {
    WriteChannelHead(env, joChannel, clsChannel, channel);
    CJniKits::SetStuLongField(env, joChannel, clsChannel, "nRight",
                              static_cast<long>(channel.nRight));
    CJniKits::SetStuIntField(env, joChannel, clsChannel, "nChnlType", channel.nChnlType);
    CJniKits::SetStuIntField(env, joChannel, clsChannel, "nStatus", channel.nStatus);
    ShortText(env, joChannel, clsChannel, "szChnlSN", channel.szChnlSN);
    ShortText(env, joChannel, clsChannel, "szLatitude", channel.szLatitude);
    ShortText(env, joChannel, clsChannel, "szLongitude", channel.szLongitude);
    ShortText(env, joChannel, clsChannel, "szMulticastIp", channel.szMulticastIp);
    CJniKits::SetStuIntField(env, joChannel, clsChannel, "nMulticastPort", channel.nMulticastPort);
}
