// What the converter tells about the settings a style doesn't carry: the JSON of
// --report and the line of -v, from a real process on real files.

#include "support/test_support.h"

#include <QtTest>

namespace {

QByteArray develop_template(const QByteArray& settings)
{
    return "s = {\n\ttitle = \"T\",\n\ttype = \"Develop\",\n\tuuid = \"0F1E\",\n\tversion = 0,\n"
           "\tvalue = {\n\t\tsettings = {\n" +
           settings + "\n\t\t},\n\t\tuuid = \"0F1E\",\n\t},\n}\n";
}

// A develop preset with the bookkeeping keys a saved preset carries, `attributes`
// on its Description and `children` in it; a photo's EXIF namespace is declared too.
QByteArray xmp_preset(const QByteArray& attributes, const QByteArray& children = QByteArray())
{
    return test_support::xmp_preset("N",
                                    "xmlns:exif=\"http://ns.adobe.com/exif/1.0/\" "
                                    "crs:Version=\"15.0\" crs:ProcessVersion=\"11.0\" "
                                    "crs:HasSettings=\"True\" crs:UUID=\"0F1E\" " +
                                        attributes,
                                    children);
}

using run_result = test_support::process_result;

// The -v line's "heading: a, b; heading: c" as the report's "lost" object.
QJsonObject lost_object(const QString& line)
{
    QJsonObject lost;
    const QStringList groups = line.split(QStringLiteral("; "), Qt::SkipEmptyParts);
    for (const QString& group : groups) {
        const int colon = group.indexOf(QStringLiteral(": "));
        lost.insert(group.left(colon),
                    QJsonArray::fromStringList(group.mid(colon + 2).split(QStringLiteral(", "))));
    }
    return lost;
}

run_result run(const QTemporaryDir& dir, const QStringList& arguments)
{
    return test_support::run_program(QStringLiteral(LOOKWRIGHT_CONVERTER), dir.path(), arguments);
}

// The report the run wrote, parsed; empty when it is missing or no JSON.
QJsonObject read_report(const QTemporaryDir& dir, QByteArray* bytes = nullptr)
{
    QFile file(dir.filePath(QStringLiteral("report.json")));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray text = file.readAll();
    if (bytes != nullptr) {
        *bytes = text;
    }
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    return error.error == QJsonParseError::NoError ? document.object() : QJsonObject();
}

} // namespace

class tst_loss_report : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void lost_settings_data();
    void lost_settings();
    void entry_per_outcome_data();
    void entry_per_outcome();
    void report_path_faults_data();
    void report_path_faults();

private:
    std::unique_ptr<QTemporaryDir> dir_;
};

void tst_loss_report::init()
{
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(dir_->isValid());
    for (const char* folder : {"in", "out", "config"}) {
        QDir(dir_->path()).mkpath(QLatin1String(folder));
    }
}

