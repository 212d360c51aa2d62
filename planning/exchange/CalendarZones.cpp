#include "planning/exchange/CalendarZones.h"

#include <QRegularExpression>

#include <utility>

namespace norvin {

namespace {

/// Seconds east of Greenwich of a text such as "+0530"; none for any other text.
std::optional<int> offsetFromText(const QString& text) {
    static const QRegularExpression shape(
        QRegularExpression::anchoredPattern(QStringLiteral("([+-])(\\d\\d)(\\d\\d)(\\d\\d)?")));
    const QRegularExpressionMatch match = shape.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const auto part = [&match](int number) { return match.capturedView(number).toInt(); };
    const int seconds = part(2) * 3600 + part(3) * 60 + part(4);
    return match.capturedView(1) == u"-" ? -seconds : seconds;
}

} // namespace

void CalendarZones::addLine(const CalendarLine& line) {
    if (line.name == QLatin1String("TZID"))
        m_open.id = line.text();
    else if (line.name == QLatin1String("X-LIC-LOCATION"))
        m_open.location = line.text();
    else if (line.name == QLatin1String("TZOFFSETTO"))
        m_open.offsets.insert(line.value);
}

void CalendarZones::endZone() {
    const Definition definition = std::exchange(m_open, {});
    m_definitions.insert(definition.id, definition);
    m_found.clear();
}

QTimeZone CalendarZones::zone(const QString& id) const {
    if (const auto found = m_found.constFind(id); found != m_found.cend())
        return *found;
    QTimeZone zone = named(id);
    if (!zone.isValid())
        zone = defined(id);
    m_found.insert(id, zone);
    return zone;
}

QTimeZone CalendarZones::named(const QString& id) {
    const auto existing = [](const QByteArray& name) {
        return !name.isEmpty() && QTimeZone::isTimeZoneIdAvailable(name) ? QTimeZone(name) : QTimeZone();
    };
    // "/vendor/version/Europe/Paris": the name is at the end, of one to three parts.
    for (QString rest = id; !rest.isEmpty();) {
        if (const QTimeZone zone = existing(rest.toUtf8()); zone.isValid())
            return zone;
        const qsizetype slash = rest.indexOf(u'/');
        rest = slash < 0 ? QString() : rest.mid(slash + 1);
    }
    return existing(QTimeZone::windowsIdToDefaultIanaId(id.toUtf8()));
}

QTimeZone CalendarZones::defined(const QString& id) const {
    const auto found = m_definitions.constFind(id);
    if (found == m_definitions.cend())
        return {};
    if (const QTimeZone zone = named(found->location); zone.isValid())
        return zone;
    if (found->offsets.size() != 1)
        return {};
    const std::optional<int> offset = offsetFromText(*found->offsets.cbegin());
    return offset ? QTimeZone(*offset) : QTimeZone();
}

} // namespace norvin
