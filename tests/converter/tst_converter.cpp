// The command-line converter as a user runs it: a real process, real folders.

#include "support/test_support.h"

#include <QtTest>

#include <cerrno>
#include <cstring>

namespace {

const QByteArray broken_template = "s = {\n\ttitle = \"Broken\"\n\tvalue = 1,\n}\n";

// Real Lua that the window's reader refuses: a localised title, an escape, a comment.
const QByteArray lua_template = "s = {\n"
                                "\ttitle = ZSTR \"$$$/Templates/Zerod=Zero'd\",\n"
                                "\tinternalName = \"\\\"Mild\\\" Curve\",\n"
                                "\ttype = \"Develop\",\n"
                                "\tvalue = { settings = { -- credit\n"
                                "\t\tExposure2012 = 0.5; ToneCurvePV2012 = {0, 0, 255, 250} } },\n"
                                "}\n";

// A develop template holding `settings` and nothing else.
QByteArray develop_template(const QByteArray& settings)
{
    return "s = {\n\ttitle = \"T\",\n\ttype = \"Develop\",\n\tvalue = {\n\t\tsettings = {\n" +
           settings + "\n\t\t},\n\t},\n}\n";
}

using run_result = test_support::process_result;
using test_support::read_all;
using test_support::warm_template;
using test_support::without_uuid;
using test_support::xmp_preset;

// A small tmpfs mounted for the life of the object, to stand for a full or a
// read-only disk. Needs the right to mount; `mounted()` says whether it worked.
class scoped_mount
{
public:
    scoped_mount(const QString& where, const QString& options) : where_(where)
    {
        QDir().mkpath(where);
        mounted_ =
            QProcess::execute(QStringLiteral("mount"),
                              {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                               options, QStringLiteral("tmpfs"), where}) == 0;
    }
    ~scoped_mount()
    {
        if (mounted_) {
            QProcess::execute(QStringLiteral("umount"), {where_});
        }
    }
    scoped_mount(const scoped_mount&) = delete;
    scoped_mount& operator=(const scoped_mount&) = delete;
    bool mounted() const { return mounted_; }

private:
    QString where_;
    bool mounted_ = false;
};

// Writes a file into `disk` until the disk takes no more.
void fill_up(const QString& disk)
{
    QFile filler(disk + QStringLiteral("/filler"));
    if (filler.open(QIODevice::WriteOnly)) {
        const QByteArray block(1024, 'x');
        while (filler.write(block) == block.size() && filler.flush()) {
        }
    }
}

} // namespace

class tst_converter : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void converts_folder_recursively_with_mixed_suffixes();
    void failures_are_reported_and_the_batch_goes_on();
    void output_folder_faults_data();
    void output_folder_faults();
    void target_taken_by_folder_keeps_other_files();
    void full_disk_leaves_no_partial_file();
    void read_only_disk();
    void name_collision_later_wins();
    void stylepacks_hold_the_separate_documents_data();
    void stylepacks_hold_the_separate_documents();
    void archive_path_that_cannot_be_created();
    void warnings_and_skips_data();
    void warnings_and_skips();
    void one_file_data();
    void one_file();
    void control_characters_never_reach_the_terminal();
    void archive_failure_says_why();
    void usage_errors_data();
    void usage_errors();
    void colour_space_from_saved_setting();
    void settings_store_untouched();
    void quiet_and_verbose();

private:
    run_result run(const QStringList& arguments);
    QString input(const QString& name, const QByteArray& contents);

    std::unique_ptr<QTemporaryDir> dir_;
    QString config_home_;
};

void tst_converter::init()
{
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(dir_->isValid());
    QDir(dir_->path()).mkpath(QStringLiteral("in"));
    QDir(dir_->path()).mkpath(QStringLiteral("out"));
    QDir(dir_->path()).mkpath(QStringLiteral("config"));
    config_home_ = dir_->filePath(QStringLiteral("config"));
}

