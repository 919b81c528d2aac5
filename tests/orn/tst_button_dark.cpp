#include "orn/button_dark.h"
#include "orn/button_dark_flat.h"
#include "orn/button_dark_round.h"

#include <QButtonGroup>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <string>

using orn::pixel_argb;

namespace {

// The first rule of a sheet: the QPushButton{...} block that carries %2 and %3.
QString first_block(const QString& sheet)
{
    return sheet.left(sheet.indexOf(QLatin1Char('}')));
}

bool has_placeholder(const QString& sheet)
{
    return sheet.contains(QRegularExpression(QStringLiteral("%\\d")));
}

// Writes a one-row image of the given pixels and returns its path.
QString write_image(const QTemporaryDir& dir, const QString& name, const QVector<QRgb>& pixels)
{
    QImage image(pixels.size(), 1, QImage::Format_ARGB32);
    for (int x = 0; x < pixels.size(); ++x) {
        image.setPixel(x, 0, pixels[x]);
    }
    QString path = dir.filePath(name);
    image.save(path);
    return path;
}

// Where the test images go; one folder for the whole run.
const QTemporaryDir& temp_dir()
{
    static const QTemporaryDir dir;
    return dir;
}

QVector<QRgb> row_of(const QImage& image)
{
    QVector<QRgb> pixels;
    for (int x = 0; x < image.width(); ++x) {
        pixels.append(image.pixel(x, 0));
    }
    return pixels;
}

} // namespace

class tst_button_dark : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void whole_sheets_data();
    void whole_sheets();
    void text_color_replaces_disabled_piece();
    void em_padding_flag_drops_only_its_piece();
    void checked_icon_drops_checked_style_at_next_rebuild();
    void flat_and_round_sheets_keep_their_text_data();
    void flat_and_round_sheets_keep_their_text();

    void highlighter_colours_data();
    void highlighter_colours();
    void icon_image_follows_state_data();
    void icon_image_follows_state();
    void missing_icon_is_logged_and_harmless();
    void assertion_on_foreign_button();

    void toggle_on_press_data();
    void toggle_on_press();
    void uncheck_in_group_data();
    void uncheck_in_group();
    void pressed_modifiers_last_for_the_press();
};

void tst_button_dark::initTestCase()
{
    QVERIFY(temp_dir().isValid());
}

void tst_button_dark::whole_sheets_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("checked_style");
    QTest::addColumn<bool>("pressed_style");
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("alignment");
    QTest::addColumn<int>("padding");
    QTest::addColumn<bool>("coloured");
    QTest::addColumn<QString>("sheet");

    // The sheets as the design spells them: %1 image, %2 alignment, %3 padding and
    // colour in the dark base; pieces appended in their order.
    const QString dark =
        QStringLiteral("QPushButton{color:rgb(198,213,210);border-style:none;border-width:3px;"
                       "border-image:url(:/gui/button/%1_normal.png) 3 stretch;text-align:%2;%3;"
                       "background:transparent;padding: 0.25em 1em;}"
                       "QPushButton::hover{color:#f0f0f0;}"
                       "QToolTip{border:1px solid rgb(99,99,99);background-image:none;"
                       "background-color:rgb(47,47,47);}");
    const QString checked =
        QStringLiteral("QPushButton::checked{border-style:none;border-width:3px;"
                       "border-image:url(:/gui/button/%1_pressed.png) 3 stretch;}");
    const QString pressed =
        QStringLiteral("QPushButton::pressed{border-style:none;border-width:3px;"
                       "border-image:url(:/gui/button/%1_pressed.png) 3 stretch;}");
    const QString grey = QStringLiteral("QPushButton::disabled{color:rgba(129,136,133,50%);}");
    const QString tool_tip =
        QStringLiteral("QToolTip{border:1px solid rgb(99,99,99);background-image:none;"
                       "background-color:rgb(47,47,47);color:rgb(228,228,228);font-size:10px;}");
    const QString flat_pieces =
        QStringLiteral("QPushButton::checked      {color:rgb(228,228,228);}"
                       "QPushButton::checked:hover{color:rgb(255,255,255);}"
                       "QPushButton::checked      {color:rgb(228,228,228);}");

    QTest::newRow("dark, both pieces")
        << "dark" << true << true << "dark"
        << "center" << 0 << false
        << dark.arg("dark", "center", "") + checked.arg("dark") + pressed.arg("dark") + grey;
    QTest::newRow("dark, header image, left, padding and colour, pressed piece only")
        << "dark" << false << true << "header"
        << "left" << 7 << true
        << dark.arg("header", "left",
                    "padding-left: 7px; padding-right: 7px;color:rgba(10,20,30,40);") +
               pressed.arg("header") + "QPushButton::disabled{color:rgba(10,20,30,50%);}";
    QTest::newRow("dark, blank image, right, neither piece")
        << "dark" << false << false << "blank"
        << "right" << 0 << false << dark.arg("blank", "right", "") + grey;
    QTest::newRow("flat: nothing to fill, its own pieces")
        << "flat" << true << true << "header"
        << "left" << 9 << false
        << "QPushButton{color:rgb(146,152,148);border-style:none;border-width:3px;"
           "border-image:url(:/gui/button/blank_normal.png) 3 stretch;font-size:12px;}"
           "QPushButton::hover{color:#d0d0d0;}" +
               tool_tip + flat_pieces + grey;
    QTest::newRow("round: its own base, flat's pieces")
        << "round" << true << true << "header"
        << "left" << 9 << false
        << "QPushButton{color:rgb(146,152,148);border:1px solid rgb(75,75,75);"
           "background-color:rgb(68,68,68);border-radius:5px;font-size:12px;}"
           "QPushButton::checked{color:#d0d0d0;border:1px solid rgb(120,120,120);"
           "background-color:rgb(113,113,113);}"
           "QPushButton::hover{color:#d0d0d0;border:1px solid rgb(120,120,120);"
           "background-color:rgb(133,133,133);}" +
               tool_tip + flat_pieces + grey;
}

