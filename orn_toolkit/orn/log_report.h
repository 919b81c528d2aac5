#pragma once

#include <QString>

namespace orn {

class application_log;

// The text of a saved log: a head naming the program, where it is installed and
// when the report was made, the network report, the main channel's text and then
// each other channel under its own name.
QString log_report(const application_log& log);

} // namespace orn
