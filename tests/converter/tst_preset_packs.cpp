// Preset packs as a user meets them: ZIP archives of presets in folders, with
// other files beside them, now and then damaged or hostile, converted by the real
// converter process. And the batch's one flush, which must fail the batch when the
// disk reports a failure.

#include "support/test_support.h"

#include <QtTest>

#include <cerrno>
#include <cstring>

namespace {

using test_support::archive_entry;
using test_support::warm_template;
using test_support::xmp_preset;

// What an entry holds, chosen by its name: presets by suffix, "Big.xmp" many
// megabytes of zeros (a few kilobytes packed), anything else a line of text.
QByteArray contents_for(const QString& name)
{
    const QString suffix = QFileInfo(name).suffix().toLower();
    if (name.endsWith(QLatin1String("Big.xmp"))) {
        return QByteArray(17 << 20, '\0');
    }
    if (suffix == QLatin1String("xmp")) {
        return xmp_preset(QFileInfo(name).completeBaseName().toUtf8());
    }
    if (suffix == QLatin1String("lrtemplate")) {
        return warm_template;
    }
    return "not a preset\n";
}

void put_little_endian(QByteArray& bytes, int at, quint32 value)
{
    qToLittleEndian(value, bytes.data() + at);
}

// The archive's own word about an entry is kept twice: in the local header before
// its data and in the central directory at the end. This finds both by the name.
struct entry_headers
{
    int local = -1;
    int central = -1;
};

entry_headers headers_of(const QByteArray& archive, const QByteArray& name)
{
    entry_headers found;
    for (int at = archive.indexOf("PK\x03\x04"); at >= 0;
         at = archive.indexOf("PK\x03\x04", at + 4)) {
        if (archive.mid(at + 30, name.size()) == name) {
            found.local = at;
            break;
        }
    }
    for (int at = archive.indexOf("PK\x01\x02"); at >= 0;
         at = archive.indexOf("PK\x01\x02", at + 4)) {
        if (archive.mid(at + 46, name.size()) == name) {
            found.central = at;
            break;
        }
    }
    return found;
}

// Changes the archive at `path`: "corrupt" garbles the packed data of `entry`,
// "declare N" makes both headers claim an unpacked size of N bytes.
bool craft(const QString& path, const QString& how, const QByteArray& entry)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)) {
        return false;
    }
    QByteArray bytes = file.readAll();
    const entry_headers at = headers_of(bytes, entry);
    if (at.local < 0 || at.central < 0) {
        return false;
    }
    if (how == QLatin1String("corrupt")) {
        const int data = at.local + 30 +
                         qFromLittleEndian<quint16>(bytes.constData() + at.local + 26) +
                         qFromLittleEndian<quint16>(bytes.constData() + at.local + 28);
        for (int i = 4; i < 24; ++i) {
            bytes[data + i] = char(bytes[data + i] ^ 0x5a);
        }
    } else {
        const quint32 size = how.section(QLatin1Char(' '), 1).toUInt();
        put_little_endian(bytes, at.local + 22, size);
        put_little_endian(bytes, at.central + 24, size);
    }
    file.seek(0);
    return file.write(bytes) == bytes.size();
}

using run_result = test_support::process_result;
using test_support::read_all;
using test_support::without_uuid;
} // namespace

class tst_preset_packs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void pack_data();
    void pack();
    void entries_convert_as_the_same_files_on_disk();
    void packs_in_folders_and_collisions_with_files();
    void failed_flush_fails_the_batch_data();
    void failed_flush_fails_the_batch();

private:
    run_result run(const QStringList& arguments,
                   const QProcessEnvironment& extra = QProcessEnvironment());
    QString out_path(const QString& name = QString()) const
    {
        return dir_->filePath(QStringLiteral("out/") + name);
    }
    QStringList styles_written() const
    {
        return QDir(out_path()).entryList(QDir::Files | QDir::Hidden);
    }

    std::unique_ptr<QTemporaryDir> dir_;
};

void tst_preset_packs::init()
{
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(dir_->isValid());
    QVERIFY(QDir(dir_->path()).mkpath(QStringLiteral("out")));
    QVERIFY(QDir(dir_->path()).mkpath(QStringLiteral("config")));
}

run_result tst_preset_packs::run(const QStringList& arguments, const QProcessEnvironment& extra)
{
    return test_support::run_program(QStringLiteral(LOOKWRIGHT_CONVERTER), dir_->path(), arguments,
                                     extra);
}

