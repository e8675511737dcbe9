import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// A row of a finder list: a group's header ("3 copies · 2 MB each", "save 4 MB"), or a file the
// user can tick, with the way to it in the file manager and a divider under it.
Item {
    id: row

    required property FileFinderModel finder
    required property bool isHeader
    required property int fileIndex
    required property string title
    required property string subtitle
    required property real size
    required property int copies
    required property real saving
    required property bool isOn
    required property bool canTrash

    implicitHeight: isHeader ? header.implicitHeight : file.implicitHeight + 1

    RowLayout {
        id: header
        objectName: "groupHeader"
        visible: row.isHeader
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        height: implicitHeight
        spacing: 8

        Label {
            objectName: "groupCopies"
            Layout.topMargin: 10
            Layout.bottomMargin: 4
            text: qsTr("%1 copies · %2 each").arg(row.copies).arg(Formatter.bytes(row.size))
            font.pixelSize: Theme.caption1.pixelSize
            font.weight: Font.DemiBold
            color: Theme.primary
        }
        Item { Layout.fillWidth: true }
        Label {
            objectName: "groupSaving"
            Layout.topMargin: 10
            Layout.bottomMargin: 4
            text: qsTr("save %1").arg(Formatter.bytes(row.saving))
            font: Theme.caption1
            color: Theme.green
        }
    }

    SelectableRow {
        id: file
        objectName: "fileRow"
        visible: !row.isHeader
        anchors.left: parent.left
        anchors.right: parent.right
        isOn: row.isOn
        boxEnabled: row.canTrash
        title: row.title
        subtitle: row.subtitle
        size: row.size
        onToggle: row.finder.toggleFile(row.fileIndex)

        // A file that can't be trashed can still be found.
        ToolButton {
            objectName: "revealButton"
            flat: true
            contentItem: SymbolIcon { implicitWidth: 13; implicitHeight: 13; symbol: "magnifyingglass"; color: Theme.secondary }
            Accessible.name: DesktopWords.revealInFileManager
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: DesktopWords.revealInFileManager
            onClicked: row.finder.revealFile(row.fileIndex)
        }
    }
    Divider {
        visible: !row.isHeader
        anchors.bottom: parent.bottom
        inset: 38
        width: parent.width - inset
    }
}
