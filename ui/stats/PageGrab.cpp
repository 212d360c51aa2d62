#include "PageGrab.h"

#include "stats/StatsExport.h"

#include <QQuickItemGrabResult>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>

namespace norvin {

namespace {

QQuickItem* shownPage(QQuickItem* root) {
    for (QQuickItem* child : root->childItems()) {
        if (!child->isVisible())
            continue;
        const QString name = child->objectName();
        if (name == QLatin1String("todayContent") || name == QLatin1String("historyContent"))
            return child;
        if (QQuickItem* const found = shownPage(child))
            return found;
    }
    return nullptr;
}

} // namespace

PageGrab::PageGrab(QQuickItem* parent)
    : QQuickItem(parent) {}

PageGrab::~PageGrab() = default;

void PageGrab::take(StatsExport* files, const QColor& background, const QUrl& file) {
    QQuickItem* const page = window() != nullptr ? shownPage(window()->contentItem()) : nullptr;
    if (page != nullptr) {
        const double pixels = page->width() * page->height();
        const double factor = std::min<double>(scale, std::sqrt(mostPixels / std::max(pixels, 1.0)));
        m_result = page->grabToImage(QSizeF(page->width() * factor, page->height() * factor).toSize());
    }
    if (page == nullptr || !m_result) {
        files->writePicture({}, background, file);
        return;
    }
    connect(m_result.data(), &QQuickItemGrabResult::ready, files, [this, files, background, file] {
        files->writePicture(m_result->image(), background, file);
        m_result.reset();
    });
}

} // namespace norvin
