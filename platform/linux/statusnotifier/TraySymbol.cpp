#include "platform/linux/statusnotifier/TraySymbol.h"

#include "platform/Log.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QtEndian>

#include <array>

namespace norvin {

namespace {

constexpr std::array sizes{16, 22, 24, 32, 48};
constexpr const char* colour = "#8b5cf6";

TrayPicture drawn(QSvgRenderer& renderer, int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    image = image.convertToFormat(QImage::Format_ARGB32);
    TrayPicture picture{size, size, QByteArray(size * size * 4, Qt::Uninitialized)};
    // Rows of four-byte pixels leave no gap between them.
    qToBigEndian<quint32>(image.constBits(), size * size, picture.pixels.data());
    return picture;
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const TrayPicture& picture) {
    argument.beginStructure();
    argument << picture.width << picture.height << picture.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayPicture& picture) {
    argument.beginStructure();
    argument >> picture.width >> picture.height >> picture.pixels;
    argument.endStructure();
    return argument;
}

QList<TrayPicture> drawnForTray(const QString& symbolFile) {
    QFile file(symbolFile);
    if (!file.open(QIODevice::ReadOnly)) {
        logLine(QStringLiteral("TraySymbol: There is no symbol %1").arg(symbolFile));
        return {};
    }
    // The renderer knows no currentColor.
    QSvgRenderer renderer(file.readAll().replace("currentColor", colour));
    QList<TrayPicture> pictures;
    for (const int size : sizes)
        pictures.append(drawn(renderer, size));
    return pictures;
}

} // namespace norvin
