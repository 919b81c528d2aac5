// The convert button's run, driven through the real slot: its file dialogs and
// message boxes open as a user would see them and are answered as they open.

#include "app/app_resources.h"
#include "app/main_window.h"
#include "app/run_dialogs.h"
#include "support/modal_answerer.h"
#include "support/test_support.h"

#include <QtTest>
#include <QAbstractButton>
#include <QMessageBox>

namespace {

const QString bold_start = QStringLiteral("<font color=\"white\"><b>");
const QString bold_end = QStringLiteral("</b></font>");

QString bold(const QString& name)
{
    return bold_start + name + bold_end;
}

// Values that make the inspection raise each kind of warning.
const QMap<QString, QByteArray> kind_values{
    {"wb", "Temperature=\"5500\""}, {"lut", "RGBTable=\"4C55543344\""}, {"cal", "RedHue=\"+12\""}};
const QMap<QString, QString> kind_titles{{"wb", "White balance modified by preset"},
                                         {"lut", "Unsupported parameters in preset"},
                                         {"cal", "Camera calibration modified by preset"}};

QByteArray xmp_preset(const QByteArray& name, const QStringList& kinds = {})
{
    QByteArray attributes = "crs:Contrast2012=\"12\"";
    for (const QString& kind : kinds) {
        attributes += " crs:" + kind_values.value(kind);
    }
    return test_support::xmp_preset(name, attributes);
}

// A braced template; an empty title leaves the title line out.
QByteArray template_preset(const QByteArray& title, const QByteArray& settings)
{
    return "s = {\n" + (title.isEmpty() ? QByteArray() : "\ttitle = \"" + title + "\",\n") +
           "\tvalue = {\n\t\tsettings = {\n\t\t\tExposure2012 = -0.25,\n" + settings +
           "\t\t},\n\t},\n}\n";
}

const QByteArray broken_template = "s = {\n\ttitle = \"Broken\"\n\tvalue = 1,\n}\n";

using test_support::read_all;
using test_support::without_uuid;

// Queues the replies in order: a button's text, or "cancel" for a box or dialog
// that goes away without an answer.
void queue(modal_answerer& answers, const QStringList& replies)
{
    for (const QString& reply : replies) {
        answers.expect(reply == QLatin1String("cancel") ? modal_answerer::cancel()
                                                        : modal_answerer::click(reply));
    }
}

} // namespace

class tst_conversion_run : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void open_dialog_and_input_dir_data();
    void open_dialog_and_input_dir();
    void dialog_texts_data();
    void dialog_texts();
    void conversion_failure_box();
    void decisions_data();
    void decisions();
    void decisions_end_with_the_run();
    void same_base_name_later_wins_data();
    void same_base_name_later_wins();
    void missing_output_folder_is_silent();
    void stylepack_tail_data();
    void stylepack_tail();
    void nothing_collected_asks_for_no_archive();
    void window_writes_what_the_converter_writes_data();
    void window_writes_what_the_converter_writes();

private:
    QString in(const QString& name) const { return dir_->filePath("in/" + name); }
    QString out() const { return dir_->filePath("out"); }
    QString write_preset(const QString& name, const QByteArray& contents);
    QStringList written_styles() const;
    void run(modal_answerer& answers);

    std::unique_ptr<QTemporaryDir> dir_;
    std::unique_ptr<MainWindow> window_;
};

void tst_conversion_run::initTestCase()
{
    init_lookwright_resources();
    test_support::use_test_settings();
}

void tst_conversion_run::init()
{
    QSettings().clear();
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(dir_->isValid());
    QDir(dir_->path()).mkpath("in");
    QDir(dir_->path()).mkpath("out");
    QSettings().setValue("output_dir", out());
    window_ = std::make_unique<MainWindow>(nullptr);
}

QString tst_conversion_run::write_preset(const QString& name, const QByteArray& contents)
{
    const QFileInfo file(in(name));
    QDir().mkpath(file.absolutePath());
    return test_support::write_file(file.absolutePath(), file.fileName(), contents);
}

QStringList tst_conversion_run::written_styles() const
{
    return QDir(out()).entryList(QDir::Files, QDir::Name);
}

