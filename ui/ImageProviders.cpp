#include "ui/ImageProviders.h"

#include "platform/ApplicationCatalog.h"
#include "platform/Log.h"

#include <QColor>
#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QSvgRenderer>
#include <QUrl>

namespace norvin {

namespace {

constexpr QSize usualSize(24, 24);
constexpr auto identifierPrefix = QLatin1String("of:");

/// The symbol drawn in one colour; null for an unknown name.
QPixmap drawnSymbol(const QString& name, const QColor& color, const QSize& size) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        logLine(QStringLiteral("SymbolProvider: There is no symbol \"%1\"").arg(name));
        return {};
    }
    // The renderer knows no currentColor, so the colour is put into the drawing itself.
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", color.name(QColor::HexRgb).toLatin1());
    QSvgRenderer renderer(drawing);
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(color.alphaF());
    renderer.render(&painter);
    return pixmap;
}

QSize sizeFor(const QSize& requested) {
    return requested.width() > 0 && requested.height() > 0 ? requested : usualSize;
}

} // namespace

AppIconProvider::AppIconProvider()
    : QQuickImageProvider(QQuickImageProvider::Pixmap) {}

QPixmap AppIconProvider::requestPixmap(const QString& id, QSize* size, const QSize& requestedSize) {
    QString name = QUrl::fromPercentEncoding(id.toUtf8());
    if (name.startsWith(identifierPrefix)) {
        const auto application =
            m_catalog != nullptr ? m_catalog->application(name.mid(identifierPrefix.size())) : std::nullopt;
        name = application ? application->iconName : QString();
    }
    const QSize wanted = sizeFor(requestedSize);
    QPixmap pixmap;
    if (name.startsWith(QLatin1Char('/')))
        pixmap = QIcon(name).pixmap(wanted);
    else if (!name.isEmpty())
        pixmap = QIcon::fromTheme(name).pixmap(wanted);
    if (pixmap.isNull())
        pixmap = drawnSymbol(QStringLiteral("app"), QColor(0x8f8fa8), wanted);
    *size = pixmap.size();
    return pixmap;
}

SymbolProvider::SymbolProvider()
    : QQuickImageProvider(QQuickImageProvider::Pixmap) {}

QPixmap SymbolProvider::requestPixmap(const QString& id, QSize* size, const QSize& requestedSize) {
    const qsizetype slash = id.lastIndexOf(QLatin1Char('/'));
    const QString name = id.left(slash);
    const QColor color(QLatin1Char('#') + id.mid(slash + 1));
    const QPixmap pixmap =
        drawnSymbol(name, color.isValid() ? color : QColor(Qt::white), sizeFor(requestedSize));
    *size = pixmap.size();
    return pixmap;
}

} // namespace norvin
