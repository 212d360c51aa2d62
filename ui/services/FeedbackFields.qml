pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What the user has to say, and where an answer may go.
ColumnLayout {
    id: root

    required property FeedbackForm form

    function focusStart(): void {
        suggestion.forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: Theme.gap4
    enabled: root.form.state !== "sending"

    SegmentedChoice {
        objectName: "feedbackKind"
        name: qsTrId("feedback_kind_label")
        values: root.form.kinds
        labels: [qsTrId("feedback_kind_idea"), qsTrId("feedback_kind_problem"), qsTrId("feedback_kind_praise")]
        value: root.form.kind
        onChosen: value => root.form.kind = value
    }

    EntryArea {
        id: suggestion

        objectName: "feedbackText"
        Layout.fillWidth: true
        Layout.fillHeight: true
        placeholderText: qsTrId("feedback_text_placeholder")
        text: root.form.text
        onTextChanged: root.form.text = suggestion.text
    }

    LabelledItem {
        Layout.fillWidth: true
        label: qsTrId("feedback_email_label")

        EntryField {
            id: email

            objectName: "feedbackEmail"
            width: parent.width
            maximumLength: 254
            placeholderText: qsTrId("feedback_email_placeholder")
            Accessible.name: qsTrId("feedback_email_label")
            text: root.form.email
            onTextEdited: root.form.email = email.text
        }
    }

    ThemedText {
        Layout.fillWidth: true
        Layout.topMargin: -Theme.gap2
        visible: !root.form.isEmailPlausible && !email.activeFocus
        text: qsTrId("feedback_email_wrong")
        color: Theme.amber
        font.pixelSize: Theme.caption
        wrapMode: Text.WordWrap
    }
}
