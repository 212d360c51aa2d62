pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The menu of the window: what belongs to no page.
IconButton {
    id: root

    required property WindowActions actions
    required property CommandPalette palette

    /// Whether an action is offered, and whether it can be done. @param revision of the actions, to be asked anew with it
    function offers(id: string, revision: int): bool {
        return root.actions.offers(id);
    }
    function canRun(id: string, revision: int): bool {
        return root.actions.canRun(id);
    }

    objectName: "windowMenuButton"
    symbol: "ellipsis"
    text: qsTrId("window_menu")
    onClicked: menu.popup(root, 0, root.height + Theme.gap1)

    component ActionItem: ContextMenuItem {
        id: item

        visible: root.offers(item.choice, root.actions.revision)
        enabled: root.canRun(item.choice, root.actions.revision)
    }

    ContextMenu {
        id: menu

        objectName: "windowMenu"
        onFinished: choice => {
            root.forceActiveFocus(Qt.PopupFocusReason);
            if (choice === "palette")
                root.palette.present();
            else if (choice.length > 0)
                root.actions.run(choice);
        }

        ContextMenuItem {
            choice: "palette"
            symbol: "magnifyingglass"
            text: qsTrId("palette_open")
        }

        ActionItem {
            choice: "show_panel"
            symbol: "timer"
            text: qsTrId("action_show_panel")
        }

        ActionItem {
            choice: "check_for_updates"
            symbol: "arrow.down.circle"
            text: qsTrId("check_for_updates")
        }

        ActionItem {
            choice: "send_feedback"
            symbol: "envelope"
            text: qsTrId("action_send_feedback")
        }

        ActionItem {
            choice: "show_welcome"
            symbol: "sparkles"
            text: qsTrId("action_show_welcome")
        }

        ContextMenuItem {
            choice: "quit"
            symbol: "power"
            text: qsTrId("quit_button")
        }
    }
}
