#include "preset/template_reader.h"

#include "support/test_support.h"

#include <QtTest>

#include <stdexcept>

namespace {

const QString data_dir = QStringLiteral(LOOKWRIGHT_TEST_DATA "/templates/");

// "key=value" for every entry, in map order.
QStringList entries(const preset_settings& preset)
{
    QStringList result;
    for (auto it = preset.settings.constBegin(); it != preset.settings.constEnd(); ++it) {
        result << it.key() + QLatin1Char('=') + it.value();
    }
    return result;
}

QString points(const point_list& curve)
{
    QStringList result;
    for (const QPoint& point : curve) {
        result << QStringLiteral("%1,%2").arg(point.x()).arg(point.y());
    }
    return result.join(QLatin1Char(' '));
}

// The four curves as "master|red|green|blue".
QString curves(const preset_settings& preset)
{
    return QStringList{points(preset.tone_curve), points(preset.tone_curve_red),
                       points(preset.tone_curve_green), points(preset.tone_curve_blue)}
        .join(QLatin1Char('|'));
}

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

// Drops every message while it lives: the line reader logs each line, and a large
// file would flood the test output.
class quiet_log
{
public:
    quiet_log() : previous_(qInstallMessageHandler(drop)) {}
    ~quiet_log() { qInstallMessageHandler(previous_); }

private:
    static void drop(QtMsgType, const QMessageLogContext&, const QString&) {}
    QtMessageHandler previous_;
};

const QString large_file_name = QStringLiteral("large.lrtemplate");
constexpr int large_file_bytes = 50 * 1024 * 1024;

} // namespace

class tst_template_reader : public QObject
{
    Q_OBJECT

private slots:
    void braced_form_data();
    void braced_form();
    void braced_failures_data();
    void braced_failures();
    void line_form_data();
    void line_form();
    void line_form_logs_each_line();
    void line_form_fixtures_data();
    void line_form_fixtures();
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

    const QString no_curves = QStringLiteral("|||");
    QTest::newRow("empty text") << "" << QStringList() << no_curves;
    QTest::newRow("empty table") << "s = {\n}\n" << QStringList() << no_curves;
    QTest::newRow("entries without a table")
        << "a = 1, b = 2" << QStringList{"a=1", "b=2"} << no_curves;
    QTest::newRow("trailing comma") << "a = 1," << QStringList{"a=1"} << no_curves;
    QTest::newRow("values as written")
        << "s = { n = -3, d = 0.5, t = true, q = \"a b\", e = 1e3, x = \"a\\\\b\", }"
        << QStringList{"d=0.5", "e=1e3", "n=-3", "q=a b", "t=true", "x=a\\\\b"} << no_curves;
    QTest::newRow("comma as a value") << "a = ," << QStringList{"a=,"} << no_curves;
    QTest::newRow("touching braces are a word") << "a = {}" << QStringList{"a={}"} << no_curves;
    QTest::newRow("empty nested table") << "a = {\n}" << QStringList() << no_curves;
    QTest::newRow("nested tables flatten")
        << "s = {\n\ttitle = \"T\",\n\tvalue = {\n\t\tsettings = {\n\t\t\tShadows2012 = "
           "12,\n\t\t},\n\t},\n}\n"
        << QStringList{"Shadows2012=12", "title=T"} << no_curves;
    QTest::newRow("nested key replaces earlier one")
        << "a = 1, t = { a = 2, }," << QStringList{"a=2"} << no_curves;
    QTest::newRow("later key replaces nested one")
        << "t = { a = 2, }, a = 3" << QStringList{"a=3"} << no_curves;
    QTest::newRow("bracketed key") << "[\"key\"] = 1" << QStringList{"[\"key\"]=1"} << no_curves;
    QTest::newRow("delimiters in a string")
        << "title = \"x = 1, y\"" << QStringList{"title=x = 1, y"} << no_curves;
    QTest::newRow("carriage returns") << "s = {\r\n\ta = 1,\r\n}\r\n"
                                      << QStringList{"a=1"} << no_curves;
    QTest::newRow("curve name is a plain entry")
        << "ToneCurveName = \"abc\"," << QStringList{"ToneCurveName=abc"} << no_curves;
    QTest::newRow("empty curve") << "ToneCurve = {\n}" << QStringList() << no_curves;
    QTest::newRow("two points") << "ToneCurvePV2012 = {\n 0,\n 0,\n 255,\n 255,\n},"
                                << QStringList() << "0,0 255,255|||";
    QTest::newRow("signed points") << "ToneCurve = { -1, +300, }" << QStringList() << "-1,300|||";
    QTest::newRow("later master curve wins")
        << "ToneCurvePV2012 = { 0, 0, 255, 255, }, ToneCurve = { 1, 2, }" << QStringList()
        << "1,2|||";
    QTest::newRow("curve replaced as a whole")
        << "ToneCurvePV2012Red = { 1, 1, 2, 2, }, ToneCurvePV2012Red = { 3, 3, }" << QStringList()
        << "|3,3||";
    QTest::newRow("channel curves")
        << "ToneCurvePV2012Red = { 1, 2, }, ToneCurvePV2012Green = { 3, 4, }, "
           "ToneCurvePV2012Blue = { 5, 6, }"
        << QStringList() << "|1,2|3,4|5,6";
    QTest::newRow("array of tables dropped")
        << "s = {\n g = {\n {\n a = 1,\n m = {\n {\n c = 2,\n },\n },\n },\n },\n after = 3,\n}"
        << QStringList{"after=3"} << no_curves;
    QTest::newRow("array of tables first in its table")
        << "settings = {\n c = {\n {\n x = 1,\n },\n },\n t = 2,\n}" << QStringList{"t=2"}
        << no_curves;
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

