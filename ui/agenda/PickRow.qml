pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// An open task that can be ticked for the day.
Item {
    id: root

    required property int index
    required property string title
    required property string projectName
    required property string projectColor
    required property string when
    required property bool isLate
    required property bool isTicked
    readonly property bool isCurrent: root.ListView.isCurrentItem && root.ListView.view.activeFocus

    signal toggled

    function withFact(text: string, fact: string): string {
        return fact.length > 0 ? text + ", " + fact : text;
    }

    implicitHeight: 44
    Accessible.role: Accessible.CheckBox
    Accessible.name: root.withFact(root.withFact(root.title, root.projectName), root.when)
    Accessible.checkable: true
    Accessible.checked: root.isTicked

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusSmall
        color: root.isTicked ? Theme.accentSurface : hover.hovered || root.isCurrent ? Theme.surfaceRaised : "transparent"

        HoverHandler {
            id: hover
        }

        TapHandler {
            onTapped: root.toggled()
        }

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap3
            anchors.rightMargin: Theme.gap3
            spacing: Theme.gap3

            Symbol {
                name: root.isTicked ? "checkmark.circle.fill" : "circle"
                color: root.isTicked ? Theme.accentText : Theme.textFaint
                size: 18
            }

            ThemedText {
                Layout.fillWidth: true
                text: root.title
                elide: Text.ElideRight
                Accessible.ignored: true
            }

            Item {
                Layout.preferredWidth: 150
                implicitHeight: fact.implicitHeight

                RowFact {
                    id: fact

                    symbol: "folder"
                    text: root.projectName
                    symbolColor: root.projectColor.length > 0 ? root.projectColor : Theme.textFaint
                    maximumTextWidth: 150 - 14 - Theme.gap1
                }
            }

            ThemedText {
                Layout.preferredWidth: 212
                horizontalAlignment: Text.AlignRight
                text: root.when
                color: root.isLate ? Theme.amber : Theme.textMuted
                font.pixelSize: Theme.caption
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }

        FocusRing {
            shown: root.isCurrent
            distance: -1
        }
    }
}
