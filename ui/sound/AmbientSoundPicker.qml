pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// Which sound lies under a session, how loud, and a button that lets it be heard. Compact, it is two lines of
/// controls; else the sounds of a category are listed.
ColumnLayout {
    id: root

    required property AmbientSoundService service
    property bool compact: false
    /// The category that is listed.
    property string category: root.service.selectedCategory.length > 0 ? root.service.selectedCategory : root.service.categories[0]

    function followSelection(): void {
        if (root.service.selectedCategory.length > 0)
            root.category = root.service.selectedCategory;
    }

    function takeKeyboard(): void {
        if (root.compact)
            choice.forceActiveFocus(Qt.TabFocusReason);
        else
            list.forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: root.compact ? Theme.gap2 : Theme.gap4

    Component.onDestruction: root.service?.endPreview()
    onVisibleChanged: {
        if (!root.visible)
            root.service?.endPreview();
    }

    Connections {
        target: root.service

        function onSelectedSoundChanged(): void {
            root.followSelection();
        }
    }

    Banner {
        objectName: "ambientProblem"
        Layout.fillWidth: true
        visible: root.service.problemKey.length > 0
        text: visible ? qsTrId(root.service.problemKey) + " " + qsTrId(root.service.problemKey + "_remedy") : ""
    }

    RowLayout {
        visible: root.compact
        spacing: Theme.gap2

        AmbientPlayButton {
            service: root.service
        }

        ChoiceBox {
            id: choice

            objectName: "ambientChoice"
            Layout.fillWidth: true
            name: qsTrId("ambience_title")
            // Made anew with the language.
            model: root.compact && Localization.language.length > 0 ? root.service.choices() : []
            chosenId: root.service.selectedSound
            onChosen: choiceId => root.service.selectedSound = choiceId
        }
    }

    RowLayout {
        visible: !root.compact
        spacing: Theme.gap3

        SegmentedChoice {
            objectName: "ambientCategories"
            values: root.service.categories
            labels: [qsTrId("ambience_category_nature"), qsTrId("ambience_category_noise"), qsTrId("ambience_category_focus")]
            value: root.category
            name: qsTrId("ambience_category_label")
            onChosen: value => root.category = value
        }

        Item {
            Layout.fillWidth: true
        }

        AmbientPlayButton {
            service: root.service
        }
    }

    AmbientSoundList {
        id: list

        objectName: "ambientSounds"
        Layout.fillWidth: true
        visible: !root.compact
        service: root.service
        category: root.category
    }

    RowLayout {
        spacing: Theme.gap3

        Symbol {
            Layout.leftMargin: root.compact ? Theme.gap1 + 2 : 0
            name: "speaker.wave.2"
            color: Theme.textFaint
            size: 20
        }

        LevelSlider {
            id: volume

            objectName: "ambientVolume"
            Layout.fillWidth: true
            name: qsTrId("ambience_volume")
            value: root.service.volumePercent
            onMoved: root.service.volumePercent = Math.round(volume.value)
        }

        ThemedText {
            Layout.preferredWidth: 44
            text: qsTrId("tick_sounds_volume_value").arg(root.service.volumePercent)
            color: Theme.textMuted
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }
    }
}