    const QString no_curves = QStringLiteral("|||");
    const auto unexpected = [](const char* expected, const char* got) {
        return QStringLiteral(
                   "Unexpected token type found. Expected token_type::%1, got token_type::%2")
            .arg(QLatin1String(expected), QLatin1String(got));
    };

    QTest::newRow("entry behind the table")
        << "s = {\n a = 1\n}\nt = 2" << unexpected("comma", "name")
        << "prev token: token_type::rbrace(\"}\", 0) token: token_type::name(\"t\", 0) next token: "
           "token_type::equals(\"=\", 0)"
        << QStringList{"a=1"} << no_curves;
    QTest::newRow("table not closed")
        << "s = {\n a = 1\n"
        << unexpected("name", "eof")
        << "prev token: token_type::num(\"1\", 1) token: token_type::eof(\"\", 0) next token:"
        << QStringList{"a=1"} << no_curves;
    QTest::newRow("surplus closing brace")
        << "s = {\n}\n}" << unexpected("eof", "rbrace")
        << "prev token: token_type::rbrace(\"}\", 0) token: token_type::rbrace(\"}\", 0) next "
           "token: token_type::eof(\"\", 0)"
        << QStringList() << no_curves;
    QTest::newRow("text ends where a value is due")
        << "a =" << unexpected("comma", "eof")
        << "prev token: token_type::equals(\"=\", 0) token: token_type::eof(\"\", 0) next token:"
        << QStringList{"a="} << no_curves;
    QTest::newRow("first token no key")
        << "= 1" << unexpected("name", "equals")
        << "prev token: token: token_type::equals(\"=\", 0) next token: token_type::num(\"1\", 1)"
        << QStringList() << no_curves;
    QTest::newRow("key without equals")
        << "a 1" << unexpected("equals", "num")
        << "prev token: token_type::name(\"a\", 0) token: token_type::num(\"1\", 1) next token: "
           "token_type::eof(\"\", 0)"
        << QStringList() << no_curves;
    QTest::newRow("entries without comma")
        << "a = 1 b = 2" << unexpected("comma", "name")
        << "prev token: token_type::num(\"1\", 1) token: token_type::name(\"b\", 0) next token: "
           "token_type::equals(\"=\", 0)"
        << QStringList{"a=1"} << no_curves;
    QTest::newRow("plain array")
        << "items = {\n \"a\",\n}" << unexpected("name", "str")
        << "prev token: token_type::lbrace(\"{\", 0) token: token_type::str(\"a\", 0) next token: "
           "token_type::comma(\",\", 0)"
        << QStringList() << no_curves;
    QTest::newRow("nested table not closed")
        << "a = 1, t = { a = 2, b = {" << unexpected("name", "eof")
        << "prev token: token_type::lbrace(\"{\", 0) token: token_type::eof(\"\", 0) next token:"
        << QStringList{"a=2"} << no_curves;
    QTest::newRow("array of tables not closed")
        << "a = {\n{\n b = 1,\n}" << unexpected("rbrace", "eof")
        << "prev token: token_type::rbrace(\"}\", 0) token: token_type::eof(\"\", 0) next token:"
        << QStringList() << no_curves;
    QTest::newRow("decimal curve value")
        << "ToneCurvePV2012 = {\n 0,\n 0.5,\n}," << unexpected("num", "name")
        << "prev token: token_type::comma(\",\", 0) token: token_type::name(\"0.5\", 0) next "
           "token: token_type::comma(\",\", 0)"
        << QStringList() << no_curves;
    QTest::newRow("odd number of curve values")
        << "ToneCurve = { 0, 0, 1, }" << unexpected("num", "rbrace")
        << "prev token: token_type::comma(\",\", 0) token: token_type::rbrace(\"}\", 0) next "
           "token: token_type::eof(\"\", 0)"
        << QStringList() << no_curves;
    QTest::newRow("last curve value without comma")
        << "ToneCurve = { 0, 0 }" << unexpected("comma", "rbrace")
        << "prev token: token_type::num(\"0\", 0) token: token_type::rbrace(\"}\", 0) next token: "
           "token_type::eof(\"\", 0)"
        << QStringList() << no_curves;
    QTest::newRow("curve not closed stores its points first")
        << "ToneCurve = { 0, 0," << unexpected("rbrace", "eof")
        << "prev token: token_type::comma(\",\", 0) token: token_type::eof(\"\", 0) next token:"
        << QStringList() << "0,0|||";
    QTest::newRow("table inside a curve")
        << "ToneCurvePV2012Red = { 1, 1, }, ToneCurvePV2012Red = { {"
        << unexpected("rbrace", "lbrace")
        << "prev token: token_type::lbrace(\"{\", 0) token: token_type::lbrace(\"{\", 0) next "
           "token: token_type::eof(\"\", 0)"
        << QStringList() << no_curves;
    QTest::newRow("channel curve unknown to the braced form")
        << "ToneCurveBlue = {\n 0,\n 0,\n},"
        << "Unsupported curve type: ToneCurveBlue"
        << "" << QStringList() << no_curves;
    QTest::newRow("unknown curve fails on its values first")
        << "ToneCurveRed = { 0, }" << unexpected("num", "rbrace")
        << "prev token: token_type::comma(\",\", 0) token: token_type::rbrace(\"}\", 0) next "
           "token: token_type::eof(\"\", 0)"
        << QStringList() << no_curves;
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
    QCOMPARE(log.messages(QtCriticalMsg),
             critical.isEmpty() ? QStringList() : QStringList{critical});
    QCOMPARE(log.lines().size(), critical.isEmpty() ? 0 : 1);
    QCOMPARE(::entries(preset), entries);
    QCOMPARE(::curves(preset), curves);
}

