pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// What the rows of the subtasks share, and what they ask of the list.
QtObject {
    required property TaskSheet sheet
    /// Between two rows.
    readonly property int spacing: 2
    /// The row under which a subtask is being typed, and the one that is being renamed; -1 for none.
    property int typingRow: -1
    property int renamingRow: -1

    /// Move the subtask of a row by that many places among its siblings.
    signal moveAsked(int row, int places)
    /// The keyboard goes to the row.
    signal rowAsked(int row)
}
