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

// What the reader throws and logs where it meets an unexpected token: the message
// with the expected type and that of the current token, and the critical line with
// the previous, the current and the next token, here each without the "token_type::"
// of its printed name, and empty for a missing neighbour.
QStringList unexpected(const char* expected, const QString& previous, const QString& current,
                       const QString& next)
{
    const auto token = [](const QString& text) {
        return text.isEmpty() ? text : QStringLiteral(" token_type::") + text;
    };
    return {QStringLiteral("Unexpected token type found. Expected token_type::%1, got "
                           "token_type::%2")
                .arg(QLatin1String(expected), current.section(QLatin1Char('('), 0, 0)),
            "Critical: prev token:" + token(previous) + " token:" + token(current) +
                " next token:" + token(next)};
}

} // namespace

class tst_template_reader : public QObject
{
    Q_OBJECT

private slots:
    void reads_file_data();
    void reads_file();
    void fixtures_data();
    void fixtures();
    void large_files_data();
    void large_files();

private:
    QTemporaryDir dir_;
};

void tst_template_reader::reads_file_data()
{
    // Written to a file as UTF-8; a null text stands for a file that isn't there.
    QTest::addColumn<QByteArray>("text");
    // What the reader stored, before it gave up where it failed.
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("curves");
    // The record's name was "earlier name" before.
    QTest::addColumn<QString>("name");
    // What the reader throws, then what it logs.
    QTest::addColumn<QStringList>("messages");

    const QString none = QStringLiteral("|||");
    const QString earlier = QStringLiteral("earlier name");
    const QStringList quiet;
    // clang-format off
    QTest::newRow("empty text") << QByteArray("") << QStringList() << none << "" << quiet;
    QTest::newRow("empty table") << QByteArray("s = {\n}\n") << QStringList() << none << "" << quiet;
    QTest::newRow("entries without a table, trailing comma") << QByteArray("a = 1, b = 2,") << QStringList{"a=1", "b=2"} << none << "" << quiet;
    QTest::newRow("values as written, curve names too")
        << QByteArray("s = { n = -3, d = 0.5, t = true, q = \"a, b\", x = \"a\\\\b\", ToneCurveName = \"abc\", c = , }")
        << QStringList{"ToneCurveName=abc", "c=,", "d=0.5", "n=-3", "q=a, b", "t=true", "x=a\\\\b"} << none << "" << quiet;
    QTest::newRow("utf-8 title is the name") << QByteArray("title = \"M\xc3\xa0u\"")
        << QStringList{QString::fromUtf8("title=M\xc3\xa0u")} << none << QString::fromUtf8("M\xc3\xa0u") << quiet;
    QTest::newRow("touching braces are a word") << QByteArray("a = {}, b = {\n}") << QStringList{"a={}"} << none << "" << quiet;
    QTest::newRow("nested tables flatten") << QByteArray("s = {\n title = \"T\",\n value = {\n settings = {\n S = 12,\n },\n },\n}\n")
        << QStringList{"S=12", "title=T"} << none << "T" << quiet;
    QTest::newRow("later keys replace earlier, nested or not") << QByteArray("a = 1, t = { a = 2, b = 2, }, b = 3")
        << QStringList{"a=2", "b=3"} << none << "" << quiet;
    QTest::newRow("two points") << QByteArray("ToneCurvePV2012 = {\n 0,\n 0,\n 255,\n 255,\n},") << QStringList() << "0,0 255,255|||" << "" << quiet;
    QTest::newRow("master keys share a member") << QByteArray("ToneCurvePV2012 = { 0, 0, }, ToneCurve = { 1, 2, }")
        << QStringList() << "1,2|||" << "" << quiet;
    QTest::newRow("channels, each replaced whole") << QByteArray("ToneCurvePV2012Red = { 1, 1, }, ToneCurvePV2012Red = {\n}, "
                                                                 "ToneCurvePV2012Green = { 3, 4, }, ToneCurvePV2012Blue = { 5, 6, }")
        << QStringList() << "||3,4|5,6" << "" << quiet;
    QTest::newRow("array of tables dropped") << QByteArray("s = {\n g = {\n {\n a = 1,\n m = {\n {\n c = 2,\n },\n },\n },\n },\n after = 3,\n}")
        << QStringList{"after=3"} << none << "" << quiet;

    QTest::newRow("entry behind the table") << QByteArray("s = {\n a = 1\n}\nt = 2") << QStringList{"a=1"} << none << earlier
        << unexpected("comma", "rbrace(\"}\", 0)", "name(\"t\", 0)", "equals(\"=\", 0)");
    QTest::newRow("table not closed") << QByteArray("s = {\n title = \"T\",\n a = 1\n") << QStringList{"a=1", "title=T"} << none << earlier
        << unexpected("name", "num(\"1\", 1)", "eof(\"\", 0)", "");
    QTest::newRow("surplus closing brace") << QByteArray("s = {\n}\n}") << QStringList() << none << earlier
        << unexpected("eof", "rbrace(\"}\", 0)", "rbrace(\"}\", 0)", "eof(\"\", 0)");
    QTest::newRow("text ends at a value") << QByteArray("a =") << QStringList{"a="} << none << earlier
        << unexpected("comma", "equals(\"=\", 0)", "eof(\"\", 0)", "");
    QTest::newRow("first token no key") << QByteArray("= 1") << QStringList() << none << earlier
        << unexpected("name", "", "equals(\"=\", 0)", "num(\"1\", 1)");
    QTest::newRow("key without equals") << QByteArray("a 1") << QStringList() << none << earlier
        << unexpected("equals", "name(\"a\", 0)", "num(\"1\", 1)", "eof(\"\", 0)");
    QTest::newRow("plain array") << QByteArray("items = {\n \"a\",\n}") << QStringList() << none << earlier
        << unexpected("name", "lbrace(\"{\", 0)", "str(\"a\", 0)", "comma(\",\", 0)");
    QTest::newRow("array of tables not closed") << QByteArray("a = {\n{\n b = 1,\n}") << QStringList() << none << earlier
        << unexpected("rbrace", "rbrace(\"}\", 0)", "eof(\"\", 0)", "");
    QTest::newRow("decimal curve value") << QByteArray("ToneCurvePV2012 = {\n 0,\n 0.5,\n},") << QStringList() << none << earlier
        << unexpected("num", "comma(\",\", 0)", "name(\"0.5\", 0)", "comma(\",\", 0)");
    // The points are stored before the closing brace is checked, here none in place of
    // "1,2"; and a table inside a curve is no array of tables.
    QTest::newRow("table inside a curve") << QByteArray("ToneCurve = { 1, 2, }, ToneCurve = { {") << QStringList() << none
        << earlier << unexpected("rbrace", "lbrace(\"{\", 0)", "lbrace(\"{\", 0)", "eof(\"\", 0)");
    QTest::newRow("channel curve of the line form") << QByteArray("ToneCurveBlue = {\n 0,\n 0,\n},") << QStringList() << none
        << earlier << QStringList{"Unsupported curve type: ToneCurveBlue"};
    // The values are read before the key is looked at.
    QTest::newRow("unknown curve, last value without comma") << QByteArray("ToneCurveRed = { 0, 0 }") << QStringList() << none
        << earlier << unexpected("comma", "num(\"0\", 0)", "rbrace(\"}\", 0)", "eof(\"\", 0)");

    // Depth costs no machine stack.
    const int depth = 1000000;
    const QByteArray open = QByteArray("t = {\n").repeated(depth);
    const QByteArray close = QByteArray("},\n").repeated(depth);
    QTest::newRow("a million nested tables") << open + "inner = 1,\n" + close + "outer = 2"
        << QStringList{"inner=1", "outer=2"} << none << "" << quiet;
    QTest::newRow("a million nested tables, one brace too many") << open + close + "}" << QStringList() << none << earlier
        << unexpected("eof", "comma(\",\", 0)", "rbrace(\"}\", 0)", "eof(\"\", 0)");
    QTest::newRow("a million nested arrays of tables") << "a = {\n{\n" + QByteArray("{\n").repeated(depth) +
        QByteArray("}\n").repeated(depth + 2) + ", b = 2" << QStringList{"b=2"} << none << "" << quiet;

    QTest::newRow("missing file leaves the record alone") << QByteArray() << QStringList() << none << earlier << quiet;
    QTest::newRow("line form, each line logged")
        << QByteArray("s.value.settings = {}\n  s.value.settings.A = 1\r\n  s.title = \"T\"\r")
        << QStringList{"A=1", "title=\"T\""} << none << "\"T\""
        << QStringList{"Debug: 's.value.settings' -> '{}'", "Debug: 'A' -> '1'", "Debug: 'title' -> '\"T\"'"};
    // The marker decides wherever it stands, here inside a string of a braced text.
    QTest::newRow("marker anywhere selects lines") << QByteArray("s = {\n note = \"s.value.settings = {}\",\n}")
        << QStringList{"note=\"s.value.settings", "s={", "}="} << none << ""
        << QStringList{"Debug: 's' -> '{'", "Debug: 'note' -> '\"s.value.settings'", "Debug: '}' -> ''"};
    QTest::newRow("marker with other blanks") << QByteArray("s = { note = \"s.value.settings ={}\", }")
        << QStringList{"note=s.value.settings ={}"} << none << "" << quiet;
    // clang-format on
}

