#include "refhost/validator/IconPicture.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

/// Whether the icon can be read at all; if so it is painted all over the image.
bool render(const QString &path, QImage &image)
{
    QPainter painter(&image);
    if (path.endsWith(QLatin1String(".svg")) || path.endsWith(QLatin1String(".svgz"))) {
        QSvgRenderer renderer(path);
        renderer.render(&painter);
        return renderer.isValid();
    }
    const QImage picture(path);
    painter.drawImage(image.rect(), picture);
    return !picture.isNull();
}

bool isOfOneColour(const QImage &image)
{
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != first)
                return false;
        }
    }
    return true;
}

} // namespace

bool canRenderIcons()
{
    return true;
}

std::unique_ptr<QCoreApplication> makeIconApplication(int &argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    return std::make_unique<QGuiApplication>(argc, argv);
}

QString iconFault(const QString &path, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (!render(path, image))
        return QStringLiteral("is no picture that can be shown");
    return isOfOneColour(image) ? QStringLiteral("shows nothing at %1 pixels").arg(size)
                                : QString();
}
