import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Mopwell

// The "Large & Duplicate Files" window: scan a folder, see its largest files and its groups of
// identical files, tick files and move them to the Trash. The view keeps only which list is
// shown; the scan, the lists and the ticks belong to the finder model.
Window {
    id: window

    required property AppModel model
    readonly property alias finder: finder
    // 0 for the largest files, 1 for the copies; the panel's buttons choose it on the way in.
    property int tab: 0
    readonly property bool showsResults: finder.isScanning || finder.hasScanned

    color: Theme.windowBackground
    width: 640
    height: 520
    minimumWidth: 640
    minimumHeight: 520

    onVisibleChanged: if (visible) {
        finder.model = window.model
        window.tab = window.model.largeFilesTab
    }

    // The panel may ask for the other list while the window is already open.
    Connections {
        target: window.model
        function onLargeFilesTabChanged() { window.tab = window.model.largeFilesTab }
    }

    FileFinderModel {
        id: finder
        onFolderPickRequested: start => {
            folderDialog.currentFolder = WorkspaceActions.folderUrl(start)
            folderDialog.open()
        }
    }

    // First in the content, as the window is sized from its first item's implicit size.
    Item {
        implicitWidth: 640
        implicitHeight: 520
        anchors.fill: parent

        ColumnLayout {
            anchors.fill: parent
            spacing: 0

            LargeFilesToolbar {
                objectName: "toolbar"
                Layout.fillWidth: true
                finder: finder
                tab: window.tab
                onTabActivated: index => window.tab = index
            }
            Divider { Layout.fillWidth: true }
            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true

                EmptyState {
                    objectName: "placeholder"
                    anchors.fill: parent
                    visible: !window.showsResults
                    icon: "doc.on.doc"
                    title: qsTr("Find large & duplicate files")
                    message: qsTr("Pick a folder to scan for big files and byte-identical duplicates you can safely remove.")
                    Button {
                        objectName: "placeholderChooseFolder"
                        text: qsTr("Choose Folder…")
                        onClicked: finder.pickFolderAndScan()
                    }
                }
                FileList {
                    objectName: "largestList"
                    anchors.fill: parent
                    visible: window.showsResults && window.tab === 0
                    finder: finder
                    rows: finder.largestRows
                    emptyTitle: qsTr("No files found")
                    emptyMessage: qsTr("Nothing in this folder is large enough to list.")
                }
                FileList {
                    objectName: "duplicateList"
                    anchors.fill: parent
                    visible: window.showsResults && window.tab === 1
                    finder: finder
                    rows: finder.duplicateRows
                    emptyTitle: qsTr("No duplicates found")
                    emptyMessage: qsTr("Duplicates are byte-identical copies — unique files don't appear here.")
                }
            }
            Divider { Layout.fillWidth: true }
            LargeFilesFooter {
                Layout.fillWidth: true
                finder: finder
            }
        }
    }

    FolderDialog {
        id: folderDialog
        title: qsTr("Choose a folder to scan")
        acceptLabel: qsTr("Scan")
        onAccepted: finder.scan(WorkspaceActions.localPath(selectedFolder))
    }

    WindowCenterer {}
}
