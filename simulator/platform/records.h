// Texts crossing the library's records and caller buffers, and XML attributes: the one set every
// platform service uses.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "ORVEX_Core_Error.h"

namespace orvexsim::platform {

// A text member of a library record: up to its first NUL, never beyond the member.
template <std::size_t N>
std::string FixedText(const char (&member)[N]) {
    return std::string(member, strnlen(member, N));
}

// Writes `text` into a text member of a record, zero-filling the rest; the scenario reader
// guarantees texts fit, so the cut at N - 1 bytes only guards against texts changed at run time.
template <std::size_t N>
void CopyText(char (&member)[N], const std::string& text) {
    const std::size_t n = text.size() < N - 1 ? text.size() : N - 1;
    std::memcpy(member, text.data(), n);
    std::memset(member + n, 0, N - n);
}

// A text member the caller filled is usable only if it ends inside the member.
template <std::size_t N>
bool Terminated(const char (&member)[N]) {
    return std::memchr(member, '\0', N) != nullptr;
}

// How a text goes into a caller's buffer of `capacity` bytes.
enum class TextFit {
    // The second step of a length-then-text pair: the first step reported the length without a
    // terminator. The text is cut at `capacity`; a terminator follows only when it fits.
    Cut,
    // The whole text and its terminator, or ORVEX_CORE_ERROR_BUFFER_TOO_SMALL with nothing
    // written. The caller told the buffer's size: the rest of it is zeroed.
    WholeClearRest,
    // As WholeClearRest, but the capacity is only a bound the platform keeps to (the buffer may
    // be smaller): nothing is written past the terminator.
    WholeOnly
};

// Writes `text` into `buffer` as `fit` says; ORVEX_CORE_ERROR_INVALID_PARAM for a null buffer or
// a negative capacity.
inline int32_t WriteText(char* buffer, int64_t capacity, const std::string& text, TextFit fit) {
    if (buffer == nullptr || capacity < 0) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    const std::size_t room = static_cast<std::size_t>(capacity);
    if (fit == TextFit::Cut) {
        const std::size_t n = text.size() < room ? text.size() : room;
        std::memcpy(buffer, text.data(), n);
        if (n < room) {
            buffer[n] = '\0';
        }
        return ORVEX_RET_SUCCESS;
    }
    if (text.size() + 1 > room) {
        return ORVEX_CORE_ERROR_BUFFER_TOO_SMALL;
    }
    std::memcpy(buffer, text.c_str(), text.size() + 1);
    if (fit == TextFit::WholeClearRest) {
        std::memset(buffer + text.size() + 1, 0, room - text.size() - 1);
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

// How much of a text XmlEscaped escapes.
enum class XmlQuotes {
    Double,  // for values in double quotes: &, <, >, "
    All      // the apostrophe too
};

// The text escaped for an XML attribute value.
inline std::string XmlEscaped(const std::string& text, XmlQuotes quotes) {
    std::string out;
    for (char c : text) {
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
            case '\'':
                out += quotes == XmlQuotes::All ? "&apos;" : "'";
                break;
            default:
                out += c;
        }
    }
    return out;
}

// ` name="value"` with the value escaped for XML.
inline std::string Attr(const char* name, const std::string& value,
                        XmlQuotes quotes = XmlQuotes::Double) {
    return std::string(" ") + name + "=\"" + XmlEscaped(value, quotes) + "\"";
}

inline std::string Attr(const char* name, const char* value) {
    return Attr(name, std::string(value));
}

template <typename Number>
std::string Attr(const char* name, Number value) {
    return Attr(name, std::to_string(value));
}

// Seconds since the Unix epoch, as the platform stamps events.
inline int64_t NowSeconds() {
    return std::chrono::duration_cast<std::chrono::seconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

}  // namespace orvexsim::platform
