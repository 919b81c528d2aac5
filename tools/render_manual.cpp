// Renders the user manual from its HTML source to a PDF, so that the manual
// ships as a document a user can print or keep, while its text stays readable
// and reviewable as HTML in resources/help.
//
//   render_manual SOURCE.html OUTPUT.pdf
#include <QFile>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>

#include <cstdio>

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: render_manual SOURCE.html OUTPUT.pdf\n");
        return 2;
    }
    // Laying out text needs the font machinery of a GUI application; no screen is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);

    QFile source(QString::fromLocal8Bit(argv[1]));
    if (!source.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "render_manual: can't read %s\n", argv[1]);
        return 1;
    }
    QTextDocument document;
    document.setHtml(QString::fromUtf8(source.readAll()));

    QPdfWriter writer(QString::fromLocal8Bit(argv[2]));
    writer.setTitle(document.metaInformation(QTextDocument::DocumentTitle));
    writer.setCreator(QStringLiteral("Lookwright build"));
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                     QMarginsF(20, 16, 20, 16), QPageLayout::Millimeter));
    document.print(&writer);
    if (!QFile::exists(QString::fromLocal8Bit(argv[2]))) {
        std::fprintf(stderr, "render_manual: can't write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
