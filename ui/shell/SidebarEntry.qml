pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The way to one page.
T.TabButton {
    id: root

    required property string symbol
    required property bool isCurrent
    /// The keys that do the same, as they are shown.
    required property string keys
    /// How many things want attention there; 0 shows nothing.
    property int badge: 0
    property string badgeName: ""
    /// How many things there are; 0 shows nothing. Not shown beside what wants attention.
    property int amount: 0
    property string amountName: ""
    readonly property string words: root.badgeName.length > 0 ? root.badgeName : root.amountName
    readonly property color foreground: root.isCurrent ? Theme.text : root.hovered ? Theme.text : Theme.textMuted

    Layout.fillWidth: true
    implicitHeight: Theme.controlHeight
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.name: root.words.length > 0 ? root.text + ", " + root.words : root.text
    Accessible.selected: root.isCurrent
    checked: root.isCurrent

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()
    Keys.onUpPressed: root.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    Keys.onDownPressed: root.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)

    contentItem: Item {
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap3
            anchors.rightMargin: Theme.gap2
            spacing: Theme.gap3

            Symbol {
                name: root.symbol
                color: root.isCurrent ? Theme.accentText : root.foreground
                size: 20
            }

            ThemedText {
                Layout.fillWidth: true
                text: root.text
                color: root.foreground
                wrapMode: Text.WordWrap
                Accessible.ignored: true
            }

            Deferred {
                Layout.preferredWidth: item?.implicitWidth ?? 0
                Layout.rightMargin: Theme.gap2
                visible: active
                active: root.amount > 0 && root.badge === 0

                ThemedText {
                    text: root.amount
                    color: Theme.textFaint
                    Accessible.ignored: true
                }
            }

            Deferred {
                Layout.preferredWidth: item?.implicitWidth ?? 0
                visible: active
                active: root.badge > 0

                CountBadge {
                    count: root.badge
                }
            }
        }
    }

    background: Rectangle {
        radius: Theme.radius
        color: root.isCurrent ? Theme.surfaceRaised : root.hovered ? Theme.surface : "transparent"

        FocusRing {
            shown: root.visualFocus
            distance: 1
            innerRadius: Theme.radius
        }
    }

    HoverHint {
        text: root.keys
        shown: root.hovered
    }
}
