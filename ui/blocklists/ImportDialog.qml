pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// What a file would do to the lists, and the choice; or why the file is refused. Escape leaves all as it is.
T.Popup {
    id: root

    required property BlockListsScreen screen
    readonly property bool isRefused: root.screen.importState === "refused"
    readonly property bool changesNothing: root.screen.importAddedCount === 0 && root.screen.importRemovedCount === 0

    function contents(): string {
        return qsTrId("import_contents").arg(qsTrId("applications_count", root.screen.importApplicationCount)).arg(qsTrId("sites_count", root.screen.importSiteCount));
    }

    function consequence(): string {
        if (root.changesNothing)
            return qsTrId("import_nothing_new");
        const added = qsTrId("import_added", root.screen.importAddedCount);
        if (root.screen.importRemovedCount === 0)
            return added;
        return added + "\n" + qsTrId("import_removed", root.screen.importRemovedCount);
    }

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    visible: true
    padding: Theme.gap6
    implicitWidth: 600
    implicitHeight: content.implicitHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape

    onOpened: cancel.forceActiveFocus(Qt.TabFocusReason)

    T.Overlay.modal: Rectangle {
        color: Theme.shade
    }

    ColumnLayout {
        id: content

        width: root.availableWidth
        spacing: Theme.gap3
        Accessible.role: Accessible.Dialog
        Accessible.name: title.text

        ThemedText {
            id: title

            Layout.fillWidth: true
            text: (root.isRefused ? qsTrId("import_refused_title") : qsTrId("import_title")).arg(root.screen.importFileName)
            font.pixelSize: Theme.title
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
        }

        ThemedText {
            objectName: "importText"
            Layout.fillWidth: true
            text: root.isRefused ? root.screen.importProblem : root.contents()
            wrapMode: Text.Wrap
            lineHeight: 1.25
        }

        ThemedText {
            Layout.fillWidth: true
            text: root.isRefused ? qsTrId("import_refused_message") : root.consequence()
            color: Theme.textMuted
            wrapMode: Text.WordWrap
            lineHeight: 1.25
        }

        RowLayout {
            Layout.topMargin: Theme.gap3
            Layout.alignment: Qt.AlignRight
            spacing: Theme.gap3

            PushButton {
                id: cancel

                objectName: "importCancel"
                implicitHeight: Theme.controlHeightLarge
                text: root.isRefused || root.changesNothing ? qsTrId("import_close_button") : qsTrId("import_cancel_button")
                onClicked: root.close()
            }

            PushButton {
                objectName: "importReplace"
                implicitHeight: Theme.controlHeightLarge
                visible: !root.isRefused && root.screen.importRemovedCount > 0
                text: qsTrId("import_replace_button")
                onClicked: {
                    root.screen.applyImport(true);
                    root.close();
                }
            }

            PushButton {
                objectName: "importAdd"
                kind: PushButton.Kind.Primary
                visible: !root.isRefused && root.screen.importAddedCount > 0
                text: qsTrId("import_add_button")
                onClicked: {
                    root.screen.applyImport(false);
                    root.close();
                }
            }
        }
    }

    background: Rectangle {
        radius: Theme.radiusLarge
        color: Theme.surface
        border.width: 1
        border.color: Theme.outline
    }
}
