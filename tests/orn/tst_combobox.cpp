#include "orn/combobox.h"

#include <QWheelEvent>
#include <QtTest>

namespace {

// Turns the wheel one notch down over the box; returns whether the box kept the event.
bool turn_wheel(QComboBox& box)
{
    const QPointF centre(box.width() / 2.0, box.height() / 2.0);
    QWheelEvent event(centre, box.mapToGlobal(centre.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &event);
    return event.isAccepted();
}

} // namespace

class tst_combobox : public QObject
{
    Q_OBJECT

private slots:
    void wheel_data();
    void wheel();
    void keyboard_still_works();
    void release_emits_clicked();
};

void tst_combobox::wheel_data()
{
    QTest::addColumn<bool>("ignore");
    QTest::addColumn<int>("index_after");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("ignored by default: nothing changes, the parent may scroll")
        << true << 0 << false;
    QTest::newRow("when allowed it moves to the next item") << false << 1 << true;
}

void tst_combobox::wheel()
{
    QFETCH(bool, ignore);
    QFETCH(int, index_after);
    QFETCH(bool, accepted);

    orn::combobox box;
    box.addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    box.resize(120, 24);
    if (!ignore) {
        box.set_ignore_wheel(false);
    }
    QSignalSpy changed(&box, qOverload<int>(&QComboBox::currentIndexChanged));
    QCOMPARE(turn_wheel(box), accepted);
    QCOMPARE(box.currentIndex(), index_after);
    QCOMPARE(changed.count(), index_after);
}

void tst_combobox::keyboard_still_works()
{
    orn::combobox box;
    box.addItems({QStringLiteral("a"), QStringLiteral("b")});
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.currentIndex(), 1);
}

void tst_combobox::release_emits_clicked()
{
    orn::combobox box;
    box.resize(120, 24);
    QSignalSpy clicked(&box, &orn::combobox::clicked);
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    QCOMPARE(clicked.count(), 1);
}

QTEST_MAIN(tst_combobox)
#include "tst_combobox.moc"