// The whole sheet, pieces in their order, for each subclass and the settings that
// fill its placeholders.
void tst_button_dark::whole_sheets()
{
    QFETCH(QString, kind);
    QFETCH(bool, checked_style);
    QFETCH(bool, pressed_style);
    QFETCH(QString, base);
    QFETCH(QString, alignment);
    QFETCH(int, padding);
    QFETCH(bool, coloured);
    QFETCH(QString, sheet);

    QScopedPointer<orn::button_dark> b(
        kind == QLatin1String("flat")    ? new orn::button_dark_flat(QStringLiteral("text"))
        : kind == QLatin1String("round") ? new orn::button_dark_round(QStringLiteral("text"))
                                         : new orn::button_dark(QStringLiteral("text")));
    b->set_style_flags(false, checked_style, true, pressed_style);
    b->set_image_base(base);
    b->set_text_alignment(alignment);
    b->set_padding(padding);
    if (coloured) {
        b->set_text_color(pixel_argb(10, 20, 30, 40));
    }
    QCOMPARE(b->styleSheet(), sheet);
}

// Padding and colour share one place in the sheet; taking both back gives the
// plain sheet again.
void tst_button_dark::text_color_replaces_disabled_piece()
{
    orn::button_dark plain(QStringLiteral("text"));
    orn::button_dark b(QStringLiteral("text"));
    b.set_text_color(pixel_argb(10, 20, 30, 40));
    b.set_padding(3);
    QVERIFY(first_block(b.styleSheet()).contains(QLatin1String("padding-left: 3px;")));
    QVERIFY(first_block(b.styleSheet()).contains(QLatin1String("color:rgba(10,20,30,40);")));

    b.set_padding(0);
    b.clear_text_color();
    QCOMPARE(b.styleSheet(), plain.styleSheet());
}

void tst_button_dark::em_padding_flag_drops_only_its_piece()
{
    const QLatin1String piece("padding: 0.25em 1em;");
    orn::button_dark with(QStringLiteral("text"));
    orn::button_dark::em_padding = false;
    orn::button_dark without(QStringLiteral("text"));
    orn::button_dark::em_padding = true;

    QVERIFY(with.styleSheet().contains(piece));
    QVERIFY(!without.styleSheet().contains(piece));
    QCOMPARE(QString(with.styleSheet()).remove(piece), without.styleSheet());
}

void tst_button_dark::checked_icon_drops_checked_style_at_next_rebuild()
{
    const QString icon =
        write_image(temp_dir(), QStringLiteral("check.png"), {qRgba(0, 0, 0, 255)});
    orn::button_dark b;
    const QString before = b.styleSheet();
    b.set_checked_icon(icon);
    QCOMPARE(b.styleSheet(), before);
    b.set_padding(0);
    QVERIFY(!b.styleSheet().contains(QLatin1String("QPushButton::checked{")));
    QVERIFY(b.styleSheet().contains(QLatin1String("QPushButton::pressed{")));
}

void tst_button_dark::flat_and_round_sheets_keep_their_text_data()
{
    QTest::addColumn<bool>("round");
    QTest::newRow("flat") << false;
    QTest::newRow("round") << true;
}

