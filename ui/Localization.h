#pragma once

#include "ui/TextFormats.h"

#include <QList>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include <optional>

namespace norvin {

class Preferences;

/// The language of the program and its texts, which are known by keys (qtTrId). Needs a QCoreApplication.
/// Main thread only.
class Localization final : public QObject {
    Q_OBJECT
    /// "fr" or "en"; stored in the preferences. Other values are refused with a logged line.
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged)
    /// The languages that can be set, in the order in which to offer them.
    Q_PROPERTY(QList<QString> languages READ languages CONSTANT)
    /// By the same index, each language's own name for itself ("Français").
    Q_PROPERTY(QList<QString> languageNames READ languageNames CONSTANT)
    Q_PROPERTY(QLocale locale READ locale NOTIFY languageChanged)
    /// Said to change with the language, so that whoever binds to a text made by it gets it anew.
    Q_PROPERTY(norvin::TextFormats* formats READ formats NOTIFY languageChanged)
public:
    static constexpr auto preferencesKey = "app_language";

    /// Takes the stored language and loads its texts. @param preferences must outlive this
    explicit Localization(Preferences& preferences, QObject* parent = nullptr);
    ~Localization() override;

    [[nodiscard]] const QString& language() const { return m_language; }
    void setLanguage(const QString& language);
    /// Speaks this language without storing it: a user who has not chosen yet is met in that of the desktop.
    void preview(const QString& language);
    [[nodiscard]] static QList<QString> languages();
    [[nodiscard]] static QList<QString> languageNames();
    [[nodiscard]] QLocale locale() const { return QLocale(m_language); }
    [[nodiscard]] TextFormats* formats() { return &m_formats; }

Q_SIGNALS:
    /// The texts of the new language are in place.
    void languageChanged();

private:
    void loadTexts();

    Preferences& m_preferences;
    QString m_language;
    QTranslator m_translator;
    TextFormats m_formats;
};

/// Which of our languages suits a desktop best that lists these, the most wanted first ("de-AT"): the first
/// of them that there is, or English; none for a desktop that names none.
[[nodiscard]] std::optional<QString> languageForDesktop(const QStringList& uiLanguages);

} // namespace norvin
