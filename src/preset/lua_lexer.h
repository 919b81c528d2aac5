#pragma once

// The tokens of Lua 5.1 source text, for the tolerant template reader. Templates
// written by exporters and by hand are real Lua:
//
//     s = {
//         -- a credit line
//         title = ZSTR "$$$/AgDevelopModule/Templates/Zerod=Zero'd",
//         internalName = "\"Mild M\" Curve",
//         value = { settings = { ToneCurve = {0, 0}; sourceState = sourceSetExplicitly } },
//     }
//
// so this lexer knows the whole token grammar: short strings in both quotes with
// every escape, long strings and comments at any level, numerals in all forms,
// keywords and the punctuation. It only cuts text into tokens; nothing is ever run.

#include <QString>
#include <QStringRef>

#include <stdexcept>

enum class lua_token_kind
{
    name,    // an identifier that is no keyword
    keyword, // and, break, do, ..., true, false, nil, ...
    string,  // a short or a long string
    number,  // a numeral that Lua would accept
    symbol,  // { } [ ] ( ) = == ~= <= >= < > , ; : . .. ... + - * / % ^ #
    eof,
};

struct lua_token
{
    lua_token_kind kind = lua_token_kind::eof;
    // The token as written, quotes and brackets included; empty at the end.
    QStringRef text;
    // A string's contents with every escape resolved.
    QString value;
    // Where the token begins, counted from 1.
    int line = 0;

    bool is(QLatin1String symbol_or_keyword) const
    {
        return (kind == lua_token_kind::symbol || kind == lua_token_kind::keyword) &&
               text == symbol_or_keyword;
    }
    int begin() const { return text.position(); }
    int end() const { return text.position() + text.size(); }
};

// A text that isn't Lua. what() reads "line 12: unfinished string".
class lua_syntax_error : public std::runtime_error
{
public:
    lua_syntax_error(int line, const QString& message);
};

// A short form of a token for messages: "'}'", "'ZSTR'", "end of file".
QString lua_token_near(const lua_token& token);

class lua_lexer
{
public:
    // `text` must outlive the lexer and its tokens. A byte-order mark at the start
    // is passed over.
    explicit lua_lexer(const QString& text);

    // The next token; `eof` for ever after the last. Throws lua_syntax_error.
    lua_token next();

private:
    QChar at(int position) const;
    QChar current() const { return at(position_); }
    // Steps over one line end: \n, \r, \r\n or \n\r.
    void step_line_end();
    void skip_space_and_comments();
    // The level of a long bracket opening at the current position (`[[` is 0,
    // `[==[` is 2), or -1 when none opens here.
    int long_bracket_level() const;
    // Reads from an opening long bracket to its closing one; returns the contents.
    QString read_long_bracket(int level, const char* what);
    void read_short_string(lua_token& token);
    void read_numeral(lua_token& token);

    const QString* text_;
    int position_ = 0;
    int line_ = 1;
};
