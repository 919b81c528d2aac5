#include "preset/lua_lexer.h"

#include <QByteArray>

#include <cstring>

namespace {

constexpr ushort byte_order_mark = 0xFEFF;
// Messages quote at most this much of a token.
constexpr int near_length = 40;

const QLatin1String keywords[] = {
    QLatin1String("and"),    QLatin1String("break"),  QLatin1String("do"),
    QLatin1String("else"),   QLatin1String("elseif"), QLatin1String("end"),
    QLatin1String("false"),  QLatin1String("for"),    QLatin1String("function"),
    QLatin1String("if"),     QLatin1String("in"),     QLatin1String("local"),
    QLatin1String("nil"),    QLatin1String("not"),    QLatin1String("or"),
    QLatin1String("repeat"), QLatin1String("return"), QLatin1String("then"),
    QLatin1String("true"),   QLatin1String("until"),  QLatin1String("while")};

// The length of the symbol that begins at `rest`, the longest one that fits; 0
// where none does.
int symbol_length(const QStringRef& rest)
{
    const auto followed_by = [&rest](int offset, char unit) {
        return rest.size() > offset && rest.at(offset) == QLatin1Char(unit);
    };
    const ushort first = rest.at(0).unicode();
    switch (first) {
    case '.':
        return followed_by(1, '.') ? (followed_by(2, '.') ? 3 : 2) : 1;
    case '=':
    case '<':
    case '>':
        return followed_by(1, '=') ? 2 : 1;
    case '~':
        return followed_by(1, '=') ? 2 : 0;
    default:
        break;
    }
    const bool single = first > 0 && first < 128 &&
                        std::strchr("{}[](),;:+-*/%^#", static_cast<char>(first)) != nullptr;
    return single ? 1 : 0;
}

bool is_line_end(QChar unit)
{
    return unit == QLatin1Char('\n') || unit == QLatin1Char('\r');
}

// Lua's isspace in the C locale.
bool is_space(QChar unit)
{
    const ushort u = unit.unicode();
    return u == ' ' || (u >= '\t' && u <= '\r');
}

bool is_digit(QChar unit)
{
    return unit >= QLatin1Char('0') && unit <= QLatin1Char('9');
}

bool is_hex_digit(QChar unit)
{
    const ushort u = unit.unicode() | 0x20;
    return is_digit(unit) || (u >= 'a' && u <= 'f');
}

// Lua's isalpha and isalnum in the C locale: ASCII only.
bool is_name_start(QChar unit)
{
    const ushort u = unit.unicode() | 0x20;
    return (u >= 'a' && u <= 'z') || unit == QLatin1Char('_');
}

bool is_name_part(QChar unit)
{
    return is_name_start(unit) || is_digit(unit);
}

// What Lua's conversion accepts of the characters a numeral was read as: a
// decimal number with optional fraction and exponent, or a hexadecimal integer.
bool is_valid_numeral(const QStringRef& text)
{
    const int size = text.size();
    if (size > 2 && text.at(0) == QLatin1Char('0') && (text.at(1).unicode() | 0x20) == 'x') {
        for (int i = 2; i < size; ++i) {
            if (!is_hex_digit(text.at(i))) {
                return false;
            }
        }
        return true;
    }
    int i = 0;
    int digits = 0;
    while (i < size && is_digit(text.at(i))) {
        ++i;
        ++digits;
    }
    if (i < size && text.at(i) == QLatin1Char('.')) {
        ++i;
        while (i < size && is_digit(text.at(i))) {
            ++i;
            ++digits;
        }
    }
    if (digits == 0) {
        return false;
    }
    if (i < size && (text.at(i).unicode() | 0x20) == 'e') {
        ++i;
        if (i < size && (text.at(i) == QLatin1Char('+') || text.at(i) == QLatin1Char('-'))) {
            ++i;
        }
        const int exponent_start = i;
        while (i < size && is_digit(text.at(i))) {
            ++i;
        }
        if (i == exponent_start) {
            return false;
        }
    }
    return i == size;
}

} // namespace

