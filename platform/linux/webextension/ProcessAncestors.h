#pragma once

#include <QList>
#include <QString>

namespace norvin {

/// The processes that lead to one: its parent first, then up to three more. Ends with the leader of the
/// session or before process 1, and is empty where nothing can be read about the process.
/// @param processRoot "/proc", or a directory made like it
[[nodiscard]] QList<qint64> processAncestors(qint64 processId,
                                             const QString& processRoot = QStringLiteral("/proc"));

/// The process id, among those of processAncestors(), of the program itself rather than of a shell script
/// that wraps what it starts; 0 for an empty list.
[[nodiscard]] qint64 firstProgram(const QList<qint64>& ancestors,
                                  const QString& processRoot = QStringLiteral("/proc"));

} // namespace norvin
