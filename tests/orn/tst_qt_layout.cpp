#include "orn/exception.h"
#include "orn/qt_layout.h"

#include <QLabel>
#include <QtTest>

using orn::qt::cell;
using orn::qt::layout;

class tst_qt_layout : public QObject
{
    Q_OBJECT

private slots:
    void add_item_throws();
    void empty_layout();
    void cells_cannot_be_taken();
    void horizontal_placement_data();
    void horizontal_placement();
    void vertical_placement();
    void automatic_positions_data();
    void automatic_positions();
    void loop_guard_stops_repeated_runs();
    void animation_ends_on_target();
    void registry_forgets_a_gone_layout();
};

void tst_qt_layout::add_item_throws()
{
    QWidget parent;
    layout grid(&parent, 0, false);
    try {
        grid.addWidget(new QLabel(&parent));
        QFAIL("addWidget went through");
    } catch (const orn::exception& error) {
        QCOMPARE(QString::fromStdString(error.message),
                 QStringLiteral("This layout works different. Use add() instead."));
    }
    QCOMPARE(grid.count(), 0);
}

void tst_qt_layout::empty_layout()
{
    layout grid;
    QCOMPARE(grid.count(), 0);
    QCOMPARE(grid.itemAt(0), nullptr);
    QCOMPARE(grid.minimumSize(), QSize(0, 0));
}

void tst_qt_layout::cells_cannot_be_taken()
{
    QWidget parent;
    layout grid(&parent, 0, false);
    auto* content = new QLabel(&parent);
    grid.add(cell(content));

    QCOMPARE(grid.count(), 1);
    QCOMPARE(grid.takeAt(0), nullptr);
    QCOMPARE(grid.count(), 1);
    QCOMPARE(grid.itemAt(0)->widget(), content);
    QCOMPARE(grid.itemAt(-1), nullptr);
    QCOMPARE(grid.itemAt(1), nullptr);
}

void tst_qt_layout::horizontal_placement_data()
{
    QTest::addColumn<QList<int>>("widths");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("span");
    QTest::addColumn<float>("fixed");
    QTest::addColumn<float>("margin_left");
    QTest::addColumn<float>("margin_right");
    QTest::addColumn<float>("padding");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("backdrop_x");
    QTest::addColumn<int>("backdrop_width");

    // The parent is 300 wide; a width of 0 is automatic.
    QTest::newRow("automatic columns share what the fixed one leaves")
        << QList<int>{60, 0, 0} << 2 << 1 << -1.f << -1.f << -1.f << 0.f << 180 << 120 << 180
        << 120;
    QTest::newRow("span adds up its columns")
        << QList<int>{60, 0, 0} << 1 << 2 << -1.f << -1.f << -1.f << 0.f << 60 << 240 << 60 << 240;
    QTest::newRow("span ends at the last column")
        << QList<int>{0, 0} << 1 << 3 << -1.f << -1.f << -1.f << 0.f << 150 << 150 << 150 << 150;
    QTest::newRow("fixed width without margins is centred")
        << QList<int>{0} << 0 << 1 << 100.f << -1.f << -1.f << 0.f << 100 << 100 << 100 << 100;
    QTest::newRow("fixed width with a right margin lies at the right")
        << QList<int>{0} << 0 << 1 << 100.f << -1.f << 10.f << 0.f << 190 << 100 << 190 << 100;
    QTest::newRow("fixed width with a left margin lies at the left")
        << QList<int>{0} << 0 << 1 << 100.f << 15.f << 10.f << 0.f << 15 << 100 << 15 << 100;
    QTest::newRow("fixed width keeps the padding outside")
        << QList<int>{0} << 0 << 1 << 100.f << -1.f << -1.f << 5.f << 100 << 100 << 95 << 110;
    QTest::newRow("margins and padding shrink a filling cell")
        << QList<int>{0} << 0 << 1 << -1.f << 10.f << 20.f << 5.f << 15 << 260 << 10 << 270;
    QTest::newRow("only the right margin set")
        << QList<int>{0} << 0 << 1 << -1.f << -1.f << 20.f << 0.f << 0 << 280 << 0 << 280;
    QTest::newRow("fixed columns wider than the parent leave nothing")
        << QList<int>{400, 0} << 1 << 1 << -1.f << -1.f << -1.f << 0.f << 400 << 0 << 400 << 0;
}

void tst_qt_layout::horizontal_placement()
{
    QFETCH(QList<int>, widths);
    QFETCH(int, column);
    QFETCH(int, span);
    QFETCH(float, fixed);
    QFETCH(float, margin_left);
    QFETCH(float, margin_right);
    QFETCH(float, padding);
    QFETCH(int, x);
    QFETCH(int, width);
    QFETCH(int, backdrop_x);
    QFETCH(int, backdrop_width);

    QWidget parent;
    parent.resize(300, 200);
    layout grid(&parent, 0, false);
    for (int c = 0; c < widths.size(); ++c) {
        grid.set_column_width(c, widths[c]);
    }
    auto* content = new QLabel(&parent);
    cell item(content);
    item.column_span = span;
    item.fixed_width = fixed;
    item.margin_left = margin_left;
    item.margin_right = margin_right;
    item.set_padding(padding);
    grid.add(item, column, 0, true);
    grid.setGeometry(parent.rect());

    QCOMPARE(content->x(), x);
    QCOMPARE(content->width(), width);
    QWidget* backdrop = orn::qt::find_cell(content)->background_widget();
    QCOMPARE(backdrop->parentWidget(), &parent);
    QCOMPARE(backdrop->x(), backdrop_x);
    QCOMPARE(backdrop->width(), backdrop_width);
}

