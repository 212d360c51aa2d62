#include "stats/export/RecordWriter.h"

#include <utility>

namespace norvin {

namespace {

constexpr qsizetype pieceSize = 128 * 1024;

QByteArray quotedJson(const QString& text) {
    QByteArray result = "\"";
    for (const char c : text.toUtf8()) {
        if (c == '"' || c == '\\') {
            result += '\\';
            result += c;
        } else if (c >= 0 && c < 0x20) {
            // The bytes of UTF-8 beyond ASCII are negative.
            result += "\\u00" + QByteArray::number(c, 16).rightJustified(2, '0');
        } else {
            result += c;
        }
    }
    return result + '"';
}

QByteArray idText(const QUuid& id) {
    return id.toByteArray(QUuid::WithoutBraces);
}

void writeStamps(RecordRows& rows, const char* utcName, const char* localName, const QDateTime& time,
                 RecordStamps& stamps) {
    const Instant instant(time);
    if (instant.isNone()) {
        rows.nothing(utcName);
        rows.nothing(localName);
        return;
    }
    rows.word(utcName, RecordStamps::utc(instant));
    rows.word(localName, stamps.local(instant));
}

void writeNumber(RecordRows& rows, const char* name, qint64 number) {
    rows.literal(name, QByteArray::number(number));
}

} // namespace

RecordRows::RecordRows(QIODevice& device)
    : m_device(device) {
    m_pending.reserve(pieceSize + pieceSize / 4);
}

bool RecordRows::flush() {
    if (m_isGood && !m_pending.isEmpty())
        m_isGood = m_device.write(m_pending) == m_pending.size();
    // Keeps its room.
    m_pending.resize(0);
    return m_isGood;
}

void RecordRows::write(const QByteArray& bytes) {
    m_pending.append(bytes);
    if (m_pending.size() >= pieceSize)
        static_cast<void>(flush());
}

QByteArray csvField(const QByteArray& value) {
    if (!value.contains('"') && !value.contains(',') && !value.contains('\n') && !value.contains('\r'))
        return value;
    QByteArray escaped = value;
    escaped.replace('"', "\"\"");
    return '"' + escaped + '"';
}

void CsvRows::beginRecord() {
    m_isFirst = true;
}

void CsvRows::endRecord() {
    write("\r\n");
    m_takesNames = false;
}

void CsvRows::text(const char* name, const QString& value) {
    field(name, csvField(value.toUtf8()));
}

void CsvRows::field(const char* name, const QByteArray& value) {
    if (!std::exchange(m_isFirst, false))
        write(",");
    write(m_takesNames ? QByteArray(name) : value);
}

void JsonRows::beginDocument() {
    write("{");
    m_isFirstMember = true;
}

void JsonRows::beginList(const char* name) {
    member(name, "[");
    m_isInList = true;
    m_isFirstRecord = true;
}

void JsonRows::endList() {
    write(m_isFirstRecord ? "]" : "\n    ]");
    m_isInList = false;
    m_isFirstMember = false;
}

void JsonRows::beginRecord() {
    write(std::exchange(m_isFirstRecord, false) ? "\n        {" : ",\n        {");
    m_isFirstMember = true;
}

void JsonRows::text(const char* name, const QString& value) {
    member(name, quotedJson(value));
}

void JsonRows::member(const char* name, const QByteArray& value) {
    const bool isFirst = std::exchange(m_isFirstMember, false);
    if (m_isInList)
        write(isFirst ? "\"" : ", \"");
    else
        write(isFirst ? "\n    \"" : ",\n    \"");
    write(QByteArray(name) + "\": " + value);
}

void writeSession(RecordRows& rows, const Session& session, const TaskLabels& tasks, RecordStamps& stamps) {
    rows.beginRecord();
    rows.word("id", idText(session.id.uuid()));
    writeStamps(rows, "startUtc", "startLocal", session.startTime, stamps);
    writeNumber(rows, "minutes", session.durationMinutes);
    rows.literal("completed", session.completed ? "true" : "false");
    if (session.task)
        rows.word("taskId", idText(session.task->uuid()));
    else
        rows.nothing("taskId");
    const auto label = session.task ? tasks.constFind(*session.task) : tasks.cend();
    const bool hasProject = label != tasks.cend() && label->projectId;
    if (label != tasks.cend())
        rows.text("task", label->title);
    else
        rows.nothing("task");
    if (hasProject) {
        rows.word("projectId", idText(label->projectId->uuid()));
        rows.text("project", label->project);
    } else {
        rows.nothing("projectId");
        rows.nothing("project");
    }
    if (session.score)
        rows.literal("score", QByteArray::number(*session.score, 'g', QLocale::FloatingPointShortest));
    else
        rows.nothing("score");
    writeNumber(rows, "interruptions", session.interruptionCount);
    writeNumber(rows, "blockedApplications", session.blockedAttemptsCount);
    writeNumber(rows, "blockedSites", session.blockedSiteAttemptsCount);
    writeNumber(rows, "legitimateSeconds", session.legitimateTimeSeconds);
    writeNumber(rows, "distractedSeconds", session.distractedTimeSeconds);
    rows.endRecord();
}

void writeUsage(RecordRows& rows, const AppUsageSession& usage, RecordStamps& stamps) {
    rows.beginRecord();
    rows.word("id", idText(usage.id.uuid()));
    rows.text("bundleId", usage.bundleID);
    rows.text("application", usage.appName);
    rows.text("category", usage.category);
    writeNumber(rows, "seconds", usage.durationSeconds);
    writeStamps(rows, "startUtc", "startLocal", usage.startTime, stamps);
    writeStamps(rows, "endUtc", "endLocal", usage.endTime, stamps);
    rows.endRecord();
}

} // namespace norvin
