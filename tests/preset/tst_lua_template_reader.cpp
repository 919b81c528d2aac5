#include "preset/lua_template_reader.h"

#include "preset/lua_lexer.h"
#include "preset/record_text.h"
#include "preset/template_reader.h"
#include "support/test_support.h"

#include <QtTest>

#include <random>

using record_text::curves;
using record_text::entries;

namespace {

// One construct in the braced form's grammar and in Lua, both meaning the same
// entries. The braced form has no comments, no escapes and no calls, so its side
// spells the result plainly (a literal tab, the resolved title).
struct construct
{
    const char* name;
    const char* braced;
    const char* lua;
};

const construct constructs[] = {
    {"number", "n = -12", "n = -12"},
    {"numbers in every form", "h = 0x1F, e = 1.5e-3, d = .5", "h = 0x1F; e = 1.5e-3; d = .5"},
    {"plain string", "s = \"a, b = c\"", "s = \"a, b = c\""},
    {"escapes", "t = \"tab\there A \xc3\xa9 it's\"", "t = \"tab\\there A \\195\\169 it\\'s\""},
    {"backslash", "b = \"D:\\My Documents\"", "b = \"D:\\\\My Documents\""},
    {"single quotes", "q = \"single\"", "q = 'single'"},
    {"long string", "l = \"long ]] text\"", "l = [==[\nlong ]] text]==]"},
    {"comment between key and value", "c = 5", "c --[[ note ]] = -- credit\n 5"},
    {"comment line", "k = 1", "-- credit line\nk = 1"},
    {"localised title", "title = \"Zero'd\"", "title = ZSTR \"$$$/AgDevelopModule/Zerod=Zero'd\""},
    {"call with parentheses", "z = \"plain\"", "z = ZSTR(\"plain\")"},
    {"words", "w = sourceSetExplicitly, t = true, f = false, v = nil",
     "w = sourceSetExplicitly, t = true, f = false, v = nil"},
    {"other expression", "x = \"AgColor( 0, 0, 0, 1 )\", y = N/A",
     "x = AgColor( 0, 0, 0, 1 ), y = N/A"},
    {"touching braces", "ToneCurvePV2012 = {\n0,\n0,\n255,\n250,\n}",
     "ToneCurvePV2012 = {0, 0, 255, 250}"},
    {"channel curve", "ToneCurvePV2012Red = {\n1,\n2,\n}", "ToneCurvePV2012Red = { 1; 2 }"},
    {"empty curve", "ToneCurve = {\n}", "ToneCurve = {\n}"},
    {"empty table as text", "e = {}", "e = {}"},
    {"nested tables", "g = {\na = 1,\nh = {\nb = 2,\n},\n}", "g = { a = 1; h = { b = 2 } }"},
    {"array of tables", "r = {\n{\na = 9,\n},\nb = 8,\n}, after = 3",
     "r = {{a = 9}, b = 8}, after = 3"},
    {"values without a key", "p = {\nx = 2,\n}", "p = { 1, x = 2, \"y\" }"},
    {"unknown curve", "u = 1", "ToneCurveRed = {0, 0}, u = 1"},
    {"bracketed key", "[\"key\"] = 4", "[\"key\"] = 4"},
};

QByteArray template_around(const QByteArray& settings)
{
    return "s = {\n\tid = \"1\",\n\ttype = \"Develop\",\n\tvalue = {\n\t\tsettings = {\n" +
           settings + "\n\t\t},\n\t},\n}\n";
}

// The whole record in one text.
QString record_of(const preset_settings& preset)
{
    return preset.name + QLatin1Char('|') + curves(preset) + QLatin1Char('|') +
           entries(preset).join(QLatin1Char('\n'));
}

// Reads `path` with one of the readers; the record, or the error prefixed "error: ".
template<typename Reader>
QString read_with(Reader reader, const QString& path)
{
    preset_settings preset;
    test_support::log_capture quiet;
    try {
        reader(preset, path);
    } catch (const std::exception& e) {
        return QStringLiteral("error: ") + QString::fromUtf8(e.what());
    }
    return record_of(preset);
}

// Puts quotes around each `key = value,` line's value that isn't Lua on its own.
QByteArray quote_bare_values(const QByteArray& text)
{
    QList<QByteArray> lines = text.split('\n');
    for (QByteArray& line : lines) {
        const int equals = line.indexOf('=');
        QByteArray value = line.mid(equals + 1).trimmed();
        if (value.endsWith(',')) {
            value.chop(1);
        }
        if (equals < 0 || value.startsWith('{') || value.contains('"')) {
            continue;
        }
        preset_settings probe;
        try {
            test_support::log_capture quiet;
            parse_lua_template(probe, QStringLiteral("x = ") + QString::fromUtf8(value));
        } catch (const lua_syntax_error&) {
            line = line.left(equals + 1) + " \"" + value + "\",";
        }
    }
    return lines.join('\n');
}

QStringList template_files()
{
    QStringList files;
    const QString root = QStringLiteral(LOOKWRIGHT_TEST_DATA "/../..");
    for (const QString& folder :
         {root + QStringLiteral("/tests/data"), root + QStringLiteral("/examples"),
          QStringLiteral(LOOKWRIGHT_SHARED_PRESETS),
          root + QStringLiteral("/../shared/golden/presets")}) {
        QDirIterator it(folder, {QStringLiteral("*.lrtemplate")}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            files << QFileInfo(it.next()).canonicalFilePath();
        }
    }
    return files;
}

} // namespace

