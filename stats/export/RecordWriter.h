#pragma once

#include "model/AppUsageSession.h"
#include "model/Project.h"
#include "model/Session.h"
#include "stats/export/RecordStamps.h"

#include <QByteArray>
#include <QHash>
#include <QIODevice>

namespace norvin {

/// What an exported session says of its task.
struct TaskLabel {
    QString title;
    std::optional<ProjectId> projectId;
    QString project;
};
using TaskLabels = QHash<TaskId, TaskLabel>;

/// Takes the members of one record after the other, and writes what they make into a device in large pieces.
/// For one thread, any one.
class RecordRows {
public:
    explicit RecordRows(QIODevice& device);
    RecordRows(const RecordRows&) = delete;
    RecordRows& operator=(const RecordRows&) = delete;
    virtual ~RecordRows() = default;

    virtual void beginRecord() = 0;
    virtual void endRecord() = 0;
    /// Any text.
    virtual void text(const char* name, const QString& value) = 0;
    /// A text of letters that need no care in any format, such as an id or a stamp.
    virtual void word(const char* name, const QByteArray& value) = 0;
    /// A number, true or false.
    virtual void literal(const char* name, const QByteArray& value) = 0;
    virtual void nothing(const char* name) = 0;

    /// Writes what is left. @return whether the device took everything so far
    [[nodiscard]] bool flush();
    [[nodiscard]] bool isGood() const { return m_isGood; }

protected:
    void write(const QByteArray& bytes);

private:
    QIODevice& m_device;
    QByteArray m_pending;
    bool m_isGood = true;
};

/// As RFC 4180 says: a line of names first, fields in quotation marks where they need them, lines that end in
/// CRLF, UTF-8. What is nothing is empty.
class CsvRows final : public RecordRows {
public:
    using RecordRows::RecordRows;
    void beginRecord() override;
    void endRecord() override;
    void text(const char* name, const QString& value) override;
    void word(const char* name, const QByteArray& value) override { field(name, value); }
    void literal(const char* name, const QByteArray& value) override { field(name, value); }
    void nothing(const char* name) override { field(name, {}); }
    /// The next record is written as its names.
    void takeNames() { m_takesNames = true; }

private:
    void field(const char* name, const QByteArray& value);

    bool m_takesNames = false;
    bool m_isFirst = true;
};

/// A JSON object with members and lists of objects, each of which is on a line of its own.
class JsonRows final : public RecordRows {
public:
    using RecordRows::RecordRows;
    void beginRecord() override;
    void endRecord() override { write("}"); }
    void text(const char* name, const QString& value) override;
    void word(const char* name, const QByteArray& value) override { member(name, '"' + value + '"'); }
    void literal(const char* name, const QByteArray& value) override { member(name, value); }
    void nothing(const char* name) override { member(name, "null"); }

    /// The object around everything.
    void beginDocument();
    void endDocument() { write("\n}\n"); }
    void beginList(const char* name);
    void endList();

private:
    void member(const char* name, const QByteArray& value);

    bool m_isFirstMember = true;
    bool m_isFirstRecord = true;
    bool m_isInList = false;
};

/// One field of a CSV file, with quotation marks where it needs them.
[[nodiscard]] QByteArray csvField(const QByteArray& value);

/// The members of a session, the same for all formats. @param tasks says what its task is called
void writeSession(RecordRows& rows, const Session& session, const TaskLabels& tasks, RecordStamps& stamps);
/// The members of a usage interval.
void writeUsage(RecordRows& rows, const AppUsageSession& usage, RecordStamps& stamps);

} // namespace norvin