void tst_qt_layout::vertical_placement()
{
    QWidget parent;
    parent.resize(300, 200);
    layout grid(&parent, 1, false);
    grid.set_row_height(0, 40);
    auto* top = new QLabel(&parent);
    auto* below = new QLabel(&parent);
    grid.add(cell(top));
    cell fixed(below);
    fixed.fixed_height = 60;
    fixed.offset_x = 3;
    fixed.offset_y = 4;
    grid.add(fixed);
    grid.setGeometry(parent.rect());

    QCOMPARE(top->geometry(), QRect(0, 0, 300, 40));
    // The automatic row takes the remaining 160; the 60 high content is centred in it.
    QCOMPARE(below->geometry(), QRect(3, 40 + 50 + 4, 300, 60));
}

void tst_qt_layout::automatic_positions_data()
{
    QTest::addColumn<int>("wrap_count");
    QTest::addColumn<bool>("column_major");
    QTest::addColumn<QString>("cells");
    QTest::addColumn<QString>("positions");

    // A cell is "1" (one position), "2" (two columns wide), "|" (two rows high) or
    // "b" (ends the line); positions are "column,row".
    QTest::newRow("rows wrap after the count") << 2 << false << "1 1 1"
                                               << "0,0 1,0 0,1";
    QTest::newRow("no wrap count: one long row") << 0 << false << "1 1 1"
                                                 << "0,0 1,0 2,0";
    QTest::newRow("columns wrap after the count") << 2 << true << "1 1 1"
                                                  << "0,0 0,1 1,0";
    QTest::newRow("a wide cell blocks its neighbour") << 3 << false << "2 1 1"
                                                      << "0,0 2,0 0,1";
    QTest::newRow("a tall cell blocks the row below") << 2 << false << "| 1 1"
                                                      << "0,0 1,0 1,1";
    QTest::newRow("line break starts the next row") << 3 << false << "b 1"
                                                    << "0,0 0,1";
    QTest::newRow("line break starts the next column") << 3 << true << "b 1"
                                                       << "0,0 1,0";
}

void tst_qt_layout::automatic_positions()
{
    QFETCH(int, wrap_count);
    QFETCH(bool, column_major);
    QFETCH(QString, cells);
    QFETCH(QString, positions);

    QWidget parent;
    layout grid(&parent, wrap_count, column_major);
    QList<QWidget*> contents;
    for (const QString& kind : cells.split(' ')) {
        auto* content = new QLabel(&parent);
        cell item(content);
        item.column_span = kind == "2" ? 2 : 1;
        item.row_span = kind == "|" ? 2 : 1;
        item.line_break = kind == "b";
        grid.add(item);
        contents << content;
    }

    QStringList placed;
    for (QWidget* content : contents) {
        const cell* item = orn::qt::find_cell(content);
        placed << QString("%1,%2").arg(item->column).arg(item->row);
    }
    QCOMPARE(placed.join(' '), positions);
}

void tst_qt_layout::loop_guard_stops_repeated_runs()
{
    QWidget parent;
    parent.resize(300, 200);
    layout grid(&parent, 0, false);
    auto* content = new QLabel(&parent);
    grid.add(cell(content));

    // The first run and four repetitions at the same size still place.
    for (int run = 0; run < 5; ++run) {
        content->move(7, 7);
        grid.setGeometry(parent.rect());
        QCOMPARE(content->pos(), QPoint(0, 0));
    }
    content->move(7, 7);
    grid.setGeometry(parent.rect());
    QCOMPARE(content->pos(), QPoint(7, 7));

    parent.resize(301, 200);
    grid.setGeometry(parent.rect());
    QCOMPARE(content->pos(), QPoint(0, 0));
    QCOMPARE(content->width(), 301);
}

void tst_qt_layout::animation_ends_on_target()
{
    QWidget window;
    window.resize(300, 200);
    layout grid(&window, 0, false);
    auto* first = new QLabel(&window);
    auto* second = new QLabel(&window);
    cell narrowing(first);
    narrowing.requested_column_width = 100;
    grid.add(narrowing);
    grid.add(cell(second));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    // 63 pixels in 5 steps of 12 would end at 40: the last step lands on the target.
    orn::qt::find_cell(first)->animate_width(37, 0.2f);
    QCOMPARE(grid.column_width(0), 37);
    QCOMPARE(second->x(), 37);
    QCOMPARE(second->width(), 263);
}

void tst_qt_layout::registry_forgets_a_gone_layout()
{
    QWidget parent;
    QLabel content(&parent);
    {
        layout grid(&parent, 0, false);
        grid.add(cell(&content));
        QVERIFY(orn::qt::find_cell(&content) != nullptr);
    }
    QCOMPARE(orn::qt::find_cell(&content), nullptr);
}

QTEST_MAIN(tst_qt_layout)
#include "tst_qt_layout.moc"
