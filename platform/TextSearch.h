#pragma once

#include <QString>

namespace norvin {

/// A text as searching sees it: without case and accents, so that "resume" finds "Résumé".
[[nodiscard]] inline QString searchKey(const QString& text) {
    QString key;
    const QString decomposed = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    key.reserve(decomposed.size());
    for (const QChar c : decomposed) {
        if (c.category() != QChar::Mark_NonSpacing)
            key.append(c);
    }
    return key;
}

} // namespace norvin