void tst_template_reader::reads_file()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, entries);
    QFETCH(QString, curves);
    QFETCH(QString, name);
    QFETCH(QStringList, messages);

    const QString path =
        text.isNull() ? dir_.path() + QStringLiteral("/absent.lrtemplate")
                      : test_support::write_file(dir_.path(), QStringLiteral("t.lrtemplate"), text);
    preset_settings preset;
    preset.name = QStringLiteral("earlier name");
    test_support::log_capture log;
    QStringList seen;
    try {
        load_template(preset, path);
    } catch (const std::runtime_error& error) {
        seen << QString::fromUtf8(error.what());
    }
    QCOMPARE(seen + log.lines(), messages);
    QCOMPARE(::entries(preset), entries);
    QCOMPARE(::curves(preset), curves);
    QCOMPARE(preset.name, name);
}

void tst_template_reader::fixtures_data()
{
    QTest::addColumn<QString>("file");

    QTest::newRow("braced form") << "braced_preset";
    QTest::newRow("every rule of the line form") << "line_form_rules";
}

void tst_template_reader::fixtures()
{
    QFETCH(QString, file);

    QFile expected(data_dir + file + QStringLiteral(".expected"));
    QVERIFY(expected.open(QIODevice::ReadOnly));
    preset_settings preset;
    test_support::log_capture log;
    load_template(preset, data_dir + file + QStringLiteral(".lrtemplate"));
    QCOMPARE(record_text::describe(preset), QString::fromUtf8(expected.readAll()));
}

