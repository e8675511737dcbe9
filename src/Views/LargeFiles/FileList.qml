import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One of the finder's lists: its rows while there are any, else the scanning indicator while
// the scan runs, else the list's own empty result.
Item {
    id: list

    required property FileFinderModel finder
    required property FileRowList rows
    property string emptyTitle
    property string emptyMessage
    readonly property alias view: view

    ListView {
        id: view
        objectName: "rows"
        anchors.fill: parent
        visible: list.rows.count > 0
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: list.rows
        ScrollBar.vertical: ScrollBar {}
        delegate: FileListRow {
            width: view.width
            finder: list.finder
        }
    }

    ColumnLayout {
        objectName: "scanningIndicator"
        anchors.centerIn: parent
        visible: list.rows.count === 0 && list.finder.isScanning
        spacing: 10
        BusyIndicator {
            Layout.alignment: Qt.AlignHCenter
            running: visible
        }
        ScanningText {
            Layout.alignment: Qt.AlignHCenter
            finder: list.finder
        }
    }

    EmptyState {
        objectName: "emptyResult"
        anchors.fill: parent
        visible: list.rows.count === 0 && !list.finder.isScanning
        icon: "checkmark.circle"
        title: list.emptyTitle
        message: list.emptyMessage
    }
}
