pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Lets the ambient sound be heard, or not, until the session changes next.
IconButton {
    id: root

    required property AmbientSoundService service

    objectName: "ambientPlay"
    implicitWidth: Theme.controlHeight
    implicitHeight: Theme.controlHeight
    symbol: root.service.isPlaying ? "pause" : "play"
    symbolColor: Theme.text
    symbolSize: 20
    text: root.service.isPlaying ? qsTrId("ambience_stop_button") : qsTrId("ambience_play_button")

    onClicked: root.service.toggle()
}
