import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The "About Mopwell" window, 440 by 480: who the application is, how much it has reclaimed,
// and the history of cleans with the one way back, "Put Back", for a clean that went to the Trash.
Window {
    id: window

    required property AppModel model
    readonly property var updater: Shell.updater
    readonly property alias about: aboutModel

    title: qsTr("About Mopwell")
    width: 440
    height: 480
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    color: Theme.windowBackground

    AboutModel {
        id: aboutModel
        model: window.model
    }

    // First in the content, as the window is sized from its first item; a layout there would
    // give the size of what it holds instead.
    Item {
        implicitWidth: 440
        implicitHeight: 480
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        ColumnLayout {
            Layout.fillWidth: true
            // A layout grows no wider than its widest child unless told; without this the header
            // kept to its own width at the window's left instead of centring in it.
            Layout.maximumWidth: Number.POSITIVE_INFINITY
            Layout.margins: 20
            spacing: 12

            SymbolIcon {
                Layout.alignment: Qt.AlignHCenter
                implicitWidth: 44
                implicitHeight: 44
                symbol: "internaldrive.fill"
                color: Theme.accent
            }
            Label {
                Layout.alignment: Qt.AlignHCenter
                text: "Mopwell"  // the product's name, the same in every language
                font.pixelSize: Theme.title1.pixelSize
                font.weight: Font.DemiBold
                color: Theme.primary
            }
            Label {
                objectName: "version"
                Layout.alignment: Qt.AlignHCenter
                text: aboutModel.versionText
                font: Theme.caption1
                color: Theme.secondary
            }
            RowLayout {
                Layout.alignment: Qt.AlignHCenter
                spacing: 12
                Button {
                    objectName: "checkForUpdates"
                    text: qsTr("Check for Updates…")
                    font: Theme.callout
                    enabled: window.updater ? window.updater.canCheckForUpdates : false
                    onClicked: window.updater.checkForUpdates()
                }
                LinkButton {
                    objectName: "website"
                    text: qsTr("Website")
                    onClicked: aboutModel.openWebsite()
                }
            }
            ColumnLayout {
                Layout.alignment: Qt.AlignHCenter
                spacing: 2
                Label {
                    objectName: "allTimeTotal"
                    Layout.alignment: Qt.AlignHCenter
                    text: aboutModel.totalText
                    font.pixelSize: Theme.title2.pixelSize
                    font.weight: Font.Bold
                    color: Theme.accent
                }
                Label {
                    Layout.alignment: Qt.AlignHCenter
                    text: qsTr("reclaimed all-time")
                    font: Theme.caption1
                    color: Theme.secondary
                }
            }
        }

        Divider { Layout.fillWidth: true }

        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.topMargin: 12
            Layout.bottomMargin: 4
            spacing: 8
            Label {
                Layout.fillWidth: true
                text: qsTr("Recent cleanups")
                font: Theme.headline
                color: Theme.primary
            }
            LinkButton {
                objectName: "openTrash"
                visible: aboutModel.count > 0
                text: qsTr("Open Trash")
                font: Theme.caption1
                onClicked: aboutModel.openTrash()
            }
            LinkButton {
                objectName: "clearHistory"
                visible: aboutModel.count > 0
                text: qsTr("Clear")
                font: Theme.caption1
                onClicked: aboutModel.clear()
            }
        }

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            Label {
                objectName: "noCleanups"
                visible: aboutModel.count === 0
                anchors.top: parent.top
                anchors.topMargin: 24
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: qsTr("No cleanups yet.")
                font: Theme.callout
                color: Theme.secondary
            }
            ListView {
                id: historyList
                objectName: "historyList"
                anchors.fill: parent
                anchors.leftMargin: 16
                anchors.rightMargin: 16
                visible: aboutModel.count > 0
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                model: aboutModel.history
                ScrollBar.vertical: ScrollBar {}
                delegate: ColumnLayout {
                    id: entry
                    required property var modelData
                    width: historyList.width
                    spacing: 8
                    Item { Layout.preferredHeight: 0 }
                    HistoryRow {
                        Layout.fillWidth: true
                        record: entry.modelData
                        onPutBackRequested: aboutModel.restore(entry.modelData.id)
                    }
                    Divider { Layout.fillWidth: true }
                }
            }
        }
    }

    WindowCenterer {}
}
