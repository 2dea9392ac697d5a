// What the simulated platform's C++ tests share: a client instance in the state a login leaves.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "ORVEX_Core_Error.h"
#include "platform/site_model.h"

namespace orvexsim::platform {

// A new instance marked logged in as `user` of the loaded site, without the round trip of a
// login; left logged out when the site has no such user.
inline int32_t LoggedInInstance(const std::string& user) {
    int32_t h = 0;
    EXPECT_EQ(ORVEX_RET_SUCCESS, CreateInstance(&h));
    WithInstance(h, false, [&](Instance& in, Site& site) {
        if (const User* u = site.user(user)) {
            in.loggedIn = true;
            in.userId = u->id;
            in.userName = u->name;
        }
        return 0;
    });
    return h;
}

}  // namespace orvexsim::platform
