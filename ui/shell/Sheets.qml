pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The sheets that open over whatever page is shown, and the bar that brings back what was deleted.
Item {
    id: root

    required property PlanningScreens planning
    required property StatsScreen stats
    required property CommandPalette palette
    required property WelcomeScreen welcome
    /// May be null.
    required property OutsideServices outside

    LazySheet {
        wanted: root.planning.agenda.showPlanningSheet
        file: "../agenda/PlanningSheetPopup.qml"
        model: root.planning.agenda
    }

    LazySheet {
        wanted: root.planning.taskSheet.isPresented
        file: "../tasks/TaskSheetPopup.qml"
        model: root.planning.taskSheet
    }

    LazySheet {
        wanted: root.planning.projectSheet.isPresented
        file: "../projects/ProjectSheetPopup.qml"
        model: root.planning.projectSheet
    }

    LazySheet {
        wanted: root.stats.explanation.isPresented
        file: "../stats/StatsExplanationSheet.qml"
        model: root.stats.explanation
    }

    LazySheet {
        wanted: root.welcome.isPresented
        file: "../welcome/WelcomeSheet.qml"
        model: root.welcome
    }

    LazySheet {
        wanted: root.palette.isPresented
        file: "CommandPaletteSheet.qml"
        model: root.palette
    }

    LazySheet {
        wanted: root.outside !== null && root.outside.feedback.isPresented
        file: "../services/FeedbackSheet.qml"
        model: root.outside?.feedback ?? null
    }

    LazySheet {
        wanted: root.outside !== null && root.outside.license.isPresented
        file: "../services/LicenceSheet.qml"
        model: root.outside?.license ?? null
    }

    LazySheet {
        wanted: root.planning.edits.undoText.length > 0
        file: "UndoBar.qml"
        takesKeyboard: false
        model: root.planning.edits
    }
}