void tst_conversion_run::run(modal_answerer& answers)
{
    window_->on_button_convert_clicked();
    QVERIFY2(answers.done(), "a dialog that the test expected never opened");
}

void tst_conversion_run::open_dialog_and_input_dir_data()
{
    QTest::addColumn<QString>("stored");    // input_dir before the run, "" for none
    QTest::addColumn<QStringList>("files"); // chosen in the dialog; none cancels it
    QTest::addColumn<QString>("opened_in");
    QTest::addColumn<QString>("stored_after");

    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    QTest::newRow("first start opens the pictures folder")
        << "" << QStringList{"in/a/x.xmp"} << pictures << "in/a";
    QTest::newRow("stored folder") << "in/b" << QStringList{"in/a/x.xmp"} << "in/b"
                                   << "in/a";
    QTest::newRow("cancel leaves it") << "in/b" << QStringList{} << "in/b"
                                      << "in/b";
    QTest::newRow("two folders store the first")
        << "" << QStringList{"in/b/y.xmp", "in/a/x.xmp"} << pictures << "in/b";
    QTest::newRow("stored even if every file fails")
        << "" << QStringList{"in/a/notes.txt"} << pictures << "in/a";
}

void tst_conversion_run::open_dialog_and_input_dir()
{
    QFETCH(QString, stored);
    QFETCH(QStringList, files);
    QFETCH(QString, opened_in);
    QFETCH(QString, stored_after);
    const auto absolute = [this](const QString& path) {
        return QDir::isAbsolutePath(path) ? path : dir_->filePath(path);
    };
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    QDir().mkpath(absolute("in/b"));
    if (!stored.isEmpty()) {
        QSettings().setValue("input_dir", absolute(stored));
    }
    QStringList paths;
    for (const QString& file : files) {
        paths << write_preset(file.mid(3), xmp_preset("X"));
    }

    modal_answerer answers;
    answers.expect(paths.isEmpty() ? modal_answerer::cancel()
                                   : modal_answerer::choose_files(paths));
    if (files.contains("in/a/notes.txt")) {
        queue(answers, {"OK"});
    }
    run(answers);

    const modal_answerer::seen_dialog& open = answers.seen().front();
    QCOMPARE(open.title, QStringLiteral("Load Lightroom Template"));
    QCOMPARE(open.name_filters, QStringList{"Lightroom Templates(*.lrtemplate *.xmp)"});
    QCOMPARE(open.directory, absolute(opened_in));
    QCOMPARE(QSettings().value("input_dir").toString(), absolute(stored_after));
}

void tst_conversion_run::dialog_texts_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");

    const QString white_balance_text =
        "Your preset %1 contains values for the white balance.<br/><br/>Equal white balance "
        "values can lead to different results in Capture One.<br/>Thus Lookwright translates the "
        "values instead of adapting them visually.<br/>Anyway we recommend to keep the white "
        "balance settings for neutralizing the image instead of using them for creating a "
        "look.<br/>For this reason they should not be inside a preset.";
    const int critical = QMessageBox::Critical;
    const int question = QMessageBox::Question;
    QTest::newRow("unknown suffix")
        << "notes.txt" << QByteArray("not a preset") << critical << "Unsupported preset format"
        << "Your preset " + bold("notes.txt") + " is in a format Lookwright can't convert.";
    QTest::newRow("no suffix") << "Warm" << xmp_preset("Warm") << critical
                               << "Unsupported preset format"
                               << "Your preset " + bold("Warm") +
                                      " is in a format Lookwright can't convert.";
    QTest::newRow("reader fails")
        << "Broken 50%2.lrtemplate" << broken_template << critical << "Can't read preset"
        << "Your preset " + bold("Broken 50%2.lrtemplate") +
               " can't be processed by Lookwright.<br/><br/>Please contact the Corvane support "
               "and send them a screenshot of this message and the preset file stated above to "
               "support@corvane.example<br/><br/>Error: Unexpected token type found. Expected "
               "token_type::comma, got token_type::name";
    QTest::newRow("white balance")
        << "Warm.xmp" << xmp_preset("Warm &amp; Co", {"wb"}) << question
        << "White balance modified by preset" << white_balance_text.arg(bold("Warm & Co"));
    QTest::newRow("unsupported parameters, a percent sign in the name")
        << "Lut.xmp" << xmp_preset("Lut 50%2", {"lut"}) << question
        << "Unsupported parameters in preset"
        << "Your selected preset " + bold("Lut 50%2") +
               " contains the following parameters, which can't be mapped in Capture "
               "One:<br/>- LUT<br/><br/>These parameters will be ignored.";
    QTest::newRow("camera calibration")
        << "Cal.lrtemplate" << template_preset("Cal", "\t\t\tGreenHue = -3,\n") << question
        << "Camera calibration modified by preset"
        << "The preset " + bold("Cal") +
               " contains values for the camera calibration.<br/>These settings may influence "
               "the resulting look significantly but will not be converted to Capture "
               "One.<br/>We recommend to reserve these parameters for the calibration of your "
               "camera and not for creating creative looks.";
    QTest::newRow("template without title: an empty bold part")
        << "Untitled.lrtemplate" << template_preset("", "\t\t\tTint = 0,\n") << question
        << "White balance modified by preset" << white_balance_text.arg(bold(""));
}

