import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The loaded app: its own icon (a plain one when it has none), its name and identifier, and the
// way back to the chooser.
RowLayout {
    id: header
    required property UninstallerModel uninstaller
    spacing: 12

    Item {
        Layout.leftMargin: 16
        Layout.topMargin: 14
        Layout.bottomMargin: 14
        Layout.preferredWidth: 52
        Layout.preferredHeight: 52
        Image {
            id: appIcon
            objectName: "appIcon"
            anchors.fill: parent
            visible: status === Image.Ready
            source: header.uninstaller.appIconSource
            sourceSize: Qt.size(104, 104)
            fillMode: Image.PreserveAspectFit
            asynchronous: true
        }
        SymbolIcon {
            anchors.fill: parent
            anchors.margins: 4
            visible: !appIcon.visible
            symbol: "app.fill"
            color: Theme.accent
        }
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 2
        Label {
            objectName: "appName"
            Layout.fillWidth: true
            text: header.uninstaller.appName
            font.pixelSize: Theme.title3.pixelSize
            font.weight: Font.DemiBold
            color: Theme.primary
            elide: Text.ElideRight
        }
        Label {
            objectName: "appIdentifier"
            Layout.fillWidth: true
            visible: text.length > 0
            text: header.uninstaller.appIdentifier
            font.family: Theme.monospaceFamily
            font.pixelSize: Theme.caption1.pixelSize
            color: Theme.secondary
            elide: Text.ElideMiddle
        }
    }
    LinkButton {
        objectName: "chooseDifferent"
        Layout.rightMargin: 12
        text: qsTr("Choose Different…")
        enabled: !header.uninstaller.isRemoving
        onClicked: header.uninstaller.reset()
    }
}
