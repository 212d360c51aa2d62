#pragma once

#include "services/FeedbackMessage.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

#include <memory>
#include <optional>

namespace norvin {

class Clock;
class ClockTimer;
class FeedbackPost;
class Preferences;
struct FeedbackResult;

/// The form in which the user writes to the makers of the program. It shows what will be sent to the last
/// character, and sends it when told to, never by itself. What is written is kept until it has arrived.
/// Main thread only.
class FeedbackForm final : public QObject {
    Q_OBJECT
    /// Whether there is an address to send to: the https address of the preferences, else of the build.
    Q_PROPERTY(bool isAvailable READ isAvailable NOTIFY isAvailableChanged)
    /// Where it goes, as a person reads it; empty where there is no address.
    Q_PROPERTY(QString destination READ destination NOTIFY isAvailableChanged)
    Q_PROPERTY(bool isPresented READ isPresented NOTIFY isPresentedChanged)
    /// "idea", "problem" or "praise".
    Q_PROPERTY(QString kind READ kind WRITE setKind NOTIFY draftChanged)
    Q_PROPERTY(QList<QString> kinds READ kinds CONSTANT)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY draftChanged)
    /// May be empty.
    Q_PROPERTY(QString email READ email WRITE setEmail NOTIFY draftChanged)
    /// Whether an answer could go to the address, as far as can be seen; true for none.
    Q_PROPERTY(bool isEmailPlausible READ isEmailPlausible NOTIFY draftChanged)
    /// Exactly what would be sent.
    Q_PROPERTY(QString preview READ preview NOTIFY draftChanged)
    Q_PROPERTY(bool canSend READ canSend NOTIFY draftChanged)
    /// "editing", "sending" or "sent".
    Q_PROPERTY(QString state READ state NOTIFY stateChanged)
    /// Localisation key of why it did not arrive last time; empty unless it did not. Where problemArgument is
    /// not empty, the text takes it.
    Q_PROPERTY(QString problemKey READ problemKey NOTIFY stateChanged)
    Q_PROPERTY(QString problemArgument READ problemArgument NOTIFY stateChanged)
public:
    static constexpr auto baseUrlKey = "feedback_base_url";
    static constexpr auto kindKey = "feedback_draft_kind";
    static constexpr auto textKey = "feedback_draft";
    static constexpr auto emailKey = "feedback_email";
    /// Characters of a text that are kept.
    static constexpr qsizetype longestText = 10'000;

    /// The base address that this program was built with; empty for none.
    [[nodiscard]] static QString builtInBaseUrl();

    /// @param baseUrl where the preferences name no other
    /// Both objects must outlive this.
    FeedbackForm(const QString& baseUrl, Preferences& preferences, Clock& clock, QObject* parent = nullptr);
    ~FeedbackForm() override;

    [[nodiscard]] bool isAvailable() const { return address().has_value(); }
    [[nodiscard]] QString destination() const;
    [[nodiscard]] bool isPresented() const { return m_isPresented; }
    [[nodiscard]] QString kind() const { return m_kind; }
    /// A text that is no kind changes nothing. Neither this nor the other two change anything while sending.
    void setKind(const QString& kind);
    [[nodiscard]] static QList<QString> kinds();
    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString& text);
    [[nodiscard]] QString email() const { return m_email; }
    void setEmail(const QString& email);
    [[nodiscard]] bool isEmailPlausible() const;
    [[nodiscard]] QString preview() const;
    [[nodiscard]] bool canSend() const;
    [[nodiscard]] QString state() const;
    [[nodiscard]] QString problemKey() const { return m_problemKey; }
    [[nodiscard]] QString problemArgument() const { return m_problemArgument; }

    /// Opens the form; does nothing where it is not available.
    Q_INVOKABLE void present();
    /// Closes the form. What is on its way goes on.
    Q_INVOKABLE void dismiss();
    /// Sends what preview shows; does nothing while canSend is false.
    Q_INVOKABLE void send();

Q_SIGNALS:
    void isAvailableChanged();
    void isPresentedChanged();
    void draftChanged();
    void stateChanged();

private:
    enum class State { editing, sending, sent };

    [[nodiscard]] std::optional<QUrl> address() const;
    [[nodiscard]] QString preference(const char* key) const;
    [[nodiscard]] QByteArray json() const;
    void readDraft();
    void keepDraftSoon();
    void keepDraft();
    void store(const char* key, const QString& value);
    void finish(const FeedbackResult& result);
    void setState(State state);

    QString m_baseUrl;
    Preferences& m_preferences;
    Clock& m_clock;
    QString m_id;
    QString m_kind;
    QString m_text;
    QString m_email;
    bool m_isDraftRead = false;
    bool m_isPresented = false;
    State m_state = State::editing;
    QString m_problemKey;
    QString m_problemArgument;
    std::unique_ptr<ClockTimer> m_keeping;
    std::unique_ptr<FeedbackPost> m_post;
};

} // namespace norvin
