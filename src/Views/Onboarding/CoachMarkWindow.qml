import QtQuick
import Mopwell

// The strip the coach mark is drawn in: no frame, above everything, never taking the focus.
Window {
    id: window

    property alias iconX: coachMark.iconX
    property alias pointsUp: coachMark.pointsUp
    readonly property alias coachMark: coachMark
    signal dismissed()

    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint | Qt.WindowDoesNotAcceptFocus
    color: "transparent"
    height: 200

    MenuBarCoachMark {
        id: coachMark
        anchors.fill: parent
        onDismissed: window.dismissed()
    }
}
