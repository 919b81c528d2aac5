#pragma once

#include <QString>

// Text that comes from files (paths, titles, the readers' messages about what they
// read) may hold anything. Sent raw to a terminal, an ESC would drive it and a
// carriage return would overwrite the line; so every control character, every
// invisible formatting character (bidirectional overrides included), and every
// replacement character (standing for bytes that weren't valid UTF-8) is shown as
// an escape: "\x1b", "\r", "\u202e", "\ufffd". All else stays as it is.
QString terminal_safe(const QString& text);
