#pragma once

#include <QQuickImageProvider>

namespace norvin {

/// Icons of applications: "image://appicon/<icon theme name or absolute path, percent-encoded>". What cannot
/// be found gets the program's own stand-in. Main thread only: icon themes are not made for others.
class AppIconProvider final : public QQuickImageProvider {
public:
    AppIconProvider();
    QPixmap requestPixmap(const QString& id, QSize* size, const QSize& requestedSize) override;
};

/// The program's own symbols in a colour: "image://symbol/<name>/<colour as rrggbb or aarrggbb>". An unknown
/// name is logged and gives an empty image.
class SymbolProvider final : public QQuickImageProvider {
public:
    SymbolProvider();
    QPixmap requestPixmap(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace norvin
