pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A choice of one among many, from a list that opens. The choices are maps with "id", "name" and "color" (which may
/// be empty). Arrow keys choose, Space and Enter open the list, letters go to the next choice that begins with them.
T.ComboBox {
    id: root

    /// What is being chosen, for a screen reader.
    required property string name
    /// The id of the choice that is shown as chosen.
    property string chosenId: ""
    /// Colour of the chosen one; none while empty.
    readonly property string chosenColor: root.currentIndex >= 0 && root.count > 0 ? root.model[root.currentIndex].color : ""

    signal chosen(string choiceId)

    function follow(): void {
        root.currentIndex = Math.max(root.indexOfValue(root.chosenId), 0);
    }

    textRole: "name"
    valueRole: "id"
    implicitWidth: 200
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.gap3
    rightPadding: Theme.gap3
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    font.pixelSize: Theme.body
    Accessible.role: Accessible.ComboBox
    Accessible.name: root.displayText.length > 0 ? root.name + ", " + root.displayText : root.name

    onChosenIdChanged: root.follow()
    onModelChanged: root.follow()
    Component.onCompleted: root.follow()
    onActivated: index => {
        const choiceId = root.model[index].id;
        root.chosen(choiceId);
        root.follow();
    }

    Keys.onReturnPressed: root.popup.open()
    Keys.onEnterPressed: root.popup.open()

    contentItem: RowLayout {
        spacing: Theme.gap2

        Rectangle {
            implicitWidth: 8
            implicitHeight: 8
            radius: 4
            visible: root.chosenColor.length > 0
            color: visible ? root.chosenColor : "transparent"
        }

        ThemedText {
            Layout.fillWidth: true
            text: root.displayText
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        Symbol {
            name: "chevron.down"
            color: Theme.textFaint
            size: 16
        }
    }

    background: Rectangle {
        radius: Theme.radius
        color: root.hovered || root.popup.visible ? Theme.surfaceHover : Theme.surfaceRaised

        FocusRing {
            shown: root.visualFocus
            innerRadius: Theme.radius
            distance: 1
        }
    }

    delegate: T.ItemDelegate {
        id: choice

        required property int index
        // A map, as the model has it.
        required property var modelData
        readonly property string name: choice.modelData.name
        readonly property string color: choice.modelData.color

        width: ListView.view.width
        implicitHeight: Theme.controlHeightSmall + 4
        highlighted: root.highlightedIndex === choice.index
        hoverEnabled: true
        Accessible.name: choice.name

        contentItem: RowLayout {
            spacing: Theme.gap2

            Rectangle {
                Layout.leftMargin: Theme.gap2
                implicitWidth: 8
                implicitHeight: 8
                radius: 4
                opacity: choice.color.length > 0 ? 1 : 0
                color: choice.color.length > 0 ? choice.color : "transparent"
            }

            ThemedText {
                Layout.fillWidth: true
                text: choice.name
                elide: Text.ElideRight
                Accessible.ignored: true
            }

            Symbol {
                Layout.rightMargin: Theme.gap2
                name: "checkmark"
                color: Theme.accentText
                size: 16
                visible: root.currentIndex === choice.index
            }
        }

        background: Rectangle {
            radius: Theme.radiusSmall
            color: choice.highlighted ? Theme.surfacePressed : "transparent"
        }
    }

    popup: T.Popup {
        y: root.height + Theme.gap1
        width: Math.max(root.width, 220)
        height: Math.min(contentItem.implicitHeight + topPadding + bottomPadding, 320)
        padding: Theme.gap1
        margins: Theme.gap2

        contentItem: ListView {
            implicitHeight: contentHeight
            clip: true
            model: root.delegateModel
            currentIndex: root.highlightedIndex
            highlightMoveDuration: 0
            boundsBehavior: Flickable.StopAtBounds

            T.ScrollBar.vertical: ScrollBarThin {}
        }

        background: Rectangle {
            radius: Theme.radius
            color: Theme.surfaceHover
        }
    }
}