class tst_lua_template_reader : public QObject
{
    Q_OBJECT

private slots:
    void reads_text_data();
    void reads_text();
    void same_record_as_braced_reader_data();
    void same_record_as_braced_reader();
    void generated_pairs_data();
    void generated_pairs();
    void large_file();

private:
    QTemporaryDir dir_;
};

void tst_lua_template_reader::reads_text_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("curves");
    // What the reader throws, then the log's warnings.
    QTest::addColumn<QStringList>("messages");

    const QString none = QStringLiteral("|||");
    const QStringList quiet;
    // clang-format off
    QTest::newRow("every escape") << QByteArray(R"(a = "\"q\" \\ \a\b\f\n\r\t\v \65\066 \'x\' \q", b = "x\
y")")
        << QStringList{QStringLiteral("a=\"q\" \\ \a\b\f\n\r\t\v AB 'x' q"), "b=x\ny"} << none << quiet;
    QTest::newRow("decimal escapes spell UTF-8") << QByteArray(R"(t = "caf\195\169", z = "\0")")
        << QStringList{QString::fromUtf8("t=caf\xc3\xa9"), QStringLiteral("z=") + QChar(0)} << none << quiet;
    QTest::newRow("long strings at any level") << QByteArray("a = [[\nx]], b = [==[ ]] ]=] ]==], c = [[\r\n\r\ny]]")
        << QStringList{"a=x", "b= ]] ]=] ", "c=\r\ny"} << none << quiet;
    QTest::newRow("comments of both kinds") << QByteArray("-- credit\na --[[ c\n ]] = --[==[ ]] ]==] 1 -- tail")
        << QStringList{"a=1"} << none << quiet;
    QTest::newRow("calls on one string") << QByteArray(R"(title = ZSTR "$$$/A/Zerod=Zero'd=x", b = ZSTR("plain"), c = L 'q', d = ZSTR "$$$/no/equals")")
        << QStringList{"b=plain", "c=q", "d=$$$/no/equals", "title=Zero'd=x"} << none << quiet;
    QTest::newRow("numbers and words as written") << QByteArray("a = -3, b = 0x1F, c = -1.5e-3, d = - 2, e = nil, f = sourceSetExplicitly")
        << QStringList{"a=-3", "b=0x1F", "c=-1.5e-3", "d=- 2", "e=nil", "f=sourceSetExplicitly"} << none << quiet;
    QTest::newRow("other expressions as written") << QByteArray(R"(a = N/A, b = AgColor( 0, 0, 0, 1 ), c = "x" .. y, d = ZSTR "a" "b", e = not t.u[1])")
        << QStringList{"a=N/A", "b=AgColor( 0, 0, 0, 1 )", "c=\"x\" .. y", "d=ZSTR \"a\" \"b\"", "e=not t.u[1]"} << none << quiet;
    QTest::newRow("semicolons, and no separator between assignments") << QByteArray("a = 1; b = { c = 2; d = 3; }  e = 4")
        << QStringList{"a=1", "c=2", "d=3", "e=4"} << none << quiet;
    QTest::newRow("touching braces") << QByteArray("ToneCurve = {0, 0, 255, 255}, ToneCurvePV2012Red = {1,2;3,4}, e = {}, f = { }")
        << QStringList{"e={}"} << "0,0 255,255|1,2 3,4||" << quiet;
    QTest::newRow("curve values of any whole form") << QByteArray("ToneCurvePV2012 = { 0x10, -1, 2.0, 1e1 }")
        << QStringList() << "16,-1 2,10|||" << quiet;
    QTest::newRow("nested tables flatten, the later key wins") << QByteArray("a = 1, t = { a = 2, u = { b = 3 } }, b = 4")
        << QStringList{"a=2", "b=4"} << none << quiet;
    QTest::newRow("array of tables passed over whole") << QByteArray("g = { { a = 1 }, b = 2 }, c = 3")
        << QStringList{"c=3"} << none << quiet;
    QTest::newRow("bracketed keys as written") << QByteArray("[\"k\"] = 1, t = { [ 2 ] = 2 }")
        << QStringList{"[ 2 ]=2", "[\"k\"]=1"} << none << quiet;
    QTest::newRow("values without a key") << QByteArray("s = {\n 1, a = 2, \"x\", {b = 3}\n}")
        << QStringList{"a=2"} << none << QStringList{"line 1: 3 values without a key passed over"};
    QTest::newRow("curves the braced form doesn't read") << QByteArray("ToneCurveBlue = {0, 0},\nToneCurvePV2012 = {0, 0.5},\nToneCurve = {1}")
        << QStringList() << none << QStringList{"line 1: unknown curve ToneCurveBlue passed over",
               "line 2: curve ToneCurvePV2012 passed over: not pairs of whole numbers",
               "line 3: curve ToneCurve passed over: not pairs of whole numbers"};
    QTest::newRow("byte-order mark") << QByteArray("\xef\xbb\xbf" "a = 1") << QStringList{"a=1"} << none << quiet;

    QTest::newRow("unfinished string") << QByteArray("a = 1,\nb = \"open\nc = 2") << QStringList{"a=1"} << none
        << QStringList{"line 2: unfinished string"};
    QTest::newRow("unfinished long string") << QByteArray("\na = [==[x]]\n") << QStringList() << none
        << QStringList{"line 2: unfinished long string"};
    QTest::newRow("unfinished long comment") << QByteArray("a = 1 --[[ end\n") << QStringList() << none
        << QStringList{"line 1: unfinished long comment"};
    QTest::newRow("table not closed") << QByteArray("s = {\n a = 1,\n") << QStringList{"a=1"} << none
        << QStringList{"line 3: '}' expected (to close '{' at line 1) near end of file"};
    QTest::newRow("missing separator") << QByteArray("s = {\n a = 1\n b = 2 }") << QStringList{"a=1"} << none
        << QStringList{"line 3: '}' expected (to close '{' at line 1) near 'b'"};
    QTest::newRow("surplus closing brace") << QByteArray("s = {\n}\n}") << QStringList() << none
        << QStringList{"line 3: unexpected symbol near '}'"};
    QTest::newRow("garbage") << QByteArray("hello world") << QStringList() << none
        << QStringList{"line 1: '=' expected near 'world'"};
    QTest::newRow("bare value Lua can't read") << QByteArray("a = 12abc") << QStringList() << none
        << QStringList{"line 1: malformed number near '12abc'"};
    QTest::newRow("exponent without digits") << QByteArray("a = 1e") << QStringList() << none
        << QStringList{"line 1: malformed number near '1e'"};
    QTest::newRow("comment where a value is due") << QByteArray("a = --3\n") << QStringList() << none
        << QStringList{"line 2: unexpected symbol near end of file"};
    QTest::newRow("unary plus") << QByteArray("a = +3") << QStringList() << none
        << QStringList{"line 1: unexpected symbol near '+'"};
    QTest::newRow("escape too large") << QByteArray(R"(a = "\256")") << QStringList() << none
        << QStringList{"line 1: escape sequence too large"};
    QTest::newRow("function") << QByteArray("a = function() end") << QStringList() << none
        << QStringList{"line 1: a function can't be read near 'function'"};
    QTest::newRow("nested beyond Lua's own limit") << "a = " + QByteArray(300, '{') << QStringList() << none
        << QStringList{"line 1: nested too deeply near '{'"};
    QTest::newRow("operators beyond Lua's own limit") << "a = x" + QByteArray(" .. x").repeated(300) << QStringList() << none
        << QStringList{"line 1: nested too deeply near 'x'"};
    // clang-format on
}

