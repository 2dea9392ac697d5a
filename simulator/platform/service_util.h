// Small pieces the wall, burner and auxiliary services share: who may operate devices, and
// texts crossing fixed character members of the library's records.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "ORVEX_Core_Error.h"
#include "site_model.h"

namespace orvexsim::platform {

// Walls, doors, burners and on-screen texts change what others see: only users allowed to
// operate devices may command them.
inline int32_t MayOperate(const Site& site, const Instance& in) {
    return MayOperate(in, site) ? ORVEX_RET_SUCCESS : ORVEX_CORE_ERROR_NO_PERMISSION;
}

// A text member the caller filled is usable only if it ends inside the member.
template <std::size_t N>
bool Terminated(const char (&member)[N]) {
    return std::memchr(member, '\0', N) != nullptr;
}

// How much of a buffer a text is written into.
enum class Rest {
    Cleared,   // the caller told the buffer's size: the rest of it is zeroed
    Untouched  // the size is only a bound the platform keeps to: nothing past the terminator
};

// Writes `text` and its terminator into a buffer of `capacity` bytes;
// ORVEX_CORE_ERROR_BUFFER_TOO_SMALL, with nothing written, when it does not fit.
inline int32_t WriteText(const std::string& text, char* buffer, std::size_t capacity,
                         Rest rest = Rest::Cleared) {
    if (buffer == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    if (text.size() + 1 > capacity) {
        return ORVEX_CORE_ERROR_BUFFER_TOO_SMALL;
    }
    std::memcpy(buffer, text.c_str(), text.size() + 1);
    if (rest == Rest::Cleared) {
        std::memset(buffer + text.size() + 1, 0, capacity - text.size() - 1);
    }
    return ORVEX_RET_SUCCESS;
}

// The same text escaped for an XML attribute.
inline std::string XmlEscaped(const std::string& text) {
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
                out += "&apos;";
                break;
            default:
                out += c;
        }
    }
    return out;
}

}  // namespace orvexsim::platform

namespace orvexsim::platform {

// Seconds since the Unix epoch, as the platform stamps events.
inline int64_t NowSeconds() {
    return std::chrono::duration_cast<std::chrono::seconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

}  // namespace orvexsim::platform