void tst_template_reader::line_form_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("curves");

    const QString no_curves = QStringLiteral("|||");
    QTest::newRow("empty text is one empty line") << "" << QStringList{"="} << no_curves;
    QTest::newRow("no line feed at the end")
        << "  s.value.settings.A = 1" << QStringList{"A=1"} << no_curves;
    QTest::newRow("carriage returns trimmed")
        << "  s.value.settings.A = 1\r\n  s.title = \"T\"\r\n"
        << QStringList{"=", "A=1", "title=\"T\""} << no_curves;
    QTest::newRow("prefix removed only at the start")
        << "  s.value.settings.s.value.X = 1" << QStringList{"s.value.X=1"} << no_curves;
    QTest::newRow("value prefix needs its dot")
        << "  s.value = 2" << QStringList{"value=2"} << no_curves;
    QTest::newRow("index without brackets is no index")
        << "ToneCurve1 = 4\nToneCurve(3) = 5" << QStringList() << "0,4 0,5|||";
    QTest::newRow("first index in the key counts")
        << "ToneCurve[2][1] = 5" << QStringList() << "0,5|||";
}

void tst_template_reader::line_form()
{
    QFETCH(QString, text);
    QFETCH(QStringList, entries);
    QFETCH(QString, curves);

    preset_settings preset;
    const quiet_log quiet;
    parse_line_template(preset, text);
    QCOMPARE(::entries(preset), entries);
    QCOMPARE(::curves(preset), curves);
}

