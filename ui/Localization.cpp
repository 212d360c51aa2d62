#include "ui/Localization.h"

#include "platform/Log.h"
#include "platform/Preferences.h"

#include <QCoreApplication>

namespace norvin {

namespace {

const QString french = QStringLiteral("fr");
const QString english = QStringLiteral("en");

} // namespace

Localization::Localization(Preferences& preferences, QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_language(french)
    , m_formats(QLocale(french)) {
    const auto stored = preferences.value(QLatin1String(preferencesKey));
    if (stored && languages().contains(stored->toString()))
        m_language = stored->toString();
    loadTexts();
}

Localization::~Localization() {
    QCoreApplication::removeTranslator(&m_translator);
}

QList<QString> Localization::languages() {
    return {french, english};
}

QList<QString> Localization::languageNames() {
    return {QStringLiteral("Français"), QStringLiteral("English")};
}

void Localization::setLanguage(const QString& language) {
    const auto stored = m_preferences.value(QLatin1String(preferencesKey));
    if (language == m_language && stored && stored->toString() == language)
        return;
    if (!languages().contains(language)) {
        logLine(QStringLiteral("Localization: There are no texts in the language \"%1\"").arg(language));
        return;
    }
    m_preferences.setValue(QLatin1String(preferencesKey), language);
    preview(language);
}

void Localization::preview(const QString& language) {
    if (language == m_language || !languages().contains(language))
        return;
    m_language = language;
    loadTexts();
    Q_EMIT languageChanged();
}

void Localization::loadTexts() {
    QCoreApplication::removeTranslator(&m_translator);
    const QString file = QStringLiteral(":/i18n/norvin-focus_%1.qm").arg(m_language);
    if (!m_translator.load(file))
        logLine(QStringLiteral("Localization: The texts in %1 cannot be read").arg(file));
    QCoreApplication::installTranslator(&m_translator);
    m_formats.setLocale(locale());
}

std::optional<QString> languageForDesktop(const QStringList& uiLanguages) {
    bool namesAny = false;
    for (const QString& wanted : uiLanguages) {
        if (wanted == QLatin1String("C") || wanted == QLatin1String("POSIX"))
            continue;
        namesAny = true;
        const QString language = wanted.section(QLatin1Char('-'), 0, 0).section(QLatin1Char('_'), 0, 0);
        if (Localization::languages().contains(language))
            return language;
    }
    return namesAny ? std::optional(english) : std::nullopt;
}

} // namespace norvin
