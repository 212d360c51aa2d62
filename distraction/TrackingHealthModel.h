#pragma once

#include "platform/Availability.h"

#include <QAbstractListModel>
#include <QList>
#include <QString>

#include <functional>

namespace norvin {

/// What of this desktop the program can use, and what to do about the rest. Main thread only.
class TrackingHealthModel final : public QAbstractListModel {
    Q_OBJECT
    /// How many checks fail.
    Q_PROPERTY(int problemCount READ problemCount NOTIFY problemCountChanged)
public:
    enum Role {
        CapabilityRole = Qt::UserRole + 1, ///< what it is, in the user's language
        IsAvailableRole,                   ///< boolean
        ReasonRole,                        ///< why not, in the user's language; empty while available
        RemedyRole,                        ///< what to do, in the user's language; empty while available
        DetailRole,                        ///< technical detail, may be empty
    };
    struct Check {
        /// Localisation key ("health_frontmost_application").
        QString capabilityKey;
        std::function<Availability()> ask;
    };

    explicit TrackingHealthModel(QList<Check> checks, QObject* parent = nullptr);
    ~TrackingHealthModel() override;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    [[nodiscard]] int problemCount() const { return m_problemCount; }

    /// Localisation key of a check; by row.
    [[nodiscard]] const QString& capabilityKey(int row) const { return m_checks.at(row).capabilityKey; }
    [[nodiscard]] const Availability& availability(int row) const { return m_answers.at(row); }

    /// Asks every check again.
    Q_INVOKABLE void refresh();
    /// Gives the texts anew, for another language.
    void retranslate();

Q_SIGNALS:
    void problemCountChanged();

private:
    QList<Check> m_checks;
    QList<Availability> m_answers;
    int m_problemCount = 0;
};

} // namespace norvin
