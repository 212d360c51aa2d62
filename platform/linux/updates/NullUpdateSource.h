#pragma once

#include "platform/UpdateSource.h"

#include <utility>

namespace norvin {

/// For a program that no software service has installed: it says so, and does nothing.
class NullUpdateSource final : public UpdateSource {
    Q_OBJECT
public:
    explicit NullUpdateSource(Availability reason, QObject* parent = nullptr)
        : UpdateSource(parent)
        , m_reason(std::move(reason)) {}

    [[nodiscard]] Availability availability() const override { return m_reason; }
    [[nodiscard]] bool canCheckForUpdates() const override { return false; }
    void checkForUpdates() override {}
    [[nodiscard]] bool canOpenSoftwareCentre() const override { return false; }
    void openSoftwareCentre() override {}

private:
    Availability m_reason;
};

} // namespace norvin
