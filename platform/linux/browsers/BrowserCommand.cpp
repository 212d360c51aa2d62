#include "platform/linux/browsers/BrowserCommand.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace norvin {

namespace {

// Files below /proc have no size, and none that is read here is longer than this.
constexpr qint64 longestFile = 256 * 1024;

QStringList readWords(const QString& path) {
    QStringList words;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return words;
    for (const QByteArray& word : file.read(longestFile).split('\0')) {
        if (!word.isEmpty())
            words.append(QString::fromLocal8Bit(word));
    }
    return words;
}

// Chromium and its relatives write their command line anew, as one word with spaces between what were words.
// Where one of those had spaces itself, its end is where the next option or page begins.
QStringList splitTitle(const QString& title) {
    static const QRegularExpression boundary(QStringLiteral(" (?=--?[a-z]|/|[a-z][a-z-]*:)"));
    return title.split(boundary, Qt::SkipEmptyParts);
}

bool isPageOption(const QString& word) {
    static const QRegularExpression pattern(
        QStringLiteral("^--?(?:new-tab|new-window|private-window|url|search|preferences)$"));
    return pattern.match(word).hasMatch();
}

// The options that have their value in a word of its own; Chromium has none.
bool takesValue(const QString& word) {
    static const QRegularExpression pattern(
        QStringLiteral("^(?:-P|--?(?:profile|class|name|display|remote-debugging-port))$"));
    return pattern.match(word).hasMatch();
}

QStringList withoutPages(const QStringList& words) {
    QStringList kept;
    for (const QString& word : words) {
        const bool isValue = !kept.isEmpty() && takesValue(kept.constLast());
        if (isValue || (word.startsWith(u'-') && word != QLatin1String("--") && !isPageOption(word)))
            kept.append(word);
    }
    return kept;
}

QProcessEnvironment environmentOf(const QStringList& assignments) {
    QProcessEnvironment environment;
    for (const QString& assignment : assignments) {
        const qsizetype equals = assignment.indexOf(u'=');
        if (equals > 0)
            environment.insert(assignment.left(equals), assignment.mid(equals + 1));
    }
    // These were for the windows of that one start.
    environment.remove(QStringLiteral("DESKTOP_STARTUP_ID"));
    environment.remove(QStringLiteral("XDG_ACTIVATION_TOKEN"));
    return environment;
}

// A program that was replaced by a newer one while it ran is not where the kernel says, but where it was
// started from.
QString findProgram(const QString& name, const BrowserCommand& command, const QString& executable) {
    QString path = name;
    if (!name.contains(u'/')) {
        const QStringList folders =
            command.environment.value(QStringLiteral("PATH")).split(u':', Qt::SkipEmptyParts);
        path = QStandardPaths::findExecutable(name, folders);
    } else if (QFileInfo(name).isRelative()) {
        path = command.directory + u'/' + name;
    }
    return QFileInfo(path).isExecutable() ? path : executable;
}

// A distribution's browser is started by a script of its name, which makes the environment that it needs.
QString findScript(const QString& program) {
    if (!program.startsWith(QLatin1String("/usr/")))
        return program;
    const QString script = QStandardPaths::findExecutable(QFileInfo(program).fileName());
    return script.isEmpty() ? program : script;
}

} // namespace

BrowserCommand readBrowserCommand(qint64 processId, const QString& processRoot) {
    const QString folder = QStringLiteral("%1/%2/").arg(processRoot, QString::number(processId));
    BrowserCommand command;
    command.directory = QFileInfo(folder + QStringLiteral("cwd")).symLinkTarget();
    command.environment = environmentOf(readWords(folder + QStringLiteral("environ")));
    QStringList words = readWords(folder + QStringLiteral("cmdline"));
    // The script gives its options again each time.
    if (words.size() == 1 && !QFileInfo(words.constFirst()).isExecutable()) {
        words = splitTitle(words.constFirst());
        words.removeDuplicates();
    }
    if (words.isEmpty())
        return command;
    QString executable = QFileInfo(folder + QStringLiteral("exe")).symLinkTarget();
    if (!QFileInfo(executable).isExecutable())
        executable.clear();
    command.program = findProgram(words.takeFirst(), command, executable);
    if (command.environment.isEmpty())
        command.program = findScript(command.program);
    command.arguments = withoutPages(words);
    return command;
}

} // namespace norvin
