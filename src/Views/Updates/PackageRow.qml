import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One outdated package: what it is, the version change, and its own update button.
Item {
    id: row

    required property string name
    required property string installed
    required property string current
    required property string symbol
    property bool busy: false
    signal upgradeRequested()

    implicitHeight: content.implicitHeight + 14

    RowLayout {
        id: content
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        spacing: 10

        Item {
            Layout.preferredWidth: 18
            Layout.preferredHeight: 18
            SymbolIcon {
                anchors.centerIn: parent
                width: 16
                height: 16
                symbol: row.symbol
                color: Theme.secondary
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 1
            Label {
                objectName: "packageName"
                Layout.fillWidth: true
                text: row.name
                font.pixelSize: Theme.callout.pixelSize
                font.weight: Font.Medium
                color: Theme.primary
                elide: Text.ElideRight
            }
            Label {
                objectName: "packageVersions"
                Layout.fillWidth: true
                text: row.installed + " → " + row.current
                font.pixelSize: Theme.caption1.pixelSize
                font.family: Theme.monospaceFamily
                color: Theme.secondary
                elide: Text.ElideRight
            }
        }
        Button {
            objectName: "update"
            text: qsTr("Update")
            font: Theme.callout
            enabled: !row.busy
            onClicked: row.upgradeRequested()
        }
    }

    Divider {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
    }
}