lua_syntax_error::lua_syntax_error(int line, const QString& message)
    : std::runtime_error(QStringLiteral("line %1: %2").arg(line).arg(message).toStdString())
{}

QString lua_token_near(const lua_token& token)
{
    if (token.kind == lua_token_kind::eof) {
        return QStringLiteral("end of file");
    }
    QString shown = token.text.left(near_length).toString();
    if (token.text.size() > near_length) {
        shown += QStringLiteral("...");
    }
    return QLatin1Char('\'') + shown + QLatin1Char('\'');
}

lua_lexer::lua_lexer(const QString& text) : text_(&text)
{
    if (!text.isEmpty() && text.at(0).unicode() == byte_order_mark) {
        position_ = 1;
    }
}

QChar lua_lexer::at(int position) const
{
    return position < text_->size() ? text_->at(position) : QChar();
}

void lua_lexer::step_line_end()
{
    const QChar first = current();
    ++position_;
    if (is_line_end(current()) && current() != first) {
        ++position_;
    }
    ++line_;
}

int lua_lexer::long_bracket_level() const
{
    if (current() != QLatin1Char('[')) {
        return -1;
    }
    int level = 0;
    while (at(position_ + 1 + level) == QLatin1Char('=')) {
        ++level;
    }
    return at(position_ + 1 + level) == QLatin1Char('[') ? level : -1;
}

QString lua_lexer::read_long_bracket(int level, const char* what)
{
    const int start_line = line_;
    position_ += level + 2;
    // A line end right behind the opening bracket isn't part of the contents.
    if (is_line_end(current())) {
        step_line_end();
    }
    const int contents_start = position_;
    const int size = text_->size();
    while (position_ < size) {
        const QChar unit = current();
        if (is_line_end(unit)) {
            step_line_end();
            continue;
        }
        if (unit == QLatin1Char(']')) {
            int equals = 0;
            while (at(position_ + 1 + equals) == QLatin1Char('=')) {
                ++equals;
            }
            if (equals == level && at(position_ + 1 + equals) == QLatin1Char(']')) {
                QString contents = text_->mid(contents_start, position_ - contents_start);
                position_ += level + 2;
                return contents;
            }
        }
        ++position_;
    }
    throw lua_syntax_error(start_line,
                           QStringLiteral("unfinished long %1").arg(QLatin1String(what)));
}

void lua_lexer::skip_space_and_comments()
{
    const int size = text_->size();
    while (position_ < size) {
        const QChar unit = current();
        if (is_line_end(unit)) {
            step_line_end();
        } else if (is_space(unit)) {
            ++position_;
        } else if (unit == QLatin1Char('-') && at(position_ + 1) == QLatin1Char('-')) {
            position_ += 2;
            const int level = long_bracket_level();
            if (level >= 0) {
                read_long_bracket(level, "comment");
            } else {
                while (position_ < size && !is_line_end(current())) {
                    ++position_;
                }
            }
        } else {
            return;
        }
    }
}

