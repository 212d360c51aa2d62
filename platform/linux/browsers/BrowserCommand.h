#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace norvin {

/// How a browser that runs was started, without the pages that it was given to open.
struct BrowserCommand {
    /// Absolute path; empty where it is not known.
    QString program;
    QStringList arguments;
    /// Absolute path; empty where it is not known.
    QString directory;
    /// Empty where it is not known: browsers may write over it.
    QProcessEnvironment environment;
};

/// @param processRoot "/proc", or a directory made like it
[[nodiscard]] BrowserCommand readBrowserCommand(qint64 processId,
                                                const QString& processRoot = QStringLiteral("/proc"));

} // namespace norvin
