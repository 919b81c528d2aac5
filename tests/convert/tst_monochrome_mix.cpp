#include "convert/lut_set.h"
#include "convert/monochrome_mix.h"
#include "convert/number_text.h"
#include "support/test_support.h"

#include <QtTest>

using test_support::document_entries;

namespace {

// The Bw mixer entries of the converted preset, in document order.
QStringList mixer_entries(const preset_settings& preset)
{
    QString out;
    lut_set().convert_preset(preset, &out, QStringLiteral("raw"));
    return document_entries(out).filter(
        QRegularExpression(QStringLiteral("^Bw(Blue|Cyan|Enabled|Green|Magenta|Red|Yellow)=")));
}

} // namespace

class tst_monochrome_mix : public QObject
{
    Q_OBJECT

private slots:
    void sum_with_half_data();
    void sum_with_half();
    void mixer_keys();
    void colour_preset_has_no_mixer();
};

void tst_monochrome_mix::sum_with_half_data()
{
    QTest::addColumn<float>("a");
    QTest::addColumn<float>("b");
    QTest::addColumn<QString>("expected");
    QTest::newRow("both at the top") << 100.0f << 100.0f << "100.000000";
    QTest::newRow("opposite ends") << -100.0f << 100.0f << "-50.000000";
    QTest::newRow("a just inside the bottom") << -99.5f << 0.0f << "-99.500000";
    QTest::newRow("a just below the bottom") << -100.5f << 0.0f << "-100.000000";
    QTest::newRow("b cut before halving") << 0.0f << 300.0f << "50.000000";
    QTest::newRow("b just inside the bottom") << 0.0f << -99.0f << "-49.500000";
    QTest::newRow("sum above the top") << 99.0f << 4.0f << "100.000000";
    QTest::newRow("sum below the bottom") << -80.0f << -80.0f << "-100.000000";
}

void tst_monochrome_mix::sum_with_half()
{
    QFETCH(float, a);
    QFETCH(float, b);
    QFETCH(QString, expected);
    QCOMPARE(six_decimal(clamped_sum_with_half(a, b)), expected);
}

// Orange and purple go half to each neighbour; aqua and green pass uncut; a text
// that doesn't read is 0.
void tst_monochrome_mix::mixer_keys()
{
    const preset_settings preset = test_support::preset_with({{"ConvertToGrayscale", "TRUE"},
                                                              {"GrayMixerRed", "-100"},
                                                              {"GrayMixerOrange", "100"},
                                                              {"GrayMixerYellow", "30"},
                                                              {"GrayMixerGreen", "-120"},
                                                              {"GrayMixerAqua", "150"},
                                                              {"GrayMixerBlue", "abc"},
                                                              {"GrayMixerPurple", "60"},
                                                              {"GrayMixerMagenta", "90"}});
    const QStringList expected{"BwBlue=30.000000",    "BwCyan=150.000000",    "BwEnabled=1",
                               "BwGreen=-120.000000", "BwMagenta=100.000000", "BwRed=-50.000000",
                               "BwYellow=80.000000"};
    QCOMPARE(mixer_entries(preset), expected);
}

void tst_monochrome_mix::colour_preset_has_no_mixer()
{
    const preset_settings preset = test_support::preset_with(
        {{"ConvertToGrayscale", "1"}, {"GrayMixerRed", "50"}, {"GrayMixerAqua", "20"}});
    QCOMPARE(mixer_entries(preset), QStringList());
}

QTEST_GUILESS_MAIN(tst_monochrome_mix)
#include "tst_monochrome_mix.moc"
