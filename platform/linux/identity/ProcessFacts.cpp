#include "platform/linux/identity/ProcessFacts.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace norvin {

namespace {

// Files below /proc have no size, and none that is read here is longer than this.
constexpr qint64 longestFile = 64 * 1024;

QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(longestFile) : QByteArray();
}

QString baseName(const QString& path) {
    return path.section(QLatin1Char('/'), -1);
}

QString flatpakId(const QByteArray& info) {
    bool inApplication = false;
    for (const QByteArray& rawLine : info.split('\n')) {
        const QByteArray line = rawLine.trimmed();
        if (line.startsWith('['))
            inApplication = line == "[Application]";
        else if (inApplication && line.startsWith("name="))
            return QString::fromUtf8(line.mid(5));
    }
    return {};
}

// "snap.firefox.firefox-0f2e.scope" and "snap.firefox.firefox.service" stand for firefox_firefox.
QString snapId(const QString& unit) {
    static const QRegularExpression pattern(QStringLiteral(
        "^snap\\.([a-z0-9-]+)\\.([A-Za-z0-9-]+?)(?:-[0-9a-f]{8}-[0-9a-f-]{27}|\\.[0-9a-f-]{36})?\\.(?:"
        "scope|service)$"));
    const QRegularExpressionMatch match = pattern.match(unit);
    return match.hasMatch() ? match.captured(1) + QLatin1Char('_') + match.captured(2) : QString();
}

QStringList wordsOfCommandLine(const QByteArray& bytes) {
    QStringList words;
    for (const QByteArray& word : bytes.split('\0')) {
        if (!word.isEmpty())
            words.append(QString::fromLocal8Bit(word));
    }
    return words;
}

bool readHasTerminal(const QByteArray& stat) {
    // The command name, in parentheses, may itself hold spaces and parentheses; the terminal's device number
    // is the fifth field after it.
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 1).simplified().split(' ');
    return fields.size() > 4 && fields.at(4) != "0";
}

QString unescapeUnit(const QString& name) {
    static const QRegularExpression escape(QStringLiteral("\\\\x([0-9a-fA-F]{2})"));
    QString result;
    qsizetype from = 0;
    for (auto it = escape.globalMatch(name); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        result += name.mid(from, match.capturedStart() - from);
        result += QChar(match.captured(1).toUShort(nullptr, 16));
        from = match.capturedEnd();
    }
    return result + name.mid(from);
}

} // namespace

bool isInterpreter(const QString& programName) {
    static const QRegularExpression pattern(QStringLiteral(
        "^(python|pypy|perl|ruby|node|nodejs|bash|dash|zsh|fish|ksh|sh|java|mono|gjs|gjs-console|lua|luajit|"
        "php|wish|tclsh|electron|qml|qmlscene|guile|racket|Rscript|wine|wine64|wine-preloader|"
        "wine64-preloader)[0-9.]*$"));
    return pattern.match(programName).hasMatch();
}

QString programNameOfCommand(const QStringList& command) {
    qsizetype index = 0;
    static const QRegularExpression assignment(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*="));
    if (index < command.size() && baseName(command.at(index)) == QLatin1String("env")) {
        ++index;
        while (index < command.size() && (command.at(index).startsWith(QLatin1Char('-')) ||
                                          assignment.match(command.at(index)).hasMatch()))
            ++index;
    }
    if (index >= command.size())
        return {};
    const QString program = baseName(command.at(index));
    if (!isInterpreter(program))
        return program;
    for (++index; index < command.size(); ++index) {
        const QString& word = command.at(index);
        // The word after "-m" is the module that runs, the one after "-jar" the archive: names as good as a
        // script's. The word after "-c" is a program text and names nothing.
        if (word == QLatin1String("-c") || word == QLatin1String("-e"))
            return {};
        if (!word.startsWith(QLatin1Char('-')))
            return baseName(word);
    }
    return {};
}

ProcessFacts readProcessFacts(qint64 processId, const QString& processRoot) {
    ProcessFacts facts;
    if (processId <= 0)
        return facts;
    const QString folder = QStringLiteral("%1/%2").arg(processRoot).arg(processId);
    facts.sandboxId = flatpakId(readFile(folder + QStringLiteral("/root/.flatpak-info")));

    for (const QByteArray& line : readFile(folder + QStringLiteral("/cgroup")).split('\n')) {
        const QString path = QString::fromUtf8(line).section(QLatin1Char(':'), 2);
        for (const QString& part : path.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
            if (facts.sandboxId.isEmpty())
                facts.sandboxId = snapId(part);
            if (part.startsWith(QLatin1String("app-")) &&
                (part.endsWith(QLatin1String(".scope")) || part.endsWith(QLatin1String(".service"))))
                facts.applicationUnit = part;
        }
    }

    QString program = baseName(QFile::symLinkTarget(folder + QStringLiteral("/exe")));
    // The kernel's mark for a program that was replaced by an update while it runs.
    if (program.endsWith(QLatin1String(" (deleted)")))
        program.chop(10);
    if (program.isEmpty() || isInterpreter(program)) {
        const QStringList words = wordsOfCommandLine(readFile(folder + QStringLiteral("/cmdline")));
        program = programNameOfCommand(words);
    }
    facts.programName = program;
    facts.hasTerminal = readHasTerminal(readFile(folder + QStringLiteral("/stat")));
    return facts;
}

QStringList applicationIdsOfUnit(const QString& unit) {
    if (!unit.startsWith(QLatin1String("app-")))
        return {};
    QString name = unit.mid(4);
    const bool isService = name.endsWith(QLatin1String(".service"));
    name.chop(isService ? 8 : 6);
    if (isService)
        name = name.section(QLatin1Char('@'), 0, 0);
    QStringList parts = name.split(QLatin1Char('-'));
    // app[-launcher]-id-random.scope, app[-launcher]-id[@random].service; "-" within a part is escaped.
    if (!isService && parts.size() > 1)
        parts.removeLast();
    QStringList ids;
    for (; !parts.isEmpty(); parts.removeFirst())
        ids.append(unescapeUnit(parts.join(QLatin1Char('-'))));
    std::reverse(ids.begin(), ids.end());
    return ids;
}

} // namespace norvin
