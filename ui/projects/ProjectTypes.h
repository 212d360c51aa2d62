#pragma once

#include "planning/AllProjectsView.h"
#include "planning/KanbanBoardView.h"
#include "planning/ProjectSheet.h"

#include <QQmlEngine>

namespace norvin::qml {

// The classes behind the projects and their boards, under the names that QML knows them by.

struct EntityListModelType {
    Q_GADGET
    QML_FOREIGN(norvin::EntityListModel)
    QML_ANONYMOUS
};

struct AllProjectsViewType {
    Q_GADGET
    QML_FOREIGN(norvin::AllProjectsView)
    QML_NAMED_ELEMENT(AllProjectsView)
    QML_UNCREATABLE("Handed to the window")
};

struct ProjectListModelType {
    Q_GADGET
    QML_FOREIGN(norvin::ProjectListModel)
    QML_NAMED_ELEMENT(ProjectListModel)
    QML_UNCREATABLE("Belongs to the list of projects")
};

struct ProjectSheetType {
    Q_GADGET
    QML_FOREIGN(norvin::ProjectSheet)
    QML_NAMED_ELEMENT(ProjectSheet)
    QML_UNCREATABLE("Handed to the window")
};

struct PhaseRowsModelType {
    Q_GADGET
    QML_FOREIGN(norvin::PhaseRowsModel)
    QML_NAMED_ELEMENT(PhaseRowsModel)
    QML_UNCREATABLE("Belongs to the sheet of a project")
};

struct KanbanBoardViewType {
    Q_GADGET
    QML_FOREIGN(norvin::KanbanBoardView)
    QML_NAMED_ELEMENT(KanbanBoardView)
    QML_UNCREATABLE("Handed to the window")
};

struct KanbanColumnViewType {
    Q_GADGET
    QML_FOREIGN(norvin::KanbanColumnView)
    QML_NAMED_ELEMENT(KanbanColumnView)
    QML_UNCREATABLE("Belongs to a board")
};

struct PhaseListModelType {
    Q_GADGET
    QML_FOREIGN(norvin::PhaseListModel)
    QML_NAMED_ELEMENT(PhaseListModel)
    QML_UNCREATABLE("Belongs to a board")
};

struct ManagePhasesSheetType {
    Q_GADGET
    QML_FOREIGN(norvin::ManagePhasesSheet)
    QML_NAMED_ELEMENT(ManagePhasesSheet)
    QML_UNCREATABLE("Belongs to a board")
};

} // namespace norvin::qml
