#include "preset/template_reader.h"

#include <QDebug>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include <stdexcept>

namespace {

const QString curve_key_prefix = QStringLiteral("ToneCurve");

[[noreturn]] void fail_unexpected(const token_cursor& cursor, token_type expected)
{
    {
        QDebug line = qCritical();
        line << "prev token:";
        if (const token* previous = cursor.previous()) {
            line << *previous;
        }
        line << "token:" << cursor.current() << "next token:";
        if (const token* next = cursor.next()) {
            line << *next;
        }
    }
    const QString message =
        QStringLiteral("Unexpected token type found. Expected %1, got %2")
            .arg(token_type_name(expected), token_type_name(cursor.current().type));
    throw std::runtime_error(message.toUtf8().toStdString());
}

void expect(const token_cursor& cursor, token_type expected)
{
    if (cursor.current().type != expected) {
        fail_unexpected(cursor, expected);
    }
}

point_list* braced_curve_member(preset_settings& out, const QStringRef& key)
{
    // Both master curve keys share the one member; the later in the file wins.
    if (key == QLatin1String("ToneCurvePV2012") || key == QLatin1String("ToneCurve")) {
        return &out.tone_curve;
    }
    if (key == QLatin1String("ToneCurvePV2012Red")) {
        return &out.tone_curve_red;
    }
    if (key == QLatin1String("ToneCurvePV2012Green")) {
        return &out.tone_curve_green;
    }
    if (key == QLatin1String("ToneCurvePV2012Blue")) {
        return &out.tone_curve_blue;
    }
    return nullptr;
}

// The cursor stands on the first token inside the braces. Points are `x, y,` pairs of
// integers, each value followed by a comma, the last one too.
void read_curve(token_cursor& cursor, preset_settings& out, const QStringRef& key)
{
    point_list points;
    while (cursor.current().type == token_type::num) {
        const int x = cursor.current().number;
        cursor.step();
        expect(cursor, token_type::comma);
        cursor.step();
        expect(cursor, token_type::num);
        const int y = cursor.current().number;
        cursor.step();
        expect(cursor, token_type::comma);
        cursor.step();
        points.append(QPoint(x, y));
    }
    point_list* member = braced_curve_member(out, key);
    if (member == nullptr) {
        throw std::runtime_error(
            (QStringLiteral("Unsupported curve type: ") + key).toUtf8().toStdString());
    }
    *member = points;
}

// The cursor stands on the second of two opening braces (`{ {`): an array of
// tables, which the reader doesn't understand and drops whole. Leaves the cursor on
// the closing brace of the value.
void skip_array_of_tables(token_cursor& cursor)
{
    qint64 open_braces = 2;
    while (true) {
        cursor.step();
        switch (cursor.current().type) {
        case token_type::lbrace:
            ++open_braces;
            break;
        case token_type::rbrace:
            --open_braces;
            break;
        case token_type::eof:
            fail_unexpected(cursor, token_type::rbrace);
        default:
            break;
        }
        if (open_braces == 0) {
            return;
        }
    }
}

// Removes the match of an anchored `pattern` from the start of `line`. Most lines
// can't match, and their first unit tells: the test spares the regular expression
// machinery, which would otherwise dominate the reading of a long file.
template<typename First_unit_test>
void remove_prefix(QString& line, const QRegularExpression& pattern, First_unit_test may_begin)
{
    if (line.isEmpty() || !may_begin(line.at(0))) {
        return;
    }
    const QRegularExpressionMatch match = pattern.match(line);
    if (match.hasMatch()) {
        line.remove(0, match.capturedEnd());
    }
}

void remove_prefix(QString& line, const QRegularExpression& pattern, QLatin1Char first)
{
    remove_prefix(line, pattern, [first](QChar unit) { return unit == first; });
}

// Any unit that `\s` could match is white space.
bool may_begin_indented(QChar unit)
{
    return unit.isSpace();
}

} // namespace

token_cursor::token_cursor(const QString& text) : scanner_(text)
{
    current_ = scanner_.next();
    if (current_.type != token_type::eof) {
        next_ = scanner_.next();
    }
}

void token_cursor::step()
{
    if (current_.type == token_type::eof) {
        return;
    }
    previous_ = current_;
    has_previous_ = true;
    current_ = next_;
    if (current_.type != token_type::eof) {
        next_ = scanner_.next();
    }
}

