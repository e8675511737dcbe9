import QtQuick
import Mopwell

// The window the welcome shows in: no frame, above other windows, over the whole screen the
// shell places it on.
Window {
    id: window

    required property AppModel model
    readonly property alias view: onboarding
    signal finished()

    title: qsTr("Welcome to Mopwell")
    flags: Qt.Window | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    color: "transparent"
    width: 1280
    height: 800

    OnboardingView {
        id: onboarding
        anchors.fill: parent
        model: window.model
        onFinished: window.finished()
    }
}
