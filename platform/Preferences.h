#pragma once

#include "platform/Availability.h"

#include <QObject>
#include <QString>
#include <QVariant>

#include <optional>

namespace norvin {

/// The user's settings, as keys and values. Main thread only.
class Preferences : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Whether what is set here lasts; a damaged file counts as a failure until a new one is written.
    [[nodiscard]] virtual Availability availability() const = 0;

    /// The stored value; none when nothing is stored under the key. Text files hold text: ask for the type
    /// that is wanted with QVariant's conversions and treat a value that does not convert as absent.
    [[nodiscard]] virtual std::optional<QVariant> value(const QString& key) const = 0;

    /// Stores the value at once. A failure to write is logged and shows in availability(); the value is
    /// kept in memory then, and written with the next change that can be.
    virtual void setValue(const QString& key, const QVariant& value) = 0;

    /// Forgets the key, as durably as setValue() stores.
    virtual void remove(const QString& key) = 0;

    /// Forgets everything, as durably as setValue() stores.
    virtual void clear() = 0;

Q_SIGNALS:
    /// A value was stored or forgotten.
    void changed(const QString& key);
    void availabilityChanged();
};

} // namespace norvin
