#include "orn/clickable_label.h"
#include "orn/label.h"

#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QtTest>

class tst_label : public QObject
{
    Q_OBJECT

private slots:
    void paint_callback_replaces_painting();
    void click_on_left_press_only_data();
    void click_on_left_press_only();
    void modifiers_held_for_the_press();
    void underline_on_hover_data();
    void underline_on_hover();
};

namespace {

// How many pixels of the image differ from `ground`.
int pixels_off(const QImage& image, const QColor& ground)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) != ground ? 1 : 0;
        }
    }
    return count;
}

} // namespace

void tst_label::paint_callback_replaces_painting()
{
    orn::label label;
    label.setText(QStringLiteral("WWWW"));
    label.setStyleSheet(QStringLiteral("QLabel{background:rgb(0,0,255);color:white;}"));
    label.resize(80, 30);
    const QColor blue(0, 0, 255);
    QVERIFY(pixels_off(label.grab().toImage(), blue) > 0);

    // What the callback draws is all there is besides the ground: no text.
    label.set_paint_callback(
        [](QPainter& painter) { painter.fillRect(QRect(0, 0, 10, 10), Qt::red); });
    QCOMPARE(pixels_off(label.grab().toImage(), blue), 100);
}

void tst_label::click_on_left_press_only_data()
{
    QTest::addColumn<int>("mouse_button");
    QTest::addColumn<int>("clicks_on_press");

    QTest::newRow("left") << int(Qt::LeftButton) << 1;
    QTest::newRow("right") << int(Qt::RightButton) << 0;
    QTest::newRow("middle") << int(Qt::MiddleButton) << 0;
}

void tst_label::click_on_left_press_only()
{
    QFETCH(int, mouse_button);
    const auto pressed = Qt::MouseButton(mouse_button);
    QFETCH(int, clicks_on_press);

    orn::clickable_label label(QStringLiteral("link"));
    label.resize(60, 20);
    QSignalSpy clicks(&label, &orn::clickable_label::clicked);
    QTest::mousePress(&label, pressed, Qt::NoModifier, QPoint(10, 10));
    QCOMPARE(clicks.count(), clicks_on_press);
    QTest::mouseRelease(&label, pressed, Qt::NoModifier, QPoint(10, 10));
    QCOMPARE(clicks.count(), clicks_on_press);
}

void tst_label::modifiers_held_for_the_press()
{
    orn::clickable_label label(QStringLiteral("link"));
    label.resize(60, 20);
    Qt::KeyboardModifiers seen;
    connect(&label, &orn::clickable_label::clicked, this,
            [&] { seen = label.pressed_modifiers(); });

    QTest::mousePress(&label, Qt::LeftButton, Qt::ShiftModifier, QPoint(10, 10));
    QCOMPARE(seen, Qt::KeyboardModifiers(Qt::ShiftModifier));
    QTest::mouseRelease(&label, Qt::LeftButton, Qt::ShiftModifier, QPoint(10, 10));
    QCOMPARE(label.pressed_modifiers(), Qt::KeyboardModifiers(Qt::NoModifier));
}

void tst_label::underline_on_hover_data()
{
    QTest::addColumn<bool>("underline");

    QTest::newRow("set") << true;
    QTest::newRow("not set") << false;
}

void tst_label::underline_on_hover()
{
    QFETCH(bool, underline);

    orn::clickable_label label(QStringLiteral("link"));
    label.set_underline_on_hover(underline);
    label.show();
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(&label, &enter);
    QCOMPARE(label.font().underline(), underline);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&label, &leave);
    QCOMPARE(label.font().underline(), false);
}

QTEST_MAIN(tst_label)
#include "tst_label.moc"