run_result tst_converter::run(const QStringList& arguments)
{
    return test_support::run_program(QStringLiteral(LOOKWRIGHT_CONVERTER), dir_->path(), arguments);
}

QString tst_converter::input(const QString& name, const QByteArray& contents)
{
    const QString path = dir_->filePath(QStringLiteral("in/") + name);
    QDir().mkpath(QFileInfo(path).absolutePath());
    return test_support::write_file(QFileInfo(path).absolutePath(), QFileInfo(path).fileName(),
                                    contents);
}

void tst_converter::converts_folder_recursively_with_mixed_suffixes()
{
    input(QStringLiteral("Warm.lrtemplate"), warm_template);
    input(QStringLiteral("sub/Cool.XMP"), xmp_preset("Cool"));
    input(QStringLiteral("sub/deeper/Loud.LRTemplate"), warm_template);
    input(QStringLiteral("notes.txt"), "not a preset");
    const run_result result =
        run({QStringLiteral("-o"), QStringLiteral("out"), QStringLiteral("in")});
    QCOMPARE(result.exit_code, 0);
    QCOMPARE(result.out, QStringLiteral("3 converted, 0 skipped, 0 failed\n"));
    QCOMPARE(QDir(dir_->filePath(QStringLiteral("out"))).entryList(QDir::Files),
             (QStringList{"Cool.costyle", "Loud.costyle", "Warm.costyle"}));
    const QByteArray warm = read_all(dir_->filePath(QStringLiteral("out/Warm.costyle")));
    QVERIFY(warm.startsWith("<?xml version=\"1.0\"?>\n<SL Engine=\"900\">\n"));
    QVERIFY(warm.contains("<E K=\"Name\" V=\"Warm\"/>"));
    QVERIFY(warm.contains("<E K=\"Exposure\" V=\"0.571429\"/>"));
}

void tst_converter::failures_are_reported_and_the_batch_goes_on()
{
    const QString broken = input(QStringLiteral("Broken.lrtemplate"), broken_template);
    const QString text = input(QStringLiteral("notes.txt"), "not a preset");
    const QString good = input(QStringLiteral("Good.xmp"), xmp_preset("Good"));
    const run_result result =
        run({QStringLiteral("-o"), QStringLiteral("out"), broken, text, good});
    QCOMPARE(result.exit_code, 1);
    QCOMPARE(result.out, QStringLiteral("1 converted, 0 skipped, 2 failed\n"));
    QVERIFY2(result.err.contains(broken + QStringLiteral(": can't be read as a preset: line 3: '}' "
                                                         "expected (to close '{' at line 1) near "
                                                         "'value'")),
             qPrintable(result.err));
    QVERIFY2(result.err.contains(text + QStringLiteral(": unsupported preset format")),
             qPrintable(result.err));
    QVERIFY(QFileInfo::exists(dir_->filePath(QStringLiteral("out/Good.costyle"))));
    QVERIFY(!QFileInfo::exists(dir_->filePath(QStringLiteral("out/Broken.costyle"))));
}

void tst_converter::output_folder_faults_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("message");
    QTest::newRow("parent folder missing") << "missing/deeper"
                                           << "can't be made";
    QTest::newRow("output is a file") << "in/Warm.lrtemplate"
                                      << "the output folder is a file";
}

void tst_converter::output_folder_faults()
{
    QFETCH(QString, output);
    QFETCH(QString, message);
    const QString preset = input(QStringLiteral("Warm.lrtemplate"), warm_template);
    const run_result result = run({QStringLiteral("-o"), output, preset});
    QCOMPARE(result.exit_code, 1);
    QVERIFY2(result.err.contains(message), qPrintable(result.err));
    QCOMPARE(result.out, QStringLiteral("0 converted, 0 skipped, 1 failed\n"));
    QCOMPARE(read_all(preset), warm_template);
}

