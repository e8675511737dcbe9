import QtQuick
import Mopwell

// The large symbol over a step's heading, with a soft glow that breathes a few times and then
// rests (a glow breathing for as long as the step is read keeps the renderer drawing); the breath
// starts again with each `pulse` and holds still under `still`.
Item {
    id: hero

    property string symbol
    property int pulse: 0
    property bool still: false

    implicitWidth: 84
    implicitHeight: 84

    Rectangle {
        id: glow
        anchors.centerIn: parent
        width: 84
        height: 84
        radius: 42
        color: Theme.accent
        opacity: 0.18
    }
    SymbolIcon {
        objectName: "heroSymbol"
        anchors.centerIn: parent
        width: 44
        height: 44
        symbol: hero.symbol
        color: Theme.accent
    }

    SequentialAnimation {
        id: breath
        loops: 3
        running: !hero.still && hero.visible
        ParallelAnimation {
            NumberAnimation { target: glow; property: "scale"; from: 0.85; to: 1.1; duration: 1400; easing.type: Easing.InOutSine }
            NumberAnimation { target: glow; property: "opacity"; from: 0.3; to: 0.12; duration: 1400; easing.type: Easing.InOutSine }
        }
        ParallelAnimation {
            NumberAnimation { target: glow; property: "scale"; to: 0.85; duration: 1400; easing.type: Easing.InOutSine }
            NumberAnimation { target: glow; property: "opacity"; to: 0.3; duration: 1400; easing.type: Easing.InOutSine }
        }
    }
    onPulseChanged: if (breath.running) breath.restart()
}
