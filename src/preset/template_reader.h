#pragma once

// Reads .lrtemplate presets. Two forms exist, told apart by a fixed marker:
//
//  - the braced form, a Lua-like table read over the tokens of the lexer:
//        s = { title = "Warm", value = { settings = { Shadows2012 = 12, }, }, }
//  - the line form, one assignment a line, recognised by "s.value.settings = {}":
//        s.value.settings = {}
//          s.value.settings.Shadows2012 = 12
//          s.value.settings.ToneCurvePV2012[1] = 0
//
// Both flatten everything into preset_settings: nested tables leave no prefix, so
// `title` and the develop settings land side by side under their bare keys.

#include "preset/preset_settings.h"
#include "preset/template_lexer.h"

#include <QString>

class QIODevice;

// The table reader's position in the token stream, shared by all nesting levels.
// Tokens are pulled from the scanner one by one; the cursor keeps the previous and
// the following token for the log line of a failure.
class token_cursor
{
public:
    // `text` must outlive the cursor: the tokens are views into it.
    explicit token_cursor(const QString& text);

    const token& current() const { return current_; }
    // Null where the current token is the first one.
    const token* previous() const { return has_previous_ ? &previous_ : nullptr; }
    // Null where the current token is the final `eof`.
    const token* next() const { return current_.type == token_type::eof ? nullptr : &next_; }
    // Moves to the following token; stays put on the final `eof`.
    void step();

private:
    token_scanner scanner_;
    token previous_;
    token current_;
    token next_;
    bool has_previous_ = false;
};

// Reads the file at `path` into `out` and sets `out.name` from `title`. A file that
// can't be opened leaves `out` untouched, silently. Throws std::runtime_error where
// the braced form holds an unexpected token or an unsupported curve; `out` then
// keeps what was stored before the failure, and `name` isn't set.
void load_template(preset_settings& out, const QString& path);

// The same from a device open for reading, at its start.
void load_template_from(preset_settings& out, QIODevice& device);

// A template's text in either form, with `parse_braced` reading the braced form:
// the designed reader and the converter's Lua reader decode, tell the forms apart
// and take the title alike, and differ only there.
using braced_parser = void (*)(preset_settings& out, const QString& text);
void load_template_file(preset_settings& out, const QString& path, braced_parser parse_braced);
void load_template_device(preset_settings& out, QIODevice& device, braced_parser parse_braced);

// The braced form: the whole text is read as the inside of a table without braces.
void parse_block_template(preset_settings& out, const QString& text);

// The entries of one table up to its closing brace (or, at the top level, up to the
// end), with nested tables flattened into the same `out`. Leaves the cursor on the
// closing brace or on `eof`.
void parse_table(token_cursor& cursor, preset_settings& out, bool top_level);

// The line form. Accepts any text.
void parse_line_template(preset_settings& out, const QString& text);