void tst_converter::target_taken_by_folder_keeps_other_files()
{
    const QString warm = input(QStringLiteral("Warm.lrtemplate"), warm_template);
    const QString cool = input(QStringLiteral("Cool.xmp"), xmp_preset("Cool"));
    QDir(dir_->path()).mkpath(QStringLiteral("out/Warm.costyle"));
    const run_result result = run({QStringLiteral("-o"), QStringLiteral("out"), warm, cool});
    QCOMPARE(result.exit_code, 1);
    QVERIFY2(result.err.contains(warm + QStringLiteral(": can't write '")), qPrintable(result.err));
    QVERIFY(QFileInfo(dir_->filePath(QStringLiteral("out/Warm.costyle"))).isDir());
    QVERIFY(QFileInfo(dir_->filePath(QStringLiteral("out/Cool.costyle"))).isFile());
    // Nothing half-written is left behind.
    QCOMPARE(QDir(dir_->filePath(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden),
             QStringList{QStringLiteral("Cool.costyle")});
}

void tst_converter::full_disk_leaves_no_partial_file()
{
    const QString disk = dir_->filePath(QStringLiteral("disk"));
    const scoped_mount mount(disk, QStringLiteral("size=16k"));
    if (!mount.mounted()) {
        QSKIP("mounting a small tmpfs needs privileges this run doesn't have");
    }
    const QByteArray old_style = "an older style";
    test_support::write_file(disk, QStringLiteral("Warm.costyle"), old_style);
    fill_up(disk);

    const QString warm = input(QStringLiteral("Warm.lrtemplate"), warm_template);
    const run_result result = run({QStringLiteral("-o"), disk, warm});
    QCOMPARE(result.exit_code, 1);
    QVERIFY2(result.err.contains(QStringLiteral("No space left on device")),
             qPrintable(result.err));
    QCOMPARE(read_all(disk + QStringLiteral("/Warm.costyle")), old_style);
    QCOMPARE(QDir(disk).entryList(QDir::Files | QDir::Hidden),
             (QStringList{QStringLiteral("filler"), QStringLiteral("Warm.costyle")}));
}

void tst_converter::read_only_disk()
{
    const QString disk = dir_->filePath(QStringLiteral("readonly"));
    const scoped_mount mount(disk, QStringLiteral("ro,size=16k"));
    if (!mount.mounted()) {
        QSKIP("mounting a read-only tmpfs needs privileges this run doesn't have");
    }
    const QString warm = input(QStringLiteral("Warm.lrtemplate"), warm_template);
    const run_result separate = run({QStringLiteral("-o"), disk, warm});
    QCOMPARE(separate.exit_code, 1);
    QVERIFY2(separate.err.contains(QStringLiteral("can't write")), qPrintable(separate.err));
    const run_result packed =
        run({QStringLiteral("-f"), QStringLiteral("stylepack"), QStringLiteral("-p"),
             disk + QStringLiteral("/x.costylepack"), warm});
    QCOMPARE(packed.exit_code, 1);
    QVERIFY2(packed.err.contains(QStringLiteral("can't write in the archive's folder: ")),
             qPrintable(packed.err));
    QCOMPARE(packed.out, QStringLiteral("0 converted, 0 skipped, 1 failed\n"));
    QCOMPARE(QDir(disk).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void tst_converter::name_collision_later_wins()
{
    const QString first = input(QStringLiteral("a/Look.lrtemplate"), warm_template);
    const QString second = input(QStringLiteral("b/Look.xmp"), xmp_preset("Second"));
    const run_result result = run({QStringLiteral("-o"), QStringLiteral("out"), first, second});
    QCOMPARE(result.exit_code, 0);
    QVERIFY2(result.err.contains(second + QStringLiteral(": replaces the style converted from '") +
                                 first),
             qPrintable(result.err));
    QVERIFY(read_all(dir_->filePath(QStringLiteral("out/Look.costyle")))
                .contains("<E K=\"Name\" V=\"Second\"/>"));
}

void tst_converter::stylepacks_hold_the_separate_documents_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("prefix");
    QTest::newRow("stylepack") << "stylepack"
                               << "";
    QTest::newRow("stylepack_category") << "stylepack_category"
                                        << "My Looks/";
}

void tst_converter::stylepacks_hold_the_separate_documents()
{
    QFETCH(QString, format);
    QFETCH(QString, prefix);
    input(QStringLiteral("Warm.lrtemplate"), warm_template);
    input(QStringLiteral("Cool.xmp"), xmp_preset("Cool", "crs:Temperature=\"6500\""));
    input(QStringLiteral("Ärger.xmp"), xmp_preset("Ärger"));
    const run_result separate =
        run({QStringLiteral("-o"), QStringLiteral("out"), QStringLiteral("in")});
    QCOMPARE(separate.exit_code, 0);
    const QString pack = dir_->filePath(QStringLiteral("My Looks.costylepack"));
    const run_result packed =
        run({QStringLiteral("-f"), format, QStringLiteral("-p"), pack, QStringLiteral("in")});
    QCOMPARE(packed.exit_code, 0);
    QCOMPARE(packed.out, QStringLiteral("3 converted, 0 skipped, 0 failed\n"));

    const QVector<test_support::archive_entry> entries = test_support::read_archive(pack);
    QStringList names;
    for (const test_support::archive_entry& entry : entries) {
        names << entry.name;
        const QString file = dir_->filePath(QStringLiteral("out/") + entry.name.mid(prefix.size()));
        QCOMPARE(without_uuid(entry.data), without_uuid(read_all(file)));
    }
    QCOMPARE(names, (QStringList{prefix + "Cool.costyle", prefix + "Warm.costyle",
                                 prefix + QStringLiteral("Ärger.costyle")}));
}

void tst_converter::archive_path_that_cannot_be_created()
{
    const QString preset = input(QStringLiteral("Warm.lrtemplate"), warm_template);
    const run_result in_missing_folder =
        run({QStringLiteral("-f"), QStringLiteral("stylepack"), QStringLiteral("-p"),
             QStringLiteral("nowhere/x.costylepack"), preset});
    QCOMPARE(in_missing_folder.exit_code, 1);
    QVERIFY(in_missing_folder.err.contains(QStringLiteral("the archive's folder doesn't exist")));
    const run_result on_folder = run({QStringLiteral("-f"), QStringLiteral("stylepack"),
                                      QStringLiteral("-p"), QStringLiteral("out"), preset});
    QCOMPARE(on_folder.exit_code, 1);
    QVERIFY(on_folder.err.contains(QStringLiteral("the archive path is a folder")));
}

void tst_converter::warnings_and_skips_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("summary");

    const QByteArray white_balance = "crs:Temperature=\"5500\"";
    const QByteArray table = "crs:RGBTable=\"\"";
    const QByteArray calibration = "crs:RedHue=\"10\"";
    QTest::newRow("white balance reported, converted")
        << white_balance << QStringList() << "white balance modified by preset"
        << "1 converted, 0 skipped, 0 failed\n";
    QTest::newRow("white balance skipped on request")
        << white_balance << QStringList{"--skip-white-balance"}
        << "skipped: white balance modified by preset"
        << "0 converted, 1 skipped, 0 failed\n";
    QTest::newRow("colour table reported") << table << QStringList() << "unsupported parameters"
                                           << "1 converted, 0 skipped, 0 failed\n";
    QTest::newRow("colour table skipped")
        << table << QStringList{"--skip-unsupported"} << "skipped: unsupported parameters"
        << "0 converted, 1 skipped, 0 failed\n";
    QTest::newRow("calibration skipped")
        << calibration << QStringList{"--skip-calibration"} << "skipped: camera calibration"
        << "0 converted, 1 skipped, 0 failed\n";
    QTest::newRow("other skip leaves calibration converted")
        << calibration << QStringList{"--skip-white-balance"} << "camera calibration modified"
        << "1 converted, 0 skipped, 0 failed\n";
}

void tst_converter::warnings_and_skips()
{
    QFETCH(QByteArray, attributes);
    QFETCH(QStringList, options);
    QFETCH(QString, message);
    QFETCH(QString, summary);
    const QString preset = input(QStringLiteral("Look.xmp"), xmp_preset("Look", attributes));
    const run_result result =
        run(options + QStringList{QStringLiteral("-o"), QStringLiteral("out"), preset});
    QCOMPARE(result.exit_code, 0);
    QCOMPARE(result.out, summary);
    QVERIFY2(result.err.contains(preset + QStringLiteral(": ") + message), qPrintable(result.err));
}

void tst_converter::one_file_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("summary");
    // A line the converter writes to standard error, %1 standing for the file's path.
    QTest::addColumn<QString>("line");
    // An entry of the style written, "K=V"; empty where none is written.
    QTest::addColumn<QString>("style");

    const QString converted = QStringLiteral("1 converted, 0 skipped, 0 failed\n");
    const QString skipped = QStringLiteral("0 converted, 1 skipped, 0 failed\n");
    const QString failed = QStringLiteral("0 converted, 0 skipped, 1 failed\n");
    const QStringList none;
    QByteArray random_bytes(3000, '\0');
    for (int i = 0; i < random_bytes.size(); ++i) {
        random_bytes[i] = char(i * 7919 % 251);
    }
    // clang-format off
    QTest::newRow("Lua template read with a warning") << "Zerod.lrtemplate" << lua_template << none
        << "1 converted, 0 skipped, 0 failed (1 template read as Lua)\n"
        << "warning: %1: read as Lua, which the window would refuse: Unexpected token type found. Expected token_type::comma, got token_type::str"
        << "Name=Zero'd";
    QTest::newRow("Lua the window would misread is read as Lua") << "Warm.lrtemplate"
        << QByteArray("s = {\n\ttitle = ZSTR(\"$$$/T/Warm=Warm\"),\n\ttype = \"Develop\",\n"
                      "\tvalue = { settings = { ToneCurveName2012 = 'Linear', Contrast2012 = 20; }, },\n}\n") << none
        << "1 converted, 0 skipped, 0 failed (1 template read as Lua)\n"
        << "warning: %1: read as Lua, which the window would misread: Contrast2012, ToneCurveName2012, title"
        << "Name=Warm";
    QTest::newRow("--strict: the window's reader alone") << "Zerod.lrtemplate" << lua_template << QStringList{"--strict"} << failed
        << "error: %1: can't be read as a preset: Unexpected token type found. Expected token_type::comma, got token_type::str" << "";
    QTest::newRow("unbalanced braces name their line") << "Open.lrtemplate" << QByteArray("s = {\n a = { 1\n}\n") << none << failed
        << "error: %1: can't be read as a preset: line 4: '}' expected (to close '{' at line 1) near end of file" << "";

    QTest::newRow("random bytes as XMP") << "junk.xmp" << random_bytes << none << failed
        << "error: %1: not a develop preset: no xmpmeta element where an XMP preset has one" << "";
    QTest::newRow("HTML page as XMP") << "page.xmp" << QByteArray("<!DOCTYPE html>\n<html><body><p>Presets</p></body></html>\n") << none << failed
        << "error: %1: not a develop preset: no xmpmeta element where an XMP preset has one" << "";
    QTest::newRow("XMP without RDF") << "bare.xmp" << QByteArray("<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><x:other/></x:xmpmeta>") << none << failed
        << "error: %1: not a develop preset: no RDF element where an XMP preset has one" << "";
    QTest::newRow("empty XMP") << "empty.xmp" << QByteArray() << none << failed << "error: %1: not a develop preset: the file is empty" << "";
    QTest::newRow("blank template") << "blank.lrtemplate" << QByteArray(" \n\t\r\n") << none << failed
        << "error: %1: not a develop preset: the file holds only white space" << "";
    QTest::newRow("keyword-set template") << "Travel.lrtemplate"
        << QByteArray("s = {\n\ttitle = \"Travel\",\n\ttype = \"KeywordSet\",\n\tvalue = { \"beach\", \"city\" },\n}\n") << none << failed
        << "error: %1: not a develop preset: a template of type \"KeywordSet\"" << "";
    QTest::newRow("print template in the line form") << "Contact.lrtemplate"
        << QByteArray("s.value.settings = {}\n  s.title = \"Contact\"\n  s.type = \"Print\"\n") << none << failed
        << "error: %1: not a develop preset: a template of type \"Print\"" << "";

    QTest::newRow("only a lens vignette") << "Vignette.lrtemplate" << develop_template("VignetteAmount = -30, VignetteMidpoint = 50,") << none << skipped
        << "warning: %1: skipped: nothing in it maps to a style (it holds only a lens vignette)" << "";
    QTest::newRow("a switch left off is not named") << "Grain.lrtemplate" << develop_template("GrainAmount = 0, ConvertToGrayscale = false, VignetteAmount = -30,") << none << skipped
        << "warning: %1: skipped: nothing in it maps to a style (it holds only a lens vignette)" << "";
    QTest::newRow("only the white-balance mode") << "Shot.lrtemplate" << develop_template("WhiteBalance = \"As Shot\", ProcessVersion = \"6.7\",") << none << skipped
        << "warning: %1: skipped: nothing in it maps to a style (it holds only the white-balance mode)" << "";
    QTest::newRow("only lens corrections and an unknown key") << "Lens.lrtemplate"
        << develop_template("LensProfileEnable = 1, PerspectiveVertical = 5, AutoLateralCA = 1, orientation = \"BC\",") << none << skipped
        << "warning: %1: skipped: nothing in it maps to a style (it holds only lens corrections and orientation)" << "";
    QTest::newRow("only local corrections") << "Local.lrtemplate"
        << develop_template("GradientBasedCorrections = {\n{\nCorrectionAmount = 1,\n},\n},") << none << skipped
        << "warning: %1: skipped: nothing in it maps to a style (it holds only local corrections)" << "";
    QTest::newRow("no settings at all") << "Bare.lrtemplate" << develop_template("") << none << skipped
        << "warning: %1: skipped: it holds no develop settings" << "";
    QTest::newRow("a photo's metadata") << "IMG_0001.xmp"
        << xmp_preset("").replace("crs:Exposure2012=\"+0.50\"", "xmlns:tiff=\"http://ns.adobe.com/tiff/1.0/\" tiff:Make=\"Maker\"")
        << none << skipped << "warning: %1: skipped: a photo's metadata without develop settings" << "";
    QTest::newRow("a photo's sidecar with develop settings") << "IMG_0002.xmp"
        << xmp_preset("", "xmlns:tiff=\"http://ns.adobe.com/tiff/1.0/\" tiff:Make=\"Maker\"") << none << converted
        << "" << "Exposure=0.571429";
    QTest::newRow("an open quote early in a long template") << "Quote.lrtemplate"
        << "s = {\n\ttitle = \"Open,\n" + QByteArray("\tExposure2012 = 0.5,\n").repeated(500) + "}\n" << none << failed
        << "error: %1: can't be read as a preset: line 2: unfinished string" << "";
    const QByteArray cut = xmp_preset("Cut");
    QTest::newRow("the core's log line names its file") << "Cut.xmp" << cut.left(cut.indexOf("<crs:Name>") + 14) << none << converted
        << "warning: %1: Premature end of document." << "Exposure=0.571429";
    // clang-format on
}