void tst_lua_template_reader::reads_text()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, entries);
    QFETCH(QString, curves);
    QFETCH(QStringList, messages);

    preset_settings preset;
    test_support::log_capture log;
    QStringList seen;
    try {
        parse_lua_template(preset, QString::fromUtf8(text));
    } catch (const lua_syntax_error& error) {
        seen << QString::fromUtf8(error.what());
    }
    QCOMPARE(seen + log.messages(QtWarningMsg), messages);
    QCOMPARE(::entries(preset), entries);
    QCOMPARE(::curves(preset), curves);
}

void tst_lua_template_reader::same_record_as_braced_reader_data()
{
    QTest::addColumn<QString>("path");
    const QStringList files = template_files();
    // tests/data and examples; and where the shared folder is there, the real presets
    // and the generated ones.
    const bool shared = QFileInfo(QStringLiteral(LOOKWRIGHT_SHARED_PRESETS)).isDir();
    QVERIFY2(files.size() > (shared ? 140 : 4), qPrintable(QString::number(files.size())));
    for (const QString& file : files) {
        QTest::newRow(qPrintable(QFileInfo(file).fileName())) << file;
    }
}

void tst_lua_template_reader::same_record_as_braced_reader()
{
    QFETCH(QString, path);
    const QString braced = read_with(load_template, path);
    if (braced.startsWith(QLatin1String("error: "))) {
        QSKIP("the braced reader refuses it");
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    if (text.contains('\\')) {
        // The braced reader keeps escapes as written, so the records differ by design.
        QSKIP("escapes are read differently by design");
    }
    const QString lua = read_with(load_lua_template, path);
    if (!lua.startsWith(QLatin1String("error: "))) {
        QCOMPARE(lua, braced);
        return;
    }
    // Bare values that Lua can't read (12abc, --3, 5%) are the braced reader's alone;
    // in quotes they mean the same to it and become Lua.
    const QString quoted = test_support::write_file(
        dir_.path(), QStringLiteral("quoted.lrtemplate"), quote_bare_values(text));
    QCOMPARE(read_with(load_lua_template, quoted), braced);
}

void tst_lua_template_reader::generated_pairs_data()
{
    QTest::addColumn<QByteArray>("braced");
    QTest::addColumn<QByteArray>("lua");

    for (const construct& c : constructs) {
        QTest::newRow(c.name) << template_around(c.braced) << template_around(c.lua);
    }
    // Every construct once, in shuffled orders, with every kind of separator.
    const char* const separators[] = {",\n", ";\n", ", ", "; ", ",\n-- between\n", ";--[[x]]"};
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937 random(seed);
        std::vector<const construct*> order;
        for (const construct& c : constructs) {
            // Half the texts hold no backslash, so that both readers read them alike.
            if (seed % 2 == 0 || qstrcmp(c.name, "backslash") != 0) {
                order.push_back(&c);
            }
        }
        std::shuffle(order.begin(), order.end(), random);
        QByteArray braced;
        QByteArray lua;
        for (const construct* c : order) {
            braced += QByteArray(c->braced) + ",\n";
            lua += QByteArray(c->lua) + separators[random() % std::size(separators)];
        }
        QTest::newRow(qPrintable(QStringLiteral("mixed %1").arg(seed)))
            << template_around(braced) << template_around(lua);
    }
}

