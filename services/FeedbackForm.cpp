#include "services/FeedbackForm.h"

#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Preferences.h"
#include "services/FeedbackPost.h"

#include <QUuid>

namespace norvin {

namespace {

// A file is written for each change that is kept: not for every letter.
constexpr std::chrono::milliseconds keepingDelay{300};

QString newId() {
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QString keyOf(FeedbackResult::Outcome outcome) {
    switch (outcome) {
    case FeedbackResult::Outcome::timedOut:
        return QStringLiteral("feedback_timed_out");
    case FeedbackResult::Outcome::untrusted:
        return QStringLiteral("feedback_untrusted");
    case FeedbackResult::Outcome::refused:
        return QStringLiteral("feedback_refused");
    case FeedbackResult::Outcome::redirected:
        return QStringLiteral("feedback_redirected");
    case FeedbackResult::Outcome::broken:
        return QStringLiteral("feedback_broken");
    case FeedbackResult::Outcome::notUnderstood:
        return QStringLiteral("feedback_not_understood");
    case FeedbackResult::Outcome::sent:
    case FeedbackResult::Outcome::offline:
        break;
    }
    return QStringLiteral("feedback_offline");
}

} // namespace

QString FeedbackForm::builtInBaseUrl() {
    return QStringLiteral(NORVIN_FEEDBACK_URL);
}

QList<QString> FeedbackForm::kinds() {
    return {QStringLiteral("idea"), QStringLiteral("problem"), QStringLiteral("praise")};
}

FeedbackForm::FeedbackForm(const QString& baseUrl, Preferences& preferences, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_baseUrl(baseUrl)
    , m_preferences(preferences)
    , m_clock(clock)
    , m_id(newId())
    , m_kind(kinds().constFirst()) {
    connect(&m_preferences, &Preferences::changed, this, [this](const QString& key) {
        if (key == QLatin1String(baseUrlKey))
            Q_EMIT isAvailableChanged();
        else if (key == QLatin1String("app_language"))
            Q_EMIT draftChanged(); // the message names it
    });
}

FeedbackForm::~FeedbackForm() {
    keepDraft();
}

QString FeedbackForm::preference(const char* key) const {
    return m_preferences.value(QLatin1String(key)).value_or(QVariant()).toString();
}

std::optional<QUrl> FeedbackForm::address() const {
    const QString configured = preference(baseUrlKey);
    return feedbackAddress(configured.isEmpty() ? m_baseUrl : configured);
}

QString FeedbackForm::destination() const {
    const std::optional<QUrl> url = address();
    return url ? url->toDisplayString() : QString();
}

void FeedbackForm::present() {
    if (m_isPresented || !isAvailable())
        return;
    readDraft();
    if (m_state == State::sent)
        setState(State::editing);
    m_isPresented = true;
    Q_EMIT isPresentedChanged();
}

void FeedbackForm::dismiss() {
    if (!m_isPresented)
        return;
    keepDraft();
    m_isPresented = false;
    Q_EMIT isPresentedChanged();
}

void FeedbackForm::readDraft() {
    if (m_isDraftRead)
        return;
    m_isDraftRead = true;
    if (const QString kind = preference(kindKey); kinds().contains(kind))
        m_kind = kind;
    m_text = preference(textKey);
    m_email = preference(emailKey);
    Q_EMIT draftChanged();
}

void FeedbackForm::setKind(const QString& kind) {
    if (kind == m_kind || !kinds().contains(kind) || m_state == State::sending)
        return;
    m_kind = kind;
    keepDraftSoon();
}

void FeedbackForm::setText(const QString& text) {
    const QString kept = text.left(longestText);
    if (kept == m_text || m_state == State::sending)
        return;
    m_text = kept;
    keepDraftSoon();
}

void FeedbackForm::setEmail(const QString& email) {
    if (email == m_email || m_state == State::sending)
        return;
    m_email = email;
    keepDraftSoon();
}

void FeedbackForm::keepDraftSoon() {
    Q_EMIT draftChanged();
    if (!m_keeping)
        m_keeping = m_clock.after(keepingDelay, [this] { keepDraft(); });
}

void FeedbackForm::keepDraft() {
    if (!m_keeping)
        return;
    m_keeping.reset();
    store(kindKey, m_kind);
    store(textKey, m_text);
    store(emailKey, m_email);
}

void FeedbackForm::store(const char* key, const QString& value) {
    if (value.isEmpty())
        m_preferences.remove(QLatin1String(key));
    else if (value != preference(key))
        m_preferences.setValue(QLatin1String(key), value);
}

bool FeedbackForm::isEmailPlausible() const {
    return m_email.trimmed().isEmpty() || looksLikeEmail(m_email.trimmed());
}

QByteArray FeedbackForm::json() const {
    const QString language = preference("app_language");
    return toJson({.id = m_id,
                   .kind = m_kind,
                   .text = m_text.trimmed(),
                   .email = m_email.trimmed(),
                   .version = QStringLiteral(NORVIN_VERSION),
                   .language = language.isEmpty() ? QStringLiteral("fr") : language});
}

QString FeedbackForm::preview() const {
    return QString::fromUtf8(json());
}

bool FeedbackForm::canSend() const {
    return isAvailable() && m_state == State::editing && !m_text.trimmed().isEmpty() && isEmailPlausible();
}

void FeedbackForm::send() {
    if (!canSend())
        return;
    keepDraft();
    m_problemKey.clear();
    m_problemArgument.clear();
    m_post = std::make_unique<FeedbackPost>(*address(), json(), m_clock);
    // By the event loop, because the post goes with its end.
    connect(m_post.get(), &FeedbackPost::ended, this, &FeedbackForm::finish, Qt::QueuedConnection);
    setState(State::sending);
}

void FeedbackForm::finish(const FeedbackResult& result) {
    m_post.reset();
    if (result.outcome == FeedbackResult::Outcome::sent) {
        m_id = newId();
        m_text.clear();
        m_kind = kinds().constFirst();
        store(textKey, {});
        store(kindKey, {});
        setState(State::sent);
        return;
    }
    logLine(QStringLiteral("FeedbackForm: Not sent: %1").arg(result.detail));
    m_problemKey = keyOf(result.outcome);
    if (result.outcome == FeedbackResult::Outcome::refused)
        m_problemArgument = QString::number(result.status);
    setState(State::editing);
}

QString FeedbackForm::state() const {
    switch (m_state) {
    case State::editing:
        return QStringLiteral("editing");
    case State::sending:
        return QStringLiteral("sending");
    case State::sent:
        break;
    }
    return QStringLiteral("sent");
}

void FeedbackForm::setState(State state) {
    m_state = state;
    Q_EMIT stateChanged();
    Q_EMIT draftChanged();
}

} // namespace norvin
