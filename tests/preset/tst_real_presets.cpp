#include "preset/template_reader.h"
#include "preset/xmp_reader.h"

#include "support/test_support.h"

#include <QtTest>

#include <exception>

// Reads the real presets of the shared folder (public presets kept outside the
// project) and checks what must hold for each: its name, some known settings, the
// number of entries, the length of its curves, and that the same preset saved in both
// formats comes out the same.

namespace {

const QString corpus = QStringLiteral(LOOKWRIGHT_SHARED_PRESETS);

struct preset_facts
{
    const char* file;
    const char* name;
    int entries;
    // Points of the master, red, green and blue curves.
    const char* curves;
    QStringList known_entries;
    // What the reader throws; empty where it reads the preset.
    const char* failure = "";
};

// Every preset of the folder. Names, entries and curves were checked against the
// files by other means than the readers.
const QVector<preset_facts>& all_facts()
{
    static const QVector<preset_facts> facts{
        {"lrtemplate/derryl__samplePreset.lrtemplate",
         "My Preset 70",
         120,
         "5/4/4/4",
         {"Temperature=4319", "Tint=-7", "Exposure2012=0.73"}},
        {"lrtemplate/morganp__Sharpen30-NR10-CL10-LensCorrect.lrtemplate",
         "Sharpen30-NR10-CL10-LensCorrect",
         33,
         "0/0/0/0",
         {"ProcessVersion=6.7", "SharpenRadius=1", "type=Develop"}},
        {"lrtemplate/thejoltjoker__camStd_wbCloud_auto.lrtemplate",
         "camStandard_cloudy_auto",
         24,
         "0/0/0/0",
         {"Temperature=6500", "Tint=10", "WhiteBalance=Cloudy"}},
        {"lrtemplate/thejoltjoker__curve_deepContrast_01.lrtemplate",
         "curve_deepContrast_01",
         15,
         "4/2/2/2",
         {"ProcessVersion=6.7", "ToneCurveName2012=Custom", "type=Develop"}},
        {"lrtemplate/thejoltjoker__hdr_prepare.lrtemplate",
         "hdr_prepare",
         35,
         "0/0/0/0",
         {"ProcessVersion=6.7", "SharpenRadius=1", "type=Develop"}},
        {"lrtemplate/thejoltjoker__tanzania_africaVintage_01.lrtemplate",
         "tanzania_africaVintage_01",
         99,
         "4/2/2/4",
         {"Shadows2012=0", "ConvertToGrayscale=false", "WhiteBalance=As Shot"}},
        {"lrtemplate/thejoltjoker__usa_baker_01.lrtemplate",
         "usa_baker_01",
         93,
         "2/2/2/2",
         {"Shadows2012=59", "ConvertToGrayscale=false", "ProcessVersion=6.7"}},
        {"lrtemplate/thejoltjoker__usa_baker_02.lrtemplate",
         "usa_baker_02",
         77,
         "2/2/2/2",
         {"ConvertToGrayscale=false", "ProcessVersion=6.7", "SharpenRadius=1"}},
        {"lrtemplate/thejoltjoker__usa_joshuaTree_01.lrtemplate",
         "usa_joshuaTree_01",
         113,
         "4/3/4/4",
         {"Shadows2012=33", "ConvertToGrayscale=false", "WhiteBalance=As Shot"}},
        {"lrtemplate/vuthiduyen__1 mau nhat ban.lrtemplate",
         "1 mau nhat ban",
         105,
         "16/2/2/2",
         {"Exposure2012=0.05", "Shadows2012=32", "ConvertToGrayscale=false"}},
        {"lrtemplate/vuthiduyen__B_W Romance 5.lrtemplate",
         "B&W Romance 5",
         85,
         "4/2/2/2",
         {"Exposure2012=0.5", "Shadows2012=8", "ConvertToGrayscale=true"}},
        {"lrtemplate/vuthiduyen__China4 (TuanUtan).lrtemplate",
         "China4 (TuanUtan)",
         105,
         "7/6/6/5",
         {"Temperature=3400", "Tint=6", "Exposure2012=1.25"}},
        {"lrtemplate/vuthiduyen__Color Light - Hazy Pink Skylight.lrtemplate",
         "Color Light - Hazy Pink Skylight",
         9,
         "0/0/0/0",
         {"ProcessVersion=6.7", "type=Develop"}},
        {"lrtemplate/vuthiduyen__Contrastly - Desaturated Cinematic.lrtemplate",
         "Contrastly - Desaturated Cinematic",
         116,
         "3/2/2/2",
         {"Exposure2012=0", "Shadows2012=-50", "ConvertToGrayscale=false"}},
        {"lrtemplate/vuthiduyen__Light Painting.lrtemplate",
         "Light Painting",
         23,
         "0/0/0/0",
         {"type=LocalizedAdjustmentPreset", "moire=0.65517"}},
        {"lrtemplate/vuthiduyen__Matte - Comfort.lrtemplate",
         "Matte - Comfort",
         15,
         "3/2/2/2",
         {"ProcessVersion=6.7", "ToneCurveName2012=Custom", "type=Develop"}},
        {"lrtemplate/vuthiduyen__Màu hàn bạc.lrtemplate",
         "Màu hàn bạc",
         115,
         "2/3/2/2",
         {"Temperature=8719", "Tint=8", "Exposure2012=0"}},
        {"lrtemplate/vuthiduyen__Paper aircraft.lrtemplate",
         "Paper aircraft",
         115,
         "2/2/2/2",
         {"Temperature=5900", "Tint=10", "Exposure2012=0.34"}},
        {"lrtemplate/vuthiduyen__Presetpro.com - Movie Star.lrtemplate",
         "Presetpro.com - Movie Star",
         115,
         "5/2/2/2",
         {"Exposure2012=0", "Shadows2012=-16", "ConvertToGrayscale=false"}},
        {"lrtemplate/vuthiduyen__trannghia.lrtemplate",
         "trannghia",
         91,
         "4/2/2/2",
         {"Exposure2012=0.71", "Shadows2012=45", "ConvertToGrayscale=false"}},
        {"lrtemplate/xsynaptic__Dark Vignette 0.lrtemplate",
         "Dark Vignette 0",
         13,
         "0/0/0/0",
         {"type=Develop", "PostCropVignetteAmount=-16"}},
        {"lrtemplate/xsynaptic__Lens Correction Plus.lrtemplate",
         "Lens Correction Plus",
         41,
         "0/0/0/0",
         {"ProcessVersion=6.7", "SharpenRadius=1", "type=Develop"}},
        {"lrtemplate/xsynaptic__Noise Reduction 2.lrtemplate",
         "Noise Reduction 2",
         17,
         "0/0/0/0",
         {"ProcessVersion=6.7", "SharpenRadius=1", "type=Develop"}},
        {"lrtemplate/xsynaptic__Ossington 2.lrtemplate",
         "Ossington 2",
         74,
         "16/2/2/2",
         {"ConvertToGrayscale=false", "ProcessVersion=6.7", "SharpenRadius=1"}},
        {"lrtemplate/xsynaptic__Synaptic LRP- Antique 1.lrtemplate",
         "Synaptic LRP: Antique 1",
         88,
         "6/0/0/0",
         {"ConvertToGrayscale=false", "WhiteBalance=Auto", "ProcessVersion=5.7"}},
        {"lrtemplate/xsynaptic__Synaptic LRP- Cyanide 2.lrtemplate",
         "Synaptic LRP: Cyanide 2",
         84,
         "6/0/0/0",
         {"Temperature=3458", "Tint=-78", "Exposure=-0.51"}},
        {"lrtemplate/xsynaptic__Synaptic LRP- Harsh 1.lrtemplate",
         "Synaptic LRP: Harsh 1",
         98,
         "6/0/0/0",
         {"Temperature=4024", "Tint=3", "Exposure=0"}},
        {"xmp/muukii__Example.xmp",
         "Example",
         115,
         "4/7/7/6",
         {"Exposure2012=+0.25", "Shadows2012=+40", "WhiteBalance=As Shot"}},
        {"xmp/peva3__Brazilian Amazon.xmp",
         "Brazilian Amazon",
         45,
         "5/5/5/5",
         {"Temperature=+100", "Exposure2012=-0.15", "Shadows2012=+35"}},
        {"xmp/peva3__Cinestill 800T.xmp",
         "01 Cinestill 800T",
         44,
         "5/5/5/5",
         {"Exposure2012=+0.75", "Shadows2012=+50", "ProcessVersion=15.4"}},
        {"xmp/peva3__Faux Infrared.xmp",
         "12 Faux Infrared",
         27,
         "0/0/0/0",
         {"Shadows2012=-20", "ConvertToGrayscale=True", "PresetType=Normal"}},
        {"xmp/peva3__Ilford HP5 Plus.xmp",
         "Black White",
         38,
         "0/0/0/0",
         {"Shadows2012=+16.3", "ConvertToGrayscale=True", "PresetType=Normal"}},
        {"xmp/peva3__Kodak Portra 400.xmp",
         "02 Kodak Portra 400",
         26,
         "0/0/0/0",
         {"Exposure2012=+0.15", "Shadows2012=+20", "PresetType=Normal"}},
        {"xmp/peva3__Sebastiao Salgado.xmp",
         "Sebastiao Salgado",
         51,
         "2/2/2/2",
         {"Shadows2012=+30", "ConvertToGrayscale=True", "ProcessVersion=15.4"}},
        {"xmp/thejoltjoker__camStd_wbCloud_auto.xmp",
         "camStandard_cloudy_auto",
         30,
         "0/0/0/0",
         {"Temperature=6500", "Tint=+10", "ConvertToGrayscale=False"}},
        {"xmp/thejoltjoker__canon_denoiseAI_cameraNeutral.xmp",
         "canon_denoiseAI_cameraNeutral",
         34,
         "0/0/0/0",
         {"ProcessVersion=11.0", "PresetType=Normal", "Sharpness=0"}},
        {"xmp/thejoltjoker__canon_karusell_zombie_v001.xmp",
         "canon_karusell_zombie_v001",
         124,
         "5/4/4/4",
         {"Temperature=4802", "Tint=+17", "Exposure2012=+0.15"}},
        {"xmp/thejoltjoker__curve_deepContrast_01.xmp",
         "curve_deepContrast_01",
         25,
         "4/2/2/2",
         {"ProcessVersion=6.7", "ToneCurveName2012=Custom", "PresetType=Normal"}},
        {"xmp/thejoltjoker__honor10_rawCorr_02.xmp",
         "phone_honor10_rawCorr_02",
         37,
         "0/0/0/0",
         {"ProcessVersion=11.0", "PresetType=Normal"}},
        {"xmp/thejoltjoker__sony_hs2_car_v001.xmp",
         "sony_hs2_car_v001",
         91,
         "2/4/4/4",
         {"ProcessVersion=11.0", "SharpenRadius=+1.0", "ToneCurveName2012=Custom"}},
        {"xmp/thejoltjoker__tanzania_africaVintage_01.xmp",
         "tanzania_africaVintage_01",
         102,
         "4/2/2/4",
         {"Shadows2012=0", "ConvertToGrayscale=False", "WhiteBalance=As Shot"}},
        {"xmp/thejoltjoker__usa_baker_01.xmp",
         "usa_baker_01",
         104,
         "2/2/2/2",
         {"Shadows2012=+59", "ConvertToGrayscale=False", "ProcessVersion=6.7"}},
        {"xmp/thejoltjoker__usa_joshuaTree_01.xmp",
         "usa_joshuaTree_01",
         112,
         "4/3/4/4",
         {"Shadows2012=+33", "ConvertToGrayscale=False", "WhiteBalance=As Shot"}},
        {"xmp/vuthiduyen__3T3A3037.xmp",
         "",
         165,
         "4/5/5/6",
         {"Temperature=5050", "Tint=+7", "Exposure2012=0.00"}},
        {"xmp/vuthiduyen__LR10-Japanese-Style-22.xmp",
         "Tone 22",
         101,
         "2/5/5/5",
         {"Temperature=5365", "Tint=-29", "Exposure2012=+1.15"}},
        {"xmp/vuthiduyen__TRONG-SÁNG-TẾT-2022.xmp",
         "TRONG SÁNG TẾT 2022",
         109,
         "2/2/2/2",
         {"Temperature=5350", "Tint=+5", "Exposure2012=+0.50"}},
        {"xmp/vuthiduyen___-A-NL-trong-trẻo-mịn.xmp",
         "",
         154,
         "2/2/2/2",
         {"Temperature=6700", "Tint=+1", "Exposure2012=0.00"}},
        {"xmp/vuthiduyen__film-vsco-4.xmp",
         "U4",
         20,
         "0/0/0/0",
         {"ConvertToGrayscale=False", "ProcessVersion=10.0", "PresetType=Look"}},
        {"xmp/vuthiduyen__indoor FotosbyNghiaNgo.xmp",
         "",
         144,
         "6/2/2/2",
         {"Temperature=4800", "Tint=+20", "Exposure2012=-0.20"}},
        {"xmp/vuthiduyen__màu khử vàng.xmp",
         "",
         93,
         "2/2/2/2",
         {"Exposure2012=+0.30", "Shadows2012=+8", "ConvertToGrayscale=False"}},
        {"xmp/vuthiduyen__màu-trong-đà-lạt.xmp",
         "màu trong đà lạt ",
         107,
         "4/6/6/6",
         {"Temperature=5500", "Tint=+7", "Exposure2012=-0.27"}},
    };
    return facts;
}

struct read_result
{
    preset_settings preset;
    QString failure;
    QStringList problems;
};

// Reads a preset of the folder by its suffix; keeps the failure text and the warning
// and critical lines.
read_result read_preset(const QString& relative_path)
{
    read_result result;
    const QString path = corpus + QLatin1Char('/') + relative_path;
    test_support::log_capture log;
    try {
        if (path.endsWith(QLatin1String(".xmp"))) {
            load_xmp(result.preset, path);
        } else {
            load_template(result.preset, path);
        }
    } catch (const std::exception& error) {
        result.failure = QString::fromUtf8(error.what());
    }
    result.problems = log.messages(QtWarningMsg) + log.messages(QtCriticalMsg);
    return result;
}

QString curve_sizes(const preset_settings& preset)
{
    return QStringLiteral("%1/%2/%3/%4")
        .arg(preset.tone_curve.size())
        .arg(preset.tone_curve_red.size())
        .arg(preset.tone_curve_green.size())
        .arg(preset.tone_curve_blue.size());
}

// The formats spell the same value differently: `35` and `+35`, `1` and `+1.0`,
// `false` and `False`.
bool same_value(const QString& a, const QString& b)
{
    bool a_is_number = false;
    bool b_is_number = false;
    const float a_number = a.toFloat(&a_is_number);
    const float b_number = b.toFloat(&b_is_number);
    if (a_is_number && b_is_number) {
        return a_number == b_number;
    }
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

} // namespace

class tst_real_presets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void facts_cover_the_folder();
    void reads_every_preset_data();
    void reads_every_preset();
    void cross_format_pairs_data();
    void cross_format_pairs();
};