void tst_template_reader::large_files_data()
{
    QTest::addColumn<QByteArray>("text");
    // Name, entries, number of master curve points and the last of them.
    QTest::addColumn<QString>("summary");

    // Half of it the smallest entries there are, half of it curve points.
    QTest::newRow("braced form") << "s = {\n" + QByteArray("a=1,").repeated(large_file_bytes / 8) +
                                        "\nToneCurvePV2012 = {\n" +
                                        QByteArray("0,9,").repeated(large_file_bytes / 8) +
                                        "},\ntitle = \"Large\",\n}\n"
                                 << "Large | a=1 title=Large | 6553600 | 0,9";
    const QByteArray block = "  s.value.settings.Exposure2012 = 0.5\n"
                             "  s.value.settings.ToneCurvePV2012[1] = 64\n"
                             "  s.value.settings.ToneCurvePV2012[2] = 80\n";
    QTest::newRow("line form") << "s.value.settings = {}\n" +
                                      block.repeated(large_file_bytes / block.size()) +
                                      "  s.title = \"Large\""
                               << "\"Large\" | Exposure2012=0.5 title=\"Large\" | 422812 | 64,80";
}

void tst_template_reader::large_files()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, summary);

    const QString path =
        test_support::write_file(dir_.path(), QStringLiteral("large.lrtemplate"), text);
    preset_settings preset;
    // The line form logs every line.
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, false);
    load_template(preset, path);
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, true);
    QCOMPARE(QStringList({preset.name, entries(preset).join(QLatin1Char(' ')),
                          QString::number(preset.tone_curve.size()),
                          test_support::levels_of({preset.tone_curve.constLast()})})
                 .join(QStringLiteral(" | ")),
             summary);
}

QTEST_GUILESS_MAIN(tst_template_reader)
#include "tst_template_reader.moc"
