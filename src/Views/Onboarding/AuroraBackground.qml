import QtQuick
import Mopwell

// A slow wash of colour behind the welcome: a deep gradient with a few soft bands of light that
// drift across it over half a minute. It stands still while `still` is set (reduce motion).
// The bands move a few pixels a second, so they step a few times a second rather than at the
// display's rate: drawn in software over the whole screen, every frame costs most of a core.
Rectangle {
    id: aurora

    property bool still: false
    // Seconds since the drift started, advanced by the timer below.
    property real elapsed: 0

    Timer {
        interval: 200
        repeat: true
        running: !aurora.still && aurora.visible
        onTriggered: aurora.elapsed += interval / 1000
    }

    gradient: Gradient {
        GradientStop { position: 0.0; color: "#0f1b3d" }
        GradientStop { position: 0.55; color: "#1d1a4a" }
        GradientStop { position: 1.0; color: "#0b2a3a" }
    }

    Repeater {
        model: [
            { color: "#4f7cff", x: 0.15, y: 0.25, drift: 0.08, seconds: 31, angle: -18 },
            { color: "#b05cff", x: 0.65, y: 0.15, drift: 0.1, seconds: 37, angle: 24 },
            { color: "#22c3a6", x: 0.45, y: 0.7, drift: 0.07, seconds: 43, angle: -8 }
        ]
        delegate: Rectangle {
            id: band
            required property var modelData
            readonly property real phase: 2 * Math.PI * aurora.elapsed / modelData.seconds
            width: aurora.width * 0.9
            height: aurora.height * 0.45
            radius: height / 2
            x: aurora.width * (modelData.x + modelData.drift * Math.sin(phase)) - width / 2
            y: aurora.height * (modelData.y + modelData.drift * Math.cos(phase)) - height / 2
            rotation: modelData.angle + 6 * Math.sin(phase)
            opacity: 0.22
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0.0; color: "transparent" }
                GradientStop { position: 0.5; color: band.modelData.color }
                GradientStop { position: 1.0; color: "transparent" }
            }
        }
    }
}