void tst_button_dark::flat_and_round_sheets_keep_their_text()
{
    QFETCH(bool, round);
    const auto make = [round]() -> orn::button_dark* {
        if (round) {
            return new orn::button_dark_round(QStringLiteral("text"));
        }
        return new orn::button_dark_flat(QStringLiteral("text"));
    };
    QScopedPointer<orn::button_dark> fresh(make());
    QScopedPointer<orn::button_dark> b(make());
    const QString sheet = fresh->styleSheet();
    QVERIFY(!has_placeholder(sheet));
    QVERIFY(!sheet.contains(QLatin1String("/gui/button/dark_")));
    QCOMPARE(first_block(sheet).contains(QLatin1String("border-radius:5px;")), round);
    QCOMPARE(fresh->contentsMargins(), QMargins());

    // Nothing to fill: base, alignment and padding leave the text as it is.
    b->set_image_base(QStringLiteral("header"));
    b->set_text_alignment(QStringLiteral("left"));
    b->set_padding(9);
    QCOMPARE(b->styleSheet(), sheet);

    // A text colour has no place to go; only the disabled piece takes it.
    b->set_text_color(pixel_argb(1, 2, 3, 4));
    QVERIFY(!b->styleSheet().contains(QLatin1String("rgba(1,2,3,4)")));
    QCOMPARE(QString(b->styleSheet())
                 .replace(QLatin1String("rgba(1,2,3,50%)"), QLatin1String("rgba(129,136,133,50%)")),
             sheet);
}

void tst_button_dark::highlighter_colours_data()
{
    QTest::addColumn<bool>("relative");
    QTest::addColumn<QVector<QRgb>>("source");
    QTest::addColumn<QRgb>("normal_colour");
    QTest::addColumn<QRgb>("highlight_colour");
    QTest::addColumn<QVector<QRgb>>("normal");
    QTest::addColumn<QVector<QRgb>>("highlight");
    QTest::addColumn<QVector<QRgb>>("disabled");

    const QRgb normal = qRgb(129, 136, 133);
    const QRgb light = qRgb(240, 240, 240);
    QTest::newRow("mask: colours with the source's alpha, halved when disabled")
        << false
        << QVector<QRgb>{qRgba(10, 20, 30, 200), qRgba(0, 0, 0, 0), qRgba(255, 255, 255, 255)}
        << normal << light
        << QVector<QRgb>{qRgba(129, 136, 133, 200), qRgba(129, 136, 133, 0),
                         qRgba(129, 136, 133, 255)}
        << QVector<QRgb>{qRgba(240, 240, 240, 200), qRgba(240, 240, 240, 0),
                         qRgba(240, 240, 240, 255)}
        << QVector<QRgb>{qRgba(129, 136, 133, 100), qRgba(129, 136, 133, 0),
                         qRgba(129, 136, 133, 127)};
    QTest::newRow("shifted: closest pixel to the normal colour is the reference")
        << true << QVector<QRgb>{qRgb(100, 100, 100), qRgb(130, 135, 130), qRgba(20, 30, 40, 90)}
        << normal << light
        << QVector<QRgb>{qRgb(100, 100, 100), qRgb(130, 135, 130), qRgba(20, 30, 40, 90)}
        << QVector<QRgb>{qRgb(210, 205, 210), qRgb(240, 240, 240), qRgba(130, 135, 150, 90)}
        << QVector<QRgb>{qRgba(100, 100, 100, 127), qRgba(130, 135, 130, 127),
                         qRgba(20, 30, 40, 45)};
    QTest::newRow("shifted: clamped at 255")
        << true << QVector<QRgb>{qRgb(129, 136, 133), qRgb(200, 250, 10)} << normal << light
        << QVector<QRgb>{qRgb(129, 136, 133), qRgb(200, 250, 10)}
        << QVector<QRgb>{qRgb(240, 240, 240), qRgb(255, 255, 117)}
        << QVector<QRgb>{qRgba(129, 136, 133, 127), qRgba(200, 250, 10, 127)};
    QTest::newRow("shifted: clamped at 0")
        << true << QVector<QRgb>{qRgb(129, 136, 133), qRgb(20, 200, 100)} << normal
        << qRgb(50, 50, 50) << QVector<QRgb>{qRgb(129, 136, 133), qRgb(20, 200, 100)}
        << QVector<QRgb>{qRgb(50, 50, 50), qRgb(0, 114, 17)}
        << QVector<QRgb>{qRgba(129, 136, 133, 127), qRgba(20, 200, 100, 127)};
    QTest::newRow("shifted: of two equally close pixels the first wins")
        << true << QVector<QRgb>{qRgb(98, 100, 100), qRgb(100, 100, 102)} << qRgb(100, 100, 100)
        << qRgb(200, 200, 200) << QVector<QRgb>{qRgb(98, 100, 100), qRgb(100, 100, 102)}
        << QVector<QRgb>{qRgb(200, 200, 200), qRgb(202, 200, 202)}
        << QVector<QRgb>{qRgba(98, 100, 100, 127), qRgba(100, 100, 102, 127)};
}

