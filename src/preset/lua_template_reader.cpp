#include "preset/lua_template_reader.h"

#include "preset/lua_lexer.h"
#include "preset/template_reader.h"

#include <QtDebug>

#include <cmath>
#include <limits>

namespace {

// Lua itself stops at about this many nested calls of its parser; real templates
// nest six deep. The limit keeps a hostile file from exhausting the stack.
constexpr int max_depth = 200;
constexpr int unary_priority = 8;

const QString curve_key_prefix = QStringLiteral("ToneCurve");

struct binary_operator
{
    QLatin1String text;
    int left;
    int right;
};

// Lua 5.1's priorities; `^` and `..` bind to the right.
const binary_operator binary_operators[] = {
    {QLatin1String("+"), 6, 6},  {QLatin1String("-"), 6, 6},   {QLatin1String("*"), 7, 7},
    {QLatin1String("/"), 7, 7},  {QLatin1String("%"), 7, 7},   {QLatin1String("^"), 10, 9},
    {QLatin1String(".."), 5, 4}, {QLatin1String("=="), 3, 3},  {QLatin1String("~="), 3, 3},
    {QLatin1String("<"), 3, 3},  {QLatin1String("<="), 3, 3},  {QLatin1String(">"), 3, 3},
    {QLatin1String(">="), 3, 3}, {QLatin1String("and"), 2, 2}, {QLatin1String("or"), 1, 1}};

const binary_operator* find_binary_operator(const lua_token& token)
{
    // Most tokens behind a value are separators and closing braces.
    if (token.text.size() > 3 || token.kind == lua_token_kind::eof) {
        return nullptr;
    }
    for (const binary_operator& op : binary_operators) {
        if (token.is(op.text)) {
            return &op;
        }
    }
    return nullptr;
}

// What a value turned out to be, and the text the record keeps of it.
struct expression
{
    enum class form
    {
        number,         // a numeral, perhaps negated
        string,         // a string literal alone
        word,           // true, false, nil or a bare identifier
        call_on_string, // ZSTR "..." or ZSTR("...")
        table,          // a table constructor alone
        other,
    };
    form shape = form::other;
    // string, word and call_on_string: what the record keeps; the others keep their
    // text as written, from `begin` to `end`.
    QString text;
    double number = 0;
    int begin = 0;
    int end = 0;

