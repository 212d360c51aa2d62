#pragma once

#include "services/FeedbackForm.h"
#include "services/LicenseService.h"
#include "services/UpdaterService.h"

#include <QObject>

namespace norvin {

/// What the program has to do with the world outside: updates, feedback and the licence. Main thread only.
class OutsideServices final : public QObject {
    Q_OBJECT
    Q_PROPERTY(norvin::UpdaterService* updater READ updater CONSTANT)
    Q_PROPERTY(norvin::FeedbackForm* feedback READ feedback CONSTANT)
    Q_PROPERTY(norvin::LicenseService* license READ license CONSTANT)
public:
    /// All must outlive this.
    OutsideServices(UpdaterService& updater, FeedbackForm& feedback, LicenseService& license,
                    QObject* parent = nullptr)
        : QObject(parent)
        , m_updater(updater)
        , m_feedback(feedback)
        , m_license(license) {}

    [[nodiscard]] UpdaterService* updater() const { return &m_updater; }
    [[nodiscard]] FeedbackForm* feedback() const { return &m_feedback; }
    [[nodiscard]] LicenseService* license() const { return &m_license; }

private:
    UpdaterService& m_updater;
    FeedbackForm& m_feedback;
    LicenseService& m_license;
};

} // namespace norvin
