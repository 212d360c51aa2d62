pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// Whether the program is licensed, on trial or free, and the way to a licence.
ColumnLayout {
    id: root

    required property LicenseService license
    readonly property bool isFree: root.license.kind === "free"
    /// Whether the user is about to paste a licence.
    property bool isPasting: false

    /// A licence was taken over.
    signal installed

    function focusStart(): void {
        pasteButton.forceActiveFocus(Qt.TabFocusReason);
    }

    function endText(): string {
        return root.license.expiryText(Localization.language);
    }

    function stateText(): string {
        switch (root.license.kind) {
        case "free":
            return qsTrId("licence_free");
        case "licensed":
            return qsTrId("licence_licensed").arg(root.license.holder);
        case "trial":
            return qsTrId("licence_trial_days", root.license.trialDaysLeft);
        case "invalid":
            return qsTrId("licence_invalid");
        default:
            return root.license.holder.length > 0 ? qsTrId("licence_ended").arg(root.license.holder).arg(root.endText()) : qsTrId("licence_trial_over");
        }
    }

    function detailText(): string {
        if (root.license.kind === "licensed")
            return root.endText().length > 0 ? qsTrId("licence_until").arg(root.endText()) : qsTrId("licence_without_end");
        return root.license.isUseAllowed ? qsTrId("licence_trial_explanation") : qsTrId("licence_closed_explanation");
    }

    function paste(): void {
        root.isPasting = true;
        pasted.forceActiveFocus(Qt.TabFocusReason);
    }

    function install(): void {
        if (!root.license.installText(pasted.text))
            return;
        pasted.clear();
        root.isPasting = false;
        root.installed();
    }

    objectName: "licenceSection"
    spacing: Theme.gap3

    ThemedText {
        objectName: "licenceState"
        Layout.fillWidth: true
        text: root.stateText()
        wrapMode: Text.WordWrap
    }

    ThemedText {
        Layout.fillWidth: true
        Layout.topMargin: -Theme.gap2
        visible: !root.isFree
        text: root.detailText()
        color: Theme.textMuted
        wrapMode: Text.WordWrap
        lineHeight: 1.2
    }

    Banner {
        objectName: "licenceProblem"
        Layout.fillWidth: true
        visible: root.license.problemKey.length > 0
        text: visible ? qsTrId(root.license.problemKey) : ""
    }

    EntryArea {
        id: pasted

        objectName: "licenceText"
        Layout.fillWidth: true
        Layout.preferredHeight: 148
        visible: root.isPasting
        placeholderText: qsTrId("licence_paste_placeholder")
        onTextChanged: root.license.forgetProblem()
    }

    RowLayout {
        visible: !root.isFree
        spacing: Theme.gap3

        PushButton {
            objectName: "licenceInstall"
            visible: root.isPasting
            enabled: pasted.length > 0
            symbol: "checkmark"
            text: qsTrId("licence_install_button")
            onClicked: root.install()
        }

        PushButton {
            id: pasteButton

            objectName: "licencePaste"
            visible: !root.isPasting
            symbol: "doc.on.doc"
            text: qsTrId("licence_paste_button")
            onClicked: root.paste()
        }

        PushButton {
            objectName: "licenceChoose"
            symbol: "doc.text"
            text: qsTrId("licence_choose_button")
            onClicked: {
                chooser.active = true;
                (chooser.object as FileChooser).open(qsTrId("licence_choose_title"), root.license.fileFolder, false);
            }
        }

        Deferred {
            id: chooser

            FileChooser {
                filters: [qsTrId("licence_file_filter") + " (*.txt)", qsTrId("licence_all_filter") + " (*)"]
                rejectText: qsTrId("cancel_button")
                onChosen: {
                    if (root.license.installFile(files[0]))
                        root.installed();
                }
            }
        }
    }
}
