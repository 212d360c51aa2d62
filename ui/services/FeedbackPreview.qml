pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// What will be sent, to the last character, and where to.
Rectangle {
    id: root

    required property FeedbackForm form

    radius: Theme.radius
    color: Theme.background

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.gap4
        spacing: Theme.gap2

        ThemedText {
            Layout.fillWidth: true
            text: qsTrId("feedback_preview_label")
            font.weight: Font.DemiBold
            wrapMode: Text.WordWrap
        }

        ThemedText {
            Layout.fillWidth: true
            text: qsTrId("feedback_preview_destination").arg(root.form.destination)
            color: Theme.textMuted
            font.pixelSize: Theme.caption
            wrapMode: Text.WrapAnywhere
        }

        Flickable {
            id: flick

            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            contentHeight: Math.max(preview.implicitHeight, height)
            boundsBehavior: Flickable.StopAtBounds

            T.ScrollBar.vertical: ScrollBarThin {}

            T.TextArea {
                id: preview

                objectName: "feedbackPreview"
                width: flick.width
                height: flick.contentHeight
                rightPadding: Theme.gap3
                readOnly: true
                text: root.form.preview
                color: Theme.textMuted
                selectionColor: Theme.accent
                selectedTextColor: Theme.accentInk
                font.family: "monospace"
                font.pixelSize: Theme.caption
                textFormat: TextEdit.PlainText
                wrapMode: TextEdit.Wrap
                selectByMouse: true
                activeFocusOnTab: true
                Accessible.name: qsTrId("feedback_preview_label")

                Keys.onTabPressed: preview.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
                Keys.onBacktabPressed: preview.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            }
        }
    }

    FocusRing {
        shown: preview.activeFocus
        innerRadius: Theme.radius
    }
}
