#pragma once

#include "stats/StatsExport.h"

#include <QColor>
#include <QQmlEngine>
#include <QQuickItem>
#include <QSharedPointer>
#include <QUrl>

class QQuickItemGrabResult;

namespace norvin {

/// Takes a picture of the statistics page that is shown, all of it, also what is scrolled out of sight. (Not
/// final: QML derives from what it makes.)
class PageGrab : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
public:
    /// Pixels of the picture to a pixel of the page.
    static constexpr int scale = 2;
    /// Larger pictures are taken at a smaller scale: none is to take more than this, in pixels.
    static constexpr int mostPixels = 48'000'000;

    explicit PageGrab(QQuickItem* parent = nullptr);
    ~PageGrab() override;

    /// Takes it of the page in the window that this is in, and has it written; where there is none to take,
    /// the export says so.
    Q_INVOKABLE void take(norvin::StatsExport* files, const QColor& background, const QUrl& file);

private:
    QSharedPointer<QQuickItemGrabResult> m_result;
};

} // namespace norvin
