import QtQuick
import Mopwell

// Where the welcome is: one capsule per step, the current one longer and in the accent colour.
Row {
    id: marks

    property int step: 0
    property int lastStep: 3
    property bool still: false

    spacing: 6
    Accessible.role: Accessible.Indicator
    Accessible.name: qsTr("Step %1 of %2").arg(step + 1).arg(lastStep + 1)

    Repeater {
        model: marks.lastStep + 1
        delegate: Rectangle {
            required property int index
            readonly property bool current: index === marks.step
            objectName: "progressMark"
            width: current ? 20 : 7
            height: 7
            radius: 3.5
            color: current ? Theme.accent : Qt.rgba(Theme.secondary.r, Theme.secondary.g, Theme.secondary.b, Theme.secondary.a * 0.3)
            Behavior on width {
                enabled: !marks.still
                NumberAnimation { duration: 400; easing.type: Easing.InOutQuad }
            }
        }
    }
}
