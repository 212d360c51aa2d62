#pragma once

#include "platform/Preferences.h"

#include <memory>

class QSettings;

namespace norvin {

/// Settings in an INI file, written at once. A file that cannot be parsed is kept beside it with ".damaged"
/// appended (a number is added where that name is taken) and reading starts empty. While the file cannot be
/// written, values live in memory and each change tries again.
class IniPreferences final : public Preferences {
    Q_OBJECT
public:
    /// $XDG_CONFIG_HOME/norvin-focus/preferences.ini, or the same under ~/.config.
    [[nodiscard]] static QString defaultPath();

    explicit IniPreferences(const QString& path = defaultPath(), QObject* parent = nullptr);
    ~IniPreferences() override;

    /// "health_preferences_damaged" with the place of the old file, or "health_preferences_unwritable".
    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] std::optional<QVariant> value(const QString& key) const override;
    void setValue(const QString& key, const QVariant& value) override;
    void remove(const QString& key) override;
    void clear() override;

private:
    void open();
    void setDamagedFileAside();
    void write();
    void setAvailability(const Availability& availability);

    QString m_path;
    std::unique_ptr<QSettings> m_settings;
    Availability m_availability = Availability::available();
    bool m_writeFailureLogged = false;
};

} // namespace norvin
