// Result codes of the ORVEX core client library.
//
// Every library function returns one of these codes as a 32-bit signed integer; 0 means
// success. Codes not listed here are passed through by callers unchanged.
#pragma once

#include <cstdint>

enum orvex_retval_e : int32_t {
    ORVEX_RET_SUCCESS = 0,                     // the call succeeded
    ORVEX_CORE_ERROR_GET_MEMORY_FAIL = 1002,   // a memory allocation failed
    ORVEX_CORE_ERROR_INVALID_PARAM = 1009,     // a required argument is missing or invalid
    ORVEX_CORE_ERROR_CREATE_JNI_ERROR = 1999,  // a Java reference could not be created
};