void tst_converter::one_file()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, contents);
    QFETCH(QStringList, options);
    QFETCH(QString, summary);
    QFETCH(QString, line);
    QFETCH(QString, style);

    const QString path = input(name, contents);
    const run_result result =
        run(options + QStringList{QStringLiteral("-o"), QStringLiteral("out"), path});
    QCOMPARE(result.out, summary);
    QCOMPARE(result.exit_code, summary.contains(QLatin1String(" 1 failed")) ? 1 : 0);
    for (const QString& error_line : result.err.split(QLatin1Char('\n'))) {
        QVERIFY2(error_line.size() < 1200, qPrintable(error_line.left(200)));
    }
    QVERIFY2(line.isEmpty() ||
                 result.err.split(QLatin1Char('\n'))
                     .contains(QStringLiteral("lookwright-convert: ") + line.arg(path)),
             qPrintable(result.err));
    const QStringList written = QDir(dir_->filePath(QStringLiteral("out"))).entryList(QDir::Files);
    QCOMPARE(written.size(), style.isEmpty() ? 0 : 1);
    if (!style.isEmpty()) {
        QVERIFY(test_support::document_entries(QString::fromUtf8(read_all(dir_->filePath(
                                                   QStringLiteral("out/") + written[0]))))
                    .contains(style));
    }
}