void tst_preset_packs::pack_data()
{
    QTest::addColumn<QStringList>("entries");
    // How the archive is changed: "corrupt ENTRY", "declare SIZE ENTRY", "many"
    // (thousands of entries more) or "not zip" (no archive at all); empty for none.
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("summary");
    // A line on standard error, %1 standing for the archive; empty for none.
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("styles");

    // clang-format off
    QTest::newRow("presets in folders, other files passed over")
        << QStringList{"Film/", "Film/Warm.lrtemplate", "Film/Moody/Cool.XMP", "Film/readme.txt", "cover.jpg",
                       "__MACOSX/Film/._Warm.lrtemplate", "Film/Moody/Dusk.Xmp"}
        << "" << "3 converted, 0 skipped, 0 failed\n" << ""
        << QStringList{"Cool.costyle", "Dusk.costyle", "Warm.costyle"};
    QTest::newRow("damaged entry, the others converted")
        << QStringList{"A.xmp", "Bad.xmp", "C.lrtemplate"} << "corrupt Bad.xmp"
        << "2 converted, 0 skipped, 1 failed\n" << "error: %1:Bad.xmp: is damaged: "
        << QStringList{"A.costyle", "C.costyle"};
    QTest::newRow("declared size past the limit")
        << QStringList{"Huge.xmp", "Fine.xmp"} << "declare 4000000000 Huge.xmp"
        << "1 converted, 0 skipped, 1 failed\n"
        << "error: %1:Huge.xmp: declares 4000000000 bytes, more than the 16 MiB a preset may hold"
        << QStringList{"Fine.costyle"};
    QTest::newRow("small declared size, large contents")
        << QStringList{"Big.xmp", "Fine.xmp"} << "declare 900 Big.xmp"
        << "1 converted, 0 skipped, 1 failed\n"
        << "error: %1:Big.xmp: unpacks to more than 16 MiB, more than a preset may hold"
        << QStringList{"Fine.costyle"};
    QTest::newRow("thousands of entries")
        << QStringList{"Fine.xmp"} << "many" << "0 converted, 0 skipped, 1 failed\n"
        << "error: %1: holds 20001 entries, more than the 20000 a preset pack may hold; nothing in it was read"
        << QStringList();
    QTest::newRow("archive inside the archive not opened")
        << QStringList{"More.zip", "Fine.xmp"} << "" << "1 converted, 0 skipped, 0 failed\n"
        << "warning: %1:More.zip: an archive inside an archive is not opened; unpack it to convert its presets"
        << QStringList{"Fine.costyle"};
    QTest::newRow("no presets") << QStringList{"notes.txt"} << "" << "0 converted, 0 skipped, 0 failed\n"
        << "warning: %1: holds no .xmp or .lrtemplate presets" << QStringList();
    QTest::newRow("not an archive") << QStringList() << "not zip" << "0 converted, 0 skipped, 1 failed\n"
        << "error: %1: can't be read as an archive: Not a zip archive" << QStringList();
    // clang-format on
}

void tst_preset_packs::pack()
{
    QFETCH(QStringList, entries);
    QFETCH(QString, change);
    QFETCH(QString, summary);
    QFETCH(QString, line);
    QFETCH(QStringList, styles);

    QVector<archive_entry> contents;
    for (const QString& name : entries) {
        contents.append(
            {name, name.endsWith(QLatin1Char('/')) ? QByteArray() : contents_for(name)});
    }
    if (change == QLatin1String("many")) {
        for (int i = 0; i < 20000; ++i) {
            contents.append({QStringLiteral("n/%1.txt").arg(i), QByteArray()});
        }
    }
    const QString archive = dir_->filePath(QStringLiteral("Pack.zip"));
    if (change == QLatin1String("not zip")) {
        test_support::write_file(dir_->path(), QStringLiteral("Pack.zip"), QByteArray(2000, 'z'));
    } else {
        QVERIFY(test_support::write_archive(archive, contents));
    }
    if (change.startsWith(QLatin1String("corrupt")) ||
        change.startsWith(QLatin1String("declare"))) {
        QVERIFY(craft(archive, change.section(QLatin1Char(' '), 0, -2),
                      change.section(QLatin1Char(' '), -1).toUtf8()));
    }

    const run_result result = run({QStringLiteral("-o"), QStringLiteral("out"), archive});
    QCOMPARE(result.out, summary);
    QCOMPARE(result.exit_code, summary.contains(QLatin1String(" 0 failed")) ? 0 : 1);
    QVERIFY2(line.isEmpty() ||
                 result.err.contains(QStringLiteral("lookwright-convert: ") + line.arg(archive)),
             qPrintable(result.err));
    QCOMPARE(styles_written(), styles);
}