void tst_button_dark::highlighter_colours()
{
    QFETCH(bool, relative);
    QFETCH(QVector<QRgb>, source);
    QFETCH(QRgb, normal_colour);
    QFETCH(QRgb, highlight_colour);
    QFETCH(QVector<QRgb>, normal);
    QFETCH(QVector<QRgb>, highlight);
    QFETCH(QVector<QRgb>, disabled);

    const auto to_pixel = [](QRgb rgb) {
        return pixel_argb(quint8(qRed(rgb)), quint8(qGreen(rgb)), quint8(qBlue(rgb)));
    };
    orn::button_dark::img_highlighter record;
    record.relative = relative;
    record.set_colors(to_pixel(highlight_colour), to_pixel(normal_colour));
    record.load(write_image(temp_dir(), QStringLiteral("source.png"), source));

    QCOMPARE(record.width, source.size());
    QCOMPARE(row_of(record.normal), normal);
    QCOMPARE(row_of(record.highlight), highlight);
    QCOMPARE(row_of(record.disabled), disabled);
}

void tst_button_dark::icon_image_follows_state_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("under_mouse");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("highlight_when_checked");
    QTest::addColumn<QRgb>("centre");

    const QRgb normal = qRgb(129, 136, 133);
    const QRgb light = qRgb(240, 240, 240);
    QTest::newRow("at rest") << true << false << false << true << normal;
    QTest::newRow("under the mouse") << true << true << false << true << light;
    QTest::newRow("disabled even under the mouse")
        << false << true << false << true << qRgba(129, 136, 133, 127);
    QTest::newRow("checked with highlight") << true << false << true << true << light;
    QTest::newRow("checked without highlight") << true << false << true << false << normal;
}

void tst_button_dark::icon_image_follows_state()
{
    QFETCH(bool, enabled);
    QFETCH(bool, under_mouse);
    QFETCH(bool, checked);
    QFETCH(bool, highlight_when_checked);
    QFETCH(QRgb, centre);

    // A 3x1 opaque mask; centred on a 21x11 button its middle pixel lands at (10, 5).
    const QString icon =
        write_image(temp_dir(), QStringLiteral("mask.png"), QVector<QRgb>(3, qRgb(0, 0, 0)));
    orn::button_dark b;
    b.resize(21, 11);
    b.set_draw_base(false);
    b.set_style_flags(false, true, highlight_when_checked, true);
    b.set_icon(icon);
    b.setCheckable(true);
    b.setChecked(checked);
    b.setEnabled(enabled);
    b.setAttribute(Qt::WA_UnderMouse, under_mouse);

    // Read the premultiplied pixels as they are; unpremultiplying would round.
    QImage image(b.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    b.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(5));
    QCOMPARE(line[10], qPremultiply(centre));
    QCOMPARE(line[7], QRgb(0));
}

void tst_button_dark::missing_icon_is_logged_and_harmless()
{
    const QString missing = temp_dir().filePath(QStringLiteral("missing.png"));
    orn::button_dark b;
    b.resize(30, 20);
    QTest::ignoreMessage(QtDebugMsg,
                         qPrintable(QStringLiteral("Can't open icon \"%1\"").arg(missing)));
    b.set_icon(missing);
    QImage image(b.size(), QImage::Format_ARGB32);
    b.render(&image);
    b.fit_width(3, 4);
    QCOMPARE(b.width(), 7);
}

void tst_button_dark::assertion_on_foreign_button()
{
    orn::button_dark::img_highlighter record;
    const auto paint = record.get_custom_paint_ex(-1, -1);
    QPushButton foreign;
    QImage image(10, 10, QImage::Format_ARGB32);
    QPainter painter(&image);
    try {
        paint(painter, &foreign);
        QFAIL("no throw");
    } catch (const std::string& text) {
        const QString message = QString::fromStdString(text);
        QVERIFY2(message.startsWith(
                     QLatin1String("assert \"bd\" failed at orn_toolkit/orn/button_dark.cpp:")),
                 qPrintable(message));
        QVERIFY(message.endsWith(QLatin1Char('\n')));
#if defined(Q_CC_GNU) && !defined(Q_CC_CLANG)
        QVERIFY2(message.contains(QRegularExpression(QStringLiteral(
                     "\\.cpp:\\d+ in orn::button_dark::img_highlighter::get_custom_paint_ex\\(int, "
                     "int\\)::<lambda\\(QPainter&, QPushButton\\*\\)>\n$"))),
                 qPrintable(message));
#endif
    }
}

