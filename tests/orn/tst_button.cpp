#include "orn/button.h"

#include <QtTest>

namespace {

void release(orn::button& b)
{
    QTest::mouseRelease(&b, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
}

QImage render(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32);
    image.fill(Qt::black);
    widget.render(&image);
    return image;
}

} // namespace

class tst_button : public QObject
{
    Q_OBJECT

private slots:
    void flash_changes_the_sheet_and_back();
    void two_releases_the_first_shot_clears();
    void flash_around_a_rectangle_paints_it();
    void release_emits_click_without_base();
};

void tst_button::flash_changes_the_sheet_and_back()
{
    orn::button b(QStringLiteral("text"));
    release(b);
    QVERIFY(b.is_highlighted());
    QVERIFY(b.styleSheet().contains(QLatin1String("border:2px solid rgb(222,222,222);")));
    QCOMPARE(b.styleSheet().count(QLatin1String("margin:")), 1);

    b.deaktivate_highlight();
    QVERIFY(!b.is_highlighted());
    QCOMPARE(b.styleSheet().count(QLatin1String("border:")), 1);
    QCOMPARE(b.styleSheet().count(QLatin1String("margin:")), 1);
    QVERIFY(b.styleSheet().contains(QLatin1String("border:none;")));
    QVERIFY(b.styleSheet().contains(QLatin1String("margin:2px 2px 2px 2px;")));
}

void tst_button::two_releases_the_first_shot_clears()
{
    orn::button b(QStringLiteral("text"));
    // A probe of the flash's own length, started between the two releases: Qt
    // fires timers of equal deadline in the order they were started, so the probe
    // runs after the first release's shot and before the second's. No sleeping.
    release(b);
    bool probed = false;
    bool highlighted_at_probe = true;
    QTimer::singleShot(200, &b, [&] {
        probed = true;
        highlighted_at_probe = b.is_highlighted();
    });
    release(b);
    QVERIFY(b.is_highlighted());
    QTRY_VERIFY_WITH_TIMEOUT(probed, 5000);
    QVERIFY2(!highlighted_at_probe, "the second release prolonged the flash");

    // The second shot still fires later and finds nothing left to clear.
    const QString after_first = b.styleSheet();
    bool second_probed = false;
    QTimer::singleShot(200, &b, [&] { second_probed = true; });
    QTRY_VERIFY_WITH_TIMEOUT(second_probed, 5000);
    QVERIFY(!b.is_highlighted());
    QCOMPARE(b.styleSheet(), after_first);
}

void tst_button::flash_around_a_rectangle_paints_it()
{
    QWidget window;
    orn::button b(&window, QRect(0, 0, 30, 20));
    b.setGeometry(0, 0, 60, 40);
    const QString sheet = b.styleSheet();
    QCOMPARE(b.highlight_rect(), QRect(QPoint(4, 4), QPoint(30, 20)));

    const QImage before = render(b);
    release(b);
    // With a rectangle the sheet stays as it is; the frame is painted instead.
    QCOMPARE(b.styleSheet(), sheet);
    const QImage during = render(b);
    const QPoint on_left_edge(4, 12);
    QCOMPARE(QColor(during.pixel(on_left_edge)), QColor(222, 222, 222));
    QVERIFY(before.pixel(on_left_edge) != during.pixel(on_left_edge));

    b.deaktivate_highlight();
    QCOMPARE(render(b).pixel(on_left_edge), before.pixel(on_left_edge));
}

void tst_button::release_emits_click_without_base()
{
    orn::button b(QStringLiteral("text"));
    QSignalSpy clicked(&b, &QAbstractButton::clicked);
    QSignalSpy released(&b, &QAbstractButton::released);
    QSignalSpy toggled(&b, &QAbstractButton::toggled);
    // A release alone, with no press before it: the base class would ignore it.
    release(b);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.at(0).at(0).toBool(), false);
    QCOMPARE(released.count(), 1);
    QCOMPARE(toggled.count(), 1);
}

QTEST_MAIN(tst_button)
#include "tst_button.moc"
