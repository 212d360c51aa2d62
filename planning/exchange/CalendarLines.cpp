#include "planning/exchange/CalendarLines.h"

#include <QStringDecoder>

namespace norvin {

namespace {

// In bytes, without the line end.
constexpr qsizetype longestLine = 75;

bool isNameCharacter(QChar character) {
    return (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z') ||
           (character >= u'0' && character <= u'9') || character == u'-';
}

/// Goes along one line; false is what is not there.
class Scanner final {
public:
    explicit Scanner(const QString& text)
        : m_text(text) {}

    bool take(QChar wanted) {
        if (m_at >= m_text.size() || m_text[m_at] != wanted)
            return false;
        ++m_at;
        return true;
    }
    QString name() {
        const qsizetype start = m_at;
        while (m_at < m_text.size() && isNameCharacter(m_text[m_at]))
            ++m_at;
        return m_text.mid(start, m_at - start).toUpper();
    }
    /// None where a quotation mark is not closed.
    std::optional<QString> parameterValue() {
        if (take(u'"')) {
            const qsizetype end = m_text.indexOf(u'"', m_at);
            if (end < 0)
                return std::nullopt;
            const QString value = m_text.mid(m_at, end - m_at);
            m_at = end + 1;
            return value;
        }
        const qsizetype start = m_at;
        while (m_at < m_text.size() && !QStringView(u";:,").contains(m_text[m_at]))
            ++m_at;
        return m_text.mid(start, m_at - start);
    }
    [[nodiscard]] QString rest() const { return m_text.mid(m_at); }

private:
    const QString& m_text;
    qsizetype m_at = 0;
};

std::optional<CalendarLine> takenApart(const QString& text) {
    Scanner scanner(text);
    CalendarLine line;
    line.name = scanner.name();
    if (line.name.isEmpty())
        return std::nullopt;
    while (scanner.take(u';')) {
        const QString parameter = scanner.name();
        if (parameter.isEmpty() || !scanner.take(u'='))
            return std::nullopt;
        QStringList values;
        do {
            const std::optional<QString> value = scanner.parameterValue();
            if (!value)
                return std::nullopt;
            values.append(*value);
        } while (scanner.take(u','));
        line.parameters.insert(parameter, values.join(u','));
    }
    if (!scanner.take(u':'))
        return std::nullopt;
    line.value = scanner.rest();
    return line;
}

} // namespace

QStringList CalendarLine::texts() const {
    QStringList texts{QString()};
    for (qsizetype at = 0; at < value.size(); ++at) {
        if (value[at] == u',') {
            texts.append(QString());
            continue;
        }
        if (value[at] != u'\\' || at + 1 == value.size()) {
            texts.last() += value[at];
            continue;
        }
        const QChar escaped = value[++at];
        texts.last() += escaped == u'n' || escaped == u'N' ? QChar(u'\n') : escaped;
    }
    return texts;
}

QString CalendarLine::text() const {
    // Many programs leave the commas of a text as they are.
    return texts().join(u',');
}

CalendarLineReader::CalendarLineReader(const QByteArray& bytes)
    : m_bytes(bytes)
    , m_at(bytes.startsWith("\xef\xbb\xbf") ? 3 : 0) {}

QByteArrayView CalendarLineReader::physicalLine() {
    qsizetype end = m_bytes.indexOf('\n', m_at);
    end = end < 0 ? m_bytes.size() : end;
    QByteArrayView line = QByteArrayView(m_bytes).sliced(m_at, end - m_at);
    m_at = std::min(end + 1, m_bytes.size());
    ++m_line;
    return line.endsWith('\r') ? line.chopped(1) : line;
}

std::variant<std::optional<CalendarLine>, PlanningError> CalendarLineReader::next() {
    QByteArray whole;
    int first = 0;
    do {
        if (m_at >= m_bytes.size())
            return std::optional<CalendarLine>();
        whole = physicalLine().toByteArray();
        first = m_line;
        // A line may be folded in the midst of a character, so it is put together before it is decoded.
        while (m_at < m_bytes.size() && (m_bytes[m_at] == ' ' || m_bytes[m_at] == '\t'))
            whole += physicalLine().sliced(1);
    } while (whole.trimmed().isEmpty());

    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    const QString text = decoder(whole);
    if (decoder.hasError())
        return PlanningError{"planning_file_not_utf8", {}, first};
    std::optional<CalendarLine> line = takenApart(text);
    if (!line)
        return PlanningError{"planning_file_broken_line", {text.left(40)}, first};
    line->line = first;
    return line;
}

QString calendarEscaped(const QString& text) {
    QString escaped = text;
    return escaped.replace(u'\\', QLatin1String("\\\\"))
        .replace(u';', QLatin1String("\\;"))
        .replace(u',', QLatin1String("\\,"))
        .replace(QLatin1String("\r\n"), QLatin1String("\\n"))
        .replace(u'\n', QLatin1String("\\n"))
        .replace(u'\r', QLatin1String("\\n"));
}

QByteArray calendarLine(const QString& name, const QString& value) {
    const QByteArray whole = (name + u':' + value).toUtf8();
    QByteArray folded;
    qsizetype start = 0;
    qsizetype room = longestLine;
    while (whole.size() - start > room) {
        qsizetype end = start + room;
        // Not within a character.
        while ((whole[end] & 0xC0) == 0x80)
            --end;
        folded += whole.sliced(start, end - start) + "\r\n ";
        start = end;
        room = longestLine - 1;
    }
    return folded + whole.sliced(start) + "\r\n";
}

} // namespace norvin
