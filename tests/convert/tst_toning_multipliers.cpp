#include "convert/number_text.h"
#include "convert/toning_multipliers.h"
#include "support/test_support.h"

#include <QtTest>

namespace {

QString triple_text(const colour_factors& triple)
{
    return six_decimal(triple[0]) + QLatin1Char(';') + six_decimal(triple[1]) + QLatin1Char(';') +
           six_decimal(triple[2]);
}

const rgb_levels red{255, 0, 0};
const rgb_levels white{255, 255, 255};
const rgb_levels cyan{0, 255, 255};

} // namespace

Q_DECLARE_METATYPE(rgb_levels)

class tst_toning_multipliers : public QObject
{
    Q_OBJECT

private slots:
    void balance_data();
    void balance();
    void multipliers_data();
    void multipliers();
};

void tst_toning_multipliers::balance_data()
{
    QTest::addColumn<float>("source");
    QTest::addColumn<QString>("expected");
    QTest::newRow("just below the bottom") << -100.5f << "-100.000000";
    QTest::newRow("at the bottom") << -100.0f << "-100.000000";
    QTest::newRow("end of the flat part") << -68.0f << "-100.000000";
    QTest::newRow("just above the flat part") << -67.0f << "-98.888885";
    QTest::newRow("neutral leans to the shadows") << 0.0f << "-25.000000";
    QTest::newRow("zero crossing") << 40.0f << "0.000000";
    QTest::newRow("between 40 and 77") << 58.5f << "12.500000";
    QTest::newRow("at the top") << 100.0f << "75.000000";
    QTest::newRow("just above the top") << 100.5f << "75.000000";
}

void tst_toning_multipliers::balance()
{
    QFETCH(float, source);
    QFETCH(QString, expected);
    const test_support::log_capture log;
    QCOMPARE(six_decimal(toning_balance(source)), expected);
    QCOMPARE(log.messages(QtWarningMsg), QStringList());
}

// The colours are the pure colours of the corrected hues; saturations and balance
// are the preset's values.
void tst_toning_multipliers::multipliers_data()
{
    QTest::addColumn<rgb_levels>("shadow_colour");
    QTest::addColumn<float>("shadow_saturation");
    QTest::addColumn<rgb_levels>("highlight_colour");
    QTest::addColumn<float>("highlight_saturation");
    QTest::addColumn<float>("balance");
    QTest::addColumn<QString>("shadow");
    QTest::addColumn<QString>("midtone");
    QTest::addColumn<QString>("highlight");
    const QString ones = QStringLiteral("1.000000;1.000000;1.000000");
    const QString red_pull = QStringLiteral("1.000000;0.700000;0.700000");

    QTest::newRow("red shadow, saturation 50")
        << red << 50.0f << white << 0.0f << 40.0f << red_pull << ones << ones;
    QTest::newRow("red shadow, saturation 100 as 50")
        << red << 100.0f << white << 0.0f << 40.0f << red_pull << ones << ones;
    QTest::newRow("red shadow, saturation 25")
        << red << 25.0f << white << 0.0f << 40.0f << "1.000000;0.850000;0.850000" << ones << ones;
    QTest::newRow("negative saturation is none")
        << red << -10.0f << white << 0.0f << 40.0f << ones << ones << ones;
    QTest::newRow("red highlight, a third on highlights")
        << white << 0.0f << red << 50.0f << 40.0f << ones << red_pull
        << "1.000000;0.900000;0.900000";
    QTest::newRow("neutral balance blends a quarter of shadow into midtone")
        << red << 50.0f << white << 0.0f << 0.0f << red_pull << "1.000000;0.925000;0.925000"
        << ones;
    QTest::newRow("balance -68 makes midtone the shadow")
        << red << 50.0f << white << 0.0f << -68.0f << red_pull << red_pull << ones;
    QTest::newRow("balance 100 blends three quarters of midtone into shadow")
        << red << 50.0f << white << 0.0f << 100.0f << "1.000000;0.925000;0.925000" << ones << ones;
    QTest::newRow("both sides, highlight outside the blend")
        << red << 50.0f << cyan << 50.0f << -68.0f << red_pull << red_pull
        << "0.900000;1.000000;1.000000";
}

void tst_toning_multipliers::multipliers()
{
    QFETCH(rgb_levels, shadow_colour);
    QFETCH(float, shadow_saturation);
    QFETCH(rgb_levels, highlight_colour);
    QFETCH(float, highlight_saturation);
    QFETCH(float, balance);
    const toning_multipliers result =
        make_toning_multipliers(shadow_colour, toning_strength(shadow_saturation), highlight_colour,
                                toning_strength(highlight_saturation), toning_balance(balance));
    QTEST(triple_text(result.shadow), "shadow");
    QTEST(triple_text(result.midtone), "midtone");
    QTEST(triple_text(result.highlight), "highlight");
}

QTEST_GUILESS_MAIN(tst_toning_multipliers)
#include "tst_toning_multipliers.moc"
