pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The panel that the item in the tray opens.
Window {
    id: root

    required property DeepWorkScreen deepWork
    required property FloatingTimer floatingTimer
    required property TrayPanel panel
    /// Null for none.
    required property AmbientSoundService ambientSound
    /// Whether it belongs to the item that was clicked, and is no window like any other.
    required property bool isPlaced
    /// Whether what lies behind it can be seen.
    required property bool isBlended

    title: qsTrId("panel_title")
    flags: root.isPlaced ? Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint : Qt.Window
    width: 360
    height: Math.ceil(column.implicitHeight) + 2 * Theme.gap5
    minimumWidth: 360
    maximumWidth: 360
    color: root.isPlaced && root.isBlended ? "transparent" : Theme.sidebar

    Shortcut {
        sequences: ["Escape"]
        onActivated: root.panel.close()
    }

    LiveSession {
        id: session

        source: root.deepWork
        live: root.visible
    }

    Rectangle {
        anchors.fill: parent
        radius: root.isPlaced && root.isBlended ? Theme.radiusLarge : 0
        color: Theme.sidebar
        border.width: root.isPlaced ? 1 : 0
        border.color: Theme.outline
        Accessible.role: Accessible.Pane
        Accessible.name: root.title

        FocusScope {
            anchors.fill: parent
            anchors.margins: Theme.gap5
            focus: true

            ColumnLayout {
                id: column

                anchors.left: parent.left
                anchors.right: parent.right
                spacing: Theme.gap4

                PanelTimer {
                    Layout.fillWidth: true
                    screen: root.deepWork
                    session: session
                    focus: true
                }

                PanelQueue {
                    Layout.fillWidth: true
                    screen: root.deepWork
                }

                Loader {
                    id: ambient

                    Layout.fillWidth: true
                    visible: ambient.item !== null
                    Component.onCompleted: {
                        if (root.ambientSound)
                            ambient.setSource("../sound/AmbientSoundPicker.qml", {
                                service: root.ambientSound,
                                compact: true
                            });
                    }
                }

                PanelFooter {
                    Layout.fillWidth: true
                    floatingTimer: root.floatingTimer
                    panel: root.panel
                }
            }
        }
    }
}