void lua_lexer::read_short_string(lua_token& token)
{
    const QChar quote = current();
    const int start = position_;
    ++position_;
    // Runs of plain text are copied whole; escapes add their bytes, so that a
    // decimal escape can spell any byte of a UTF-8 sequence, as it does in Lua.
    QByteArray bytes;
    int run_start = position_;
    bool escaped = false;
    while (true) {
        const QChar unit = current();
        if (position_ >= text_->size() || is_line_end(unit)) {
            throw lua_syntax_error(token.line, QStringLiteral("unfinished string"));
        }
        if (unit == quote) {
            break;
        }
        if (unit != QLatin1Char('\\')) {
            ++position_;
            continue;
        }
        escaped = true;
        bytes += text_->midRef(run_start, position_ - run_start).toUtf8();
        ++position_;
        const QChar code = current();
        static const char controls[] = "a\ab\bf\fn\nr\rt\tv\v";
        const char* control = nullptr;
        for (int i = 0; controls[i] != '\0'; i += 2) {
            if (code == QLatin1Char(controls[i])) {
                control = &controls[i + 1];
            }
        }
        if (control != nullptr) {
            bytes += *control;
            ++position_;
        } else if (is_line_end(code)) {
            bytes += '\n';
            step_line_end();
        } else if (is_digit(code)) {
            int value = 0;
            for (int digits = 0; digits < 3 && is_digit(current()); ++digits) {
                value = value * 10 + (current().unicode() - '0');
                ++position_;
            }
            if (value > 255) {
                throw lua_syntax_error(line_, QStringLiteral("escape sequence too large"));
            }
            bytes += static_cast<char>(value);
        } else if (position_ >= text_->size()) {
            throw lua_syntax_error(token.line, QStringLiteral("unfinished string"));
        } else {
            // Lua 5.1 takes any other escaped character as itself: \\ \" \' and
            // also \q, which later versions refuse.
            bytes += text_->midRef(position_, 1).toUtf8();
            ++position_;
        }
        run_start = position_;
    }
    if (escaped) {
        bytes += text_->midRef(run_start, position_ - run_start).toUtf8();
        // With its size: a "\0" escape is part of the string.
        token.value = QString::fromUtf8(bytes.constData(), bytes.size());
    } else {
        token.value = text_->mid(start + 1, position_ - start - 1);
    }
    ++position_;
    token.kind = lua_token_kind::string;
    token.text = QStringRef(text_, start, position_ - start);
}

void lua_lexer::read_numeral(lua_token& token)
{
    // As Lua reads it: digits and dots, an exponent's sign, then any letters and
    // digits, which the conversion must then accept as a whole.
    const int start = position_;
    while (is_digit(current()) || current() == QLatin1Char('.')) {
        ++position_;
    }
    if ((current().unicode() | 0x20) == 'e') {
        ++position_;
        if (current() == QLatin1Char('+') || current() == QLatin1Char('-')) {
            ++position_;
        }
    }
    while (is_name_part(current())) {
        ++position_;
    }
    token.kind = lua_token_kind::number;
    token.text = QStringRef(text_, start, position_ - start);
    if (!is_valid_numeral(token.text)) {
        throw lua_syntax_error(
            token.line, QStringLiteral("malformed number near %1").arg(lua_token_near(token)));
    }
}

lua_token lua_lexer::next()
{
    skip_space_and_comments();
    lua_token token;
    token.line = line_;
    const int start = position_;
    if (position_ >= text_->size()) {
        token.text = QStringRef(text_, text_->size(), 0);
        return token;
    }
    const QChar unit = current();
    if (unit == QLatin1Char('"') || unit == QLatin1Char('\'')) {
        read_short_string(token);
        return token;
    }
    if (is_digit(unit) || (unit == QLatin1Char('.') && is_digit(at(position_ + 1)))) {
        read_numeral(token);
        return token;
    }
    if (is_name_start(unit)) {
        while (is_name_part(current())) {
            ++position_;
        }
        token.text = QStringRef(text_, start, position_ - start);
        token.kind = lua_token_kind::name;
        for (const QLatin1String keyword : keywords) {
            if (token.text == keyword) {
                token.kind = lua_token_kind::keyword;
                break;
            }
        }
        return token;
    }
    if (unit == QLatin1Char('[')) {
        const int level = long_bracket_level();
        if (level >= 0) {
            token.value = read_long_bracket(level, "string");
            token.kind = lua_token_kind::string;
            token.text = QStringRef(text_, start, position_ - start);
            return token;
        }
        if (at(position_ + 1) == QLatin1Char('=')) {
            throw lua_syntax_error(line_, QStringLiteral("invalid long string delimiter"));
        }
    }

    const int length = symbol_length(text_->midRef(position_, 3));
    if (length > 0) {
        position_ += length;
        token.kind = lua_token_kind::symbol;
        token.text = QStringRef(text_, start, length);
        return token;
    }
    // One whole character, a surrogate pair too, for the message.
    token.text =
        QStringRef(text_, start, unit.isHighSurrogate() && at(start + 1).isLowSurrogate() ? 2 : 1);
    throw lua_syntax_error(line_,
                           QStringLiteral("unexpected symbol near %1").arg(lua_token_near(token)));
}
