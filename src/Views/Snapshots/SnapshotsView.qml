import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The "Free Up Snapshot Space" window: the local snapshots newest first, what they hold, the
// choice to spare the newest, and the button that removes the rest with administrator rights.
Window {
    id: window

    required property AppModel model
    readonly property alias snapshots: snapshotsModel

    width: 520
    height: 510
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    color: Theme.windowBackground

    // Each time it appears, so the list shows what is on the disk now.
    onVisibleChanged: if (visible) snapshotsModel.refresh()

    SnapshotsModel { id: snapshotsModel }

    // First in the content, with the window's size: the shell sizes a fixed window by it.
    Item {
        anchors.fill: parent
        implicitWidth: 520
        implicitHeight: 510

        ColumnLayout {
            anchors.fill: parent
            spacing: 0

            ToolHeader {
                Layout.fillWidth: true
                icon: "clock.arrow.circlepath"
                title: qsTr("Free Up Snapshot Space")
                subtitle: DesktopWords.snapshotsDescription
            }

            RowLayout {
                objectName: "summary"
                Layout.fillWidth: true
                Layout.leftMargin: 16
                Layout.rightMargin: 16
                Layout.bottomMargin: 10
                visible: snapshotsModel.count > 0
                Label {
                    objectName: "snapshotCount"
                    text: qsTr("%1 local snapshots").arg(snapshotsModel.count)
                    font: Theme.callout
                    color: Theme.secondary
                }
                Item { Layout.fillWidth: true }
                Label {
                    id: reclaimable
                    objectName: "reclaimable"
                    visible: snapshotsModel.purgeable >= 1
                    textFormat: Text.StyledText
                    text: qsTr("≈ %1 reclaimable").arg("<b>" + Formatter.bytes(snapshotsModel.purgeable) + "</b>")
                    font: Theme.callout
                    color: Theme.primary
                    HoverHandler { id: reclaimableHover }
                    ToolTip.visible: reclaimableHover.hovered
                    ToolTip.text: qsTr("Estimated purgeable space (mostly these snapshots). The exact amount freed is shown after you reclaim.")
                }
            }

            Divider { Layout.fillWidth: true }

            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true

                BusyIndicator {
                    objectName: "loading"
                    anchors.centerIn: parent
                    running: visible
                    visible: snapshotsModel.isLoading && snapshotsModel.count === 0
                }
                EmptyState {
                    objectName: "emptyState"
                    anchors.fill: parent
                    visible: !snapshotsModel.isLoading && snapshotsModel.count === 0
                    icon: "checkmark.circle"
                    title: qsTr("No local snapshots")
                    message: qsTr("There's nothing to reclaim right now.")
                }
                ListView {
                    id: list
                    objectName: "snapshotList"
                    anchors.fill: parent
                    anchors.topMargin: 4
                    visible: snapshotsModel.count > 0
                    clip: true
                    boundsBehavior: Flickable.StopAtBounds
                    model: snapshotsModel.snapshots
                    ScrollBar.vertical: ScrollBar {}
                    delegate: SnapshotRow {
                        required property var modelData
                        required property int index
                        width: list.width
                        displayDate: modelData.displayDate
                        name: modelData.name
                        kept: index === 0 && snapshotsModel.keepNewest
                    }
                }
            }

            Divider { Layout.fillWidth: true }

            ColumnLayout {
                Layout.fillWidth: true
                Layout.margins: 16
                Layout.topMargin: 10
                Layout.bottomMargin: 12
                spacing: 8

                Label {
                    objectName: "statusMessage"
                    Layout.fillWidth: true
                    visible: text.length > 0
                    text: snapshotsModel.statusMessage
                    font: Theme.callout
                    color: Theme.secondary
                    elide: Text.ElideMiddle
                }
                RowLayout {
                    Layout.fillWidth: true
                    spacing: 8
                    CheckBox {
                        objectName: "keepNewest"
                        text: qsTr("Keep the most recent snapshot")
                        font: Theme.callout
                        checked: snapshotsModel.keepNewest
                        enabled: !snapshotsModel.isWorking
                        onToggled: snapshotsModel.keepNewest = checked
                    }
                    Item { Layout.fillWidth: true }
                    BusyIndicator {
                        objectName: "working"
                        visible: snapshotsModel.isWorking
                        running: visible
                        implicitWidth: 18
                        implicitHeight: 18
                    }
                    CleanActionButton {
                        objectName: "reclaim"
                        title: snapshotsModel.actionTitle
                        systemImage: "trash"
                        enabled: snapshotsModel.deletableCount > 0 && !snapshotsModel.isWorking
                        onClicked: snapshotsModel.reclaim()
                    }
                }
            }
        }
    }
}
