#pragma once

#include "planning/QuickAddEntry.h"
#include "planning/TaskPickList.h"

#include <QDateTime>
#include <QLocale>
#include <QObject>
#include <QString>

#include <optional>

namespace norvin {

/// The sheet that puts tasks onto a day: new ones, or some that are there already. Main thread only.
class AgendaPlanningSheet final : public QObject {
    Q_OBJECT
    /// "quickAdd" or "pickExisting".
    Q_PROPERTY(QString tab READ tabName WRITE setTabName NOTIFY tabChanged)
    /// The day that is planned, in words.
    Q_PROPERTY(QString dateText READ dateText NOTIFY dateChanged)
    Q_PROPERTY(norvin::QuickAddEntry* quickAdd READ quickAdd CONSTANT)
    Q_PROPERTY(norvin::TaskPickList* pickList READ pickList CONSTANT)
public:
    enum class PlanningTab { quickAdd, pickExisting };
    Q_ENUM(PlanningTab)

    AgendaPlanningSheet(const AgendaCollaborators& collaborators, const QLocale& locale,
                        QObject* parent = nullptr);
    ~AgendaPlanningSheet() override;

    /// @param date an instant of the day to plan
    /// @param task the one to plan, ticked in advance; null for none
    void open(const QDateTime& date, PlanningTab tab, TaskItem* task);
    void close();

    [[nodiscard]] const QDateTime& date() const { return m_date; }
    [[nodiscard]] QString dateText() const;
    [[nodiscard]] PlanningTab tab() const { return m_tab; }
    void setTab(PlanningTab tab);
    [[nodiscard]] QString tabName() const;
    void setTabName(const QString& name);
    [[nodiscard]] QuickAddEntry* quickAdd() { return &m_quickAdd; }
    [[nodiscard]] TaskPickList* pickList() { return &m_pickList; }

    /// Plans what is ticked for the day. Can be undone. @return whether anything was ticked
    Q_INVOKABLE bool planTicked();

    /// Today is another day.
    void refresh();
    void retranslate(const QLocale& locale);

Q_SIGNALS:
    void tabChanged();
    void dateChanged();

private:
    AgendaCollaborators m_with;
    QLocale m_locale;
    QDateTime m_date;
    PlanningTab m_tab = PlanningTab::quickAdd;
    QuickAddEntry m_quickAdd;
    TaskPickList m_pickList;
    bool m_isOpen = false;
    /// Filled only when it is first looked at.
    bool m_isPickListOpen = false;
};

/// "quickAdd", "pickExisting".
[[nodiscard]] QString rawValue(AgendaPlanningSheet::PlanningTab tab);
/// The tab of a raw value; none for any other text.
[[nodiscard]] std::optional<AgendaPlanningSheet::PlanningTab> planningTabFromRawValue(const QString& raw);

} // namespace norvin
