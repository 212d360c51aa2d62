#include "distraction/BrowserAlertModel.h"

namespace norvin {

void BrowserAlertModel::setDomain(const QString& domain) {
    if (domain == m_domain)
        return;
    m_domain = domain;
    Q_EMIT domainChanged();
}

} // namespace norvin