void tst_conversion_run::dialog_texts()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, contents);
    QFETCH(int, icon);
    QFETCH(QString, title);
    QFETCH(QString, text);

    modal_answerer answers;
    answers.expect(modal_answerer::choose_files({write_preset(file, contents)}));
    queue(answers, {icon == QMessageBox::Question ? "Skip" : "OK"});
    run(answers);

    QCOMPARE(int(answers.seen().size()), 2);
    const modal_answerer::seen_dialog& box = answers.seen().back();
    QCOMPARE(box.class_name, QStringLiteral("orn::message_box"));
    QCOMPARE(box.icon, icon);
    QCOMPARE(box.title, title);
    QCOMPARE(box.text, text);
    QStringList buttons = box.buttons;
    buttons.sort();
    if (icon == QMessageBox::Question) {
        QCOMPARE(buttons, (QStringList{"Convert", "Convert All", "Skip", "Skip All"}));
        QCOMPARE(box.default_button, QStringLiteral("Convert"));
    } else {
        QCOMPARE(buttons, QStringList{"OK"});
    }
    QCOMPARE(written_styles(), QStringList());
}

// convert_preset succeeds for every input, so no run reaches this box; it is
// shown here through the run's own dialogs.
void tst_conversion_run::conversion_failure_box()
{
    modal_answerer answers;
    queue(answers, {"OK"});
    run_dialogs(window_.get()).conversion_failed("Warm 50%2.xmp");

    QVERIFY(answers.done());
    const modal_answerer::seen_dialog& box = answers.seen().front();
    QCOMPARE(box.icon, int(QMessageBox::Warning));
    QCOMPARE(box.title, QStringLiteral("Preset conversion failed"));
    QCOMPARE(box.text, "The preset " + bold("Warm 50%2.xmp") +
                           " could not be converted to Capture One format.<br>Please contact "
                           "Corvane support and send them a screenshot of this message and the "
                           "preset file stated above to support@corvane.example<br/><br/>");
    QCOMPARE(box.buttons, QStringList{"OK"});
}