void tst_real_presets::initTestCase()
{
    if (!QFileInfo(corpus).isDir()) {
        QSKIP(qPrintable(
            QStringLiteral("No folder of real presets at %1: nothing to check.").arg(corpus)));
    }
}

void tst_real_presets::facts_cover_the_folder()
{
    QStringList files;
    for (const QString& kind : {QStringLiteral("lrtemplate"), QStringLiteral("xmp")}) {
        const QDir dir(corpus + QLatin1Char('/') + kind);
        for (const QString& name : dir.entryList(QDir::Files, QDir::Name)) {
            files << kind + QLatin1Char('/') + name;
        }
    }
    QStringList described;
    for (const preset_facts& facts : all_facts()) {
        described << QString::fromUtf8(facts.file);
    }
    QCOMPARE(described, files);
}

void tst_real_presets::reads_every_preset_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("entries");
    QTest::addColumn<QString>("curves");
    QTest::addColumn<QStringList>("known_entries");
    QTest::addColumn<QString>("failure");

    for (const preset_facts& facts : all_facts()) {
        QTest::newRow(facts.file) << QString::fromUtf8(facts.file) << QString::fromUtf8(facts.name)
                                  << facts.entries << QString::fromUtf8(facts.curves)
                                  << facts.known_entries << QString::fromUtf8(facts.failure);
    }
}

