#include "preset/template_reader.h"

#include "preset/record_text.h"
#include "support/test_support.h"

#include <QtTest>

#include <stdexcept>

using record_text::curves;
using record_text::entries;

namespace {

const QString data_dir = QStringLiteral(LOOKWRIGHT_TEST_DATA "/templates/");
constexpr int large_file_bytes = 50 * 1024 * 1024;

// The message of what parse_block_template throws, or an empty text.
QString block_failure(preset_settings& preset, const QString& text)
{
    try {
        parse_block_template(preset, text);
    } catch (const std::runtime_error& error) {
        return QString::fromUtf8(error.what());
    }
    return QString();
}

QString unexpected(const char* expected, const char* got)
{
    return QStringLiteral(
               "Unexpected token type found. Expected token_type::%1, got token_type::%2")
        .arg(QLatin1String(expected), QLatin1String(got));
}

// The critical line of a failure from its three tokens, each without the
// "token_type::" of its printed name; an empty text for a missing neighbour.
QString around(const char* previous, const char* current, const char* next)
{
    QString line = QStringLiteral("prev token:");
    const auto add = [&line](const char* label, const char* token) {
        line += QLatin1String(label);
        if (*token != '\0') {
            line += QStringLiteral(" token_type::") + QString::fromUtf8(token);
        }
    };
    add("", previous);
    add(" token:", current);
    add(" next token:", next);
    return line;
}

} // namespace

class tst_template_reader : public QObject
{
    Q_OBJECT

private slots:
    void braced_form_data();
    void braced_form();
    void braced_failures_data();
    void braced_failures();
    void fixtures_data();
    void fixtures();
    void line_form_data();
    void line_form();
    void load_template_data();
    void load_template();
    void failure_leaves_name_alone();
    void missing_file_leaves_record_alone();
    void deep_nesting_data();
    void deep_nesting();
    void large_braced_file();
    void large_line_file();

private:
    QTemporaryDir dir_;
};

void tst_template_reader::braced_form_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("curves");

    const QString none = QStringLiteral("|||");
    // clang-format off
    QTest::newRow("empty text") << "" << QStringList() << none;
    QTest::newRow("empty table") << "s = {\n}\n" << QStringList() << none;
    QTest::newRow("entries without a table") << "a = 1, b = 2" << QStringList{"a=1", "b=2"} << none;
    QTest::newRow("trailing comma") << "a = 1," << QStringList{"a=1"} << none;
    QTest::newRow("values as written") << "s = { n = -3, d = 0.5, t = true, q = \"a, b\", x = \"a\\\\b\", }"
                                       << QStringList{"d=0.5", "n=-3", "q=a, b", "t=true", "x=a\\\\b"} << none;
    QTest::newRow("comma as a value") << "a = ," << QStringList{"a=,"} << none;
    QTest::newRow("touching braces are a word") << "a = {}" << QStringList{"a={}"} << none;
    QTest::newRow("empty nested table") << "a = {\n}" << QStringList() << none;
    QTest::newRow("nested tables flatten") << "s = {\n title = \"T\",\n value = {\n settings = {\n S = 12,\n },\n },\n}\n"
                                           << QStringList{"S=12", "title=T"} << none;
    QTest::newRow("nested key replaces earlier") << "a = 1, t = { a = 2, }," << QStringList{"a=2"} << none;
    QTest::newRow("later key replaces nested") << "t = { a = 2, }, a = 3" << QStringList{"a=3"} << none;
    QTest::newRow("bracketed key") << "[\"key\"] = 1" << QStringList{"[\"key\"]=1"} << none;
    QTest::newRow("carriage returns") << "s = {\r\n\ta = 1,\r\n}\r\n" << QStringList{"a=1"} << none;
    QTest::newRow("curve name is an entry") << "ToneCurveName = \"abc\"," << QStringList{"ToneCurveName=abc"} << none;
    QTest::newRow("empty curve") << "ToneCurve = {\n}" << QStringList() << none;
    QTest::newRow("two points") << "ToneCurvePV2012 = {\n 0,\n 0,\n 255,\n 255,\n}," << QStringList() << "0,0 255,255|||";
    QTest::newRow("signed points") << "ToneCurve = { -1, +300, }" << QStringList() << "-1,300|||";
    QTest::newRow("later master curve wins") << "ToneCurvePV2012 = { 0, 0, }, ToneCurve = { 1, 2, }" << QStringList() << "1,2|||";
    QTest::newRow("curve replaced whole") << "ToneCurvePV2012Red = { 1, 1, 2, 2, }, ToneCurvePV2012Red = { 3, 3, }"
                                          << QStringList() << "|3,3||";
    QTest::newRow("channel curves") << "ToneCurvePV2012Red = { 1, 2, }, ToneCurvePV2012Green = { 3, 4, }, ToneCurvePV2012Blue = { 5, 6, }"
                                    << QStringList() << "|1,2|3,4|5,6";
    QTest::newRow("array of tables dropped") << "s = {\n g = {\n {\n a = 1,\n m = {\n {\n c = 2,\n },\n },\n },\n },\n after = 3,\n}"
                                             << QStringList{"after=3"} << none;
    QTest::newRow("array of tables first") << "c = {\n {\n x = 1,\n },\n},\nt = 2" << QStringList{"t=2"} << none;
    // clang-format on
}