void tst_converter::control_characters_never_reach_the_terminal()
{
    // An ESC, a byte that is no UTF-8 and a right-to-left override in a broken
    // template's title reach the reader's log line, and an ESC in a file name every
    // message about the file.
    const QString title = input(QStringLiteral("Title.lrtemplate"),
                                "s = {\n\ttitle = \"Red \x1b[31mtitle \xff\xe2\x80\xae\"\n"
                                "\tvalue = 1,\n}\n");
    const QString name = input(QStringLiteral("Name\x1b]0;x\x07.xmp"), QByteArray());
    const run_result result = run({QStringLiteral("-o"), QStringLiteral("out"), title, name});
    QCOMPARE(result.exit_code, 1);
    QVERIFY2(!result.err.contains(QLatin1Char('\x1b')) && !result.err.contains(QLatin1Char('\x07')),
             qPrintable(result.err));
    QVERIFY2(!result.err.contains(QChar(0xfffd)) && !result.err.contains(QChar(0x202e)),
             qPrintable(result.err));
    QVERIFY2(result.err.contains(QStringLiteral("Red \\x1b[31mtitle \\ufffd\\u202e")),
             qPrintable(result.err));
    QVERIFY2(result.err.contains(QStringLiteral("Name\\x1b]0;x\\x07.xmp: not a develop preset")),
             qPrintable(result.err));
}

