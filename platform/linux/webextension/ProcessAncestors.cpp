#include "platform/linux/webextension/ProcessAncestors.h"

#include "platform/linux/identity/ProcessFacts.h"

#include <QFile>

#include <optional>

namespace norvin {

namespace {

constexpr int mostAncestors = 4;

struct Lineage {
    qint64 parent;
    qint64 session;
};

std::optional<Lineage> lineage(qint64 processId, const QString& processRoot) {
    QFile file(QStringLiteral("%1/%2/stat").arg(processRoot).arg(processId));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray stat = file.read(4096);
    // The command name, in parentheses, may itself hold spaces and parentheses. After it come the state, the
    // parent, the process group and the session.
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 1).simplified().split(' ');
    if (fields.size() < 4)
        return std::nullopt;
    return Lineage{fields.at(1).toLongLong(), fields.at(3).toLongLong()};
}

} // namespace

QList<qint64> processAncestors(qint64 processId, const QString& processRoot) {
    QList<qint64> ancestors;
    std::optional<Lineage> current = lineage(processId, processRoot);
    while (current && current->parent > 1 && ancestors.size() < mostAncestors) {
        const qint64 parent = current->parent;
        ancestors.append(parent);
        current = lineage(parent, processRoot);
        // What is above the session has only started the browser.
        if (current && current->session == parent)
            break;
    }
    return ancestors;
}

qint64 firstProgram(const QList<qint64>& ancestors, const QString& processRoot) {
    for (const qint64 processId : ancestors) {
        const QString program =
            QFile::symLinkTarget(QStringLiteral("%1/%2/exe").arg(processRoot).arg(processId))
                .section(QLatin1Char('/'), -1);
        if (!isInterpreter(program))
            return processId;
    }
    return ancestors.value(0, 0);
}

} // namespace norvin
