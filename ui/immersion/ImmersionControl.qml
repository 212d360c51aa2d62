pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// How deep the window sinks while a work phase runs.
ColumnLayout {
    id: root

    required property ImmersionService service

    spacing: Theme.gap1

    RowLayout {
        spacing: Theme.gap3

        Symbol {
            name: "bubbles"
            color: root.service.depthPercent > 0 ? Theme.accentText : Theme.textFaint
            size: 20
        }

        LevelSlider {
            id: depth

            objectName: "immersionDepth"
            Layout.fillWidth: true
            name: qsTrId("immersion_title")
            value: root.service.depthPercent
            onMoved: root.service.depthPercent = Math.round(depth.value)
        }

        ThemedText {
            Layout.preferredWidth: 44
            text: root.service.depthPercent > 0 ? qsTrId("tick_sounds_volume_value").arg(root.service.depthPercent) : qsTrId("immersion_off")
            color: Theme.textMuted
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }
    }

    ThemedText {
        Layout.fillWidth: true
        visible: MotionPreference.isReduced
        text: qsTrId("immersion_reduced_motion")
        color: Theme.textMuted
        font.pixelSize: Theme.caption
        wrapMode: Text.WordWrap
    }
}
