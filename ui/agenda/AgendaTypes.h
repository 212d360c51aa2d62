#pragma once

#include "planning/AgendaCalendarPopover.h"
#include "planning/AgendaPlanningSheet.h"
#include "planning/DailyAgendaView.h"
#include "planning/FilteredTaskList.h"
#include "planning/HorizontalDatePicker.h"
#include "planning/LateTaskList.h"
#include "planning/QuickAddEntry.h"
#include "planning/TaskEntryChips.h"
#include "planning/TaskPickList.h"

#include <QQmlEngine>

namespace norvin::qml {

// The classes behind the daily agenda, under the names that QML knows them by.

struct DailyAgendaViewType {
    Q_GADGET
    QML_FOREIGN(norvin::DailyAgendaView)
    QML_NAMED_ELEMENT(DailyAgendaView)
    QML_UNCREATABLE("Handed to the window")
};

struct AgendaRowsModelType {
    Q_GADGET
    QML_FOREIGN(norvin::AgendaRowsModel)
    QML_NAMED_ELEMENT(AgendaRowsModel)
    QML_UNCREATABLE("Belongs to the agenda")
};

struct FilteredTaskListType {
    Q_GADGET
    QML_FOREIGN(norvin::FilteredTaskList)
    QML_NAMED_ELEMENT(FilteredTaskList)
    QML_UNCREATABLE("Belongs to the agenda")
};

struct LateTaskListType {
    Q_GADGET
    QML_FOREIGN(norvin::LateTaskList)
    QML_NAMED_ELEMENT(LateTaskList)
    QML_UNCREATABLE("Belongs to the agenda")
};

struct HorizontalDatePickerType {
    Q_GADGET
    QML_FOREIGN(norvin::HorizontalDatePicker)
    QML_NAMED_ELEMENT(HorizontalDatePicker)
    QML_UNCREATABLE("Belongs to the agenda")
};

struct AgendaCalendarPopoverType {
    Q_GADGET
    QML_FOREIGN(norvin::AgendaCalendarPopover)
    QML_NAMED_ELEMENT(AgendaCalendarPopover)
    QML_UNCREATABLE("Belongs to what a day is chosen for")
};

struct AgendaPlanningSheetType {
    Q_GADGET
    QML_FOREIGN(norvin::AgendaPlanningSheet)
    QML_NAMED_ELEMENT(AgendaPlanningSheet)
    QML_UNCREATABLE("Belongs to the agenda")
};

struct QuickAddEntryType {
    Q_GADGET
    QML_FOREIGN(norvin::QuickAddEntry)
    QML_NAMED_ELEMENT(QuickAddEntry)
    QML_UNCREATABLE("Belongs to the planning sheet")
};

struct TaskEntryChipsType {
    Q_GADGET
    QML_FOREIGN(norvin::TaskEntryChips)
    QML_NAMED_ELEMENT(TaskEntryChips)
    QML_UNCREATABLE("Belongs to the planning sheet")
};

struct TaskPickListType {
    Q_GADGET
    QML_FOREIGN(norvin::TaskPickList)
    QML_NAMED_ELEMENT(TaskPickList)
    QML_UNCREATABLE("Belongs to the planning sheet")
};

} // namespace norvin::qml
