import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One local snapshot: when it was taken, its name, and whether the removal takes it.
Item {
    id: row

    required property string displayDate
    required property string name
    // The newest snapshot while the user spares it.
    property bool kept: false

    implicitHeight: content.implicitHeight + 12
    opacity: kept ? 0.6 : 1

    RowLayout {
        id: content
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        spacing: 10

        SymbolIcon {
            Layout.preferredWidth: 18
            Layout.preferredHeight: 18
            symbol: "camera.aperture"
            color: Theme.secondary
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 1
            Label {
                objectName: "snapshotDate"
                Layout.fillWidth: true
                text: row.displayDate
                font.pixelSize: Theme.callout.pixelSize
                font.weight: Font.Medium
                color: Theme.primary
                elide: Text.ElideRight
            }
            Label {
                objectName: "snapshotName"
                Layout.fillWidth: true
                text: row.name
                font.pixelSize: Theme.caption1.pixelSize
                font.family: Theme.monospaceFamily
                color: Theme.secondary
                elide: Text.ElideMiddle
            }
        }
        Label {
            objectName: "keptBadge"
            visible: row.kept
            text: qsTr("Kept")
            font.pixelSize: Theme.caption1.pixelSize
            font.weight: Font.DemiBold
            color: Theme.green
            leftPadding: 6
            rightPadding: 6
            topPadding: 2
            bottomPadding: 2
            background: Rectangle {
                radius: 4
                color: Qt.rgba(Theme.green.r, Theme.green.g, Theme.green.b, 0.18)
            }
        }
        Label {
            objectName: "willRemove"
            visible: !row.kept
            text: qsTr("Will remove")
            font: Theme.caption1
            color: Theme.secondary
        }
    }
}
