#include "distraction/BlockListNotice.h"

#include <QtGlobal>

namespace norvin {

QString BlockListNotice::text() const {
    switch (subject) {
    case Subject::none:
        return {};
    case Subject::sitesAdded:
        return count == 1 ? qtTrId("notice_site_added").arg(detail) : qtTrId("notice_sites_added", count);
    case Subject::siteRemoved:
        return qtTrId("notice_site_removed").arg(detail);
    case Subject::siteMoved:
        return qtTrId("notice_site_moved").arg(detail);
    case Subject::sitesCopied:
        return qtTrId("notice_sites_copied", count).arg(detail);
    case Subject::browserWhitelisted:
        return qtTrId("notice_browser_whitelisted").arg(detail);
    case Subject::suggestionsAdded:
        return qtTrId("notice_suggestions_added", count);
    case Subject::imported:
        return qtTrId("notice_imported").arg(detail);
    case Subject::importedNothing:
        return qtTrId("notice_imported_nothing").arg(detail);
    case Subject::takenBack:
        return qtTrId("notice_taken_back");
    case Subject::exported:
        return qtTrId("notice_exported").arg(detail);
    case Subject::exportFailed:
        return qtTrId("notice_export_failed").arg(detail);
    }
    return {};
}

} // namespace norvin