void tst_conversion_run::decisions_data()
{
    QTest::addColumn<QStringList>("presets"); // "name kind kind ..."
    QTest::addColumn<QStringList>("answers"); // "name kind reply": the boxes in order
    QTest::addColumn<QStringList>("written");

    QTest::newRow("nothing to warn about") << QStringList{"a"} << QStringList{} << QStringList{"a"};
    QTest::newRow("convert") << QStringList{"a wb"} << QStringList{"a wb Convert"}
                             << QStringList{"a"};
    QTest::newRow("skip") << QStringList{"a wb", "b"} << QStringList{"a wb Skip"}
                          << QStringList{"b"};
    QTest::newRow("no answer counts as convert")
        << QStringList{"a lut"} << QStringList{"a lut cancel"} << QStringList{"a"};
    QTest::newRow("convert asks again at the next preset")
        << QStringList{"a wb", "b wb"} << QStringList{"a wb Convert", "b wb Convert"}
        << QStringList{"a", "b"};
    QTest::newRow("skip asks again at the next preset")
        << QStringList{"a cal", "b cal"} << QStringList{"a cal Skip", "b cal Convert"}
        << QStringList{"b"};
    QTest::newRow("convert all converts later presets silently")
        << QStringList{"a wb", "b wb", "c wb"} << QStringList{"a wb Convert All"}
        << QStringList{"a", "b", "c"};
    QTest::newRow("skip all skips later presets silently")
        << QStringList{"a lut", "b lut", "c"} << QStringList{"a lut Skip All"} << QStringList{"c"};
    QTest::newRow("three warnings in order")
        << QStringList{"a cal lut wb"}
        << QStringList{"a wb Convert", "a lut Convert", "a cal Convert"} << QStringList{"a"};
    QTest::newRow("convert then skip skips the preset")
        << QStringList{"a wb cal"} << QStringList{"a wb Convert", "a cal Skip"} << QStringList{};
    QTest::newRow("convert all and skip all in one preset")
        << QStringList{"a wb cal", "b wb cal", "c wb", "d cal"}
        << QStringList{"a wb Convert All", "a cal Skip All"} << QStringList{"c"};
    QTest::newRow("skip all silences before another kind asks")
        << QStringList{"a wb", "b cal wb", "c cal"} << QStringList{"a wb Skip All", "c cal Convert"}
        << QStringList{"c"};
    QTest::newRow("skip all of a later kind comes first")
        << QStringList{"a cal", "b wb cal"} << QStringList{"a cal Skip All"} << QStringList{};
    QTest::newRow("kinds are independent")
        << QStringList{"a wb", "b wb cal lut"}
        << QStringList{"a wb Convert All", "b lut Convert", "b cal Convert"}
        << QStringList{"a", "b"};
}

void tst_conversion_run::decisions()
{
    QFETCH(QStringList, presets);
    QFETCH(QStringList, answers);
    QFETCH(QStringList, written);

    QStringList paths;
    for (const QString& preset : presets) {
        QStringList kinds = preset.split(' ');
        const QString name = kinds.takeFirst();
        paths << write_preset(name + ".xmp", xmp_preset(name.toUtf8(), kinds));
    }
    modal_answerer boxes;
    boxes.expect(modal_answerer::choose_files(paths));
    for (const QString& answer : answers) {
        queue(boxes, {answer.section(' ', 2)});
    }
    run(boxes);

    QStringList seen;
    for (std::size_t i = 1; i < boxes.seen().size(); ++i) {
        seen << boxes.seen()[i].title;
    }
    QStringList expected;
    for (const QString& answer : answers) {
        expected << kind_titles.value(answer.section(' ', 1, 1));
    }
    QCOMPARE(seen, expected);
    for (int i = 0; i < answers.size(); ++i) {
        QVERIFY(boxes.seen()[i + 1].text.contains(bold(answers[i].section(' ', 0, 0))));
    }
    for (QString& name : written) {
        name += ".costyle";
    }
    QCOMPARE(written_styles(), written);
}

void tst_conversion_run::decisions_end_with_the_run()
{
    const QStringList paths{write_preset("a.xmp", xmp_preset("a", {"wb"})),
                            write_preset("b.xmp", xmp_preset("b", {"lut"})),
                            write_preset("c.xmp", xmp_preset("c", {"cal"}))};
    modal_answerer skipping;
    skipping.expect(modal_answerer::choose_files(paths));
    queue(skipping, {"Skip All", "Skip All", "Skip All"});
    run(skipping);
    QCOMPARE(written_styles(), QStringList());

    // The next click starts from the beginning: every kind asks again.
    modal_answerer converting;
    converting.expect(modal_answerer::choose_files(paths));
    queue(converting, {"Convert", "Convert", "Convert"});
    run(converting);
    QCOMPARE(written_styles(), (QStringList{"a.costyle", "b.costyle", "c.costyle"}));
}

void tst_conversion_run::same_base_name_later_wins_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("separate") << "separate";
    QTest::newRow("stylepack") << "stylepack";
}

