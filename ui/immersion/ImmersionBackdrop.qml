pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// What lies behind the pages: darkness that turns to deep water, the deeper the more.
Rectangle {
    id: root

    required property ImmersionService service

    visible: root.service.effectiveDepth > 0

    gradient: Gradient {
        GradientStop {
            position: 0
            color: Theme.background
        }

        GradientStop {
            position: 1
            color: Theme.depthColor(root.service.effectiveDepth)
        }
    }
}