void tst_loss_report::lost_settings_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("contents");
    // As -v names them; empty when every setting reaches the style.
    QTest::addColumn<QString>("lost");

    // clang-format off
    QTest::newRow("local adjustments, lens keys and a profile") << "Mixed.lrtemplate"
        << develop_template("Exposure2012 = 0.5,\nLensProfileEnable = 1,\nLensProfileSetup = \"Auto\",\n"
                            "CameraProfile = \"Camera Standard\",\nEnableGradientBasedCorrections = true,\n"
                            "GradientBasedCorrections = {\n{ What = \"Correction\", LocalExposure2012 = 0.4, },\n},\n"
                            "ToneCurveName = \"Medium Contrast\",")
        << "local adjustments: GradientBasedCorrections; lens and geometry: LensProfileEnable, "
           "LensProfileSetup; profile and look: CameraProfile; other: ToneCurveName";
    QTest::newRow("every key reaches the style") << "Full.lrtemplate"
        << develop_template("Exposure2012 = 0.5,\nContrast2012 = 20,\nTemperature = 5000,\nTint = 3,\n"
                            "WhiteBalance = \"Custom\",\nProcessVersion = \"11.0\",\nSupportsAmount = true,\n"
                            "ToneCurveName2012 = \"Custom\",\nToneCurvePV2012 = { 0, 0, 128, 140, 255, 255 },")
        << "";
    QTest::newRow("values that set nothing") << "Zeros.lrtemplate"
        << develop_template("Exposure2012 = 0.5,\nLensProfileEnable = 0,\nLensProfileSetup = \"Auto\",\n"
                            "PerspectiveScale = 100,\nWhiteBalance = \"As Shot\",\nDefringePurpleAmount = 0,\n"
                            "DefringePurpleHueLo = 33,\nConvertToGrayscale = false,\nGrayMixerRed = -8,\n"
                            "ParametricShadowSplit = 20,\norientation = \"AB\",\nTexture = 0,")
        << "";
    QTest::newRow("dependent values once their slider acts") << "Acting.lrtemplate"
        << develop_template("Exposure2012 = 0.5,\nDefringePurpleAmount = 2,\nDefringePurpleHueLo = 33,\n"
                            "ParametricDarks = 10,\nParametricShadowSplit = 20,\nWhiteBalance = \"Auto\",")
        << "lens and geometry: DefringePurpleAmount, DefringePurpleHueLo; colour: WhiteBalance; "
           "other: ParametricShadowSplit";
    QTest::newRow("XMP: a look, masks, a photo's metadata") << "Look.xmp"
        << xmp_preset("exif:ExposureTime=\"1/60\" crs:AutoLateralCA=\"1\" crs:Texture=\"+12\"",
                      "   <crs:Look><rdf:Description crs:Name=\"Vivid\" crs:Amount=\"1\"/></crs:Look>\n"
                      "   <crs:MaskGroupBasedCorrections><rdf:Seq/></crs:MaskGroupBasedCorrections>\n"
                      "   <exif:Flash><rdf:Description exif:Fired=\"False\"/></exif:Flash>\n")
        << "local adjustments: MaskGroupBasedCorrections; lens and geometry: AutoLateralCA; "
           "profile and look: Look; detail: Texture";
    QTest::newRow("XMP: colour grading beside split toning") << "Grade.xmp"
        << xmp_preset("crs:SplitToningShadowHue=\"30\" crs:SplitToningShadowSaturation=\"10\" "
                      "crs:ColorGradeShadowHue=\"30\" crs:ColorGradeShadowSat=\"10\" "
                      "crs:ColorGradeMidtoneHue=\"200\" crs:ColorGradeMidtoneSat=\"15\" "
                      "crs:ColorGradeBlending=\"50\"")
        << "colour: ColorGradeMidtoneHue, ColorGradeMidtoneSat";
    QTest::newRow("old process: the new clarity is not read") << "Old.xmp"
        << xmp_preset("crs:Exposure=\"+0.20\" crs:Clarity=\"10\" crs:Clarity2012=\"25\"")
        << "other: Clarity2012";
    // clang-format on
}

void tst_loss_report::lost_settings()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, contents);
    QFETCH(QString, lost);

    test_support::write_file(dir_->filePath(QStringLiteral("in")), name, contents);
    const QString input = QStringLiteral("in/") + name;
    const run_result result =
        run(*dir_, {QStringLiteral("-v"), QStringLiteral("-o"), QStringLiteral("out"),
                    QStringLiteral("--report"), QStringLiteral("report.json"), input});
    QCOMPARE(result.exit_code, 0);

    const QJsonArray presets = read_report(*dir_).value(QStringLiteral("presets")).toArray();
    QCOMPARE(presets.size(), 1);
    QCOMPARE(presets[0].toObject().value(QStringLiteral("lost")).toObject(), lost_object(lost));

    const QString line =
        QStringLiteral("lookwright-convert: info: %1: %2\n")
            .arg(input, lost.isEmpty() ? QStringLiteral("Every setting is carried into the style")
                                       : QStringLiteral("Not carried into the style: ") + lost);
    QVERIFY2(result.err.contains(line), qPrintable(result.err));
}

