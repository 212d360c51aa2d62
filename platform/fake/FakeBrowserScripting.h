#pragma once

#include "platform/BrowserScripting.h"

#include <QHash>
#include <QList>
#include <QStringList>

namespace norvin {

/// Answers scripts as a test has laid down, and keeps what was asked.
class FakeBrowserScripting final : public BrowserScripting {
public:
    [[nodiscard]] std::optional<ScriptAnswer> run(const QString& source) override {
        m_scripts.append(source);
        const auto answer = m_answers.constFind(source);
        return answer == m_answers.constEnd() ? std::nullopt : std::optional<ScriptAnswer>(*answer);
    }
    [[nodiscard]] Closing closeFrontTab(const RunningApplication& browser, const QString& domain) override {
        m_closings.append({browser, domain});
        return m_closing;
    }

    /// Scripts without an answer are not understood.
    void setAnswer(const QString& source, const ScriptAnswer& answer) { m_answers.insert(source, answer); }
    /// What closeFrontTab() comes to; failed at first.
    void setClosing(Closing closing) { m_closing = closing; }

    struct Request {
        RunningApplication browser;
        QString domain;
    };
    [[nodiscard]] const QStringList& scripts() const { return m_scripts; }
    [[nodiscard]] const QList<Request>& closings() const { return m_closings; }

private:
    QHash<QString, ScriptAnswer> m_answers;
    QStringList m_scripts;
    Closing m_closing = Closing::failed;
    QList<Request> m_closings;
};

} // namespace norvin