void tst_conversion_run::same_base_name_later_wins()
{
    QFETCH(QString, format);
    QSettings().setValue("format", format);
    const QStringList paths{
        write_preset("a.xmp", xmp_preset("from xmp")),
        write_preset("a.lrtemplate", template_preset("from template", QByteArray()))};
    const QString pack = dir_->filePath("out/pack.costylepack");

    const test_support::log_capture log;
    modal_answerer boxes;
    boxes.expect(modal_answerer::choose_files(paths));
    if (format != "separate") {
        boxes.expect(modal_answerer::choose_files({pack}));
    }
    run(boxes);

    QByteArray document;
    if (format == "separate") {
        QCOMPARE(written_styles(), QStringList{"a.costyle"});
        const QString line = "Wrote '" + dir_->filePath("out/a.costyle") + "'";
        QCOMPARE(log.messages(QtInfoMsg), (QStringList{line, line}));
        document = read_all(dir_->filePath("out/a.costyle"));
    } else {
        const QVector<test_support::archive_entry> entries = test_support::read_archive(pack);
        QCOMPARE(entries.size(), 1);
        QCOMPARE(entries.front().name, QStringLiteral("a.costyle"));
        document = entries.front().data;
    }
    QCOMPARE(test_support::document_value(QString::fromUtf8(document), "Name"),
             QStringLiteral("from template"));
}

void tst_conversion_run::missing_output_folder_is_silent()
{
    QSettings().setValue("output_dir", dir_->filePath("out/gone"));
    const QString path = write_preset("a.xmp", xmp_preset("a"));

    test_support::log_capture log;
    modal_answerer boxes;
    boxes.expect(modal_answerer::choose_files({path}));
    run(boxes);

    QCOMPARE(int(boxes.seen().size()), 1);
    QVERIFY(!QFileInfo::exists(dir_->filePath("out/gone")));
    QCOMPARE(written_styles(), QStringList());
    // Nothing about the target: the offscreen platform's own warnings may be there.
    QCOMPARE(log.messages(QtInfoMsg), QStringList());
    for (const QString& line : log.lines()) {
        QVERIFY2(!line.contains("gone") && !line.contains("costyle"), qPrintable(line));
    }
    const QStringList debug = log.messages(QtDebugMsg);
    QVERIFY(std::any_of(debug.begin(), debug.end(), [](const QString& line) {
        return line.startsWith("QMap((\"Contrast2012\", \"12\")");
    }));
}

void tst_conversion_run::stylepack_tail_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("save_as"); // "" cancels the save dialog
    QTest::addColumn<QStringList>("answers");
    QTest::addColumn<QStringList>("entries"); // entry names; the style's Name is their base

    QTest::newRow("stylepack") << "stylepack"
                               << "Looks.costylepack" << QStringList{"Convert"}
                               << QStringList{"Cool.costyle", "Warm.costyle"};
    QTest::newRow("category") << "stylepack_category"
                              << "My Looks.costylepack" << QStringList{"Convert"}
                              << QStringList{"My Looks/Cool.costyle", "My Looks/Warm.costyle"};
    QTest::newRow("category of a dotted name")
        << "stylepack_category"
        << "a.b.costylepack" << QStringList{"Convert"}
        << QStringList{"a.b/Cool.costyle", "a.b/Warm.costyle"};
    QTest::newRow("unknown format acts as stylepack")
        << "zip"
        << "Looks.costylepack" << QStringList{"Skip"} << QStringList{"Cool.costyle"};
    QTest::newRow("cancelled save drops the styles")
        << "stylepack"
        << "" << QStringList{"Convert"} << QStringList{};
}

void tst_conversion_run::stylepack_tail()
{
    QFETCH(QString, format);
    QFETCH(QString, save_as);
    QFETCH(QStringList, answers);
    QFETCH(QStringList, entries);
    QSettings().setValue("format", format);
    // Listed in reverse: the archive holds its entries in name order.
    const QStringList paths{write_preset("Warm.xmp", xmp_preset("Warm", {"wb"})),
                            write_preset("Cool.lrtemplate", template_preset("Cool", ""))};
    const QString pack = save_as.isEmpty() ? QString() : dir_->filePath("out/" + save_as);

    modal_answerer boxes;
    boxes.expect(modal_answerer::choose_files(paths));
    queue(boxes, answers);
    boxes.expect(pack.isEmpty() ? modal_answerer::cancel() : modal_answerer::choose_files({pack}));
    run(boxes);

    const modal_answerer::seen_dialog& save = boxes.seen().back();
    QCOMPARE(save.title, QStringLiteral("Name Capture One Stylepack"));
    QCOMPARE(save.directory, out());
    QCOMPARE(save.name_filters, QStringList{"Capture One Stylepack(*.costylepack)"});
    QStringList names;
    for (const test_support::archive_entry& entry : test_support::read_archive(pack)) {
        names << entry.name;
        QCOMPARE(test_support::document_value(QString::fromUtf8(entry.data), "Name"),
                 QFileInfo(entry.name).completeBaseName());
    }
    QCOMPARE(names, entries);
    // The styles went into the archive and nowhere else.
    QCOMPARE(written_styles(), pack.isEmpty() ? QStringList() : QStringList{save_as});
}