void tst_converter::archive_failure_says_why()
{
    const QString disk = dir_->filePath(QStringLiteral("disk"));
    const scoped_mount mount(disk, QStringLiteral("size=16k"));
    if (!mount.mounted()) {
        QSKIP("mounting a small tmpfs needs privileges this run doesn't have");
    }
    // The folder takes a file, but not the archive's data.
    fill_up(disk);
    const QString pack = disk + QStringLiteral("/x.costylepack");
    const run_result result =
        run({QStringLiteral("-f"), QStringLiteral("stylepack"), QStringLiteral("-p"), pack,
             input(QStringLiteral("Warm.lrtemplate"), warm_template)});
    QCOMPARE(result.exit_code, 1);
    QVERIFY2(result.err.contains(pack + QStringLiteral(": the archive could not be written: ")) &&
                 result.err.contains(QString::fromLocal8Bit(std::strerror(ENOSPC))),
             qPrintable(result.err));
}

void tst_converter::usage_errors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("no input") << QStringList() << "No preset or folder given.";
    QTest::newRow("unknown format") << QStringList{"-f", "zip", "in"} << "Unknown format 'zip'";
    QTest::newRow("stylepack without --pack")
        << QStringList{"-f", "stylepack", "in"} << "needs --pack FILE";
    QTest::newRow("--pack with separate")
        << QStringList{"-p", "x.costylepack", "in"} << "--pack goes with";
    QTest::newRow("unknown option") << QStringList{"--frobnicate", "in"} << "frobnicate";
    QTest::newRow("quiet and verbose") << QStringList{"-q", "-v", "in"} << "exclude each other";
}

