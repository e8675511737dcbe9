import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// What the tile colours mean: the kinds of content in view, or the scale from new to old.
Item {
    id: legend

    property string colorMode: "type"
    // [{label, color}]
    property var categories: []

    implicitHeight: 26

    Flickable {
        objectName: "typeLegend"
        visible: legend.colorMode === "type"
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        contentWidth: swatches.implicitWidth
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        Row {
            id: swatches
            height: parent.height
            spacing: 12
            Repeater {
                model: legend.categories
                delegate: Row {
                    required property var modelData
                    // Not an anchor: a delegate on its way out has no parent to anchor to.
                    y: (swatches.height - height) / 2
                    spacing: 5
                    Rectangle {
                        anchors.verticalCenter: parent.verticalCenter
                        width: 9
                        height: 9
                        radius: 2
                        color: modelData.color
                    }
                    Label {
                        text: modelData.label
                        font: Theme.caption1
                        color: Theme.secondary
                    }
                }
            }
        }
    }

    Row {
        objectName: "ageLegend"
        visible: legend.colorMode === "age"
        anchors.verticalCenter: parent.verticalCenter
        x: 12
        spacing: 6
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Recent")
            font: Theme.caption1
            color: Theme.secondary
        }
        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 140
            height: 9
            radius: 2
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: Qt.hsva(0.33, 0.62, 0.82, 1) }
                GradientStop { position: 0.5; color: Qt.hsva(0.16, 0.62, 0.82, 1) }
                GradientStop { position: 1; color: Qt.hsva(0, 0.62, 0.82, 1) }
            }
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Over a year")
            font: Theme.caption1
            color: Theme.secondary
        }
    }
}
