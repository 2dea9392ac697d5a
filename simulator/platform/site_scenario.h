// Reading a site from a scenario (a JSON file; format in README, "The simulated platform") and
// the built-in site used when no scenario is named.
#pragma once

#include <string>

#include "site_model.h"

namespace orvexsim::platform {

// The environment variable naming the scenario file.
constexpr const char* kScenarioVariable = "ORVEX_SIM_SCENARIO";

// Parses a scenario's text. On failure returns false and sets `error` to one line naming the
// file, the place (a JSON pointer, or line and column for a syntax error) and the problem:
//   scenario "site.json": at /devices/2/channels/0/id: duplicate identifier "cam-7"
bool ParseScenario(const std::string& text, const std::string& file, Site* site,
                   std::string* error);
// Reads and parses a file; an unreadable file is an error of the same form.
bool LoadScenarioFile(const std::string& path, Site* site, std::string* error);

// Consistency of a whole site: unique identifiers, references that resolve, one root department
// and no cycles, texts that fit their records. Returns false and sets `where` (a JSON pointer
// into the scenario's layout) and `problem`.
bool ValidateSite(const Site& site, std::string* where, std::string* problem);

// The built-in site: a few departments, about ten devices of several types, a few dozen
// cameras, and a few of everything else.
Site DefaultSite();

}  // namespace orvexsim::platform
