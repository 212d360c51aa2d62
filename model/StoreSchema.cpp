#include "model/StoreSchema.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <string_view>

namespace norvin::schema {

namespace {

struct Object {
    const char* name;
    // SQLite keeps the text as it was given, so that validate() can compare it letter by letter.
    const char* sql;
};

// Foreign keys are checked when the transaction ends, so that a save may write its rows in any order. Every
// column that a delete rule searches has an index.
constexpr std::array objects{
    Object{"Project", R"(CREATE TABLE Project(
    id BLOB PRIMARY KEY NOT NULL CHECK(length(id) = 16),
    name TEXT NOT NULL,
    projectDescription TEXT NOT NULL,
    colorHex TEXT NOT NULL,
    emoji TEXT NOT NULL,
    createdAt INTEGER NOT NULL
) STRICT)"},
    Object{"ProjectPhase", R"(CREATE TABLE ProjectPhase(
    id BLOB PRIMARY KEY NOT NULL CHECK(length(id) = 16),
    name TEXT NOT NULL,
    orderIndex INTEGER NOT NULL CHECK(orderIndex BETWEEN -2147483648 AND 2147483647),
    createdAt INTEGER NOT NULL,
    project BLOB REFERENCES Project(id) ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED
) STRICT)"},
    Object{"ProjectPhase_project", "CREATE INDEX ProjectPhase_project ON ProjectPhase(project)"},
    Object{"TaskItem", R"(CREATE TABLE TaskItem(
    id BLOB PRIMARY KEY NOT NULL CHECK(length(id) = 16),
    title TEXT NOT NULL,
    taskDescription TEXT NOT NULL,
    statusValue TEXT NOT NULL,
    priorityValue INTEGER NOT NULL CHECK(priorityValue BETWEEN -2147483648 AND 2147483647),
    dueDate INTEGER,
    createdAt INTEGER NOT NULL,
    plannedDate INTEGER,
    project BLOB REFERENCES Project(id) ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED,
    phase BLOB REFERENCES ProjectPhase(id) ON DELETE SET NULL DEFERRABLE INITIALLY DEFERRED,
    parentTask BLOB REFERENCES TaskItem(id) ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED
) STRICT)"},
    Object{"TaskItem_project", "CREATE INDEX TaskItem_project ON TaskItem(project)"},
    Object{"TaskItem_phase", "CREATE INDEX TaskItem_phase ON TaskItem(phase)"},
    Object{"TaskItem_parentTask", "CREATE INDEX TaskItem_parentTask ON TaskItem(parentTask)"},
    Object{"TaskResource", R"(CREATE TABLE TaskResource(
    id BLOB PRIMARY KEY NOT NULL CHECK(length(id) = 16),
    name TEXT NOT NULL,
    fileType TEXT NOT NULL,
    fileURLData BLOB,
    createdAt INTEGER NOT NULL,
    task BLOB REFERENCES TaskItem(id) ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED
) STRICT)"},
    Object{"TaskResource_task", "CREATE INDEX TaskResource_task ON TaskResource(task)"},
    Object{"Session", R"(CREATE TABLE Session(
    id BLOB PRIMARY KEY NOT NULL CHECK(length(id) = 16),
    startTime INTEGER NOT NULL,
    durationMinutes INTEGER NOT NULL,
    completed INTEGER NOT NULL CHECK(completed IN (0, 1)),
    task BLOB REFERENCES TaskItem(id) ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED,
    score REAL,
    interruptionCount INTEGER NOT NULL,
    blockedAttemptsCount INTEGER NOT NULL,
    blockedSiteAttemptsCount INTEGER NOT NULL,
    legitimateTimeSeconds INTEGER NOT NULL,
    distractedTimeSeconds INTEGER NOT NULL
) STRICT)"},
    Object{"Session_startTime", "CREATE INDEX Session_startTime ON Session(startTime)"},
    Object{"Session_task", "CREATE INDEX Session_task ON Session(task)"},
    // A heavy user has a few hundred of these beside a million intervals that each name one.
    Object{"AppUsageSource", R"(CREATE TABLE AppUsageSource(
    id INTEGER PRIMARY KEY,
    bundleID TEXT NOT NULL,
    appName TEXT NOT NULL,
    category TEXT NOT NULL,
    UNIQUE(bundleID, appName, category)
) STRICT)"},
    // The id has no index: nothing looks an interval up by it, and the index would be a third of the file.
    Object{"AppUsageSession", R"(CREATE TABLE AppUsageSession(
    id BLOB NOT NULL CHECK(length(id) = 16),
    source INTEGER NOT NULL REFERENCES AppUsageSource(id) DEFERRABLE INITIALLY DEFERRED,
    startTime INTEGER NOT NULL,
    endTime INTEGER NOT NULL,
    durationSeconds INTEGER NOT NULL
) STRICT)"},
    // All that statistics read of an interval, so that they never look at the table.
    Object{"AppUsageSession_startTime",
           "CREATE INDEX AppUsageSession_startTime ON AppUsageSession(startTime, source, durationSeconds)"},
    Object{"SessionLog", R"(CREATE VIEW SessionLog AS
SELECT datetime(Session.startTime / 1000, 'unixepoch', 'localtime') AS start,
    Session.durationMinutes AS minutes,
    CASE Session.completed WHEN 0 THEN 'no' ELSE 'yes' END AS completed,
    TaskItem.title AS task,
    Project.name AS project,
    Session.score AS score,
    Session.interruptionCount AS interruptions,
    Session.blockedAttemptsCount AS blockedApplications,
    Session.blockedSiteAttemptsCount AS blockedSites,
    Session.legitimateTimeSeconds AS legitimateSeconds,
    Session.distractedTimeSeconds AS distractedSeconds,
    lower(hex(Session.id)) AS id
FROM Session
LEFT JOIN TaskItem ON TaskItem.id = Session.task
LEFT JOIN Project ON Project.id = TaskItem.project
ORDER BY Session.startTime)"},
    Object{"AppUsageLog", R"(CREATE VIEW AppUsageLog AS
SELECT datetime(AppUsageSession.startTime / 1000, 'unixepoch', 'localtime') AS start,
    datetime(AppUsageSession.endTime / 1000, 'unixepoch', 'localtime') AS "end",
    AppUsageSession.durationSeconds AS seconds,
    AppUsageSource.appName AS application,
    AppUsageSource.bundleID AS bundleID,
    AppUsageSource.category AS category,
    lower(hex(AppUsageSession.id)) AS id
FROM AppUsageSession
JOIN AppUsageSource ON AppUsageSource.id = AppUsageSession.source
ORDER BY AppUsageSession.startTime)"},
};

