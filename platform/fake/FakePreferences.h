#pragma once

#include "platform/Preferences.h"

#include <QHash>

namespace norvin {

/// Settings in memory, gone with the object. Values keep their types.
class FakePreferences final : public Preferences {
    Q_OBJECT
public:
    using Preferences::Preferences;

    [[nodiscard]] Availability availability() const override { return m_availability; }
    void setAvailability(const Availability& availability) {
        m_availability = availability;
        Q_EMIT availabilityChanged();
    }
    [[nodiscard]] std::optional<QVariant> value(const QString& key) const override {
        const auto it = m_values.constFind(key);
        return it == m_values.constEnd() ? std::nullopt : std::optional(*it);
    }
    void setValue(const QString& key, const QVariant& value) override {
        m_values.insert(key, value);
        Q_EMIT changed(key);
    }
    void remove(const QString& key) override {
        if (m_values.remove(key))
            Q_EMIT changed(key);
    }
    void clear() override {
        const QList<QString> keys = m_values.keys();
        m_values.clear();
        for (const QString& key : keys)
            Q_EMIT changed(key);
    }

    [[nodiscard]] const QHash<QString, QVariant>& values() const { return m_values; }

private:
    QHash<QString, QVariant> m_values;
    Availability m_availability = Availability::available();
};

} // namespace norvin