void parse_table(token_cursor& cursor, preset_settings& out, bool top_level)
{
    // Each nested table would be one level of recursion. A nested level needs no
    // state of its own (its key is dropped, and it is never the top level), so the
    // stack of levels is just their count, and a file's depth costs no machine stack.
    qint64 nested_levels = 0;
    while (true) {
        // At the start of an entry, or at the end of a table.
        const token& first = cursor.current();
        if (first.type == token_type::rbrace) {
            if (nested_levels == 0) {
                return;
            }
            // A nested table ended: back in the enclosing entry, whose value it was.
            --nested_levels;
        } else if (first.type == token_type::eof && top_level && nested_levels == 0) {
            return;
        } else {
            expect(cursor, token_type::name);
            const QStringRef key = first.text;
            cursor.step();
            expect(cursor, token_type::equals);
            cursor.step();
            if (cursor.current().type == token_type::lbrace) {
                cursor.step();
                if (key.startsWith(curve_key_prefix)) {
                    read_curve(cursor, out, key);
                    expect(cursor, token_type::rbrace);
                } else if (cursor.current().type == token_type::lbrace) {
                    out.passed_over.append(key.toString());
                    skip_array_of_tables(cursor);
                } else {
                    ++nested_levels;
                    continue;
                }
            } else {
                // Any single token is a value, of whatever type: `a = ,` stores ",".
                out.settings.insert(key.toString(), cursor.current().text.toString());
                if (cursor.current().type == token_type::eof) {
                    // The text ended where a value was due: nothing to step past.
                    fail_unexpected(cursor, token_type::comma);
                }
            }
        }
        // Past the value or the closing brace; then a comma, or the end of the table.
        cursor.step();
        const token_type after = cursor.current().type;
        if (after == token_type::comma) {
            cursor.step();
        } else if (after != token_type::rbrace && after != token_type::eof) {
            fail_unexpected(cursor, token_type::comma);
        }
    }
}

void parse_block_template(preset_settings& out, const QString& text)
{
    token_cursor cursor(text);
    parse_table(cursor, out, true);
    expect(cursor, token_type::eof);
}

void parse_line_template(preset_settings& out, const QString& text)
{
    // Only an indented `s.` is removed: a line in column 0 keeps its whole path as
    // its key, and so, because of the anchors, do the other two prefixes.
    const QRegularExpression indented_root(QStringLiteral("^\\s+s\\."));
    const QRegularExpression value_prefix(QStringLiteral("^value\\."));
    const QRegularExpression settings_prefix(QStringLiteral("^settings\\."));
    const QRegularExpression array_index(QStringLiteral("\\[(\\d+)\\]"));

    // Array entries come as x, y, x, y, ... lines: the point is completed by the even
    // index and lives across lines, and across curves too.
    QPoint point;
    int line_start = 0;
    while (true) {
        const int line_end = text.indexOf(QLatin1Char('\n'), line_start);
        QString line = text.mid(line_start, line_end < 0 ? -1 : line_end - line_start);
        remove_prefix(line, indented_root, may_begin_indented);
        remove_prefix(line, value_prefix, QLatin1Char('v'));
        remove_prefix(line, settings_prefix, QLatin1Char('s'));

        // Key before the first `=`, value up to the second; anything behind that is lost.
        const int first_equals = line.indexOf(QLatin1Char('='));
        QString key;
        QString value;
        if (first_equals < 0) {
            key = line.trimmed();
        } else {
            const int second_equals = line.indexOf(QLatin1Char('='), first_equals + 1);
            key = line.left(first_equals).trimmed();
            value = line.mid(first_equals + 1,
                             second_equals < 0 ? -1 : second_equals - first_equals - 1)
                        .trimmed();
        }
        qDebug("'%s' -> '%s'", qUtf8Printable(key), qUtf8Printable(value));

        if (value != QLatin1String("{}")) {
            if (!key.startsWith(curve_key_prefix) ||
                key.startsWith(QLatin1String("ToneCurveName"))) {
                out.settings.insert(key, value);
            } else {
                const QRegularExpressionMatch index_match = array_index.match(key);
                const int index = index_match.hasMatch() ? index_match.capturedRef(1).toInt() : 0;
                // This form knows channel curves under any spelling that names the colour.
                point_list& curve = key.contains(QLatin1String("Red"))     ? out.tone_curve_red
                                    : key.contains(QLatin1String("Green")) ? out.tone_curve_green
                                    : key.contains(QLatin1String("Blue"))  ? out.tone_curve_blue
                                                                           : out.tone_curve;
                // The arrays are 1-based: odd indices hold x, even ones y.
                const int number = value.toInt(nullptr, 10);
                if (index % 2 == 1) {
                    point.setX(number);
                } else {
                    point.setY(number);
                    curve.append(point);
                }
            }
        }

        if (line_end < 0) {
            break;
        }
        line_start = line_end + 1;
    }
}

void load_template_file(preset_settings& out, const QString& path, braced_parser parse_braced)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    load_template_device(out, file, parse_braced);
}

void load_template_device(preset_settings& out, QIODevice& device, braced_parser parse_braced)
{
    // No codec is set: the stream decodes as the locale says.
    QTextStream stream(&device);
    const QString text = stream.readAll();
    if (text.contains(QLatin1String("s.value.settings = {}"))) {
        parse_line_template(out, text);
    } else {
        parse_braced(out, text);
    }
    out.name = value_or(out.settings, QStringLiteral("title"), QString());
}

void load_template(preset_settings& out, const QString& path)
{
    load_template_file(out, path, parse_block_template);
}

void load_template_from(preset_settings& out, QIODevice& device)
{
    load_template_device(out, device, parse_block_template);
}