void tst_button_dark::toggle_on_press_data()
{
    QTest::addColumn<bool>("toggle_on_press");
    QTest::addColumn<int>("mouse_button");
    QTest::addColumn<bool>("checked_before");
    QTest::addColumn<bool>("after_press");
    QTest::addColumn<bool>("after_release");

    const int left = Qt::LeftButton;
    const int right = Qt::RightButton;
    QTest::newRow("left holds it checked while pressed") << true << left << false << true << false;
    QTest::newRow("left on a checked one, same") << true << left << true << true << false;
    QTest::newRow("right latches it on") << true << right << false << true << true;
    QTest::newRow("right latches it off") << true << right << true << false << false;
    QTest::newRow("middle goes to the base class")
        << true << int(Qt::MiddleButton) << false << false << false;
    QTest::newRow("off: left toggles on release") << false << left << false << false << true;
    QTest::newRow("off: right does nothing") << false << right << false << false << false;
}

void tst_button_dark::toggle_on_press()
{
    QFETCH(bool, toggle_on_press);
    QFETCH(int, mouse_button);
    QFETCH(bool, checked_before);
    QFETCH(bool, after_press);
    QFETCH(bool, after_release);

    orn::button_dark b(QStringLiteral("text"));
    b.resize(40, 20);
    b.setCheckable(true);
    b.setChecked(checked_before);
    b.set_toggle_on_press(toggle_on_press);
    const auto which = Qt::MouseButton(mouse_button);
    QTest::mousePress(&b, which, Qt::NoModifier, QPoint(10, 10));
    QCOMPARE(b.isChecked(), after_press);
    QTest::mouseRelease(&b, which, Qt::NoModifier, QPoint(10, 10));
    QCOMPARE(b.isChecked(), after_release);
}

void tst_button_dark::uncheck_in_group_data()
{
    QTest::addColumn<bool>("uncheck_in_group");
    QTest::addColumn<int>("clicked");
    QTest::addColumn<bool>("first_checked");
    QTest::addColumn<bool>("second_checked");

    QTest::newRow("click on the checked one unchecks it") << true << 0 << false << false;
    QTest::newRow("without the flag it stays") << false << 0 << true << false;
    QTest::newRow("another one moves the check") << true << 1 << false << true;
}

void tst_button_dark::uncheck_in_group()
{
    QFETCH(bool, uncheck_in_group);
    QFETCH(int, clicked);
    QFETCH(bool, first_checked);
    QFETCH(bool, second_checked);

    QWidget window;
    QButtonGroup group;
    orn::button_dark first(QStringLiteral("1"), &window);
    orn::button_dark second(QStringLiteral("2"), &window);
    int callbacks = 0;
    for (orn::button_dark* b : {&first, &second}) {
        b->resize(40, 20);
        b->setCheckable(true);
        b->set_uncheck_in_group(uncheck_in_group);
        b->set_release_callback([&callbacks](QMouseEvent*) { ++callbacks; });
        group.addButton(b);
    }
    first.setChecked(true);

    QTest::mouseClick(clicked == 0 ? &first : &second, Qt::LeftButton, Qt::NoModifier,
                      QPoint(10, 10));
    QCOMPARE(first.isChecked(), first_checked);
    QCOMPARE(second.isChecked(), second_checked);
    QVERIFY(group.exclusive());
    QCOMPARE(callbacks, 1);
}

void tst_button_dark::pressed_modifiers_last_for_the_press()
{
    orn::button_dark b(QStringLiteral("text"));
    b.resize(40, 20);
    Qt::KeyboardModifiers during_release;
    b.set_release_callback([&](QMouseEvent*) { during_release = b.pressed_modifiers(); });
    QTest::mousePress(&b, Qt::LeftButton, Qt::ShiftModifier, QPoint(10, 10));
    QCOMPARE(b.pressed_modifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier));
    QTest::mouseRelease(&b, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    QCOMPARE(during_release, Qt::KeyboardModifiers(Qt::ShiftModifier));
    QCOMPARE(b.pressed_modifiers(), Qt::KeyboardModifiers());
}

QTEST_MAIN(tst_button_dark)
#include "tst_button_dark.moc"
