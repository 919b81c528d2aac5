#pragma once

// The word scanner under the braced template reader. A braced .lrtemplate is
// Lua-like text:
//
//     s = {
//         title = "Warm",
//         value = { settings = { Shadows2012 = 12, ToneCurvePV2012 = { 0, 0, 255, 255, }, }, },
//     }
//
// but this is deliberately no Lua lexer: words are cut at white space, `,` and `=`
// only, and each whole word is then classified. Braces are no delimiters, so a
// brace is a token only where it stands apart (`{}` and `{1` are plain names).

#include <QString>
#include <QStringRef>
#include <QVector>
#include <QtGlobal>

class QDebug;

// The order is part of the format's log lines: out-of-range values print as "<unknown>".
enum class token_type
{
    name,
    str,
    boolean,
    num,
    equals,
    comma,
    lbrace,
    rbrace,
    eof,
};

struct token
{
    token_type type = token_type::eof;
    // A view into the scanned text: the word itself, for `str` the part between the
    // quotes, for `eof` a null view. The text must outlive the token.
    QStringRef text;
    // `num`: the value; `boolean`: 1 for true, 0 for false; else 0.
    qint32 number = 0;
};

// "token_type::num" and so on; the one source of these names for log lines and
// failure messages.
QString token_type_name(token_type type);

// token_type::num("25", 25). Leaves the stream's spacing and quoting as it found them.
QDebug operator<<(QDebug debug, const token& value);

// Produces the tokens of a text one at a time, so that a reader can walk a large
// file without holding a token for every word. After the single `eof` it keeps
// returning `eof`.
class token_scanner
{
public:
    explicit token_scanner(const QString& text);

    token next();

private:
    // The next word, possibly empty; false when the text is used up.
    bool next_word(QStringRef& word);

    const QString* text_;
    int position_ = 0;
    int word_start_ = 0;
    bool in_quotes_ = false;
    // Position of a `,` or `=` still to be returned as a word of its own, or -1.
    int pending_delimiter_ = -1;
    bool text_done_ = false;
};

// All tokens of `text`, always ending in exactly one `eof`. Never fails: whatever is
// wrong with a text shows up later as an unexpected token.
QVector<token> tokenize(const QString& text);