void tst_template_reader::braced_form()
{
    QFETCH(QString, text);
    QFETCH(QStringList, entries);
    QFETCH(QString, curves);

    preset_settings preset;
    test_support::log_capture log;
    QCOMPARE(block_failure(preset, text), QString());
    QCOMPARE(::entries(preset), entries);
    QCOMPARE(::curves(preset), curves);
    QCOMPARE(log.lines(), QStringList());
}

void tst_template_reader::braced_failures_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("critical");
    // What the reader stored before it gave up.
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("curves");

    const QString none = QStringLiteral("|||");
    // clang-format off
    QTest::newRow("entry behind the table") << "s = {\n a = 1\n}\nt = 2" << unexpected("comma", "name")
        << around("rbrace(\"}\", 0)", "name(\"t\", 0)", "equals(\"=\", 0)") << QStringList{"a=1"} << none;
    QTest::newRow("table not closed") << "s = {\n a = 1\n" << unexpected("name", "eof")
        << around("num(\"1\", 1)", "eof(\"\", 0)", "") << QStringList{"a=1"} << none;
    QTest::newRow("surplus closing brace") << "s = {\n}\n}" << unexpected("eof", "rbrace")
        << around("rbrace(\"}\", 0)", "rbrace(\"}\", 0)", "eof(\"\", 0)") << QStringList() << none;
    QTest::newRow("text ends at a value") << "a =" << unexpected("comma", "eof")
        << around("equals(\"=\", 0)", "eof(\"\", 0)", "") << QStringList{"a="} << none;
    QTest::newRow("first token no key") << "= 1" << unexpected("name", "equals")
        << around("", "equals(\"=\", 0)", "num(\"1\", 1)") << QStringList() << none;
    QTest::newRow("key without equals") << "a 1" << unexpected("equals", "num")
        << around("name(\"a\", 0)", "num(\"1\", 1)", "eof(\"\", 0)") << QStringList() << none;
    QTest::newRow("entries without comma") << "a = 1 b = 2" << unexpected("comma", "name")
        << around("num(\"1\", 1)", "name(\"b\", 0)", "equals(\"=\", 0)") << QStringList{"a=1"} << none;
    QTest::newRow("plain array") << "items = {\n \"a\",\n}" << unexpected("name", "str")
        << around("lbrace(\"{\", 0)", "str(\"a\", 0)", "comma(\",\", 0)") << QStringList() << none;
    QTest::newRow("nested table not closed") << "a = 1, t = { a = 2, b = {" << unexpected("name", "eof")
        << around("lbrace(\"{\", 0)", "eof(\"\", 0)", "") << QStringList{"a=2"} << none;
    QTest::newRow("array of tables not closed") << "a = {\n{\n b = 1,\n}" << unexpected("rbrace", "eof")
        << around("rbrace(\"}\", 0)", "eof(\"\", 0)", "") << QStringList() << none;
    QTest::newRow("decimal curve value") << "ToneCurvePV2012 = {\n 0,\n 0.5,\n}," << unexpected("num", "name")
        << around("comma(\",\", 0)", "name(\"0.5\", 0)", "comma(\",\", 0)") << QStringList() << none;
    QTest::newRow("odd number of curve values") << "ToneCurve = { 0, 0, 1, }" << unexpected("num", "rbrace")
        << around("comma(\",\", 0)", "rbrace(\"}\", 0)", "eof(\"\", 0)") << QStringList() << none;
    QTest::newRow("last curve value without comma") << "ToneCurve = { 0, 0 }" << unexpected("comma", "rbrace")
        << around("num(\"0\", 0)", "rbrace(\"}\", 0)", "eof(\"\", 0)") << QStringList() << none;
    QTest::newRow("curve stored before its brace") << "ToneCurve = { 0, 0," << unexpected("rbrace", "eof")
        << around("comma(\",\", 0)", "eof(\"\", 0)", "") << QStringList() << "0,0|||";
    QTest::newRow("table inside a curve") << "ToneCurvePV2012Red = { 1, 1, }, ToneCurvePV2012Red = { {"
        << unexpected("rbrace", "lbrace") << around("lbrace(\"{\", 0)", "lbrace(\"{\", 0)", "eof(\"\", 0)")
        << QStringList() << none;
    QTest::newRow("channel curve of the line form") << "ToneCurveBlue = {\n 0,\n 0,\n},"
        << "Unsupported curve type: ToneCurveBlue" << "" << QStringList() << none;
    QTest::newRow("unknown curve fails on its values first") << "ToneCurveRed = { 0, }" << unexpected("num", "rbrace")
        << around("comma(\",\", 0)", "rbrace(\"}\", 0)", "eof(\"\", 0)") << QStringList() << none;
    // clang-format on
}

