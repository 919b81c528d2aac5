#include "preset/template_lexer.h"

#include <QDebug>
#include <QDebugStateSaver>

namespace {

bool is_word_delimiter(QChar unit)
{
    // QChar::isSpace is exactly 9 to 13, 32, 0x85, 0xA0 and the Unicode spaces above 127.
    return unit.isSpace() || unit == QLatin1Char(',') || unit == QLatin1Char('=');
}

// Only a word that begins with a sign or a digit can convert as a whole to an
// integer; toInt takes the Unicode minus sign for a sign too. Words never begin with
// the white space that toInt would skip. The test spares the conversion for the
// great majority of words, which are names.
bool may_be_integer(const QStringRef& word)
{
    constexpr ushort minus_sign = 0x2212;
    const QChar first = word.at(0);
    return first == QLatin1Char('+') || first == QLatin1Char('-') ||
           first.unicode() == minus_sign ||
           (first >= QLatin1Char('0') && first <= QLatin1Char('9'));
}

// Returns false for the empty word, the only word that yields no token.
bool classify(const QStringRef& word, token& result)
{
    result = token{};
    result.text = word;
    if (word.isEmpty()) {
        return false;
    }
    const int size = word.size();
    if (size == 1) {
        switch (word.at(0).unicode()) {
        case '=':
            result.type = token_type::equals;
            return true;
        case ',':
            result.type = token_type::comma;
            return true;
        case '{':
            result.type = token_type::lbrace;
            return true;
        case '}':
            result.type = token_type::rbrace;
            return true;
        default:
            break;
        }
    }
    if (word.at(0) == QLatin1Char('"') && word.at(size - 1) == QLatin1Char('"')) {
        // The lone word `"` both begins and ends with a quote: a string with empty text.
        result.type = token_type::str;
        result.text = QStringRef(word.string(), word.position() + 1, qMax(0, size - 2));
        return true;
    }
    if (may_be_integer(word)) {
        bool ok = false;
        const int value = word.toInt(&ok, 10);
        if (ok) {
            result.type = token_type::num;
            result.number = value;
            return true;
        }
    }
    if (word == QLatin1String("true") || word == QLatin1String("false")) {
        result.type = token_type::boolean;
        result.number = word.at(0) == QLatin1Char('t') ? 1 : 0;
        return true;
    }
    result.type = token_type::name;
    return true;
}

} // namespace

QString token_type_name(token_type type)
{
    switch (type) {
    case token_type::name:
        return QStringLiteral("token_type::name");
    case token_type::str:
        return QStringLiteral("token_type::str");
    case token_type::boolean:
        return QStringLiteral("token_type::boolean");
    case token_type::num:
        return QStringLiteral("token_type::num");
    case token_type::equals:
        return QStringLiteral("token_type::equals");
    case token_type::comma:
        return QStringLiteral("token_type::comma");
    case token_type::lbrace:
        return QStringLiteral("token_type::lbrace");
    case token_type::rbrace:
        return QStringLiteral("token_type::rbrace");
    case token_type::eof:
        return QStringLiteral("token_type::eof");
    }
    return QStringLiteral("<unknown>");
}

QDebug operator<<(QDebug debug, const token& value)
{
    const QDebugStateSaver saver(debug);
    debug.nospace().noquote() << token_type_name(value.type) << "(\"" << value.text << "\", "
                              << value.number << ')';
    return debug;
}

token_scanner::token_scanner(const QString& text) : text_(&text) {}

bool token_scanner::next_word(QStringRef& word)
{
    if (pending_delimiter_ >= 0) {
        word = QStringRef(text_, pending_delimiter_, 1);
        pending_delimiter_ = -1;
        return true;
    }
    if (text_done_) {
        return false;
    }
    const QChar* units = text_->constData();
    const int size = text_->size();
    while (position_ < size) {
        const QChar unit = units[position_];
        if (in_quotes_) {
            // Inside quotes nothing but the closing quote has a meaning; a backslash
            // escapes nothing.
            if (unit == QLatin1Char('"')) {
                in_quotes_ = false;
            }
            ++position_;
            continue;
        }
        if (is_word_delimiter(unit)) {
            const int start = word_start_;
            const int end = position_;
            const bool stands_alone = unit == QLatin1Char(',') || unit == QLatin1Char('=');
            ++position_;
            word_start_ = position_;
            if (end > start) {
                if (stands_alone) {
                    pending_delimiter_ = end;
                }
                word = QStringRef(text_, start, end - start);
                return true;
            }
            if (stands_alone) {
                word = QStringRef(text_, end, 1);
                return true;
            }
            continue;
        }
        if (unit == QLatin1Char('"')) {
            in_quotes_ = true;
        }
        ++position_;
    }
    // The rest is the last word, even when empty or still inside open quotes.
    text_done_ = true;
    word = QStringRef(text_, word_start_, size - word_start_);
    return true;
}

token token_scanner::next()
{
    QStringRef word;
    token result;
    while (next_word(word)) {
        if (classify(word, result)) {
            return result;
        }
    }
    return token{};
}

QVector<token> tokenize(const QString& text)
{
    QVector<token> tokens;
    token_scanner scanner(text);
    do {
        tokens.append(scanner.next());
    } while (tokens.constLast().type != token_type::eof);
    return tokens;
}
