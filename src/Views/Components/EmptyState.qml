import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// What a tool window shows where a list would be when there is nothing to list yet: a symbol,
// a title, an optional message and, under them, any buttons given as children.
//
//     EmptyState {
//         anchors.fill: parent
//         icon: "checkmark.circle"
//         title: qsTr("Nothing to clean")
//         Button { text: qsTr("Scan again") }
//     }
Item {
    id: root

    property string icon
    property string title
    property string message
    default property alias actions: actionRow.data

    implicitWidth: column.implicitWidth + 2 * padding
    implicitHeight: column.implicitHeight + 2 * padding

    readonly property int padding: 24

    ColumnLayout {
        id: column
        anchors.centerIn: parent
        width: Math.min(340, Math.max(0, root.width - 2 * root.padding))
        spacing: 10

        SymbolIcon {
            objectName: "emptyStateIcon"
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 34
            Layout.preferredHeight: 34
            symbol: root.icon
            color: Theme.secondary
        }
        Label {
            objectName: "emptyStateTitle"
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            text: root.title
            font: Theme.headline
            color: Theme.primary
        }
        Label {
            objectName: "emptyStateMessage"
            Layout.fillWidth: true
            visible: root.message.length > 0
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            text: root.message
            font: Theme.callout
            color: Theme.secondary
        }
        Row {
            id: actionRow
            objectName: "emptyStateActions"
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: 4
            visible: children.length > 0
            spacing: 8
        }
    }
}