void tst_template_reader::braced_failures()
{
    QFETCH(QString, text);
    QFETCH(QString, message);
    QFETCH(QString, critical);
    QFETCH(QStringList, entries);
    QFETCH(QString, curves);

    preset_settings preset;
    test_support::log_capture log;
    QCOMPARE(block_failure(preset, text), message);
    QCOMPARE(log.lines(),
             critical.isEmpty() ? QStringList() : QStringList{"Critical: " + critical});
    QCOMPARE(::entries(preset), entries);
    QCOMPARE(::curves(preset), curves);
}

void tst_template_reader::fixtures_data()
{
    QTest::addColumn<QString>("file");

    QTest::newRow("braced form") << "braced_preset";
    QTest::newRow("line form") << "line_form_preset";
    QTest::newRow("every rule of the line form") << "line_form_rules";
}

void tst_template_reader::fixtures()
{
    QFETCH(QString, file);

    QFile expected(data_dir + file + QStringLiteral(".expected"));
    QVERIFY(expected.open(QIODevice::ReadOnly));
    preset_settings preset;
    const record_text::quiet_log quiet;
    ::load_template(preset, data_dir + file + QStringLiteral(".lrtemplate"));
    QCOMPARE(record_text::describe(preset), QString::fromUtf8(expected.readAll()));
}

void tst_template_reader::line_form_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<QStringList>("entries");

    QTest::newRow("each line logged")
        << "s.value.settings = {}\n  s.value.settings.ToneCurve[1] = 7\n"
        << QStringList{"Debug: 's.value.settings' -> '{}'", "Debug: 'ToneCurve[1]' -> '7'",
                       "Debug: '' -> ''"}
        << QStringList{"="};
    QTest::newRow("carriage returns trimmed")
        << "  s.value.settings.A = 1\r\n  s.title = \"T\"\r"
        << QStringList{"Debug: 'A' -> '1'", "Debug: 'title' -> '\"T\"'"}
        << QStringList{"A=1", "title=\"T\""};
}

void tst_template_reader::line_form()
{
    QFETCH(QString, text);
    QFETCH(QStringList, log);
    QFETCH(QStringList, entries);

    preset_settings preset;
    test_support::log_capture capture;
    parse_line_template(preset, text);
    QCOMPARE(capture.lines(), log);
    QCOMPARE(::entries(preset), entries);
}

void tst_template_reader::load_template_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("entries");

    QTest::newRow("no title, no name") << QByteArray("s = { a = 1, }") << "" << QStringList{"a=1"};
    QTest::newRow("utf-8 text") << QByteArray("title = \"M\xc3\xa0u\"")
                                << QString::fromUtf8("M\xc3\xa0u")
                                << QStringList{QString::fromUtf8("title=M\xc3\xa0u")};
    // The marker decides wherever it stands, here inside a string of a braced text.
    QTest::newRow("marker anywhere selects lines")
        << QByteArray("s = {\n\tnote = \"s.value.settings = {}\",\n}\n") << ""
        << QStringList{"=", "note=\"s.value.settings", "s={", "}="};
    QTest::newRow("marker with other blanks")
        << QByteArray("s = { note = \"s.value.settings ={}\", }") << ""
        << QStringList{"note=s.value.settings ={}"};
}

void tst_template_reader::load_template()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, name);
    QFETCH(QStringList, entries);

    const QString path =
        test_support::write_file(dir_.path(), QStringLiteral("t.lrtemplate"), contents);
    preset_settings preset;
    preset.name = QStringLiteral("earlier name");
    const record_text::quiet_log quiet;
    ::load_template(preset, path);
    QCOMPARE(preset.name, name);
    QCOMPARE(::entries(preset), entries);
}

