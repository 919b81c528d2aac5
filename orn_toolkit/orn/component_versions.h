#pragma once

#include <map>
#include <string>

namespace orn {

// The revision of each component of the program, by name: "application",
// "orn_infrastructure" and "orn_toolkit". A revision is seven hex characters of the
// source revision the build was made from ("0000000" outside a git checkout).
extern const std::map<std::string, std::string> component_versions;

// One line per component, in name order: "Component: <name>\tVersion: <revision>".
std::string component_report();

} // namespace orn
