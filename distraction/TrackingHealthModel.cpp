#include "distraction/TrackingHealthModel.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace norvin {

namespace {

QString text(const QString& key) {
    return qtTrId(key.toUtf8().constData());
}

// Not every text names its subject.
QString text(const QString& key, const QString& subject) {
    QString result = text(key);
    return subject.isEmpty() ? result : result.replace(QLatin1String("%1"), subject);
}

QStringList labels(const QList<TrackingHealthModel::Action>& actions, const QString& subject) {
    QStringList result;
    for (const TrackingHealthModel::Action& action : actions)
        result.append(text(action.labelKey, subject));
    return result;
}

QStringList labelKeys(const QList<TrackingHealthModel::Action>& actions) {
    QStringList result;
    for (const TrackingHealthModel::Action& action : actions)
        result.append(action.labelKey);
    return result;
}

} // namespace

TrackingHealthModel::TrackingHealthModel(QList<Check> checks, QObject* parent)
    : QAbstractListModel(parent) {
    for (Check& check : checks)
        m_rows.append({std::move(check), Availability::available(), {}});
    refresh();
}

TrackingHealthModel::~TrackingHealthModel() = default;

void TrackingHealthModel::setPassingChecks(int row, std::function<QList<Check>()> passingChecks) {
    m_passingRow = row;
    m_passingChecks = std::move(passingChecks);
}

int TrackingHealthModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant TrackingHealthModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows.at(index.row());
    const std::optional<Unavailable>& reason = row.answer.reason();
    switch (role) {
    case Qt::DisplayRole:
    case CapabilityRole:
        return text(row.check.capabilityKey, row.check.subject);
    case IsAvailableRole:
        return !reason.has_value();
    case ReasonRole:
        return reason ? text(reason->reasonKey, row.check.subject) : QString();
    case RemedyRole:
        return reason ? text(reason->reasonKey + QStringLiteral("_remedy"), row.check.subject) : QString();
    case DetailRole:
        return reason ? reason->detail : QString();
    case ActionsRole:
        return labels(row.actions, row.check.subject);
    case IsOptionalRole:
        return row.check.isOptional;
    default:
        return {};
    }
}

QHash<int, QByteArray> TrackingHealthModel::roleNames() const {
    return {{CapabilityRole, "capability"}, {IsAvailableRole, "isAvailable"}, {ReasonRole, "reason"},
            {RemedyRole, "remedy"},         {DetailRole, "detail"},           {ActionsRole, "actions"},
            {IsOptionalRole, "isOptional"}};
}

QString TrackingHealthModel::notice() const {
    return m_notice.textKey.isEmpty() ? QString() : text(m_notice.textKey, m_notice.detail);
}

void TrackingHealthModel::replacePassingChecks() {
    QList<Check> checks = m_passingChecks ? m_passingChecks() : QList<Check>();
    const auto passing = m_rows.begin() + m_passingRow;
    const bool isSame = std::equal(checks.cbegin(), checks.cend(), passing, passing + m_passingCount,
                                   [](const Check& check, const Row& row) {
                                       return check.capabilityKey == row.check.capabilityKey &&
                                              check.subject == row.check.subject;
                                   });
    if (isSame) {
        for (qsizetype i = 0; i < checks.size(); ++i)
            passing[i].check = std::move(checks[i]);
        return;
    }
    beginResetModel();
    m_rows.remove(m_passingRow, m_passingCount);
    m_passingCount = checks.size();
    for (qsizetype i = 0; i < m_passingCount; ++i)
        m_rows.insert(m_passingRow + i, {std::move(checks[i]), Availability::available(), {}});
    endResetModel();
}

void TrackingHealthModel::refresh() {
    replacePassingChecks();
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        Row& row = m_rows[i];
        Availability answer = row.check.ask();
        QList<Action> actions = row.check.actions ? row.check.actions() : QList<Action>();
        const bool isSame = answer == row.answer && labelKeys(actions) == labelKeys(row.actions);
        row.answer = std::move(answer);
        row.actions = std::move(actions);
        if (isSame)
            continue;
        const QModelIndex changed = index(static_cast<int>(i));
        Q_EMIT dataChanged(changed, changed);
    }
    const auto problems = static_cast<int>(std::count_if(m_rows.cbegin(), m_rows.cend(), [](const Row& row) {
        return !row.answer.isAvailable() && !row.check.isOptional;
    }));
    if (problems != m_problemCount) {
        m_problemCount = problems;
        Q_EMIT problemCountChanged();
    }
}

void TrackingHealthModel::act(int row, int action) {
    if (row < 0 || row >= m_rows.size() || action < 0 || action >= m_rows.at(row).actions.size())
        return;
    const Action chosen = m_rows.at(row).actions.at(action);
    m_asked.reset();
    if (!chosen.question) {
        run(chosen);
        return;
    }
    m_asked = chosen;
    m_askedSubject = m_rows.at(row).check.subject;
    Q_EMIT questionChanged();
    Q_EMIT questionAsked();
}

void TrackingHealthModel::confirm() {
    if (const std::optional<Action> asked = std::exchange(m_asked, std::nullopt))
        run(*asked);
}

void TrackingHealthModel::run(const Action& action) {
    setNotice(action.run());
    refresh();
}

QString TrackingHealthModel::questionTitle() const {
    return m_asked ? text(m_asked->question->titleKey, m_askedSubject) : QString();
}

QString TrackingHealthModel::questionMessage() const {
    return m_asked ? text(m_asked->question->messageKey, m_askedSubject) : QString();
}

QString TrackingHealthModel::questionAnswer() const {
    return m_asked ? text(m_asked->labelKey, m_askedSubject) : QString();
}

void TrackingHealthModel::dismissNotice() {
    setNotice({});
}

void TrackingHealthModel::setNotice(Notice notice) {
    m_notice = std::move(notice);
    Q_EMIT noticeChanged();
}

void TrackingHealthModel::retranslate() {
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(static_cast<int>(m_rows.size()) - 1));
    Q_EMIT noticeChanged();
    Q_EMIT questionChanged();
}

} // namespace norvin
