pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A task that a session can have been spent on, or none.
Item {
    id: root

    required property int index
    required property string title
    required property string projectName
    required property string projectColor
    required property bool isDone
    required property bool isChosen
    readonly property bool isCurrent: root.ListView.isCurrentItem && root.ListView.view.activeFocus

    signal chosen

    implicitHeight: 44
    Accessible.role: Accessible.RadioButton
    Accessible.name: root.projectName.length > 0 ? root.title + ", " + root.projectName : root.title
    Accessible.checkable: true
    Accessible.checked: root.isChosen
    Accessible.onPressAction: root.chosen()

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusSmall
        color: root.isChosen ? Theme.accentSurface : hover.hovered || root.isCurrent ? Theme.surfaceRaised : "transparent"

        HoverHandler {
            id: hover
        }

        TapHandler {
            onTapped: root.chosen()
        }

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap3
            anchors.rightMargin: Theme.gap3
            spacing: Theme.gap3

            Symbol {
                opacity: root.isChosen ? 1 : 0
                name: "checkmark"
                color: Theme.accentText
                size: 18
            }

            ThemedText {
                Layout.fillWidth: true
                text: root.title
                color: root.isDone ? Theme.textMuted : Theme.text
                font.strikeout: root.isDone
                elide: Text.ElideRight
                Accessible.ignored: true
            }

            Item {
                Layout.preferredWidth: 200
                implicitHeight: fact.implicitHeight

                RowFact {
                    id: fact

                    symbol: "folder"
                    text: root.projectName
                    symbolColor: root.projectColor.length > 0 ? root.projectColor : Theme.textFaint
                    maximumTextWidth: 200 - 14 - Theme.gap1
                }
            }
        }

        FocusRing {
            shown: root.isCurrent
            distance: -1
        }
    }
}