// The same presets, once as files in folders and once packed in the same folders,
// give the same documents.
void tst_preset_packs::entries_convert_as_the_same_files_on_disk()
{
    const QString presets = QStringLiteral(LOOKWRIGHT_SHARED_PRESETS);
    if (!QFileInfo(presets).isDir()) {
        QSKIP(qPrintable(QStringLiteral("No folder of real presets at %1.").arg(presets)));
    }
    QVector<archive_entry> contents;
    QDirIterator it(presets, {QStringLiteral("*.xmp"), QStringLiteral("*.lrtemplate")}, QDir::Files,
                    QDirIterator::Subdirectories);
    QStringList files;
    while (it.hasNext()) {
        files << it.next();
    }
    std::sort(files.begin(), files.end());
    QVERIFY(files.size() > 20);
    for (const QString& file : files) {
        contents.append({QDir(presets).relativeFilePath(file), read_all(file)});
    }
    const QString archive = dir_->filePath(QStringLiteral("Real.zip"));
    QVERIFY(test_support::write_archive(archive, contents));

    const QStringList common{QStringLiteral("-q"), QStringLiteral("-c"), QStringLiteral("srgb")};
    const run_result from_disk =
        run(common + QStringList{QStringLiteral("-o"), QStringLiteral("out"), presets});
    QVERIFY(QDir(dir_->path()).mkpath(QStringLiteral("packed")));
    const run_result from_pack =
        run(common + QStringList{QStringLiteral("-o"), QStringLiteral("packed"), archive});
    QCOMPARE(from_pack.exit_code, from_disk.exit_code);
    const QStringList names = styles_written();
    QVERIFY(names.size() > 20);
    QCOMPARE(QDir(dir_->filePath(QStringLiteral("packed"))).entryList(QDir::Files | QDir::Hidden),
             names);
    for (const QString& name : names) {
        QCOMPARE(without_uuid(read_all(dir_->filePath(QStringLiteral("packed/") + name))),
                 without_uuid(read_all(out_path(name))));
    }
}

void tst_preset_packs::packs_in_folders_and_collisions_with_files()
{
    const QString folder = dir_->filePath(QStringLiteral("in"));
    QVERIFY(QDir().mkpath(folder + QStringLiteral("/deeper")));
    QVERIFY(test_support::write_archive(folder + QStringLiteral("/deeper/Looks.ZIP"),
                                        {{QStringLiteral("Set/Warm.xmp"), xmp_preset("Packed")}}));
    test_support::write_file(folder, QStringLiteral("Warm.lrtemplate"), warm_template);
    const run_result result =
        run({QStringLiteral("-o"), QStringLiteral("out"), QStringLiteral("in")});
    QCOMPARE(result.out, QStringLiteral("2 converted, 0 skipped, 0 failed\n"));
    // The walk takes paths in order: the packed preset comes second and wins.
    QVERIFY2(
        result.err.contains(QStringLiteral("in/deeper/Looks.ZIP:Set/Warm.xmp: replaces the style "
                                           "converted from 'in/Warm.lrtemplate'")),
        qPrintable(result.err));
    QVERIFY(read_all(out_path(QStringLiteral("Warm.costyle")))
                .contains("<E K=\"Name\" V=\"Packed\"/>"));
}

void tst_preset_packs::failed_flush_fails_the_batch_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("folder");
    QTest::newRow("separate styles") << QStringList{"-o", "out"} << "out";
    QTest::newRow("stylepack") << QStringList{"-f", "stylepack", "-p", "out/Looks.costylepack"}
                               << "out";
}

// The shim stands in for the C library's flush of a file system and reports an
// input/output error, as a disk whose write-back failed does.
void tst_preset_packs::failed_flush_fails_the_batch()
{
#if !defined(Q_OS_LINUX)
    QSKIP("the failing flush is shown with a preloaded library, which only Linux loads this way");
#endif
    QFETCH(QStringList, options);
    QFETCH(QString, folder);
    const QString preset =
        test_support::write_file(dir_->path(), QStringLiteral("Warm.lrtemplate"), warm_template);
    const QString archive = dir_->filePath(QStringLiteral("Pack.zip"));
    QVERIFY(
        test_support::write_archive(archive, {{QStringLiteral("Cool.xmp"), xmp_preset("Cool")}}));

    QProcessEnvironment failing;
    failing.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(LOOKWRIGHT_FAILING_FLUSH));
    const run_result result = run(options + QStringList{preset, archive}, failing);
    QCOMPARE(result.exit_code, 1);
    QCOMPARE(result.out, QStringLiteral("0 converted, 0 skipped, 2 failed\n"));
    QVERIFY2(result.err.contains(QStringLiteral("error: %1: what was written here could not be "
                                                "flushed to the disk, so none of it counts as "
                                                "converted: %2")
                                     .arg(folder, QString::fromLocal8Bit(std::strerror(EIO)))),
             qPrintable(result.err));

    const run_result healthy = run(options + QStringList{preset, archive});
    QCOMPARE(healthy.out, QStringLiteral("2 converted, 0 skipped, 0 failed\n"));
}

QTEST_GUILESS_MAIN(tst_preset_packs)
#include "tst_preset_packs.moc"
