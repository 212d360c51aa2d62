pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The way to the feedback form; not shown where there is nobody to write to.
RowLayout {
    id: root

    required property FeedbackForm form

    objectName: "feedbackSection"
    visible: root.form.isAvailable
    spacing: Theme.gap4

    ThemedText {
        Layout.fillWidth: true
        text: qsTrId("feedback_section_text")
        color: Theme.textMuted
        wrapMode: Text.WordWrap
        lineHeight: 1.2
    }

    PushButton {
        objectName: "feedbackOpen"
        symbol: "envelope"
        text: qsTrId("action_send_feedback")
        onClicked: root.form.present()
    }
}
