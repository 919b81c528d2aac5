#include "orn/component_versions.h"

#include "orn/source_revision.h"

namespace orn {

// The program and both toolkit libraries are built from one source tree, so they
// share its revision.
const std::map<std::string, std::string> component_versions = {
    {"application", LOOKWRIGHT_SOURCE_REVISION},
    {"orn_infrastructure", LOOKWRIGHT_SOURCE_REVISION},
    {"orn_toolkit", LOOKWRIGHT_SOURCE_REVISION},
};

std::string component_report()
{
    std::string report;
    for (const auto& [name, revision] : component_versions) {
        report.append("Component: ").append(name).append("\tVersion: ").append(revision);
        report += '\n';
    }
    return report;
}

} // namespace orn
