import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The window's top bar: scan again or somewhere else, the running count with a way to stop,
// where the list comes from, and how it is grouped and ordered.
Item {
    id: bar

    required property ProjectCleanupModel cleanup

    implicitHeight: 44

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        spacing: 8

        Button {
            objectName: "rescanButton"
            text: qsTr("Rescan")
            icon.source: "qrc:/Mopwell/icons/arrow.clockwise.svg"
            icon.width: 14
            icon.height: 14
            icon.color: Theme.primary
            enabled: !bar.cleanup.isScanning
            onClicked: bar.cleanup.scan()
        }
        Button {
            objectName: "chooseFolderButton"
            text: qsTr("Choose Folder…")
            icon.source: "qrc:/Mopwell/icons/folder.svg"
            icon.width: 14
            icon.height: 14
            icon.color: Theme.primary
            enabled: !bar.cleanup.isScanning
            onClicked: bar.cleanup.pickFolderAndScan()
        }
        RowLayout {
            objectName: "scanProgress"
            visible: bar.cleanup.isScanning
            spacing: 6
            BusyIndicator {
                running: visible
                Layout.preferredWidth: 16
                Layout.preferredHeight: 16
                padding: 0
            }
            Label {
                objectName: "scanProgressText"
                text: qsTr("Scanning… %1 found").arg(bar.cleanup.foundCount)
                font: Theme.callout
                color: Theme.secondary
            }
            Button {
                objectName: "stopButton"
                text: qsTr("Stop")
                onClicked: bar.cleanup.cancel()
            }
        }
        Label {
            objectName: "rootsLabel"
            visible: !bar.cleanup.isScanning && bar.cleanup.hasScanned
            Layout.fillWidth: true
            Layout.minimumWidth: 0
            text: bar.cleanup.rootsLabel
            elide: Text.ElideMiddle
            font: Theme.callout
            color: Theme.secondary
        }
        Item {
            visible: bar.cleanup.isScanning || !bar.cleanup.hasScanned
            Layout.fillWidth: true
        }
        Button {
            objectName: "groupToggle"
            visible: bar.cleanup.hasDirs
            text: qsTr("Group")
            icon.source: "qrc:/Mopwell/icons/folder.svg"
            icon.width: 14
            icon.height: 14
            icon.color: checked ? Theme.accent : Theme.primary
            checkable: true
            checked: bar.cleanup.groupByProject
            onToggled: bar.cleanup.groupByProject = checked
            ToolTip.visible: hovered
            ToolTip.text: qsTr("Group build folders by project")
            ToolTip.delay: 600
        }
        SegmentedControl {
            objectName: "sortPicker"
            visible: bar.cleanup.hasDirs
            options: [{ value: "size", label: qsTr("Size") }, { value: "oldest", label: qsTr("Oldest") }]
            value: bar.cleanup.sortByAge ? "oldest" : "size"
            onActivated: choice => bar.cleanup.sortByAge = choice === "oldest"
        }
    }
}
