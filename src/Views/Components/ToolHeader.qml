import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The heading at the top of a tool window: the tool's symbol and name, and a line on what it
// does.
ColumnLayout {
    id: root

    property string icon
    property string title
    property string subtitle

    spacing: 6

    RowLayout {
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        Layout.topMargin: 16
        spacing: 6

        SymbolIcon {
            Layout.preferredWidth: Theme.title3.pixelSize + 2
            Layout.preferredHeight: Theme.title3.pixelSize + 2
            symbol: root.icon
            color: Theme.accent
        }
        Label {
            objectName: "toolHeaderTitle"
            Layout.fillWidth: true
            text: root.title
            font.pixelSize: Theme.title3.pixelSize
            font.weight: Font.DemiBold
            color: Theme.primary
            elide: Text.ElideRight
        }
    }
    Label {
        objectName: "toolHeaderSubtitle"
        Layout.fillWidth: true
        Layout.leftMargin: 16
        Layout.rightMargin: 16
        Layout.bottomMargin: 16
        text: root.subtitle
        font: Theme.callout
        color: Theme.secondary
        wrapMode: Text.WordWrap
    }
}
