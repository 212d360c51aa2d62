#pragma once

#include "platform/SharedInstance.h"

#include <QObject>

#include <chrono>

namespace norvin {

class Preferences;

/// How deep the window sinks under the surface while a work phase runs. Process-wide. Main thread only.
class ImmersionService final : public QObject {
    Q_OBJECT
    /// 0 (off) to 100, as chosen. Stored as soon as it changes.
    Q_PROPERTY(int depthPercent READ depthPercent WRITE setDepthPercent NOTIFY depthChanged)
    /// 0.0 to 1.0, as shown: grows over the first minutes of a running work phase up to what was chosen, and
    /// is 0 outside of one.
    Q_PROPERTY(double effectiveDepth READ effectiveDepth NOTIFY effectiveDepthChanged)
public:
    static constexpr double defaultDepth = 0;
    /// From the start of a phase until it is as deep as chosen.
    static constexpr std::chrono::seconds descent{180};

    /// @param preferences must outlive this; a stored depth that makes no sense is the default
    explicit ImmersionService(Preferences& preferences, QObject* parent = nullptr);
    ~ImmersionService() override;
    [[nodiscard]] static ImmersionService& shared() { return SharedInstance<ImmersionService>::get(); }

    /// 0.0 to 1.0.
    [[nodiscard]] double depth() const { return m_depth; }
    /// @param depth brought into its range
    void setDepth(double depth);
    [[nodiscard]] int depthPercent() const;
    void setDepthPercent(int percent);
    [[nodiscard]] double effectiveDepth() const { return m_effectiveDepth; }

    /// A work phase runs, and did so for that long.
    void followWork(std::chrono::seconds elapsed);
    /// No work phase runs.
    void surface();

Q_SIGNALS:
    void depthChanged();
    void effectiveDepthChanged();

private:
    void update();

    Preferences& m_preferences;
    double m_depth = defaultDepth;
    /// Share of the depth that is reached, 0 to 1.
    double m_reached = 0;
    double m_effectiveDepth = 0;
};

} // namespace norvin
