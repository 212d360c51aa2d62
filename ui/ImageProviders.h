#pragma once

#include <QHash>
#include <QPixmap>
#include <QQuickImageProvider>

#include <utility>

namespace norvin {

class ApplicationCatalog;

/// Icons of applications: "image://appicon/<icon theme name or absolute path, percent-encoded>", or
/// "image://appicon/of:<bundle identifier, percent-encoded>". What cannot be found gets the program's own
/// stand-in. Main thread only: icon themes are not made for others.
class AppIconProvider final : public QQuickImageProvider {
public:
    AppIconProvider();
    /// Where identifiers are looked up; nowhere before this was called. @param catalog must outlive this
    void setCatalog(const ApplicationCatalog& catalog) { m_catalog = &catalog; }
    QPixmap requestPixmap(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    const ApplicationCatalog* m_catalog = nullptr;
};

/// The program's own symbols in a colour: "image://symbol/<name>/<colour as rrggbb or aarrggbb>". An unknown
/// name is logged and gives an empty image.
class SymbolProvider final : public QQuickImageProvider {
public:
    SymbolProvider();
    /// Draws a symbol in advance, whatever colour it will be wanted in. @param size width and height in
    /// pixels
    void prepare(const QString& name, int size);
    QPixmap requestPixmap(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    /// Drawings in white of symbols that were prepared, by name and width.
    QHash<std::pair<QString, int>, QPixmap> m_prepared;
};

} // namespace norvin