void tst_real_presets::reads_every_preset()
{
    QFETCH(QString, file);
    QFETCH(QString, name);
    QFETCH(int, entries);
    QFETCH(QString, curves);
    QFETCH(QStringList, known_entries);
    QFETCH(QString, failure);

    const read_result result = read_preset(file);
    QCOMPARE(result.failure, failure);
    QCOMPARE(result.problems, QStringList());
    QCOMPARE(result.preset.name, name);
    QCOMPARE(result.preset.settings.size(), entries);
    QCOMPARE(curve_sizes(result.preset), curves);
    for (const QString& entry : known_entries) {
        const QString key = entry.section(QLatin1Char('='), 0, 0);
        QCOMPARE(key + QLatin1Char('=') +
                     value_or(result.preset.settings, key, QStringLiteral("<absent>")),
                 entry);
    }
    // Keys are bare local names: no table path, no namespace prefix.
    for (const QString& key : result.preset.settings.keys()) {
        QVERIFY2(!key.contains(QLatin1Char('.')) && !key.contains(QLatin1Char(':')),
                 qPrintable(key));
    }
}

void tst_real_presets::cross_format_pairs_data()
{
    QTest::addColumn<QString>("preset");
    // Keys that both files hold; the two programs that wrote them differ in the rest.
    QTest::addColumn<int>("shared_keys");
    QTest::addColumn<QStringList>("develop_keys");

    QTest::newRow("usa_baker_01") << "usa_baker_01" << 75
                                  << QStringList{"Contrast2012",       "Shadows2012",
                                                 "Vibrance",           "SharpenRadius",
                                                 "ConvertToGrayscale", "ToneCurveName2012"};
    QTest::newRow("usa_joshuaTree_01") << "usa_joshuaTree_01" << 83
                                       << QStringList{"Blacks2012", "Clarity2012", "WhiteBalance",
                                                      "PerspectiveRotate", "ToneCurveName2012"};
    QTest::newRow("tanzania_africaVintage_01")
        << "tanzania_africaVintage_01" << 74
        << QStringList{"Blacks2012", "Contrast2012", "SplitToningShadowHue", "WhiteBalance"};
    QTest::newRow("curve_deepContrast_01")
        << "curve_deepContrast_01" << 9
        << QStringList{"ParametricShadows", "ProcessVersion", "ToneCurveName2012"};
    QTest::newRow("camStd_wbCloud_auto")
        << "camStd_wbCloud_auto" << 13
        << QStringList{"AutoTone", "Temperature", "Tint", "WhiteBalance", "CameraProfile"};
}

