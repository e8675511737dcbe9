import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Mopwell

// The "Project Cleanup" window: the build folders found below the code folders, by size or age,
// flat or by project, narrowed by kind, ticked and moved to the Trash after a confirmation. The
// view keeps only what is about looking; the list, the selection and the rules are the model's.
// The first time it appears it starts a scan by itself.
Window {
    id: window

    required property AppModel model
    readonly property alias cleanup: cleanup
    readonly property alias rowMenu: rowMenu

    title: qsTr("Project Cleanup")
    minimumWidth: 640
    minimumHeight: 520
    width: 640
    height: 520
    color: Theme.windowBackground

    onVisibleChanged: if (visible) {
        cleanup.model = window.model
        if (!cleanup.isScanning && !cleanup.hasScanned)
            cleanup.scan()
    }

    function showMenu(index, item, x, y) {
        rowMenu.rowIndex = index
        rowMenu.popup(item, x, y)
    }

    ProjectCleanupModel {
        id: cleanup
        onFolderPickRequested: start => {
            folderDialog.currentFolder = "file://" + start
            folderDialog.open()
        }
    }

    // First in the content: the window takes its size from this item. (A layout would put its
    // own figure in place of an implicit size given to it.)
    Item {
        anchors.fill: parent
        implicitWidth: 640
        implicitHeight: 520

        ColumnLayout {
            anchors.fill: parent
            spacing: 0

            ProjectCleanupToolbar {
                objectName: "toolbar"
                Layout.fillWidth: true
                cleanup: cleanup
            }
            Divider { Layout.fillWidth: true }
            ProjectKindChips {
                id: chips
                objectName: "kindChips"
                Layout.fillWidth: true
                visible: cleanup.kindFacets.length >= 2
                cleanup: cleanup
            }
            Divider { Layout.fillWidth: true; visible: chips.visible }

            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true

                ListView {
                    id: list
                    objectName: "folderList"
                    anchors.fill: parent
                    visible: cleanup.hasDirs
                    clip: true
                    model: cleanup.rows
                    boundsBehavior: Flickable.StopAtBounds
                    ScrollBar.vertical: ScrollBar {}
                    // Rows keep their places while the pointer is over them, so a size that comes in
                    // never moves the row about to be ticked.
                    HoverHandler { id: listHover }
                    Binding { target: cleanup.rows; property: "holdOrder"; value: listHover.hovered }

                    move: Transition {
                        enabled: !Accessibility.reduceMotion
                        NumberAnimation { property: "y"; duration: 160; easing.type: Easing.OutCubic }
                    }
                    displaced: Transition {
                        enabled: !Accessibility.reduceMotion
                        NumberAnimation { property: "y"; duration: 160; easing.type: Easing.OutCubic }
                    }

                    delegate: Loader {
                        id: entry
                        required property int index
                        required property bool isHeader
                        required property string name
                        required property string kind
                        required property string displayPath
                        required property string sizeText
                        required property bool measured
                        required property string ageText
                        required property bool selected
                        required property bool selectable
                        required property int count

                        width: ListView.view.width
                        sourceComponent: isHeader ? groupHeader : folderRow

                        Component {
                            id: groupHeader
                            ProjectGroupHeader {
                                objectName: "groupHeader"
                                name: entry.name
                                displayPath: entry.displayPath
                                sizeText: entry.sizeText
                                count: entry.count
                                selected: entry.selected
                                selectable: entry.selectable
                                onToggleRequested: cleanup.toggleRow(entry.index)
                                onRevealRequested: cleanup.revealRow(entry.index)
                            }
                        }
                        Component {
                            id: folderRow
                            ProjectDirRow {
                                id: folderItem
                                objectName: "folderRow"
                                name: entry.name
                                kind: entry.kind
                                displayPath: entry.displayPath
                                sizeText: entry.sizeText
                                ageText: entry.ageText
                                measured: entry.measured
                                selected: entry.selected
                                selectable: entry.selectable
                                indent: cleanup.groupByProject ? 22 : 0
                                onToggleRequested: cleanup.toggleRow(entry.index)
                                onRevealRequested: cleanup.revealRow(entry.index)
                                onPinRequested: cleanup.pinRow(entry.index)
                                onMenuRequested: (x, y) => window.showMenu(entry.index, folderItem, x, y)
                            }
                        }
                    }
                }

                ColumnLayout {
                    objectName: "scanningState"
                    anchors.centerIn: parent
                    visible: !cleanup.hasDirs && cleanup.isScanning
                    spacing: 10
                    BusyIndicator {
                        Layout.alignment: Qt.AlignHCenter
                        running: parent.visible
                    }
                    Label {
                        objectName: "scanningText"
                        Layout.alignment: Qt.AlignHCenter
                        text: qsTr("Scanning %1… %2 found").arg(cleanup.rootsLabel).arg(cleanup.foundCount)
                        font: Theme.callout
                        color: Theme.secondary
                    }
                }

                EmptyState {
                    objectName: "emptyState"
                    anchors.fill: parent
                    visible: !cleanup.hasDirs && !cleanup.isScanning && cleanup.hasScanned
                    icon: "checkmark.circle"
                    title: qsTr("No build folders found")
                    message: qsTr("Nothing to clean under %1").arg(cleanup.rootsLabel)
                }
            }

            Divider { Layout.fillWidth: true }
            ProjectCleanupFooter {
                objectName: "footer"
                Layout.fillWidth: true
                cleanup: cleanup
                onTrashRequested: confirmation.open()
            }
        }
    }

    ProjectRowMenu {
        id: rowMenu
        onRevealRequested: index => cleanup.revealRow(index)
        onPinRequested: index => cleanup.pinRow(index)
    }

    FolderDialog {
        id: folderDialog
        title: qsTr("Choose a folder to scan")
        acceptLabel: qsTr("Scan")
        onAccepted: cleanup.scanFolder(decodeURIComponent(selectedFolder.toString().replace(/^file:\/\//, "")))
    }

    AlertDialog {
        id: confirmation
        objectName: "trashConfirmation"
        readonly property int folderCount: cleanup.visibleSelectedCount
        heading: folderCount === 1 ? qsTr("Move 1 build folder to the Trash?")
                                   : qsTr("Move %1 build folders to the Trash?").arg(folderCount)
        message: qsTr("They'll go to the Trash, so you can put them back. Build folders regenerate next time you build.")
        confirmText: qsTr("Move %1 to Trash").arg(Formatter.bytes(cleanup.selectedSize))
        destructive: true
        onConfirmed: cleanup.trashSelected()
    }
}
