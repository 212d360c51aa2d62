#pragma once

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTranslator>

namespace norvin {

/// A language that nobody speaks: English, two fifths longer and full of accents. What is readable in it has
/// room for the languages to come. Speaks from when it is made until it is destroyed.
class PseudoTranslator final : public QTranslator {
public:
    PseudoTranslator() {
        if (!load(QStringLiteral(":/i18n/norvin-focus_en.qm")))
            qFatal("The English texts are missing");
        QCoreApplication::installTranslator(this);
    }

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* id, const char* disambiguation,
                                    int n) const override {
        return stretched(QTranslator::translate(context, id, disambiguation, n));
    }

    /// The text with two letters for every five more. What is put in later (%1, %n) and patterns of dates
    /// stay.
    [[nodiscard]] static QString stretched(const QString& text) {
        static const QRegularExpression datePattern(QStringLiteral("^[dMy ]+$"));
        if (datePattern.match(text).hasMatch())
            return text;
        static const QString plain = QStringLiteral("aceinouyAEIOU");
        static const QString accented = QStringLiteral("åçéîñôüÿÅÉÎÔÜ");
        QString result;
        int owed = 0; // in fifths of a letter
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text[i] == u'%' && i + 1 < text.size()) {
                result += text[i];
                result += text[++i];
                continue;
            }
            const qsizetype place = plain.indexOf(text[i]);
            result += place < 0 ? text[i] : accented[place];
            owed += text[i].isLetter() ? 2 : 0;
            const bool isEndOfWord = i + 1 == text.size() || !text[i + 1].isLetter();
            for (; owed >= 5 && text[i].isLetter() && (place >= 0 || isEndOfWord); owed -= 5)
                result += place < 0 ? QChar(u'é') : accented[place].toLower();
        }
        return result;
    }
};

} // namespace norvin
