import QtQuick
import QtQuick.Controls
import Mopwell

// A choice of one among a few, side by side in one rounded frame:
// `SegmentedControl { options: [{ value: "type", label: qsTr("Type") }, …]; value: "type" }`.
// A click reports the segment through activated(); the owner sets `value`. Segments take the
// keyboard by Tab, not by a click, so the view a click recolours keeps its keys.
Rectangle {
    id: control

    property var options: []
    property string value

    signal activated(string value)

    implicitWidth: segments.implicitWidth + 4
    implicitHeight: 24
    radius: 6
    color: Theme.faintFill
    border.color: Theme.separator

    Row {
        id: segments
        anchors.centerIn: parent
        spacing: 2
        Repeater {
            model: control.options
            delegate: AbstractButton {
                id: segment
                required property var modelData
                readonly property bool chosen: control.value === modelData.value
                objectName: "segment_" + modelData.value
                text: modelData.label
                checkable: true
                checked: chosen
                focusPolicy: Qt.TabFocus
                implicitWidth: Math.max(52, label.implicitWidth + 20)
                implicitHeight: control.height - 4
                Accessible.role: Accessible.RadioButton
                background: Rectangle {
                    radius: 5
                    color: segment.chosen ? Theme.controlBackground : "transparent"
                    border.color: segment.chosen ? Theme.separator : "transparent"
                }
                contentItem: Text {
                    id: label
                    text: segment.text
                    font: segment.chosen ? Qt.font({ pixelSize: Theme.callout.pixelSize, weight: Font.Medium }) : Theme.callout
                    color: Theme.primary
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
                onClicked: control.activated(modelData.value)
            }
        }
    }
}
