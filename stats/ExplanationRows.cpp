#include "stats/ExplanationRows.h"

#include "model/ModelContext.h"
#include "stats/FigureTexts.h"
#include "stats/StatsFormats.h"

#include <QtGlobal>

#include <algorithm>
#include <utility>

namespace norvin {

namespace {

template <class... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

bool isSame(const FigureRecord& a, const FigureRecord& b) {
    if (a.index() != b.index())
        return false;
    return std::visit(
        Overloaded{
            [](const LiveWork&) { return true; },
            [&b](const SessionRow& session) { return session.id == std::get<SessionRow>(b).id; },
            [&b](const DayCount& day) { return day.day == std::get<DayCount>(b).day; },
            [&b](const AppTotal& total) { return total.bundleID == std::get<AppTotal>(b).bundleID; },
        },
        a);
}

bool showsSame(const FigureRecord& a, const FigureRecord& b) {
    return std::visit(
        Overloaded{
            [&b](const LiveWork& live) {
                const auto& other = std::get<LiveWork>(b);
                return live.minutes == other.minutes && live.score == other.score;
            },
            // Nothing else of a session can be edited.
            [&b](const SessionRow& session) { return session.task == std::get<SessionRow>(b).task; },
            [&b](const DayCount& day) { return day == std::get<DayCount>(b); },
            [&b](const AppTotal& total) { return total == std::get<AppTotal>(b); },
        },
        a);
}

/// What a record has no text for.
QVariant otherwise(int role, bool canOpen) {
    if (role == ExplanationRows::CanOpenRole)
        return canOpen;
    return role > Qt::UserRole ? QVariant(QString()) : QVariant();
}

QString scoreText(const std::optional<double>& score) {
    return score ? formatScore(*score) : QString();
}

} // namespace

ExplanationRows::ExplanationRows(const ModelContext& context, QObject* parent)
    : QAbstractListModel(parent)
    , m_context(context)
    , m_days(QTimeZone::utc()) {}

void ExplanationRows::setRecords(std::vector<FigureRecord> records, const StatsDays& days) {
    beginResetModel();
    m_days = days;
    m_records = std::move(records);
    endResetModel();
    Q_EMIT countChanged();
}

void ExplanationRows::updateRecords(std::vector<FigureRecord> records, const StatsDays& days) {
    if (days.zone() != m_days.zone()) {
        setRecords(std::move(records), days);
        return;
    }
    const auto shortest = static_cast<std::ptrdiff_t>(std::min(records.size(), m_records.size()));
    const std::ptrdiff_t head =
        std::mismatch(records.begin(), records.begin() + shortest, m_records.begin(), isSame).first -
        records.begin();
    const std::ptrdiff_t tail =
        std::mismatch(records.rbegin(), records.rbegin() + (shortest - head), m_records.rbegin(), isSame)
            .first -
        records.rbegin();
    const auto inserted = static_cast<int>(std::ssize(records) - head - tail);
    const auto removed = static_cast<int>(std::ssize(m_records) - head - tail);
    const auto first = static_cast<int>(head);
    if (removed > 0) {
        beginRemoveRows({}, first, first + removed - 1);
        m_records.erase(m_records.begin() + head, m_records.begin() + head + removed);
        endRemoveRows();
    }
    if (inserted > 0) {
        beginInsertRows({}, first, first + inserted - 1);
        m_records.insert(m_records.begin() + head, records.begin() + head, records.begin() + head + inserted);
        endInsertRows();
    }
    for (size_t row = 0; row < records.size(); ++row) {
        if (showsSame(records[row], m_records[row]))
            continue;
        const QModelIndex changed = index(static_cast<int>(row));
        m_records[row] = std::move(records[row]);
        Q_EMIT dataChanged(changed, changed);
    }
    if (removed > 0 || inserted > 0)
        Q_EMIT countChanged();
}

void ExplanationRows::setLive(const LiveWork& live) {
    if (m_records.empty() || !std::holds_alternative<LiveWork>(m_records.front()))
        return;
    m_records.front() = live;
    Q_EMIT dataChanged(index(0), index(0), {ValueRole, ScoreRole});
}

void ExplanationRows::setLocale(const QLocale& locale) {
    m_locale = locale;
    tellAllChanged();
}

void ExplanationRows::refreshTitles() {
    tellAllChanged({TitleRole});
}

void ExplanationRows::tellAllChanged(const QList<int>& roles) {
    if (!m_records.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), roles);
}

int ExplanationRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

QVariant ExplanationRows::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const FigureRecord& record = m_records[static_cast<size_t>(index.row())];
    const auto ofLive = [role](const LiveWork& live) -> QVariant {
        switch (role) {
        case KindRole:
            return QStringLiteral("live");
        case TitleRole:
            return qtTrId("explain_live");
        case DetailRole:
            return qtTrId("explain_live_detail");
        case ValueRole:
            return formatTime(live.minutes);
        case ScoreRole:
            return formatScore(live.score);
        default:
            return otherwise(role, false);
        }
    };
    const auto ofSession = [this, role](const SessionRow& session) -> QVariant {
        switch (role) {
        case KindRole:
            return QStringLiteral("session");
        case TitleRole: {
            const TaskItem* const task = session.task ? m_context.task(*session.task) : nullptr;
            return task != nullptr ? task->title() : qtTrId("free_session");
        }
        case DetailRole:
            return m_locale.toString(m_days.dateTime(session.start), QLocale::ShortFormat);
        case ValueRole:
            return formatTime(session.durationMinutes);
        case ScoreRole:
            return scoreText(session.score);
        default:
            return otherwise(role, true);
        }
    };
    const auto ofDay = [this, role](const DayCount& day) -> QVariant {
        switch (role) {
        case KindRole:
            return QStringLiteral("day");
        case TitleRole:
            return m_locale.toString(QDate::fromJulianDay(day.day), QLocale::LongFormat);
        case ValueRole:
            return qtTrId("explain_sessions", day.sessions);
        default:
            return otherwise(role, true);
        }
    };
    const auto ofApplication = [role](const AppTotal& total) -> QVariant {
        switch (role) {
        case KindRole:
            return QStringLiteral("application");
        case TitleRole:
            return total.name;
        case DetailRole:
            return categoryName(total.category);
        case ValueRole:
            return exactSeconds(total.duration);
        case BundleIDRole:
            return total.bundleID;
        default:
            return otherwise(role, true);
        }
    };
    return std::visit(Overloaded{ofLive, ofSession, ofDay, ofApplication}, record);
}

QHash<int, QByteArray> ExplanationRows::roleNames() const {
    return {{KindRole, "kind"},   {TitleRole, "title"},       {DetailRole, "detail"},  {ValueRole, "value"},
            {ScoreRole, "score"}, {BundleIDRole, "bundleID"}, {CanOpenRole, "canOpen"}};
}

} // namespace norvin
