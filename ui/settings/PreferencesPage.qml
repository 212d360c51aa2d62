pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What the user may decide. Whatever is changed counts at once.
Page {
    id: root

    required property PreferencesScreen model
    property string pane: "general"
    readonly property bool hasData: root.model.data !== null
    readonly property bool hasProgram: root.model.outside !== null

    function paneName(pane: string): string {
        switch (pane) {
        case "general":
            return qsTrId("preferences_general_tab");
        case "session":
            return qsTrId("preferences_session_tab");
        case "sound":
            return qsTrId("preferences_sound_tab");
        case "data":
            return qsTrId("preferences_data_tab");
        default:
            return qsTrId("preferences_program_tab");
        }
    }

    function panes(): list<string> {
        return ["general", "session", "sound", ...(root.hasData ? ["data"] : []), ...(root.hasProgram ? ["program"] : [])];
    }

    heading: qsTrId("preferences_title")
    introduction: root.model.profileName.length > 0 ? qsTrId("preferences_subtitle_named").arg(root.model.profileName) : qsTrId("preferences_subtitle")

    onEntered: {
        root.model.open();
        choice.forceActiveFocus(Qt.OtherFocusReason);
    }

    SegmentedChoice {
        id: choice

        objectName: "preferencesPane"
        name: qsTrId("preferences_title")
        values: root.panes()
        labels: Array.from(choice.values, pane => root.paneName(pane))
        value: root.pane
        onChosen: value => {
            root.pane = value;
            scroll.scrollTo(0);
        }
    }

    StatsScroll {
        id: scroll

        objectName: "preferencesScroll"
        Layout.fillWidth: true
        Layout.fillHeight: true

        Deferred {
            Layout.fillWidth: true
            active: root.pane === "general"
            visible: active

            GeneralPane {
                model: root.model
            }
        }

        Deferred {
            Layout.fillWidth: true
            active: root.pane === "session"
            visible: active

            SessionPane {
                model: root.model
            }
        }

        Deferred {
            Layout.fillWidth: true
            active: root.pane === "sound"
            visible: active

            SoundPane {
                model: root.model
            }
        }

        Deferred {
            Layout.fillWidth: true
            active: root.pane === "data"
            visible: active

            DataPane {
                settings: root.model.data
            }
        }

        Deferred {
            Layout.fillWidth: true
            active: root.pane === "program"
            visible: active

            ProgramPane {
                outside: root.model.outside
            }
        }
    }
}