void tst_loss_report::entry_per_outcome_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QStringList>("options");
    // The preset's entry, compact, "lost" left out.
    QTest::addColumn<QByteArray>("entry");

    const QByteArray warm = develop_template("Exposure2012 = 0.5,\nTemperature = 5000,");
    const QStringList none;
    // clang-format off
    QTest::newRow("converted, with a warning") << "Warm.lrtemplate" << warm << none
        << QByteArray(R"({"input":"in/Warm.lrtemplate","outcome":"converted","style":"out/Warm.costyle",)"
                      R"("warnings":["white balance modified by preset"]})");
    QTest::newRow("a quiet run keeps the core's warnings") << "Lua.lrtemplate"
        << develop_template("Exposure2012 = 0.5, 7,") << QStringList{"-q"}
        << QByteArray(R"j({"input":"in/Lua.lrtemplate","outcome":"converted","style":"out/Lua.costyle",)j"
                      R"j("warnings":["prev token: token_type::comma(\",\", 0) token: token_type::num(\"7\", 7) )j"
                      R"j(next token: token_type::comma(\",\", 0)","line 7: a value without a key passed over",)j"
                      R"j("read as Lua, which the window would refuse: Unexpected token type found. )j"
                      R"j(Expected token_type::name, got token_type::num"]})j");
    QTest::newRow("skipped on request") << "Warm.lrtemplate" << warm << QStringList{"--skip-white-balance"}
        << QByteArray(R"({"input":"in/Warm.lrtemplate","outcome":"skipped","reason":"skipped: white balance )"
                      R"(modified by preset","style":null,"warnings":["skipped: white balance modified by preset"]})");
    QTest::newRow("into an archive's folder") << "Warm.lrtemplate" << warm
        << QStringList{"-f", "stylepack_category", "-p", "out/Looks.costylepack"}
        << QByteArray(R"({"input":"in/Warm.lrtemplate","outcome":"converted",)"
                      R"("style":"out/Looks.costylepack:Looks/Warm.costyle",)"
                      R"("warnings":["white balance modified by preset"]})");
    QTest::newRow("failed") << "Print.lrtemplate"
        << QByteArray("s = {\n\ttitle = \"P\",\n\ttype = \"Print\",\n\tvalue = { },\n}\n") << none
        << QByteArray(R"({"input":"in/Print.lrtemplate","outcome":"failed","reason":"not a develop preset: )"
                      R"(a template of type \"Print\"","style":null,"warnings":[]})");
    // clang-format on
}

void tst_loss_report::entry_per_outcome()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, contents);
    QFETCH(QStringList, options);
    QFETCH(QByteArray, entry);

    test_support::write_file(dir_->filePath(QStringLiteral("in")), name, contents);
    const QStringList arguments =
        options + QStringList{QStringLiteral("--report"), QStringLiteral("report.json"),
                              QStringLiteral("in/") + name};
    // Separate styles go to "out".
    run(*dir_, options.contains(QStringLiteral("-f"))
                   ? arguments
                   : QStringList{QStringLiteral("-o"), QStringLiteral("out")} + arguments);

    QByteArray bytes;
    const QJsonObject report = read_report(*dir_, &bytes);
    // Written as Qt writes it, so every object's keys stand in sorted order.
    QCOMPARE(bytes, QJsonDocument(report).toJson(QJsonDocument::Indented));
    QJsonObject preset = report.value(QStringLiteral("presets")).toArray().at(0).toObject();
    preset.remove(QStringLiteral("lost"));
    QCOMPARE(QJsonDocument(preset).toJson(QJsonDocument::Compact), entry);
}

void tst_loss_report::report_path_faults_data()
{
    QTest::addColumn<QString>("report");
    QTest::addColumn<int>("exit_code");
    QTest::addColumn<QString>("message");

    QTest::newRow("a folder") << "out" << 1 << "error: out: the report path is a folder";
    QTest::newRow("in a missing folder")
        << "missing/report.json" << 1
        << "error: missing/report.json: the report's folder doesn't exist";
    QTest::newRow("empty") << "" << 2 << "lookwright-convert: The report file is empty.";
}

void tst_loss_report::report_path_faults()
{
    QFETCH(QString, report);
    QFETCH(int, exit_code);
    QFETCH(QString, message);

    test_support::write_file(dir_->filePath(QStringLiteral("in")), QStringLiteral("W.lrtemplate"),
                             develop_template("Exposure2012 = 0.5,"));
    const run_result result =
        run(*dir_, {QStringLiteral("-o"), QStringLiteral("out"), QStringLiteral("--report"), report,
                    QStringLiteral("in/W.lrtemplate")});
    QCOMPARE(result.exit_code, exit_code);
    QVERIFY2(result.err.contains(message), qPrintable(result.err));
    // The path is checked before anything is converted.
    QVERIFY(!QFile::exists(dir_->filePath(QStringLiteral("out/W.costyle"))));
}

QTEST_GUILESS_MAIN(tst_loss_report)
#include "tst_loss_report.moc"
