import QtQuick
import QtQuick.Layouts
import Mopwell

// How full the volume is: a ring of the used share beside the free, total and used sizes.
RowLayout {
    id: view
    required property MenuPanelModel panelModel
    spacing: 18

    readonly property color ringColor: panelModel.ringColor === "red" ? Theme.red
                                     : panelModel.ringColor === "orange" ? Theme.orange : Theme.green
    property real shownFraction: panelModel.usedFraction
    Behavior on shownFraction { NumberAnimation { duration: 400; easing.type: Easing.InOutQuad } }

    Item {
        objectName: "ring"
        Layout.preferredWidth: 68
        Layout.preferredHeight: 68

        Canvas {
            id: ring
            anchors.fill: parent
            readonly property real fraction: view.shownFraction
            readonly property color arcColor: view.ringColor
            onFractionChanged: requestPaint()
            onArcColorChanged: requestPaint()
            onPaint: {
                const context = getContext("2d")
                const lineWidth = 9
                const radius = (width - lineWidth) / 2
                context.reset()
                context.lineWidth = lineWidth
                context.strokeStyle = Qt.rgba(Theme.secondary.r, Theme.secondary.g, Theme.secondary.b, 0.18)
                context.beginPath()
                context.arc(width / 2, height / 2, radius, 0, 2 * Math.PI)
                context.stroke()
                if (fraction <= 0)
                    return
                context.strokeStyle = arcColor
                context.lineCap = "round"
                context.beginPath()
                context.arc(width / 2, height / 2, radius, -Math.PI / 2, -Math.PI / 2 + 2 * Math.PI * fraction)
                context.stroke()
            }
        }
        Column {
            anchors.centerIn: parent
            spacing: 2
            Text {
                objectName: "percent"
                anchors.horizontalCenter: parent.horizontalCenter
                text: view.panelModel.usedPercentText
                font: Qt.font({ pixelSize: Theme.title3.pixelSize, weight: Font.DemiBold })
                color: Theme.primary
            }
            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                text: qsTr("used")
                font: Theme.caption1
                color: Theme.primary
            }
        }
    }

    ColumnLayout {
        spacing: 2
        Text {
            objectName: "available"
            text: view.panelModel.availableText
            font: Qt.font({ pixelSize: Theme.title2.pixelSize, weight: Font.DemiBold })
            color: Theme.primary
        }
        Text { objectName: "total"; text: view.panelModel.totalLine; font: Theme.callout; color: Theme.primary }
        Text { objectName: "used"; text: view.panelModel.usedLine; font: Theme.caption1; color: Theme.primary }
    }
}
