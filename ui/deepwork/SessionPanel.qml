pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What is measured during a work phase.
ColumnLayout {
    id: root

    required property DeepWorkScreen screen
    required property LiveSession session

    spacing: Theme.gap3

    Banner {
        Layout.fillWidth: true
        visible: root.screen.isInactive
        symbol: "moon.zzz"
        text: qsTrId("inactivity_notice").arg(Localization.formats.duration(root.session.inactivitySeconds))
    }

    ActivityCard {
        Layout.fillWidth: true
        screen: root.screen
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.gap3

        BalanceCard {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 3
            session: root.session
        }

        ScoreCard {
            id: scoreCard

            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 2
            session: root.session
        }
    }

    Deferred {
        Layout.fillWidth: true
        active: scoreCard.explained
        visible: active

        ScoreTerms {
            session: root.session
        }
    }
}
