#pragma once

#include "model/ModelContainer.h"
#include "platform/Log.h"

#include <QStringList>
#include <QTemporaryDir>

#include <SQLiteCpp/Database.h>

#include <memory>
#include <variant>

namespace norvin::test {

using Opened = std::variant<std::unique_ptr<ModelContainer>, StoreError>;

/// The container of a result; null when there is none.
inline std::unique_ptr<ModelContainer> container(Opened opened) {
    auto* held = std::get_if<std::unique_ptr<ModelContainer>>(&opened);
    return held != nullptr ? std::move(*held) : nullptr;
}

/// A folder of its own for one store file.
class StoreFixture final {
public:
    [[nodiscard]] QString folder() const { return m_folder.path(); }
    [[nodiscard]] QString file() const { return m_folder.filePath(QStringLiteral("NorvinFocus.sqlite")); }
    [[nodiscard]] std::unique_ptr<ModelContainer> open() const {
        return container(ModelContainer::openOrRecreate(file()));
    }
    /// A connection that knows nothing of the model, as somebody with the sqlite3 shell has.
    [[nodiscard]] SQLite::Database raw() const {
        return SQLite::Database(file().toStdString(), SQLite::OPEN_READWRITE);
    }
    /// The one value that a query gives, as text.
    [[nodiscard]] QString value(const char* query) const {
        return QString::fromStdString(raw().execAndGet(query).getString());
    }
    /// "ok" when the file is sound and no reference hangs in the air.
    [[nodiscard]] QString soundness() const {
        return value("SELECT (SELECT group_concat(integrity_check) FROM pragma_integrity_check) || "
                     "(SELECT CASE count(*) WHEN 0 THEN '' ELSE ' with loose references' END "
                     "FROM pragma_foreign_key_check)");
    }

private:
    QTemporaryDir m_folder;
};

/// Collects the diagnostic lines while it lives.
class LogCapture final {
public:
    LogCapture() {
        setLogSink([this](const QString& line) { m_lines.append(line); });
    }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;
    ~LogCapture() { setLogSink({}); }
    [[nodiscard]] const QStringList& lines() const { return m_lines; }

private:
    QStringList m_lines;
};

inline const QDateTime morning(QDate(2025, 3, 10), QTime(9, 0), Qt::UTC);

inline TaskItem* addTask(ModelContext& context, const QString& title, Project* project = nullptr,
                         TaskItem* parent = nullptr) {
    auto task = std::make_unique<TaskItem>(TaskItem::Init{.title = title, .project = project});
    task->setParentTask(parent);
    return context.insert(std::move(task));
}

/// Without a task where that is null.
inline Session sessionOf(const TaskItem* task, const QDateTime& start) {
    Session session;
    session.startTime = start;
    if (task != nullptr)
        session.task = task->id();
    return session;
}

} // namespace norvin::test