void tst_converter::usage_errors()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    const run_result result = run(arguments);
    QCOMPARE(result.exit_code, 2);
    QVERIFY2(result.err.contains(message), qPrintable(result.err));
    QCOMPARE(result.out, QString());
}

void tst_converter::colour_space_from_saved_setting()
{
    QDir(config_home_).mkpath(QStringLiteral("Corvane"));
    test_support::write_file(config_home_ + QStringLiteral("/Corvane"),
                             QStringLiteral("Lookwright.conf"), "[General]\ncolorspace=srgb\n");
    const QString preset = input(QStringLiteral("Warm.lrtemplate"), warm_template);
    const run_result saved =
        run({QStringLiteral("-v"), QStringLiteral("-o"), QStringLiteral("out"), preset});
    QVERIFY(saved.err.contains(QStringLiteral("Using sRGB colorspace (converting)")));
    const run_result given =
        run({QStringLiteral("-v"), QStringLiteral("-c"), QStringLiteral("adobe"),
             QStringLiteral("-o"), QStringLiteral("out"), preset});
    QVERIFY(given.err.contains(QStringLiteral("Using AdobeRGB colorspace (converting)")));
    const run_result unknown = run({QStringLiteral("-c"), QStringLiteral("sRGB"),
                                    QStringLiteral("-o"), QStringLiteral("out"), preset});
    QCOMPARE(unknown.exit_code, 0);
    QVERIFY(unknown.err.contains(QStringLiteral("sRGB: unknown colour space")));
}

