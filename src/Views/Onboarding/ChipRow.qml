import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// A row of the welcome's lists: a symbol on a tinted chip, a title over a line of detail, and
// whatever the row adds at its end (a switch), given as children.
RowLayout {
    id: row

    property string symbol
    property string title
    property string subtitle
    default property alias trailing: trailingSlot.data

    spacing: 12

    Rectangle {
        Layout.alignment: Qt.AlignTop
        implicitWidth: 32
        implicitHeight: 32
        radius: 8
        color: Qt.rgba(Theme.accent.r, Theme.accent.g, Theme.accent.b, 0.14)
        SymbolIcon {
            anchors.centerIn: parent
            width: 16
            height: 16
            symbol: row.symbol
            color: Theme.accent
        }
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 2
        Label {
            objectName: "chipTitle"
            Layout.fillWidth: true
            text: row.title
            font: Theme.headline
            color: Theme.primary
            wrapMode: Text.WordWrap
        }
        Label {
            objectName: "chipSubtitle"
            Layout.fillWidth: true
            text: row.subtitle
            font: Theme.subheadline
            color: Theme.secondary
            wrapMode: Text.WordWrap
        }
    }
    Item {
        id: trailingSlot
        Layout.alignment: Qt.AlignVCenter
        implicitWidth: childrenRect.width
        implicitHeight: childrenRect.height
    }
}
