#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QList>
#include <QString>

namespace norvin {

/// A picture as trays are given it.
struct TrayPicture {
    int width = 0;
    int height = 0;
    /// Four bytes a pixel, alpha, red, green, blue, not premultiplied, row after row.
    QByteArray pixels;
};

QDBusArgument& operator<<(QDBusArgument& argument, const TrayPicture& picture);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayPicture& picture);

/// The symbol of an SVG file in the sizes that trays have, so that no icon theme is needed: in a colour that
/// can be told from a dark bar and from a light one.
/// @return empty where the file cannot be read; logged
[[nodiscard]] QList<TrayPicture> drawnForTray(const QString& symbolFile);

} // namespace norvin

Q_DECLARE_METATYPE(norvin::TrayPicture)
