pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A field over the page, and what the letters in it lead to. Arrow keys choose, Enter goes there, Escape leaves.
Item {
    id: root

    required property CommandPalette model
    readonly property CommandPalette palette: root.model

    T.Popup {
        objectName: "commandPalette"
        parent: T.Overlay.overlay
        x: parent ? Math.round((parent.width - width) / 2) : 0
        y: parent ? Math.round(parent.height * 0.14) : 0
        modal: true
        focus: true
        visible: true
        padding: Theme.gap3
        implicitWidth: 620
        implicitHeight: content.implicitHeight + topPadding + bottomPadding
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

        onOpened: field.forceActiveFocus(Qt.PopupFocusReason)
        onClosed: root.palette?.close()

        T.Overlay.modal: Rectangle {
            color: Theme.shade
        }

        ColumnLayout {
            id: content

            width: parent?.width ?? 0
            spacing: Theme.gap2
            Accessible.role: Accessible.Dialog
            Accessible.name: qsTrId("palette_open")

            EntryField {
                id: field

                objectName: "paletteField"
                Layout.fillWidth: true
                implicitHeight: Theme.controlHeightLarge
                symbol: "magnifyingglass"
                placeholderText: qsTrId("palette_placeholder")
                focus: true
                // The keyboard stays here: what is chosen in the list is heard here, too.
                Accessible.description: list.currentItem ? (list.currentItem as CommandPaletteRow).spoken : qsTrId("palette_empty")

                onTextChanged: {
                    root.palette.filterText = field.text;
                    list.currentIndex = 0;
                    list.positionViewAtBeginning();
                }
                Keys.onUpPressed: list.decrementCurrentIndex()
                Keys.onDownPressed: list.incrementCurrentIndex()
                Keys.onReturnPressed: root.palette.choose(list.currentIndex)
                Keys.onEnterPressed: root.palette.choose(list.currentIndex)
            }

            ListView {
                id: list

                objectName: "paletteList"
                Layout.fillWidth: true
                Layout.preferredHeight: Math.min(contentHeight, 9 * 44)
                visible: list.count > 0
                clip: true
                keyNavigationWraps: true
                boundsBehavior: Flickable.StopAtBounds
                highlightMoveDuration: 0
                model: root.palette
                currentIndex: 0
                Accessible.role: Accessible.List
                Accessible.name: qsTrId("palette_results")

                T.ScrollBar.vertical: ScrollBarThin {}

                delegate: CommandPaletteRow {
                    width: list.width
                    highlighted: ListView.isCurrentItem
                    onClicked: root.palette.choose(index)
                }
            }

            ThemedText {
                objectName: "paletteEmpty"
                Layout.fillWidth: true
                Layout.margins: Theme.gap3
                visible: list.count === 0
                text: qsTrId("palette_empty")
                color: Theme.textMuted
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
            }
        }

        background: Rectangle {
            radius: Theme.radiusLarge
            color: Theme.surface
            border.width: 1
            border.color: Theme.outline
        }
    }
}
