pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The way to a licence, over the page that asked for one. It closes by itself once there is one.
T.Popup {
    id: root

    required property LicenseService model

    objectName: "licenceSheet"
    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    visible: true
    padding: Theme.gap6
    implicitWidth: 560
    implicitHeight: column.implicitHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    onOpened: section.focusStart()
    onClosed: root.model.dismiss()

    T.Overlay.modal: Rectangle {
        color: Theme.shade
    }

    ColumnLayout {
        id: column

        width: root.availableWidth
        spacing: Theme.gap4
        Accessible.role: Accessible.Dialog
        Accessible.name: qsTrId("licence_enter_button")

        ThemedText {
            Layout.fillWidth: true
            text: qsTrId("licence_enter_button")
            font.pixelSize: Theme.title
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        LicenceSection {
            id: section

            Layout.fillWidth: true
            license: root.model
            onInstalled: root.model.dismiss()
        }

        PushButton {
            objectName: "licenceClose"
            Layout.alignment: Qt.AlignRight
            text: qsTrId("feedback_close_button")
            onClicked: root.close()
        }
    }

    background: Rectangle {
        radius: Theme.radiusLarge
        color: Theme.surface
        border.width: 1
        border.color: Theme.outline
    }
}
