// Reading one JSON object of a scenario: typed members that know their JSON pointer, for the
// scenario reader (site_scenario.cpp) only.
#pragma once

#include <cstdint>
#include <limits>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

namespace orvexsim::platform::scenario {

using nlohmann::json;

// The first problem found in a scenario. The reader carries on past it with defaults (nothing it
// reads afterwards is used), so that no exception is needed: the stand-in runs inside JVMs where
// throwing may not work (a preloaded sanitizer runtime, for one).
struct Problem {
    bool found = false;
    std::string where;
    std::string what;

    void note(const std::string& at, const std::string& problem) {
        if (!found) {
            found = true;
            where = at;
            what = problem;
        }
    }
};

// Record members are C arrays of these sizes; a text must leave room for its terminator.
constexpr std::size_t kId = 63, kCoding = 127, kName = 255, kShort = 31, kIp = 47, kMemo = 1023;

inline std::string Escape(const std::string& key) {
    std::string out;
    for (char c : key) {
        out += c == '~' ? "~0" : c == '/' ? "~1" : std::string(1, c);
    }
    return out;
}

inline const char* TypeName(const json& j) {
    return j.type_name();
}

// One JSON object of the scenario: typed member reads that know their place, and a final check
// that no member was left unread (a misspelt key is an error, not a silent default). A problem is
// noted in the shared Problem and the read answers its default.
class Obj {
  public:
    Obj(const json& j, std::string where, Problem& problem)
        : j_(j), where_(std::move(where)), p_(problem) {
        if (!j_.is_object()) {
            p_.note(Where(), std::string("expected an object, found ") + TypeName(j));
        }
    }

    std::string Where() const { return where_.empty() ? "/" : where_; }
    std::string At(const char* key) const { return where_ + "/" + Escape(key); }
    Problem& problem() { return p_; }
    void fail(const std::string& where, const std::string& what) { p_.note(where, what); }

    // A text; required when `def` is null.
    std::string text(const char* key, std::size_t maxLen, const char* def = nullptr) {
        const json* v = typed(key, def == nullptr, &json::is_string, "a string");
        std::string s = def != nullptr ? def : "";
        if (v == nullptr) {
            return s;
        }
        if (v->get_ref<const std::string&>().size() > maxLen) {
            p_.note(At(key),
                    "too long: " + std::to_string(v->get_ref<const std::string&>().size()) +
                        " bytes, at most " + std::to_string(maxLen));
        } else {
            s = v->get<std::string>();
        }
        return s;
    }

    template <typename T>
    T integer(const char* key, T def, bool required = false) {
        const json* v = typed(key, required, &json::is_number_integer, "an integer");
        if (v == nullptr) {
            return def;
        }
        const bool fits =
            v->is_number_unsigned()
                ? v->get<uint64_t>() <= static_cast<uint64_t>(std::numeric_limits<T>::max())
                : v->get<int64_t>() >= static_cast<int64_t>(std::numeric_limits<T>::min()) &&
                      (v->get<int64_t>() < 0 ||
                       static_cast<uint64_t>(v->get<int64_t>()) <=
                           static_cast<uint64_t>(std::numeric_limits<T>::max()));
        if (!fits) {
            p_.note(At(key), "out of range: " + v->dump());
            return def;
        }
        return v->is_number_unsigned() ? static_cast<T>(v->get<uint64_t>())
                                       : static_cast<T>(v->get<int64_t>());
    }

    bool flag(const char* key, bool def) {
        const json* v = typed(key, false, &json::is_boolean, "true or false");
        return v != nullptr ? v->get<bool>() : def;
    }

    double number(const char* key, double def) {
        const json* v = typed(key, false, &json::is_number, "a number");
        return v != nullptr ? v->get<double>() : def;
    }

    // An optional array, each element read by `each(element, itsPlace, problem)`.
    template <typename T, typename F>
    std::vector<T> list(const char* key, F each) {
        std::vector<T> out;
        const json* v = typed(key, false, &json::is_array, "an array");
        if (v == nullptr) {
            return out;
        }
        for (std::size_t k = 0; k < v->size() && !p_.found; ++k) {
            out.push_back(each((*v)[k], At(key) + "/" + std::to_string(k), p_));
        }
        return out;
    }

    // An optional nested object, read by `each(member, itsPlace, problem)`.
    template <typename T, typename F>
    T object(const char* key, T def, F each) {
        const json* v = get(key, false);
        return v == nullptr ? def : each(*v, At(key), p_);
    }

    std::vector<std::string> texts(const char* key, std::size_t maxLen) {
        return list<std::string>(
            key, [maxLen](const json& e, const std::string& where, Problem& p) -> std::string {
                if (!e.is_string()) {
                    p.note(where, std::string("expected a string, found ") + TypeName(e));
                    return "";
                }
                if (e.get_ref<const std::string&>().size() > maxLen) {
                    p.note(where, "too long: at most " + std::to_string(maxLen));
                    return "";
                }
                return e.get<std::string>();
            });
    }

    void done() {
        if (!j_.is_object()) {
            return;
        }
        for (auto it = j_.begin(); it != j_.end(); ++it) {
            if (read_.count(it.key()) == 0) {
                p_.note(At(it.key().c_str()), "unknown member \"" + it.key() + "\"");
            }
        }
    }

  private:
    // The member when present and of the type `is` checks; otherwise null, and a wrong type is
    // noted as not the `expected` one.
    const json* typed(const char* key, bool required, bool (json::*is)() const noexcept,
                      const char* expected) {
        const json* v = get(key, required);
        if (v != nullptr && !(v->*is)()) {
            p_.note(At(key), std::string("expected ") + expected + ", found " + TypeName(*v));
            return nullptr;
        }
        return v;
    }

    const json* get(const char* key, bool required) {
        read_.insert(key);
        if (!j_.is_object()) {
            return nullptr;
        }
        auto it = j_.find(key);
        if (it == j_.end() || (it->is_null() && !required)) {
            if (required) {
                p_.note(Where(), std::string("missing member \"") + key + "\"");
            }
            return nullptr;
        }
        return &*it;
    }

    const json& j_;
    std::string where_;
    Problem& p_;
    std::set<std::string> read_;
};

}  // namespace orvexsim::platform::scenario
