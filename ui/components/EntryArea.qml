pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A field for several lines of text. Tab leaves it. Its name for a screen reader is its placeholder unless another
/// is given.
FocusScope {
    id: root

    property alias text: area.text
    property string placeholderText: ""
    readonly property int length: area.length

    function clear(): void {
        area.clear();
    }

    implicitWidth: 240
    implicitHeight: 96
    activeFocusOnTab: false

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: hover.hovered && !area.activeFocus ? Theme.surfaceHover : Theme.surfaceRaised
        border.width: area.activeFocus ? 2 : 0
        border.color: Theme.focusRing
    }

    HoverHandler {
        id: hover

        cursorShape: Qt.IBeamCursor
    }

    Flickable {
        id: flick

        anchors.fill: parent
        anchors.margins: 2
        clip: true
        contentHeight: Math.max(area.implicitHeight, height)
        boundsBehavior: Flickable.StopAtBounds
        // A drag chooses text.
        interactive: false

        T.ScrollBar.vertical: ScrollBarThin {}

        WheelHandler {
            target: null
            enabled: flick.contentHeight > flick.height
            onWheel: event => flick.contentY = Math.max(0, Math.min(flick.contentHeight - flick.height, flick.contentY - event.angleDelta.y / 2))
        }

        T.TextArea {
            id: area

            function showCursor(): void {
                const cursor = area.cursorRectangle;
                if (cursor.y < flick.contentY)
                    flick.contentY = Math.max(0, cursor.y - area.topPadding);
                else if (cursor.y + cursor.height > flick.contentY + flick.height)
                    flick.contentY = cursor.y + cursor.height + area.bottomPadding - flick.height;
            }

            width: flick.width
            height: flick.contentHeight
            leftPadding: Theme.gap3 - 2
            rightPadding: Theme.gap3
            topPadding: Theme.gap2
            bottomPadding: Theme.gap2
            focus: true
            activeFocusOnTab: true
            color: Theme.text
            selectionColor: Theme.accent
            selectedTextColor: Theme.accentInk
            font.pixelSize: Theme.body
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            selectByMouse: true
            Accessible.name: root.placeholderText
            Accessible.multiLine: true

            onCursorRectangleChanged: area.showCursor()

            Keys.onTabPressed: area.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: area.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

            ThemedText {
                x: area.leftPadding
                y: area.topPadding
                width: area.width - area.leftPadding - area.rightPadding
                text: root.placeholderText
                color: Theme.textFaint
                wrapMode: Text.WordWrap
                visible: area.length === 0 && area.preeditText.length === 0
                Accessible.ignored: true
            }
        }
    }
}
