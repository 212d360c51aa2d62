pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The sounds of a category below each other, and none. The arrow keys choose, Space lets the choice be heard; Tab
/// goes past the whole of it.
FocusScope {
    id: root

    required property AmbientSoundService service
    required property string category

    /// Made anew with the language.
    function nameOf(sound: string): string {
        return Localization.language.length > 0 ? root.service.soundName(sound) : "";
    }

    implicitHeight: column.implicitHeight
    activeFocusOnTab: true
    Accessible.role: Accessible.RadioButton
    Accessible.name: qsTrId("ambience_title") + ", " + root.nameOf(root.service.selectedSound)
    Accessible.focusable: true

    Keys.onUpPressed: root.service.chooseNext(root.category, -1)
    Keys.onDownPressed: root.service.chooseNext(root.category, 1)
    Keys.onSpacePressed: root.service.toggle()

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: Theme.surfaceRaised

        FocusRing {
            shown: root.activeFocus
            innerRadius: Theme.radius
            distance: 2
        }
    }

    ColumnLayout {
        id: column

        anchors.left: parent.left
        anchors.right: parent.right
        spacing: 0

        Repeater {
            model: root.service.choicesOf(root.category)

            T.RadioButton {
                id: row

                required property string modelData

                objectName: "ambientSound-" + row.modelData
                Layout.fillWidth: true
                implicitHeight: Theme.controlHeight
                text: root.nameOf(row.modelData)
                checked: row.modelData === root.service.selectedSound
                hoverEnabled: true
                focusPolicy: Qt.NoFocus
                Accessible.name: row.text

                onClicked: {
                    root.forceActiveFocus(Qt.MouseFocusReason);
                    root.service.selectedSound = row.modelData;
                }

                contentItem: RowLayout {
                    spacing: Theme.gap3

                    Rectangle {
                        Layout.leftMargin: Theme.gap4
                        implicitWidth: 20
                        implicitHeight: 20
                        radius: 10
                        color: "transparent"
                        border.width: row.checked ? 6 : 2
                        border.color: row.checked ? Theme.accentText : row.hovered ? Theme.textMuted : Theme.textFaint
                    }

                    ThemedText {
                        Layout.fillWidth: true
                        text: row.text
                        color: row.modelData.length > 0 || row.checked ? Theme.text : Theme.textMuted
                        font.weight: row.checked ? Font.DemiBold : Font.Normal
                        elide: Text.ElideRight
                        Accessible.ignored: true
                    }
                }

                background: Rectangle {
                    radius: Theme.radius
                    color: row.checked ? Theme.accentSurface : row.hovered ? Theme.surfaceHover : "transparent"
                }
            }
        }
    }
}