// Indexes as earlier versions of the program made them.
constexpr std::array formerIndexes{
    Object{"AppUsageSession_startTime",
           "CREATE INDEX AppUsageSession_startTime ON AppUsageSession(startTime)"},
};

bool isFormer(const Object& object, const std::string& sql) {
    return std::any_of(formerIndexes.begin(), formerIndexes.end(), [&](const Object& former) {
        return std::string_view(object.name) == former.name && sql == former.sql;
    });
}

bool isAsIn(SQLite::Database& database, const Object& object) {
    SQLite::Statement query(database, "SELECT sql FROM sqlite_schema WHERE name = ?1");
    query.bind(1, object.name);
    return query.executeStep() && query.getColumn(0).getString() == object.sql;
}

} // namespace

bool isBlank(SQLite::Database& database) {
    return database.execAndGet("PRAGMA user_version").getInt() == 0 &&
           database.execAndGet("SELECT count(*) FROM sqlite_schema").getInt() == 0;
}

void create(SQLite::Database& database) {
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    // Another process may have made the store while this one waited for the lock.
    if (!isBlank(database))
        return;
    for (const Object& object : objects)
        database.exec(object.sql);
    database.exec("PRAGMA user_version = " + std::to_string(version));
    transaction.commit();
}

void renewIndexes(SQLite::Database& database) {
    if (database.execAndGet("PRAGMA user_version").getInt() != version)
        return;
    for (const Object& former : formerIndexes) {
        if (!isAsIn(database, former))
            continue;
        const auto* const current =
            std::find_if(objects.begin(), objects.end(), [&former](const Object& object) {
                return std::string_view(object.name) == former.name;
            });
        try {
            SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
            database.exec(std::string("DROP INDEX ") + former.name);
            database.exec(current->sql);
            transaction.commit();
        } catch (const SQLite::Exception& exception) {
            // With the old one everything can be read as well, if more slowly.
            if (exception.getErrorCode() != SQLITE_FULL)
                throw;
        }
    }
}

StoreResult validate(SQLite::Database& database) {
    const int found = database.execAndGet("PRAGMA user_version").getInt();
    if (found != version) {
        return StoreError{
            .description =
                QStringLiteral("The store has schema number %1 instead of %2.").arg(found).arg(version)};
    }
    std::map<std::string, std::string> texts;
    SQLite::Statement query(database, "SELECT name, sql FROM sqlite_schema WHERE sql IS NOT NULL");
    while (query.executeStep())
        texts.emplace(query.getColumn(0).getString(), query.getColumn(1).getString());
    for (const Object& object : objects) {
        const auto text = texts.find(object.name);
        if (text == texts.end() || (text->second != object.sql && !isFormer(object, text->second))) {
            return StoreError{.description = QStringLiteral("The store's %1 is not that of schema number %2.")
                                                 .arg(QLatin1String(object.name))
                                                 .arg(version)};
        }
    }
    return {};
}

} // namespace norvin::schema