void tst_template_reader::line_form_logs_each_line()
{
    preset_settings preset;
    test_support::log_capture log;
    parse_line_template(
        preset, QStringLiteral("s.value.settings = {}\n  s.value.settings.ToneCurve[1] = 7\n"));

    QCOMPARE(log.lines(), (QStringList{"Debug: 's.value.settings' -> '{}'",
                                       "Debug: 'ToneCurve[1]' -> '7'", "Debug: '' -> ''"}));
}

void tst_template_reader::line_form_fixtures_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("curves");

    QTest::newRow("preset") << "line_form_preset.lrtemplate"
                            << "\"Line Warm\""
                            << QStringList{"=",
                                           "ConvertToGrayscale=false",
                                           "Exposure2012=0.35",
                                           "Shadows2012=12",
                                           "Temperature=5600",
                                           "Tint=-4",
                                           "ToneCurveName2012=\"Custom\"",
                                           "internalName=\"Line Warm\"",
                                           "s.id=\"5D1E0B7C-2F4A-4E61-9C3B-7A0E2D9F6B41\"",
                                           "title=\"Line Warm\"",
                                           "type=\"Develop\"",
                                           "uuid=\"0C9A3E55-61B2-4F0D-8E7A-2B4C6D8E0F12\"",
                                           "version=0"}
                            << "0,12 128,140 255,250|0,5 255,255|0,0 255,248|0,9 255,255";
    // Master points come from both master keys; the point under construction is
    // shared by all curves, so a curve may start with another curve's x.
    QTest::newRow("rules")
        << "line_form_rules.lrtemplate"
        << "\"Rules\""
        << QStringList{"=",
                       "-- Line form: every rule of the line reader, one line each=",
                       "Empty=",
                       "Equation=a",
                       "NoEquals=",
                       "Spaced=7",
                       "Tabbed=2",
                       "Text=\"with",
                       "ToneCurveName=\"Medium Contrast\"",
                       "ToneCurveName2012=\"Custom\"",
                       "Unindented=1",
                       "s={ braces",
                       "s.value.settings.ColumnZero=4",
                       "title=\"Rules\"",
                       "value.Doubled=3"}
        << "0,10 128,140 128,150|0,6 1,2|3,-4|0,0 0,9 0,10";
}

void tst_template_reader::line_form_fixtures()
{
    QFETCH(QString, file);
    QFETCH(QString, name);
    QFETCH(QStringList, entries);
    QFETCH(QString, curves);

    preset_settings preset;
    const quiet_log quiet;
    ::load_template(preset, data_dir + file);
    QCOMPARE(preset.name, name);
    QCOMPARE(::entries(preset), entries);
    QCOMPARE(::curves(preset), curves);
}