void tst_lua_template_reader::generated_pairs()
{
    QFETCH(QByteArray, braced);
    QFETCH(QByteArray, lua);

    const QString braced_path =
        test_support::write_file(dir_.path(), QStringLiteral("braced.lrtemplate"), braced);
    const QString lua_path =
        test_support::write_file(dir_.path(), QStringLiteral("lua.lrtemplate"), lua);
    const QString expected = read_with(load_template, braced_path);
    QVERIFY2(!expected.startsWith(QLatin1String("error: ")), qPrintable(expected));
    QCOMPARE(read_with(load_lua_template, lua_path), expected);
    if (!braced.contains('\\')) {
        QCOMPARE(read_with(load_lua_template, braced_path), expected);
    }
}

void tst_lua_template_reader::large_file()
{
    // Half entries, half curve points, two million tokens in all: a reader that
    // isn't linear in them would never finish.
    const int bytes = 8 * 1024 * 1024;
    const QByteArray text = "s = {\n" + QByteArray("a=1;").repeated(bytes / 8) +
                            "\nToneCurvePV2012 = {" + QByteArray("0,9,").repeated(bytes / 8) +
                            "},\ntitle = [[Large]],\n}\n";
    preset_settings preset;
    load_lua_template(
        preset, test_support::write_file(dir_.path(), QStringLiteral("large.lrtemplate"), text));
    QCOMPARE(preset.name, QStringLiteral("Large"));
    QCOMPARE(preset.tone_curve.size(), bytes / 8);
}

QTEST_GUILESS_MAIN(tst_lua_template_reader)
#include "tst_lua_template_reader.moc"
