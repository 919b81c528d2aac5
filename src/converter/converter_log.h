#pragma once

#include "converter/converter_options.h"

class console_report;

// Routes the core's log through the converter's report: standard output stays
// free for the summary, and lines below the chosen verbosity are dropped (quiet:
// none, normal: warnings and worse, verbose: all).
void install_converter_log(console_report* report, converter_options::verbosity level);