void tst_template_reader::load_template_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("entries");

    QFile braced(data_dir + QStringLiteral("braced_preset.lrtemplate"));
    QVERIFY(braced.open(QIODevice::ReadOnly));
    QTest::newRow("braced preset") << braced.readAll() << "Braced Cool"
                                   << QStringList{"ConvertToGrayscale=false",
                                                  "Exposure2012=-0.25",
                                                  "Shadows2012=20",
                                                  "ToneCurveName2012=Custom",
                                                  "WhiteBalance=Custom",
                                                  "id=7E2C4A19-0B3D-4F5E-8A6C-1D2E3F4A5B6C",
                                                  "internalName=Braced Cool",
                                                  "title=Braced Cool",
                                                  "type=Develop",
                                                  "uuid=9A8B7C6D-5E4F-4A3B-2C1D-0E9F8A7B6C5D",
                                                  "version=0"};
    QTest::newRow("no title, no name") << QByteArray("s = { a = 1, }") << "" << QStringList{"a=1"};
    QTest::newRow("title in a nested table")
        << QByteArray("s = { t = { title = \"Deep\", }, }") << "Deep" << QStringList{"title=Deep"};
    QTest::newRow("utf-8 text") << QByteArray("title = \"M\xc3\xa0u h\xc3\xa0n b\xe1\xba\xa1"
                                              "c\"")
                                << QString::fromUtf8("M\xc3\xa0u h\xc3\xa0n b\xe1\xba\xa1"
                                                     "c")
                                << QStringList{
                                       QString::fromUtf8("title=M\xc3\xa0u h\xc3\xa0n b\xe1\xba\xa1"
                                                         "c")};
    // The marker decides, wherever it stands: here inside a string of a braced text.
    QTest::newRow("marker anywhere selects lines")
        << QByteArray("s = {\n\tnote = \"s.value.settings = {}\",\n}\n") << ""
        << QStringList{"=", "note=\"s.value.settings", "s={", "}="};
    QTest::newRow("marker needs its exact blanks")
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
    const quiet_log quiet;
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
    QCOMPARE(log.messages(QtCriticalMsg).size(), 1);
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
        << open + QStringLiteral("inner = 1,\n")
        << "Unexpected token type found. Expected token_type::name, got token_type::eof"
        << QStringList{"inner=1"};
    QTest::newRow("one brace too many at the end")
        << open + close + QStringLiteral("}")
        << "Unexpected token type found. Expected token_type::eof, got token_type::rbrace"
        << QStringList();
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
    const quiet_log quiet;
    QCOMPARE(block_failure(preset, text), message);
    QCOMPARE(::entries(preset), entries);
}

void tst_template_reader::large_braced_file()
{
    // Half of it the smallest entries there are, half of it curve points.
    QByteArray contents = "s = {\n";
    contents += QByteArray("a=1,").repeated(large_file_bytes / 8);
    contents += "\nToneCurvePV2012 = {\n";
    contents += QByteArray("0,9,").repeated(large_file_bytes / 8);
    contents += "},\ntitle = \"Large\",\n}\n";
    const QString path = test_support::write_file(dir_.path(), large_file_name, contents);
    contents.clear();

    preset_settings preset;
    ::load_template(preset, path);
    QCOMPARE(preset.name, QStringLiteral("Large"));
    QCOMPARE(entries(preset), (QStringList{"a=1", "title=Large"}));
    QCOMPARE(preset.tone_curve.size(), large_file_bytes / 8);
    QCOMPARE(preset.tone_curve.constLast(), QPoint(0, 9));
}

void tst_template_reader::large_line_file()
{
    QByteArray contents = "s.value.settings = {}\n";
    const QByteArray block = "  s.value.settings.Exposure2012 = 0.5\n"
                             "  s.value.settings.ToneCurvePV2012[1] = 64\n"
                             "  s.value.settings.ToneCurvePV2012[2] = 80\n";
    const int blocks = large_file_bytes / block.size();
    contents += block.repeated(blocks);
    contents += "  s.title = \"Large\"";
    const QString path = test_support::write_file(dir_.path(), large_file_name, contents);
    contents.clear();

    preset_settings preset;
    const quiet_log quiet;
    ::load_template(preset, path);
    QCOMPARE(preset.name, QStringLiteral("\"Large\""));
    QCOMPARE(entries(preset), (QStringList{"Exposure2012=0.5", "title=\"Large\""}));
    QCOMPARE(preset.tone_curve.size(), blocks);
    QCOMPARE(preset.tone_curve.constLast(), QPoint(64, 80));
}

QTEST_GUILESS_MAIN(tst_template_reader)
#include "tst_template_reader.moc"
