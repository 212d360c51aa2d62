pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What a project is called, what it is about and how it looks.
ColumnLayout {
    id: root

    required property ProjectSheet sheet

    function focusName(): void {
        name.forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: Theme.gap4

    LabelledItem {
        Layout.fillWidth: true
        label: qsTrId("project_name_label")

        EntryField {
            id: name

            objectName: "projectName"
            width: parent.width
            implicitHeight: Theme.controlHeightLarge
            font.pixelSize: Theme.bodyLarge
            maximumLength: 200
            placeholderText: qsTrId("project_name_placeholder")
            Accessible.name: qsTrId("project_name_label")
            text: root.sheet.name
            onTextEdited: root.sheet.name = name.text
            onAccepted: root.sheet.saveProject()
        }
    }

    LabelledItem {
        Layout.fillWidth: true
        label: qsTrId("project_description_label")

        EntryArea {
            id: description

            objectName: "projectDescription"
            width: parent.width
            height: 88
            placeholderText: qsTrId("project_description_placeholder")
            text: root.sheet.description
            onTextChanged: root.sheet.description = description.text
        }
    }

    LabelledItem {
        Layout.fillWidth: true
        label: qsTrId("project_icon_label")

        PaletteGrid {
            objectName: "emojiPalette"
            columns: 12
            cellSize: 36
            values: root.sheet.emojis
            value: root.sheet.selectedEmoji
            name: qsTrId("project_icon_label")
            valueName: qsTrId("project_icon_name").arg(root.sheet.emojis.indexOf(root.sheet.selectedEmoji) + 1).arg(root.sheet.emojis.length)
            onChosen: value => root.sheet.selectedEmoji = value
        }
    }

    LabelledItem {
        Layout.fillWidth: true
        label: qsTrId("project_color_label")

        ColorPalette {
            objectName: "colorPalette"
            values: root.sheet.colors
            value: root.sheet.selectedColor
            onChosen: value => root.sheet.selectedColor = value
        }
    }
}
