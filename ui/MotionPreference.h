#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QString>

namespace norvin {

/// Whether the user wants few movements on the screen: NORVIN_REDUCED_MOTION=1 in the environment, or else
/// the desktop's wish, which is asked without waiting and followed. Main thread only.
class MotionPreference final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isReduced READ isReduced NOTIFY isReducedChanged)
public:
    explicit MotionPreference(QObject* parent = nullptr);

    [[nodiscard]] bool isReduced() const { return m_isReduced; }

    /// Asks the desktop. Without a session bus, or a desktop that answers, everything stays as it is.
    void askDesktop();

Q_SIGNALS:
    void isReducedChanged();

private Q_SLOTS:
    void takeSetting(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void setReduced(bool reduced);

    bool m_isForced = false;
    bool m_isReduced = false;
};

} // namespace norvin