void tst_real_presets::cross_format_pairs()
{
    QFETCH(QString, preset);
    QFETCH(int, shared_keys);
    QFETCH(QStringList, develop_keys);

    const read_result braced =
        read_preset(QStringLiteral("lrtemplate/thejoltjoker__%1.lrtemplate").arg(preset));
    const read_result xmp = read_preset(QStringLiteral("xmp/thejoltjoker__%1.xmp").arg(preset));
    QCOMPARE(braced.failure, QString());
    QCOMPARE(xmp.failure, QString());
    QCOMPARE(xmp.preset.name, braced.preset.name);
    QCOMPARE(xmp.preset.tone_curve, braced.preset.tone_curve);
    QCOMPARE(xmp.preset.tone_curve_red, braced.preset.tone_curve_red);
    QCOMPARE(xmp.preset.tone_curve_green, braced.preset.tone_curve_green);
    QCOMPARE(xmp.preset.tone_curve_blue, braced.preset.tone_curve_blue);

    int shared = 0;
    for (auto it = braced.preset.settings.constBegin(); it != braced.preset.settings.constEnd();
         ++it) {
        if (!xmp.preset.settings.contains(it.key())) {
            continue;
        }
        ++shared;
        const QString xmp_value = xmp.preset.settings.value(it.key());
        QVERIFY2(same_value(it.value(), xmp_value),
                 qPrintable(it.key() + QLatin1String(": ") + it.value() + QLatin1String(" / ") +
                            xmp_value));
    }
    QCOMPARE(shared, shared_keys);
    for (const QString& key : develop_keys) {
        QVERIFY2(braced.preset.settings.contains(key) && xmp.preset.settings.contains(key),
                 qPrintable(key));
    }
}

QTEST_GUILESS_MAIN(tst_real_presets)
#include "tst_real_presets.moc"
