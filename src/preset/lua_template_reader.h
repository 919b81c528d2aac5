#pragma once

// The tolerant template reader: a braced .lrtemplate read as the Lua table
// constructor it is, for the templates that the word scanner of template_reader.h
// refuses (string escapes, comments, localised titles, curves with touching
// braces, bare identifiers as values). It fills preset_settings by the same rules
// as that reader, so the conversion sees no difference:
//
//  - named entries at any depth flatten into `settings` under their bare keys (a
//    `[expr] =` key as written), the later one winning;
//  - a table whose first entry is a table (an array of tables) is passed over;
//  - a `ToneCurve...` key with a list of whole numbers is a curve, `{}` written
//    with touching braces is the text "{}";
//  - a value keeps its text as written, except that a string is unescaped, and a
//    call of a name on one string (`ZSTR "$$$/Key=Title"`) yields that string,
//    for a localised title the text behind the first `=`.
//
// Values without a key in a settings table, and curves that the braced form
// doesn't know, are passed over with a warning in the log. Nothing is ever run:
// this is a parser of Lua syntax, not an interpreter.
//
// Wherever both readers read a text the same way, they fill the identical record:
// that is, where its strings are in double quotes and hold no backslash (the braced
// reader keeps escapes as written), and its separators stand apart from values (to
// the braced reader `1;` and `{};` are single words). Bare values that Lua can't
// read, such as `12abc` or `--3`, are the braced reader's alone.

#include "preset/preset_settings.h"

#include <QString>

class QIODevice;

// Reads the file at `path` into `out` and sets `out.name` from `title`, as
// load_template does, the line form included (which it hands to the same line
// reader). A file that can't be opened leaves `out` untouched, silently. Throws
// lua_syntax_error (a std::runtime_error naming the line) where the text isn't
// Lua; `out` then keeps what was stored before, and `name` isn't set.
void load_lua_template(preset_settings& out, const QString& path);

// The same from a device open for reading, at its start.
void load_lua_template_from(preset_settings& out, QIODevice& device);

// The braced form as Lua: a sequence of `name = value` assignments.
void parse_lua_template(preset_settings& out, const QString& text);
