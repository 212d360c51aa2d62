#pragma once

#include <QObject>
#include <QString>

namespace norvin {

/// What the browser alert shows. Main thread only.
class BrowserAlertModel final : public QObject {
    Q_OBJECT
    /// As it was read, in Unicode; empty before the first alert, and of the last one after it.
    Q_PROPERTY(QString domain READ domain WRITE setDomain NOTIFY domainChanged)
public:
    explicit BrowserAlertModel(QObject* parent)
        : QObject(parent) {}

    [[nodiscard]] const QString& domain() const { return m_domain; }
    void setDomain(const QString& domain);

Q_SIGNALS:
    void domainChanged();

private:
    QString m_domain;
};

} // namespace norvin
