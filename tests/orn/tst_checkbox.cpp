#include "orn/checkbox.h"

#include <QtTest>

using orn::pixel_argb;

class tst_checkbox : public QObject
{
    Q_OBJECT

private slots:
    void set_look_chooses_indicator_data();
    void set_look_chooses_indicator();
};

void tst_checkbox::set_look_chooses_indicator_data()
{
    QTest::addColumn<QRgb>("indicator");
    QTest::addColumn<QString>("checked_image");
    QTest::addColumn<QString>("unchecked_image");
    // Image urls that must appear, each with its count, and texts that must not.
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QStringList>("absent");

    const QRgb transparent = qRgba(0, 0, 0, 0);
    QTest::newRow("both images, also for disabled")
        << transparent << ":/my/on.png"
        << ":/my/off.png" << QStringList{"url(:/my/on.png)=2", "url(:/my/off.png)=2"}
        << QStringList{":/gui/checkbox/", "background-color"};
    QTest::newRow("only the checked image")
        << transparent << ":/my/on.png"
        << ""
        << QStringList{"url(:/my/on.png)=2", "url(:/gui/checkbox/unchecked.png)=1",
                       "url(:/gui/checkbox/disabled_unchecked.png)=1"}
        << QStringList{"gui/checkbox/checked.png", "background-color"};
    QTest::newRow("only the unchecked image counts as none")
        << transparent << ""
        << ":/my/off.png"
        << QStringList{"url(:/gui/checkbox/checked.png)=1", "url(:/gui/checkbox/unchecked.png)=1",
                       "url(:/gui/checkbox/disabled_checked.png)=1",
                       "url(:/gui/checkbox/disabled_unchecked.png)=1"}
        << QStringList{":/my/off.png", "background-color"};
    QTest::newRow("no image, transparent black: the toolkit's four")
        << transparent << ""
        << ""
        << QStringList{"url(:/gui/checkbox/checked.png)=1", "url(:/gui/checkbox/unchecked.png)=1",
                       "url(:/gui/checkbox/disabled_checked.png)=1",
                       "url(:/gui/checkbox/disabled_unchecked.png)=1"}
        << QStringList{"background-color"};
    QTest::newRow("no image, transparent white is a colour")
        << qRgba(255, 255, 255, 0) << ""
        << "" << QStringList{"background-color:rgba(255,255,255,0);=2"} << QStringList{"image:url"};
    QTest::newRow("no image, a colour")
        << qRgba(90, 140, 200, 255) << ""
        << "" << QStringList{"background-color:rgba(90,140,200,255);=2"}
        << QStringList{"image:url"};
}

void tst_checkbox::set_look_chooses_indicator()
{
    QFETCH(QRgb, indicator);
    QFETCH(QString, checked_image);
    QFETCH(QString, unchecked_image);
    QFETCH(QStringList, present);
    QFETCH(QStringList, absent);

    orn::checkbox box(QStringLiteral("text"));
    box.set_look(7,
                 pixel_argb(quint8(qRed(indicator)), quint8(qGreen(indicator)),
                            quint8(qBlue(indicator)), quint8(qAlpha(indicator))),
                 checked_image, unchecked_image, pixel_argb(1, 2, 3));
    const QString sheet = box.styleSheet();

    // The indicator rules stand in front of the box's own, which carry spacing
    // and text colour; nothing is left unfilled.
    QVERIFY(sheet.startsWith(QLatin1String("QCheckBox::indicator")));
    const int base = sheet.indexOf(QLatin1String("QCheckBox{spacing:7px;color:rgb(1,2,3);}"));
    QVERIFY(base > 0);
    QVERIFY(!sheet.contains(QRegularExpression(QStringLiteral("%\\d"))));

    const QString indicator_rules = sheet.left(base);
    for (const QString& entry : present) {
        const QString text = entry.section(QLatin1Char('='), 0, -2);
        const int count = entry.section(QLatin1Char('='), -1).toInt();
        QVERIFY2(indicator_rules.count(text) == count,
                 qPrintable(text + QLatin1String(" in ") + sheet));
    }
    for (const QString& text : absent) {
        QVERIFY2(!indicator_rules.contains(text), qPrintable(text + QLatin1String(" in ") + sheet));
    }
}

QTEST_MAIN(tst_checkbox)
#include "tst_checkbox.moc"
