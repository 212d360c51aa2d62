pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// How long the next work phase is to be: a few usual lengths, or a number of one's own.
RowLayout {
    id: root

    required property DeepWorkScreen screen
    readonly property list<string> choices: ["15", "25", "45", "60", "own"]
    readonly property bool isUsual: root.choices.indexOf(String(root.screen.selectedDuration)) >= 0
    property bool ownAsked: false

    spacing: Theme.gap3

    SegmentedChoice {
        objectName: "durationChoice"
        name: qsTrId("duration_label")
        values: root.choices
        labels: ["15", "25", "45", "60", qsTrId("duration_own")]
        optionNames: [qsTrId("duration_minutes").arg(15), qsTrId("duration_minutes").arg(25), qsTrId("duration_minutes").arg(45), qsTrId("duration_minutes").arg(60), qsTrId("duration_own")]
        value: root.isUsual && !root.ownAsked ? String(root.screen.selectedDuration) : "own"
        segmentHeight: Theme.controlHeightSmall
        onChosen: value => {
            root.ownAsked = value === "own";
            if (!root.ownAsked)
                root.screen.selectedDuration = Number(value);
        }
    }

    EntryField {
        id: ownMinutes

        objectName: "ownMinutes"
        implicitWidth: 88
        visible: root.ownAsked || !root.isUsual
        horizontalAlignment: TextInput.AlignHCenter
        inputMethodHints: Qt.ImhDigitsOnly
        maximumLength: 4
        validator: IntValidator {
            bottom: 1
            top: 1440
        }
        placeholderText: qsTrId("duration_own_placeholder")
        Accessible.name: qsTrId("duration_own_name")

        onTextEdited: {
            if (ownMinutes.acceptableInput)
                root.screen.selectedDuration = Number(ownMinutes.text);
        }
        // A number out of range is forgotten when the field is left.
        onActiveFocusChanged: ownMinutes.text = String(root.screen.selectedDuration)
        onVisibleChanged: {
            ownMinutes.text = String(root.screen.selectedDuration);
            if (ownMinutes.visible && root.ownAsked) {
                ownMinutes.forceActiveFocus(Qt.TabFocusReason);
                ownMinutes.selectAll();
            }
        }
    }

    ThemedText {
        visible: ownMinutes.visible
        text: qsTrId("duration_own_unit")
        color: Theme.textMuted
    }
}
