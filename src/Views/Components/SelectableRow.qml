import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// A list row the user ticks to include in a removal: a box, an optional symbol, a title with an
// optional subtitle, the size when known, and whatever the caller puts at the end as children.
// The box shows `isOn` and reports clicks through `toggle()`; the owner flips the state, so the
// row never disagrees with the model behind it. `boxEnabled: false` switches off the box alone:
// the row's own `enabled` would switch off what stands at its end too, and a file that can't be
// ticked must still be found.
Item {
    id: root

    property bool isOn
    property bool boxEnabled: true
    property string icon
    property string title
    property string subtitle
    property real size: -1  // bytes; negative when unknown
    default property alias trailing: trailingRow.data

    signal toggle()

    implicitWidth: row.implicitWidth + 24
    implicitHeight: row.implicitHeight + 12

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 6
        anchors.bottomMargin: 6
        spacing: 10

        CheckBox {
            objectName: "selectableRowBox"
            padding: 0
            enabled: root.boxEnabled
            checked: root.isOn
            // The state only changes through the owner: a click asks, `isOn` answers.
            nextCheckState: function () { return checkState }
            onClicked: root.toggle()
            Accessible.name: root.title
        }
        SymbolIcon {
            visible: root.icon.length > 0
            Layout.preferredWidth: 18
            Layout.preferredHeight: 18
            symbol: root.icon
            color: Theme.secondary
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.minimumWidth: 0
            spacing: 1

            Label {
                objectName: "selectableRowTitle"
                Layout.fillWidth: true
                text: root.title
                font: Theme.callout
                color: Theme.primary
                elide: Text.ElideMiddle
                maximumLineCount: 1
            }
            Label {
                objectName: "selectableRowSubtitle"
                Layout.fillWidth: true
                visible: root.subtitle.length > 0
                text: root.subtitle
                font.family: Theme.monospaceFamily
                font.pixelSize: Theme.caption2.pixelSize
                color: Theme.secondary
                elide: Text.ElideMiddle
                maximumLineCount: 1
            }
        }
        SizeText {
            objectName: "selectableRowSize"
            visible: root.size >= 0
            text: root.size >= 0 ? Formatter.bytes(root.size) : ""
        }
        Row {
            id: trailingRow
            visible: children.length > 0
            spacing: 6
        }
    }
}