    QString record_text(const QString& source) const
    {
        return shape == form::number || shape == form::other ? source.mid(begin, end - begin)
                                                             : text;
    }
};

// Lua's value of a numeral that the lexer has accepted.
double numeral_value(const QStringRef& text)
{
    if (text.size() > 2 && (text.at(1).unicode() | 0x20) == 'x') {
        double value = 0;
        for (int i = 2; i < text.size(); ++i) {
            value = value * 16 + QString(text.at(i)).toInt(nullptr, 16);
        }
        return value;
    }
    return text.toDouble();
}

// A localised title, "$$$/AgDevelopModule/Templates/Zerod=Zero'd", shows the text
// behind the first `=`; any other string stands for itself.
QString localised_text(const QString& text)
{
    if (text.startsWith(QLatin1String("$$$/"))) {
        const int equals = text.indexOf(QLatin1Char('='));
        if (equals >= 0) {
            return text.mid(equals + 1);
        }
    }
    return text;
}

point_list* curve_member(preset_settings& out, const QString& key)
{
    // The members of the braced form; the master keys share one.
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

void note(int line, const QString& text)
{
    qWarning("%s", qUtf8Printable(QStringLiteral("line %1: %2").arg(line).arg(text)));
}

class lua_template_parser
{
public:
    lua_template_parser(const QString& text, preset_settings& out)
        : text_(text), lexer_(text), out_(out)
    {
        current_ = lexer_.next();
    }

    // A chunk of assignments, `s = { ... }`, each a name, `=` and a value, with
    // optional separators. As the braced form reads the chunk as the inside of a
    // table, `,` and a bracketed key are taken too.
    void parse_chunk()
    {
        while (current_.kind != lua_token_kind::eof) {
            if (current_.is(QLatin1String(";")) || current_.is(QLatin1String(","))) {
                step();
            } else if (current_.is(QLatin1String("["))) {
                parse_entry_value(parse_bracketed_key());
            } else if (current_.kind == lua_token_kind::name) {
                const QString key = current_.text.toString();
                step();
                expect(QLatin1String("="));
                parse_entry_value(key);
            } else {
                fail(QStringLiteral("unexpected symbol"));
            }
        }
    }

private:
    enum class table_use
    {
        store, // a settings table: its named entries reach the record
        skip,  // read for its syntax alone
    };

    const lua_token& ahead()
    {
        if (!has_ahead_) {
            ahead_ = lexer_.next();
            has_ahead_ = true;
        }
        return ahead_;
    }

    void step()
    {
        previous_end_ = current_.end();
        if (has_ahead_) {
            current_ = ahead_;
            has_ahead_ = false;
        } else {
            current_ = lexer_.next();
        }
    }

    [[noreturn]] void fail(const QString& what) const
    {
        throw lua_syntax_error(current_.line,
                               what + QStringLiteral(" near ") + lua_token_near(current_));
    }

    void expect(QLatin1String symbol)
    {
        if (!current_.is(symbol)) {
            fail(QStringLiteral("'%1' expected").arg(symbol));
        }
        step();
    }

    // Every nested table and operand passes through here.
    void enter()
    {
        if (++depth_ > max_depth) {
            fail(QStringLiteral("nested too deeply"));
        }
    }
    void leave() { --depth_; }

    // At the start of a field: true while the table goes on, false at its `}`.
    bool at_field(int open_line)
    {
        if (current_.kind == lua_token_kind::eof) {
            fail_unclosed(open_line);
        }
        return !current_.is(QLatin1String("}"));
    }

    // After a field: true when a separator leads to another one.
    bool table_goes_on(int open_line)
    {
        if (current_.is(QLatin1String(",")) || current_.is(QLatin1String(";"))) {
            step();
            return at_field(open_line);
        }
        if (!current_.is(QLatin1String("}"))) {
            fail_unclosed(open_line);
        }
        return false;
    }

    [[noreturn]] void fail_unclosed(int open_line) const
    {
        fail(QStringLiteral("'}' expected (to close '{' at line %1)").arg(open_line));
    }

    bool starts_named_entry()
    {
        return current_.kind == lua_token_kind::name && ahead().is(QLatin1String("="));
    }

    // `[expr] =`: the key is kept as written, brackets and all, as the braced
    // form keeps its `["key"]`.
    QString parse_bracketed_key()
    {
        const int begin = current_.begin();
        step();
        parse_expression(0);
        expect(QLatin1String("]"));
        QString key = text_.mid(begin, previous_end_ - begin);
        expect(QLatin1String("="));
        return key;
    }

    // The value of a named entry in a settings table: a table flattens, a curve
    // key takes a list of points, anything else is stored as text.
    void parse_entry_value(const QString& key)
    {
        if (!current_.is(QLatin1String("{"))) {
            out_.settings.insert(key, parse_expression(0).record_text(text_));
            return;
        }
        if (ahead().is(QLatin1String("}")) && ahead().begin() == current_.end()) {
            // Touching braces are one word to the braced form, and so a text.
            out_.settings.insert(key, QStringLiteral("{}"));
            step();
            step();
        } else if (key.startsWith(curve_key_prefix)) {
            parse_curve(key);
        } else if (parse_table(table_use::store) == table_use::skip) {
            out_.passed_over.append(key);
        }
        // An operator behind a stored table would make its entries belong to an
        // expression; Lua could only fail on running that.
        if (find_binary_operator(current_) != nullptr) {
            fail(QStringLiteral("a table can't be an operand here"));
        }
    }

    // The cursor stands on `{`. Leaves it behind the closing `}`. Tells how the
    // table was taken in the end: a table to store turns out to be skipped when it
    // is an array of tables.
    table_use parse_table(table_use use)
    {
        const int open_line = current_.line;
        step();
        enter();
        int positional_values = 0;
        bool first = true;
        while (at_field(open_line)) {
            QString key;
            bool named = false;
            if (current_.is(QLatin1String("["))) {
                key = parse_bracketed_key();
                named = true;
            } else if (starts_named_entry()) {
                key = current_.text.toString();
                step();
                step();
                named = true;
            }
            if (named && use == table_use::store) {
                parse_entry_value(key);
            } else if (named) {
                parse_expression(0);
            } else {
                const expression value = parse_expression(0);
                if (use == table_use::store) {
                    if (first && value.shape == expression::form::table) {
                        // An array of tables, such as local corrections: the
                        // braced form drops it whole, and so does this reader.
                        use = table_use::skip;
                    } else {
                        ++positional_values;
                    }
                }
            }
            first = false;
            if (!table_goes_on(open_line)) {
                break;
            }
        }
        step();
        leave();
        if (positional_values > 0) {
            note(
                open_line,
                positional_values == 1
                    ? QStringLiteral("a value without a key passed over")
                    : QStringLiteral("%1 values without a key passed over").arg(positional_values));
        }
        return use;
    }

    // The cursor stands on `{` of a curve key's value: whole numbers, x and y in
    // turn, replace the curve; anything else leaves it alone.
    void parse_curve(const QString& key)
    {
        const int open_line = current_.line;
        step();
        enter();
        point_list points;
        QVector<int> values;
        bool whole_numbers = true;
        while (at_field(open_line)) {
            if (current_.is(QLatin1String("["))) {
                parse_bracketed_key();
                parse_expression(0);
                whole_numbers = false;
            } else if (starts_named_entry()) {
                step();
                step();
                parse_expression(0);
                whole_numbers = false;
            } else {
                const expression value = parse_expression(0);
                const double number = value.number;
                if (value.shape == expression::form::number && std::floor(number) == number &&
                    number >= std::numeric_limits<int>::min() &&
                    number <= std::numeric_limits<int>::max()) {
                    values.append(static_cast<int>(number));
                } else {
                    whole_numbers = false;
                }
            }
            if (!table_goes_on(open_line)) {
                break;
            }
        }
        step();
        leave();

        point_list* member = curve_member(out_, key);
        if (!whole_numbers || values.size() % 2 != 0) {
            note(open_line,
                 QStringLiteral("curve %1 passed over: not pairs of whole numbers").arg(key));
        } else if (member == nullptr) {
            note(open_line, QStringLiteral("unknown curve %1 passed over").arg(key));
        } else {
            for (int i = 0; i < values.size(); i += 2) {
                points.append(QPoint(values[i], values[i + 1]));
            }
            *member = points;
        }
    }

    // Lua's subexpression: unary operators, then binary ones that bind more
    // tightly than `limit`.
    expression parse_expression(int limit)
    {
        enter();
        expression result;
        const int begin = current_.begin();
        if (current_.is(QLatin1String("not")) || current_.is(QLatin1String("-")) ||
            current_.is(QLatin1String("#"))) {
            const bool minus = current_.is(QLatin1String("-"));
            step();
            const expression operand = parse_expression(unary_priority);
            if (minus && operand.shape == expression::form::number) {
                result.shape = expression::form::number;
                result.number = -operand.number;
            }
            result.end = operand.end;
        } else {
            result = parse_simple();
        }
        for (const binary_operator* op = find_binary_operator(current_);
             op != nullptr && op->left > limit; op = find_binary_operator(current_)) {
            step();
            result.end = parse_expression(op->right).end;
            result.shape = expression::form::other;
        }
        result.begin = begin;
        leave();
        return result;
    }

    expression parse_simple()
    {
        expression result;
        if (current_.kind == lua_token_kind::number) {
            result.shape = expression::form::number;
            result.number = numeral_value(current_.text);
        } else if (current_.kind == lua_token_kind::string) {
            result.shape = expression::form::string;
            result.text = current_.value;
        } else if (current_.is(QLatin1String("true")) || current_.is(QLatin1String("false")) ||
                   current_.is(QLatin1String("nil"))) {
            result.shape = expression::form::word;
            result.text = current_.text.toString();
        } else if (current_.is(QLatin1String("..."))) {
            result.shape = expression::form::other;
        } else if (current_.is(QLatin1String("{"))) {
            parse_table(table_use::skip);
            result.shape = expression::form::table;
            result.end = previous_end_;
            return result;
        } else if (current_.is(QLatin1String("function"))) {
            fail(QStringLiteral("a function can't be read"));
        } else {
            return parse_primary();
        }
        step();
        result.end = previous_end_;
        return result;
    }

    // A name or a parenthesised expression, then fields, indices and calls.
    expression parse_primary()
    {
        expression result;
        if (current_.kind == lua_token_kind::name) {
            result.shape = expression::form::word;
            result.text = current_.text.toString();
            step();
        } else if (current_.is(QLatin1String("("))) {
            step();
            parse_expression(0);
            expect(QLatin1String(")"));
        } else {
            fail(QStringLiteral("unexpected symbol"));
        }
        while (true) {
            const bool bare_name = result.shape == expression::form::word;
            if (current_.is(QLatin1String("."))) {
                step();
                expect_name();
            } else if (current_.is(QLatin1String("["))) {
                step();
                parse_expression(0);
                expect(QLatin1String("]"));
            } else if (current_.is(QLatin1String(":"))) {
                step();
                expect_name();
                parse_call_arguments();
            } else if (current_.is(QLatin1String("(")) || current_.is(QLatin1String("{")) ||
                       current_.kind == lua_token_kind::string) {
                const expression argument = parse_call_arguments();
                if (bare_name && argument.shape == expression::form::string) {
                    result.shape = expression::form::call_on_string;
                    result.text = localised_text(argument.text);
                    continue;
                }
            } else {
                break;
            }
            result.shape = expression::form::other;
        }
        result.end = previous_end_;
        return result;
    }

    void expect_name()
    {
        if (current_.kind != lua_token_kind::name) {
            fail(QStringLiteral("name expected"));
        }
        step();
    }

    // The arguments of a call; a string when they are one string literal alone.
    expression parse_call_arguments()
    {
        expression single;
        if (current_.kind == lua_token_kind::string) {
            single.shape = expression::form::string;
            single.text = current_.value;
            step();
        } else if (current_.is(QLatin1String("{"))) {
            parse_table(table_use::skip);
        } else {
            step();
            if (!current_.is(QLatin1String(")"))) {
                single = parse_expression(0);
                while (current_.is(QLatin1String(","))) {
                    step();
                    parse_expression(0);
                    single.shape = expression::form::other;
                }
            }
            expect(QLatin1String(")"));
        }
        return single;
    }

    const QString& text_;
    lua_lexer lexer_;
    preset_settings& out_;
    lua_token current_;
    lua_token ahead_;
    bool has_ahead_ = false;
    int previous_end_ = 0;
    int depth_ = 0;
};

} // namespace

void parse_lua_template(preset_settings& out, const QString& text)
{
    lua_template_parser(text, out).parse_chunk();
}

void load_lua_template(preset_settings& out, const QString& path)
{
    load_template_file(out, path, parse_lua_template);
}

void load_lua_template_from(preset_settings& out, QIODevice& device)
{
    load_template_device(out, device, parse_lua_template);
}