// A run that collects nothing asks for no archive.
void tst_conversion_run::nothing_collected_asks_for_no_archive()
{
    QSettings().setValue("format", "stylepack");
    const QStringList paths{write_preset("Warm.xmp", xmp_preset("Warm", {"wb"})),
                            write_preset("notes.txt", "not a preset")};
    modal_answerer boxes;
    boxes.expect(modal_answerer::choose_files(paths));
    queue(boxes, {"Skip", "OK"});
    run(boxes);

    QStringList titles;
    for (const modal_answerer::seen_dialog& dialog : boxes.seen()) {
        titles << dialog.title;
    }
    QCOMPARE(titles.mid(1), (QStringList{kind_titles.value("wb"), "Unsupported preset format"}));
    QCOMPARE(written_styles(), QStringList());
}

void tst_conversion_run::window_writes_what_the_converter_writes_data()
{
    QTest::addColumn<QString>("colour_space");
    QTest::newRow("raw") << "raw";
    QTest::newRow("srgb") << "srgb";
}

// The window as a user meets it: a click on the convert button, presets of both
// formats chosen, the warnings answered, the styles in the output folder.
void tst_conversion_run::window_writes_what_the_converter_writes()
{
    QFETCH(QString, colour_space);
    test_support::set_colour_space(colour_space);
    const QStringList paths{
        write_preset("Warm.LRTemplate",
                     template_preset("Warm", "\t\t\tTemperature = 6100,\n\t\t\tTint = 8,\n"
                                             "\t\t\tToneCurvePV2012 = { 0, 0, 128, 150, 255, "
                                             "255, },\n")),
        write_preset("Cool.XMP", xmp_preset("Cool", {"lut", "cal"})),
        write_preset("a.b.xmp", xmp_preset("Dotted", {"cal"})),
        write_preset("Soft.lrtemplate", template_preset("Soft", "\t\t\tClarity2012 = -30,\n"))};

    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    QAbstractButton* convert = nullptr;
    for (QAbstractButton* button : window_->findChildren<QAbstractButton*>()) {
        if (button->toolTip() == "Load Lightroom preset(s) and convert to Capture One.") {
            convert = button;
        }
    }
    QVERIFY(convert != nullptr);

    modal_answerer boxes;
    boxes.expect(modal_answerer::choose_files(paths));
    // Calibration, answered "Convert All" at Cool, lets a.b.xmp through silently.
    queue(boxes, {"Convert", "Convert", "Convert All"});
    QTest::mouseClick(convert, Qt::LeftButton);
    QVERIFY(boxes.done());
    QCOMPARE(int(boxes.seen().size()), 4);

    const QString converted = dir_->filePath("converted");
    QProcess converter;
    converter.start(LOOKWRIGHT_CONVERTER,
                    QStringList{"-q", "-c", colour_space, "-o", converted} + paths);
    QVERIFY(converter.waitForFinished(60000));
    QCOMPARE(converter.exitCode(), 0);

    const QStringList styles{"Cool.costyle", "Soft.costyle", "Warm.costyle", "a.b.costyle"};
    QCOMPARE(written_styles(), styles);
    for (const QString& style : styles) {
        const QByteArray window_document = read_all(out() + "/" + style);
        QVERIFY(window_document.contains("K=\"UUID\""));
        QCOMPARE(without_uuid(window_document), without_uuid(read_all(converted + "/" + style)));
    }
}

QTEST_MAIN(tst_conversion_run)
#include "tst_conversion_run.moc"
