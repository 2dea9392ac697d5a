// Result codes of the ORVEX core client library.
//
// Every library function returns one of these codes as a 32-bit signed integer; 0 means
// success. Codes not listed here are passed through by callers unchanged. The table below is
// the one place that names each code and gives its message.
#pragma once

#include <cstdint>

// X(name, value, message)
#define ORVEX_RESULT_CODES(X)                                                                \
    X(ORVEX_RET_SUCCESS, 0, "the call succeeded")                                            \
    X(ORVEX_CORE_ERROR_UNKNOWN_HANDLE, 1001, "no client instance has this handle")           \
    X(ORVEX_CORE_ERROR_GET_MEMORY_FAIL, 1002, "a memory allocation failed")                  \
    X(ORVEX_CORE_ERROR_NOT_LOGGED_IN, 1003, "the instance is not logged in")                 \
    X(ORVEX_CORE_ERROR_LOGIN_FAIL, 1004, "the user name or password is wrong")               \
    X(ORVEX_CORE_ERROR_ALREADY_LOGGED_IN, 1005, "the instance is already logged in")         \
    X(ORVEX_CORE_ERROR_TIMEOUT, 1006, "the platform did not answer in time")                 \
    X(ORVEX_CORE_ERROR_NO_PERMISSION, 1007, "the user's level does not allow this")          \
    X(ORVEX_CORE_ERROR_TREE_NOT_LOADED, 1008, "the organisation tree is not loaded")         \
    X(ORVEX_CORE_ERROR_INVALID_PARAM, 1009, "a required argument is missing or invalid")     \
    X(ORVEX_CORE_ERROR_GROUP_NOT_FOUND, 1010, "no department has this coding or index")      \
    X(ORVEX_CORE_ERROR_DEVICE_NOT_FOUND, 1011, "no device has this identifier")              \
    X(ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND, 1012, "no channel or camera has this identifier")  \
    X(ORVEX_CORE_ERROR_SEQ_NOT_FOUND, 1013, "no open stream or query has this number")       \
    X(ORVEX_CORE_ERROR_DEVICE_OFFLINE, 1014, "the device is offline")                        \
    X(ORVEX_CORE_ERROR_BUFFER_TOO_SMALL, 1015, "the answer does not fit the given buffer")   \
    X(ORVEX_CORE_ERROR_NOT_SUPPORTED, 1016, "the device does not support this operation")    \
    X(ORVEX_CORE_ERROR_BUSY, 1017, "the resource is in use by another session")              \
    X(ORVEX_CORE_ERROR_NOT_FOUND, 1018, "no such record, preset, wall, door or item")        \
    X(ORVEX_CORE_ERROR_SCENARIO_INVALID, 1019, "the simulated site's scenario is malformed") \
    X(ORVEX_CORE_ERROR_CREATE_JNI_ERROR, 1999, "a Java reference could not be created")

enum orvex_retval_e : int32_t {
#define ORVEX_RESULT_ENUMERATOR(name, value, message) name = value,
    ORVEX_RESULT_CODES(ORVEX_RESULT_ENUMERATOR)
#undef ORVEX_RESULT_ENUMERATOR
};

// The message of a result code; "unknown result code" for a code the table does not list.
inline const char* ORVEX_ErrorMessage(int32_t code) {
    switch (code) {
#define ORVEX_RESULT_MESSAGE(name, value, message) \
    case name:                                     \
        return message;
        ORVEX_RESULT_CODES(ORVEX_RESULT_MESSAGE)
#undef ORVEX_RESULT_MESSAGE
        default:
            return "unknown result code";
    }
}