void tst_converter::settings_store_untouched()
{
    const QString preset = input(QStringLiteral("Warm.lrtemplate"), warm_template);
    run({QStringLiteral("-c"), QStringLiteral("prophoto"), QStringLiteral("-o"),
         QStringLiteral("out"), preset});
    QCOMPARE(QDir(config_home_).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());

    QDir(config_home_).mkpath(QStringLiteral("Corvane"));
    const QByteArray stored = "[General]\ncolorspace=widegamut\nformat=stylepack\n";
    const QString conf = test_support::write_file(config_home_ + QStringLiteral("/Corvane"),
                                                  QStringLiteral("Lookwright.conf"), stored);
    run({QStringLiteral("-c"), QStringLiteral("srgb"), QStringLiteral("-o"), QStringLiteral("out"),
         preset});
    QCOMPARE(read_all(conf), stored);
}

void tst_converter::quiet_and_verbose()
{
    const QString preset =
        input(QStringLiteral("Look.xmp"), xmp_preset("Look", "crs:Temperature=\"5500\""));
    const QString broken = input(QStringLiteral("Broken.lrtemplate"), broken_template);
    const run_result quiet =
        run({QStringLiteral("-q"), QStringLiteral("-o"), QStringLiteral("out"), preset, broken});
    QCOMPARE(quiet.exit_code, 1);
    QCOMPARE(quiet.out, QString());
    QVERIFY(!quiet.err.contains(QStringLiteral("white balance")));
    QVERIFY(quiet.err.contains(QStringLiteral("error: ") + broken));
    const run_result verbose =
        run({QStringLiteral("-v"), QStringLiteral("-o"), QStringLiteral("out"), preset});
    QVERIFY(verbose.err.contains(QStringLiteral("lookwright-convert: debug: ") + preset));
    QVERIFY(verbose.err.contains(QStringLiteral("lookwright-convert: info: ") + preset +
                                 QStringLiteral(": Wrote '")));
}

QTEST_GUILESS_MAIN(tst_converter)
#include "tst_converter.moc"
