#pragma once

#include "platform/AccessibilityElement.h"

#include <QHash>
#include <QStringList>

#include <utility>

namespace norvin {

/// A part of an imagined program: its attributes are what the test says, its children one and the same for
/// "AXChildren" and, of an application, "AXWindows".
class FakeElement final : public AccessibilityElement {
public:
    using Texts = QHash<QString, QString>;
    explicit FakeElement(Texts texts = {}, List children = {})
        : m_texts(std::move(texts))
        , m_children(std::move(children)) {}

    [[nodiscard]] std::optional<QString> text(const QString& attribute) override {
        const auto value = m_texts.constFind(attribute);
        return value == m_texts.constEnd() ? std::nullopt : std::optional<QString>(*value);
    }
    [[nodiscard]] Elements elements(const QString& attribute) override {
        if (m_errorCode != 0)
            return {std::nullopt, m_errorCode};
        return attribute == QLatin1String("AXChildren") || attribute == QLatin1String("AXWindows")
                   ? Elements{m_children, 0}
                   : Elements{};
    }
    void set(const QString& attribute, bool value) override {
        if (value)
            m_switchedOn.append(attribute);
    }

    void setChildren(List children) { m_children = std::move(children); }
    /// Reading elements fails with that number from now on; 0 for no longer.
    void setErrorCode(int code) { m_errorCode = code; }
    [[nodiscard]] const QStringList& switchedOn() const { return m_switchedOn; }

private:
    Texts m_texts;
    List m_children;
    int m_errorCode = 0;
    QStringList m_switchedOn;
};

/// One program for everybody who asks.
class FakeAccessibility final : public AccessibilityElements {
public:
    [[nodiscard]] std::shared_ptr<AccessibilityElement>
    applicationElement(const RunningApplication& /*application*/) override {
        return m_application;
    }
    [[nodiscard]] FakeElement& application() { return *m_application; }

private:
    std::shared_ptr<FakeElement> m_application = std::make_shared<FakeElement>();
};

} // namespace norvin
