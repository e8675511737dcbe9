import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The apps installed in the user's home, to pick one from, and "Other…" for anything the list
// doesn't hold. A desktop has no single folder of apps to open a file dialog in.
Popup {
    id: picker
    property var apps: []
    signal picked(int index)
    signal otherRequested()

    width: 360
    height: Math.min(420, column.implicitHeight + topPadding + bottomPadding)
    modal: true
    focus: true
    padding: 8

    background: Rectangle {
        color: Theme.windowBackground
        radius: Theme.cornerRadius
        border.color: Theme.separator
    }

    contentItem: ColumnLayout {
        id: column
        spacing: 6

        Label {
            Layout.leftMargin: 8
            Layout.topMargin: 4
            text: qsTr("Apps in your home folder")
            font: Theme.headline
            color: Theme.primary
        }
        Label {
            objectName: "noApps"
            Layout.leftMargin: 8
            visible: picker.apps.length === 0
            text: qsTr("No apps found in your home folder.")
            font: Theme.callout
            color: Theme.secondary
        }
        ListView {
            objectName: "appList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredHeight: contentHeight
            visible: picker.apps.length > 0
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            model: picker.apps
            ScrollBar.vertical: ScrollBar {}
            delegate: ItemDelegate {
                id: appRow
                required property var modelData
                required property int index
                objectName: "app_" + modelData.name
                width: ListView.view.width
                onClicked: {
                    picker.close()
                    picker.picked(index)
                }
                contentItem: RowLayout {
                    spacing: 10
                    Item {
                        Layout.preferredWidth: 28
                        Layout.preferredHeight: 28
                        Image {
                            id: listedIcon
                            anchors.fill: parent
                            visible: status === Image.Ready
                            source: appRow.modelData.iconSource
                            sourceSize: Qt.size(56, 56)
                            fillMode: Image.PreserveAspectFit
                            asynchronous: true
                        }
                        SymbolIcon {
                            anchors.fill: parent
                            anchors.margins: 3
                            visible: !listedIcon.visible
                            symbol: "app.fill"
                            color: Theme.accent
                        }
                    }
                    ColumnLayout {
                        Layout.fillWidth: true
                        spacing: 1
                        Label {
                            objectName: "listedName"
                            Layout.fillWidth: true
                            text: appRow.modelData.name
                            font.pixelSize: Theme.callout.pixelSize
                            font.weight: Font.Medium
                            color: Theme.primary
                            elide: Text.ElideRight
                        }
                        Label {
                            objectName: "listedIdentifier"
                            Layout.fillWidth: true
                            visible: text.length > 0
                            text: appRow.modelData.identifier
                            font.family: Theme.monospaceFamily
                            font.pixelSize: Theme.caption2.pixelSize
                            color: Theme.secondary
                            elide: Text.ElideMiddle
                        }
                    }
                }
            }
        }
        Divider { Layout.fillWidth: true }
        RowLayout {
            Layout.fillWidth: true
            LinkButton {
                objectName: "otherApp"
                text: qsTr("Other…")
                onClicked: {
                    picker.close()
                    picker.otherRequested()
                }
            }
            Item { Layout.fillWidth: true }
            LinkButton {
                text: qsTr("Cancel")
                onClicked: picker.close()
            }
        }
    }
}
