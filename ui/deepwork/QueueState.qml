pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// What the rows of the queue share, and what they ask of the list.
QtObject {
    id: root

    required property DeepWorkScreen screen
    /// The row that a subtask is being typed for; -1 for none.
    property int subtaskRow: -1
    /// While a task is dragged: its place in the queue, and the one that it would get; -1 otherwise.
    property int draggedPlace: -1
    property int dropPlace: -1

    /// Move the task of a row by that many places.
    signal moveAsked(int row, int places)
    /// The pointer drags a task and is at this height of the list's content.
    signal draggedTo(real y)
    /// The keyboard goes back to the row.
    signal rowAsked(int row)
}
