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

/// The symbol drawn in white; null for an unknown name.
QPixmap drawnSymbol(const QString& name, const QSize& size) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        logLine(QStringLiteral("SymbolProvider: There is no symbol \"%1\"").arg(name));
        return {};
    }
    // The renderer knows no currentColor.
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", "#ffffff");
    QSvgRenderer renderer(drawing);
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}

QPixmap coloured(QPixmap symbol, const QColor& color) {
    if (!symbol.isNull()) {
        QPainter painter(&symbol);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(symbol.rect(), color);
    }
    return symbol;
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
        pixmap = coloured(drawnSymbol(QStringLiteral("app"), wanted), QColor(0x8f8fa8));
    *size = pixmap.size();
    return pixmap;
}

SymbolProvider::SymbolProvider()
    : QQuickImageProvider(QQuickImageProvider::Pixmap) {}

void SymbolProvider::prepare(const QString& name, int size) {
    m_prepared.insert({name, size}, drawnSymbol(name, QSize(size, size)));
}

QPixmap SymbolProvider::requestPixmap(const QString& id, QSize* size, const QSize& requestedSize) {
    const qsizetype slash = id.lastIndexOf(QLatin1Char('/'));
    const QString name = id.left(slash);
    const QColor color(QLatin1Char('#') + id.mid(slash + 1));
    const QSize wanted = sizeFor(requestedSize);
    const auto prepared = wanted.width() == wanted.height() ? m_prepared.constFind({name, wanted.width()})
                                                            : m_prepared.constEnd();
    const QPixmap pixmap = coloured(prepared != m_prepared.constEnd() ? *prepared : drawnSymbol(name, wanted),
                                    color.isValid() ? color : QColor(Qt::white));
    *size = pixmap.size();
    return pixmap;
}

} // namespace norvin