void tst_template_reader::failure_leaves_name_alone()
{
    const QString path = test_support::write_file(
        dir_.path(), QStringLiteral("broken.lrtemplate"),
        "s = {\n\ttitle = \"Broken\",\n\tToneCurve = { 0, 0, 255, 255, },\n\ta = 1\n\tb = 2\n}\n");
    preset_settings preset;
    preset.name = QStringLiteral("earlier name");
    test_support::log_capture log;

    QVERIFY_EXCEPTION_THROWN(::load_template(preset, path), std::runtime_error);
    QCOMPARE(preset.name, QStringLiteral("earlier name"));
    QCOMPARE(entries(preset), (QStringList{"a=1", "title=Broken"}));
    QCOMPARE(curves(preset), QStringLiteral("0,0 255,255|||"));
    QCOMPARE(log.lines(), QStringList{"Critical: prev token: token_type::num(\"1\", 1) token: "
                                      "token_type::name(\"b\", 0) next token: "
                                      "token_type::equals(\"=\", 0)"});
}

void tst_template_reader::missing_file_leaves_record_alone()
{
    preset_settings preset;
    preset.name = QStringLiteral("kept");
    preset.settings.insert(QStringLiteral("a"), QStringLiteral("1"));
    test_support::log_capture log;

    ::load_template(preset, dir_.path() + QStringLiteral("/absent.lrtemplate"));
    QCOMPARE(preset.name, QStringLiteral("kept"));
    QCOMPARE(entries(preset), QStringList{"a=1"});
    QCOMPARE(log.lines(), QStringList());
}

void tst_template_reader::deep_nesting_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QStringList>("entries");

    const int depth = 1000000;
    const QString open = QStringLiteral("t = {\n").repeated(depth);
    const QString close = QStringLiteral("},\n").repeated(depth);
    QTest::newRow("a million nested tables")
        << open + QStringLiteral("inner = 1,\n") + close + QStringLiteral("outer = 2") << QString()
        << QStringList{"inner=1", "outer=2"};
    QTest::newRow("a million tables left open")
        << open + QStringLiteral("inner = 1,\n") << unexpected("name", "eof")
        << QStringList{"inner=1"};
    QTest::newRow("one brace too many")
        << open + close + QStringLiteral("}") << unexpected("eof", "rbrace") << QStringList();
    QTest::newRow("a million nested arrays of tables")
        << QStringLiteral("a = {\n{\n") + QStringLiteral("{\n").repeated(depth) +
               QStringLiteral("}\n").repeated(depth + 2) + QStringLiteral(", b = 2")
        << QString() << QStringList{"b=2"};
}

void tst_template_reader::deep_nesting()
{
    QFETCH(QString, text);
    QFETCH(QString, message);
    QFETCH(QStringList, entries);

    preset_settings preset;
    const record_text::quiet_log quiet;
    QCOMPARE(block_failure(preset, text), message);
    QCOMPARE(::entries(preset), entries);
}

void tst_template_reader::large_braced_file()
{
    // Half of it the smallest entries there are, half of it curve points.
    const QString path = test_support::write_file(
        dir_.path(), QStringLiteral("large.lrtemplate"),
        "s = {\n" + QByteArray("a=1,").repeated(large_file_bytes / 8) + "\nToneCurvePV2012 = {\n" +
            QByteArray("0,9,").repeated(large_file_bytes / 8) + "},\ntitle = \"Large\",\n}\n");

    preset_settings preset;
    ::load_template(preset, path);
    QCOMPARE(preset.name, QStringLiteral("Large"));
    QCOMPARE(entries(preset), (QStringList{"a=1", "title=Large"}));
    QCOMPARE(preset.tone_curve.size(), large_file_bytes / 8);
    QCOMPARE(preset.tone_curve.constLast(), QPoint(0, 9));
}

void tst_template_reader::large_line_file()
{
    const QByteArray block = "  s.value.settings.Exposure2012 = 0.5\n"
                             "  s.value.settings.ToneCurvePV2012[1] = 64\n"
                             "  s.value.settings.ToneCurvePV2012[2] = 80\n";
    const int blocks = large_file_bytes / block.size();
    const QString path = test_support::write_file(
        dir_.path(), QStringLiteral("large.lrtemplate"),
        "s.value.settings = {}\n" + block.repeated(blocks) + "  s.title = \"Large\"");

    preset_settings preset;
    const record_text::quiet_log quiet;
    ::load_template(preset, path);
    QCOMPARE(preset.name, QStringLiteral("\"Large\""));
    QCOMPARE(entries(preset), (QStringList{"Exposure2012=0.5", "title=\"Large\""}));
    QCOMPARE(preset.tone_curve.size(), blocks);
    QCOMPARE(preset.tone_curve.constLast(), QPoint(64, 80));
}

QTEST_GUILESS_MAIN(tst_template_reader)
#include "tst_template_reader.moc"
