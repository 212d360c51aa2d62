#pragma once

#include "planning/PlanningEdits.h"
#include "planning/PlanningScreens.h"
#include "planning/SubtaskListModel.h"
#include "planning/TaskResourceListModel.h"
#include "planning/TaskSessionListModel.h"
#include "planning/TaskSheet.h"

#include <QQmlEngine>

namespace norvin::qml {

// The screens of planning together, and the classes behind the sheet of a task, under the names that QML
// knows them by.

struct PlanningScreensType {
    Q_GADGET
    QML_FOREIGN(norvin::PlanningScreens)
    QML_NAMED_ELEMENT(PlanningScreens)
    QML_UNCREATABLE("Handed to the window")
};

struct PlanningEditsType {
    Q_GADGET
    QML_FOREIGN(norvin::PlanningEdits)
    QML_NAMED_ELEMENT(PlanningEdits)
    QML_UNCREATABLE("Belongs to the planning screens")
};

struct PlanningExchangeType {
    Q_GADGET
    QML_FOREIGN(norvin::PlanningExchange)
    QML_NAMED_ELEMENT(PlanningExchange)
    QML_UNCREATABLE("Belongs to the planning screens")
};

struct TaskSheetType {
    Q_GADGET
    QML_FOREIGN(norvin::TaskSheet)
    QML_NAMED_ELEMENT(TaskSheet)
    QML_UNCREATABLE("Handed to the window")
};

struct SubtaskListModelType {
    Q_GADGET
    QML_FOREIGN(norvin::SubtaskListModel)
    QML_NAMED_ELEMENT(SubtaskListModel)
    QML_UNCREATABLE("Belongs to the sheet of a task")
};

struct TaskResourceListModelType {
    Q_GADGET
    QML_FOREIGN(norvin::TaskResourceListModel)
    QML_NAMED_ELEMENT(TaskResourceListModel)
    QML_UNCREATABLE("Belongs to the sheet of a task")
};

struct TaskSessionListModelType {
    Q_GADGET
    QML_FOREIGN(norvin::TaskSessionListModel)
    QML_NAMED_ELEMENT(TaskSessionListModel)
    QML_UNCREATABLE("Belongs to the sheet of a task")
};

} // namespace norvin::qml
