import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The disk map's top bar: where to scan, rescan, the way back up (or the scan's progress while
// it runs) and how tiles are coloured. Its controls take the keyboard by Tab only, never by a
// click, so the map's keys go on working after one; the Scan menu, which takes it while open,
// says when it closes so the window can hand it back.
Item {
    id: bar

    required property DiskMapModel map
    // [{label, symbol, path}], as on the start screen.
    property var places: []
    property string colorMode: "type"
    readonly property alias scanMenu: scanMenu

    signal colorModeActivated(string mode)
    signal chooseFolderRequested()
    signal menuClosed()

    implicitHeight: row.implicitHeight + 16

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 8
        anchors.bottomMargin: 8
        spacing: 8

        Button {
            id: scanButton
            objectName: "scanMenuButton"
            focusPolicy: Qt.TabFocus
            flat: true
            text: qsTr("Scan")
            icon.source: "qrc:/Mopwell/icons/folder.svg"
            icon.width: 14
            icon.height: 14
            icon.color: Theme.primary
            onClicked: scanMenu.popup(scanButton, 0, scanButton.height)

            Menu {
                id: scanMenu
                objectName: "scanMenu"
                onClosed: bar.menuClosed()
                Repeater {
                    model: bar.places
                    delegate: MenuItem {
                        required property var modelData
                        objectName: "preset_" + modelData.label
                        text: modelData.label
                        icon.source: "qrc:/Mopwell/icons/" + modelData.symbol + ".svg"
                        icon.color: Theme.primary
                        onTriggered: bar.map.scan(modelData.path)
                    }
                }
                MenuSeparator {}
                MenuItem {
                    text: qsTr("Choose Folder…")
                    onTriggered: bar.chooseFolderRequested()
                }
            }
        }
        ToolButton {
            objectName: "rescanButton"
            focusPolicy: Qt.TabFocus
            enabled: !bar.map.isScanning
            icon.source: "qrc:/Mopwell/icons/arrow.clockwise.svg"
            icon.width: 14
            icon.height: 14
            icon.color: Theme.primary
            Accessible.name: qsTr("Rescan")
            ToolTip.visible: hovered
            ToolTip.text: qsTr("Rescan")
            ToolTip.delay: 600
            onClicked: bar.map.scan()
        }

        // The way back up, or while scanning what has been found so far.
        Flickable {
            objectName: "breadcrumb"
            visible: !bar.map.isScanning
            Layout.fillWidth: true
            Layout.preferredHeight: crumbs.implicitHeight
            contentWidth: crumbs.implicitWidth
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            Row {
                id: crumbs
                spacing: 2
                Repeater {
                    model: bar.map.breadcrumb
                    delegate: Row {
                        id: crumb
                        required property var modelData
                        required property int index
                        readonly property bool last: index === bar.map.breadcrumb.length - 1
                        spacing: 2
                        SymbolIcon {
                            visible: crumb.index > 0
                            anchors.verticalCenter: parent.verticalCenter
                            width: 9
                            height: 9
                            symbol: "chevron.right"
                            color: Theme.tertiary
                        }
                        ToolButton {
                            objectName: "crumb_" + crumb.index
                            focusPolicy: Qt.TabFocus
                            text: crumb.modelData.name
                            font: crumb.last ? Theme.headline : Theme.body
                            onClicked: bar.map.goTo(crumb.index)
                        }
                    }
                }
            }
        }
        RowLayout {
            objectName: "scanProgress"
            visible: bar.map.isScanning
            Layout.fillWidth: true
            spacing: 8
            BusyIndicator {
                running: visible
                Layout.preferredWidth: 16
                Layout.preferredHeight: 16
            }
            Label {
                objectName: "scanProgressText"
                text: bar.map.progressText
                font: Theme.callout
                color: Theme.secondary
            }
            Button {
                objectName: "stopButton"
                focusPolicy: Qt.TabFocus
                text: qsTr("Stop")
                onClicked: bar.map.cancel()
            }
            Item { Layout.fillWidth: true }
        }

        SegmentedControl {
            objectName: "colorModePicker"
            options: [{ value: "type", label: qsTr("Type") }, { value: "age", label: qsTr("Age") }]
            value: bar.colorMode
            onActivated: mode => bar.colorModeActivated(mode)
            ToolTip.visible: hoverArea.hovered
            ToolTip.text: qsTr("Color tiles by file type or by age")
            ToolTip.delay: 600
            HoverHandler { id: hoverArea }
        }
    }
}
