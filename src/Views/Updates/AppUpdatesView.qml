import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The "App & Tool Updates" window: what the user's package managers say is out of date, an
// update button per package, and "Update All". Nothing is updated unless the user asks.
Window {
    id: window

    required property AppModel model
    readonly property alias updates: updatesModel
    readonly property bool checking: updatesModel.stateName === "idle" || updatesModel.stateName === "checking"

    width: 520
    height: 480
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    color: Theme.windowBackground

    onVisibleChanged: if (visible) updatesModel.checkIfIdle()

    AppUpdatesModel { id: updatesModel }

    // First in the content, with the window's size: the shell sizes a fixed window by it.
    Item {
        anchors.fill: parent
        implicitWidth: 520
        implicitHeight: 480

        ColumnLayout {
            anchors.fill: parent
            spacing: 0

            ColumnLayout {
                Layout.fillWidth: true
                Layout.margins: 16
                spacing: 6
                RowLayout {
                    spacing: 6
                    SymbolIcon {
                        Layout.preferredWidth: Theme.title2.pixelSize
                        Layout.preferredHeight: Theme.title2.pixelSize
                        symbol: "arrow.triangle.2.circlepath"
                        color: Theme.accent
                    }
                    Label {
                        objectName: "title"
                        text: qsTr("App & Tool Updates")
                        font.pixelSize: Theme.title2.pixelSize
                        font.weight: Font.DemiBold
                        color: Theme.primary
                    }
                }
                Label {
                    objectName: "headerText"
                    Layout.fillWidth: true
                    // Commands in `backticks` read in fixed-width letters.
                    text: updatesModel.headerText.replace(/`([^`]+)`/g, "<font face=\"monospace\">$1</font>")
                    textFormat: Text.StyledText
                    font: Theme.callout
                    color: Theme.secondary
                    wrapMode: Text.WordWrap
                }
            }

            Divider { Layout.fillWidth: true }

            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true

                ColumnLayout {
                    objectName: "checkingView"
                    anchors.centerIn: parent
                    visible: window.checking
                    spacing: 8
                    BusyIndicator {
                        Layout.alignment: Qt.AlignHCenter
                        running: parent.visible
                    }
                    Label {
                        objectName: "checkingText"
                        text: updatesModel.checkingText
                        font: Theme.callout
                        color: Theme.secondary
                    }
                }
                EmptyState {
                    objectName: "unavailableState"
                    anchors.fill: parent
                    visible: updatesModel.stateName === "unavailable"
                    icon: "shippingbox"
                    title: updatesModel.unavailableTitle
                    Column {
                        spacing: 4
                        Repeater {
                            model: updatesModel.installLinks
                            Label {
                                required property var modelData
                                objectName: "installLink"
                                text: "<a href=\"" + modelData.url + "\">" + modelData.text + "</a>"
                                textFormat: Text.StyledText
                                linkColor: Theme.accent
                                font: Theme.callout
                                onLinkActivated: url => Qt.openUrlExternally(url)
                                HoverHandler { cursorShape: Qt.PointingHandCursor }
                            }
                        }
                    }
                }
                EmptyState {
                    objectName: "upToDateState"
                    anchors.fill: parent
                    visible: updatesModel.stateName === "ready" && updatesModel.count === 0
                    icon: "checkmark.circle"
                    title: qsTr("Everything's up to date")
                }
                ListView {
                    id: list
                    objectName: "packageList"
                    anchors.fill: parent
                    visible: updatesModel.stateName === "ready" && updatesModel.count > 0
                    clip: true
                    boundsBehavior: Flickable.StopAtBounds
                    model: updatesModel.packages
                    ScrollBar.vertical: ScrollBar {}
                    delegate: PackageRow {
                        required property var modelData
                        width: list.width
                        name: modelData.name
                        installed: modelData.installed
                        current: modelData.current
                        symbol: modelData.symbol
                        busy: updatesModel.busy
                        onUpgradeRequested: updatesModel.upgrade(modelData.id)
                    }
                }
            }

            Divider { Layout.fillWidth: true }

            RowLayout {
                Layout.fillWidth: true
                Layout.margins: 16
                Layout.topMargin: 10
                Layout.bottomMargin: 12
                spacing: 8
                Label {
                    objectName: "status"
                    Layout.fillWidth: true
                    text: updatesModel.status
                    font: Theme.callout
                    color: Theme.secondary
                    elide: Text.ElideRight
                }
                BusyIndicator {
                    objectName: "busy"
                    visible: updatesModel.busy
                    running: visible
                    implicitWidth: 18
                    implicitHeight: 18
                }
                Button {
                    objectName: "recheck"
                    text: qsTr("Re-check")
                    font: Theme.callout
                    enabled: !updatesModel.busy
                    onClicked: updatesModel.check()
                }
                ProminentButton {
                    objectName: "updateAll"
                    text: qsTr("Update All")
                    enabled: updatesModel.canUpgradeAll
                    onClicked: updatesModel.upgradeAll()
                }
            }
        }
    }
}
