import QtQuick
import QtQuick.Controls
import Mopwell

// An on/off switch: a rounded track in the accent colour when on, its label (when it has one)
// on the left, the switch at the right edge.
Switch {
    id: control

    font: Theme.body
    padding: 0
    spacing: 10
    Accessible.name: text

    indicator: Rectangle {
        implicitWidth: 30
        implicitHeight: 17
        x: control.width - width - control.rightPadding
        y: control.topPadding + (control.availableHeight - height) / 2
        radius: height / 2
        color: control.checked ? Theme.accent : Theme.tertiary
        opacity: control.enabled ? 1 : 0.45

        Rectangle {
            width: parent.height - 2
            height: width
            radius: width / 2
            y: 1
            x: control.checked ? parent.width - width - 1 : 1
            color: "white"
            border.color: Theme.separator
            Behavior on x {
                enabled: !Accessibility.reduceMotion
                NumberAnimation { duration: 120 }
            }
        }
    }

    contentItem: Text {
        text: control.text
        font: control.font
        color: Theme.primary
        opacity: control.enabled ? 1 : 0.45
        wrapMode: Text.WordWrap
        verticalAlignment: Text.AlignVCenter
        rightPadding: control.indicator.width + control.spacing
    }
}
