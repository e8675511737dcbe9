import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The "Software Update" window: what a check for a newer Mopwell found. A newer release offers
// its notes and a download that opens in the browser; nothing is installed from here.
Window {
    id: window

    required property AppModel model
    readonly property var updater: Shell.updater
    readonly property string state: updater ? updater.stateName : "idle"
    readonly property bool newerAvailable: state === "available"
    readonly property bool upToDate: state === "upToDate"
    readonly property Item content: body

    title: qsTr("Software Update")
    width: frame.implicitWidth
    height: frame.implicitHeight
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    color: Theme.windowBackground

    // First in the content, as the window is sized from its first item: fixed in width, as tall
    // as the wrapped texts need. (A layout of wrapping texts would ask for too little width.)
    Item {
        id: frame
        anchors.fill: parent
        implicitWidth: 380
        implicitHeight: body.implicitHeight

        ColumnLayout {
            id: body
            width: frame.width
            spacing: 0

            RowLayout {
                Layout.fillWidth: true
                Layout.margins: 20
                spacing: 14

                Item {
                    Layout.alignment: Qt.AlignTop
                    implicitWidth: 40
                    implicitHeight: 40
                    BusyIndicator {
                        anchors.centerIn: parent
                        visible: window.state === "checking" || window.state === "idle"
                        running: visible
                    }
                    SymbolIcon {
                        objectName: "updateIcon"
                        anchors.fill: parent
                        visible: !(window.state === "checking" || window.state === "idle")
                        symbol: window.newerAvailable ? "arrow.down.circle"
                              : window.upToDate ? "checkmark.circle.fill"
                              : "internaldrive.fill.badge.exclamationmark"
                        color: window.newerAvailable ? Theme.accent
                             : window.upToDate ? Theme.green : Theme.orange
                    }
                }
                ColumnLayout {
                    Layout.fillWidth: true
                    spacing: 4
                    Label {
                        objectName: "updateHeading"
                        Layout.fillWidth: true
                        wrapMode: Text.WordWrap
                        font: Theme.headline
                        color: Theme.primary
                        text: {
                            switch (window.state) {
                            case "available": return qsTr("Mopwell %1 is available").arg(window.updater.latestVersion)
                            case "upToDate": return qsTr("You're up to date")
                            case "failed": return qsTr("Couldn't check for updates")
                            default: return qsTr("Checking for updates…")
                            }
                        }
                    }
                    Label {
                        objectName: "updateMessage"
                        Layout.fillWidth: true
                        visible: text.length > 0
                        wrapMode: Text.WordWrap
                        font: Theme.callout
                        color: Theme.secondary
                        text: {
                            switch (window.state) {
                            case "available": return qsTr("You have version %1.").arg(window.updater.shortVersion)
                            case "upToDate": return qsTr("Mopwell %1 is the newest version available.").arg(window.updater.shortVersion)
                            case "failed": return window.updater.errorText
                            default: return ""
                            }
                        }
                    }
                    LinkButton {
                        objectName: "releaseNotes"
                        visible: window.newerAvailable && window.updater.releaseNotesUrl.toString().length > 0
                        text: qsTr("Release Notes")
                        onClicked: window.updater.openReleaseNotes()
                    }
                }
            }

            RowLayout {
                Layout.fillWidth: true
                Layout.leftMargin: 20
                Layout.rightMargin: 20
                Layout.bottomMargin: 16
                spacing: 8
                Item { Layout.fillWidth: true }
                Button {
                    objectName: "dismissUpdate"
                    text: window.newerAvailable ? qsTr("Later") : qsTr("OK")
                    onClicked: window.close()
                }
                ProminentButton {
                    objectName: "download"
                    visible: window.newerAvailable
                    text: qsTr("Download")
                    symbol: "arrow.down.circle"
                    onClicked: {
                        window.updater.openDownload()
                        window.close()
                    }
                }
            }
        }
    }

    WindowCenterer {}
}
