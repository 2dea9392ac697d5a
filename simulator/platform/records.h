// Small helpers for answering into the library's records and text buffers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "ORVEX_Core_Error.h"

namespace orvexsim::platform {

// Copies a text into a fixed char member, zero-filling the rest; the scenario reader guarantees
// texts fit, so the cut at N - 1 bytes only guards against texts changed at run time.
template <std::size_t N>
void Put(char (&member)[N], const std::string& text) {
    const std::size_t n = text.size() < N - 1 ? text.size() : N - 1;
    std::memset(member, 0, N);
    std::memcpy(member, text.data(), n);
}

// A fixed char member as a text: up to its first zero byte, never past its end.
template <std::size_t N>
std::string Get(const char (&member)[N]) {
    return std::string(member, strnlen(member, N));
}

// The second step of a length-then-text pair: the first step reported text.size() (no
// terminator); the caller's buffer holds `len` bytes. At most `len` bytes are written: the text,
// cut at `len`, and a terminator only when it fits.
inline int32_t WriteText(char* buffer, int32_t len, const std::string& text) {
    if (buffer == nullptr || len < 0) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    const std::size_t room = static_cast<std::size_t>(len);
    const std::size_t n = text.size() < room ? text.size() : room;
    std::memcpy(buffer, text.data(), n);
    if (n < room) {
        buffer[n] = '\0';
    }
    return ORVEX_RET_SUCCESS;
}

// Text lengths travel as int32_t.
inline int32_t LengthOf(const std::string& text) {
    return static_cast<int32_t>(text.size());
}

// A text argument that must be present and non-empty.
inline bool Given(const char* text) {
    return text != nullptr && *text != '\0';
}

// ` name="value"` with the value escaped for XML.
inline std::string Attr(const char* name, const std::string& value) {
    std::string out = std::string(" ") + name + "=\"";
    for (char c : value) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            default:
                out += c;
        }
    }
    return out + "\"";
}

inline std::string Attr(const char* name, const char* value) {
    return Attr(name, std::string(value));
}

template <typename Number>
std::string Attr(const char* name, Number value) {
    return Attr(name, std::to_string(value));
}

}  // namespace orvexsim::platform
