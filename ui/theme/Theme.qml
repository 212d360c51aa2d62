pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Colours, distances, type and durations of the whole window.
QtObject {
    id: root

    // Surfaces, from the back to the front.
    readonly property color background: "#07070f"
    readonly property color sidebar: "#0b0b16"
    readonly property color surface: "#12121f"
    readonly property color surfaceRaised: "#1b1b2d"
    readonly property color surfaceHover: "#24243a"
    readonly property color surfacePressed: "#2d2d47"
    readonly property color outline: "#3a3a55"
    readonly property color track: "#1d1d30"
    readonly property color shade: "#b3000007"

    readonly property color text: "#f4f4fa"
    readonly property color textMuted: "#b6b6ca"
    readonly property color textFaint: "#9696af"

    readonly property color accent: "#7c3aed"
    readonly property color accentHover: "#6d28d9"
    readonly property color accentPressed: "#5b21b6"
    readonly property color accentText: "#b79bff"
    readonly property color accentSurface: "#22173f"
    readonly property color accentInk: "#ffffff"
    readonly property color legitimate: "#10b981"
    readonly property color legitimateSurface: "#0d2620"
    readonly property color legitimateStrong: "#047857"
    readonly property color legitimateInk: "#ffffff"
    readonly property color distracted: "#ef4444"
    readonly property color distractedSurface: "#2a1219"
    readonly property color amber: "#f59e0b"
    readonly property color amberSurface: "#2a1f10"
    readonly property color flame: "#fb923c"
    readonly property color azure: "#38bdf8"
    readonly property color danger: "#b91c1c"
    readonly property color dangerHover: "#991b1b"
    readonly property color dangerInk: "#ffffff"
    readonly property color dangerText: "#ff8a8a"
    readonly property color focusRing: "#b79bff"

    // Distances, multiples of four.
    readonly property int gap1: 4
    readonly property int gap2: 8
    readonly property int gap3: 12
    readonly property int gap4: 16
    readonly property int gap5: 20
    readonly property int gap6: 24
    readonly property int gap8: 32
    readonly property int gap10: 40

    readonly property int radiusSmall: 8
    readonly property int radius: 12
    readonly property int radiusLarge: 16

    readonly property int controlHeight: 40
    readonly property int controlHeightLarge: 48
    readonly property int controlHeightSmall: 32

    // Type, in pixels.
    readonly property int caption: 12
    readonly property int body: 14
    readonly property int bodyLarge: 16
    readonly property int title: 18
    readonly property int headline: 24

    // Durations in milliseconds.
    readonly property int motionFast: MotionPreference.isReduced ? 0 : 100
    readonly property int motion: MotionPreference.isReduced ? 0 : 180
    readonly property int hintDelay: 600

    /// The colour that stands for a phase ("work", "break_time", "rearming").
    function phaseColor(phase: string): color {
        if (phase === "break_time")
            return root.legitimate;
        return phase === "rearming" ? root.amber : root.accentBright;
    }

    /// What lies at the bottom of the window at a depth of 0 to 1.
    function depthColor(depth: real): color {
        return Qt.tint(root.background, Qt.rgba(root.deepWater.r, root.deepWater.g, root.deepWater.b, depth));
    }

    readonly property color accentBright: "#8b5cf6"
    readonly property color deepWater: "#120c40"
    // Faint enough for every text below it to be read.
    readonly property color bubble: "#1e8f7dff"
}
