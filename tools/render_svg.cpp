// Renders one SVG source to a PNG of a given size. The build runs it for every
// image of the toolkit and the program, so that each picture has one readable
// source in resources/ and the PNGs never drift from it.
//
//   render_svg SOURCE.svg WIDTH HEIGHT OUTPUT.png
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::fprintf(stderr, "usage: render_svg SOURCE.svg WIDTH HEIGHT OUTPUT.png\n");
        return 2;
    }
    // Text in a drawing needs the font machinery of a GUI application; no screen is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);

    const QString source = QString::fromLocal8Bit(argv[1]);
    bool width_ok = false;
    bool height_ok = false;
    const int width = QByteArray(argv[2]).toInt(&width_ok);
    const int height = QByteArray(argv[3]).toInt(&height_ok);
    if (!width_ok || !height_ok || width <= 0 || height <= 0) {
        std::fprintf(stderr, "render_svg: bad size %s x %s\n", argv[2], argv[3]);
        return 2;
    }

    QSvgRenderer renderer(source);
    if (!renderer.isValid()) {
        std::fprintf(stderr, "render_svg: can't read %s\n", argv[1]);
        return 1;
    }
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter, QRectF(0, 0, width, height));
    }
    if (!image.save(QString::fromLocal8Bit(argv[4]), "PNG")) {
        std::fprintf(stderr, "render_svg: can't write %s\n", argv[4]);
        return 1;
    }
    return 0;
}
