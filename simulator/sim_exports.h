// Small helpers shared by the export files of the stand-in library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "sim_core.h"

namespace orvexsim {

template <typename Fn>
void* Address(Fn fn) {
    return reinterpret_cast<void*>(fn);
}

// Size in bytes of `count` records of type T; a negative count stands for none, so that a
// caller's bad count cannot make the recorder read a huge range.
template <typename T, typename N>
std::size_t ArrayBytes(N count) {
    return count > 0 ? static_cast<std::size_t>(count) * sizeof(T) : 0;
}

// The record array a structure points to, sized from its count member as it is on entry and
// offered to scripted writes (the library fills it). Skipped when the structure itself is null.
template <typename S, typename R, typename N>
void OutRecords(CallRecord& call, const char* name, S* s, R* S::*array, N S::*count) {
    if (s != nullptr) {
        call.out(name, s->*array, ArrayBytes<R>(s->*count));
    }
}

// As OutRecords, for arrays the library only reads.
template <typename S, typename R, typename N>
void InRecords(CallRecord& call, const char* name, const S* s, R* S::*array, N S::*count) {
    if (s != nullptr) {
        call.bytes(name, s->*array, ArrayBytes<R>(s->*count));
    }
}

// The shape of most commands: handle, a request structure the library only reads, time-out;
// `platform` answers an unscripted call (see CallRecord::finish).
template <typename Info>
int32_t CommandCall(const char* fn, int32_t nHandle, const Info* pInfo, int32_t nTimeout,
                    const std::function<int32_t()>& platform = nullptr) {
    return CallRecord(fn)
        .scalar("nHandle", nHandle)
        .record("pInfo", pInfo)
        .scalar("nTimeout", nTimeout)
        .finish(platform);
}

// Handle, a structure the library fills (its inputs recorded as they arrive), time-out.
template <typename Info>
int32_t FillCall(const char* fn, int32_t nHandle, Info* pInfo, int32_t nTimeout,
                 const std::function<int32_t()>& platform = nullptr) {
    return CallRecord(fn)
        .scalar("nHandle", nHandle)
        .out("pInfo", pInfo)
        .scalar("nTimeout", nTimeout)
        .finish(platform);
}

}  // namespace orvexsim
