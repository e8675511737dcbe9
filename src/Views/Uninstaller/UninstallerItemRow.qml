import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One item the app would leave behind, or the app itself: a box, a tinted tile saying which, the
// kind over the path, and the size.
Item {
    id: row
    required property var item
    property bool isLast: false
    signal toggled()

    objectName: "itemRow_" + item.label
    implicitHeight: content.implicitHeight + 12

    RowLayout {
        id: content
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        spacing: 10

        CheckBox {
            objectName: "itemBox"
            padding: 0
            checked: row.item.selected
            // The state only changes through the model: a click asks, `selected` answers.
            nextCheckState: function () { return checkState }
            onClicked: row.toggled()
            Accessible.name: row.item.label
        }
        Rectangle {
            Layout.preferredWidth: 28
            Layout.preferredHeight: 28
            radius: 6
            readonly property color tint: row.item.isBundle ? Theme.accent : Theme.secondary
            color: Qt.rgba(tint.r, tint.g, tint.b, 0.15)
            SymbolIcon {
                anchors.centerIn: parent
                width: 15
                height: 15
                symbol: row.item.isBundle ? "app.fill" : "doc.on.doc.fill"
                color: parent.tint
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.minimumWidth: 0
            spacing: 1
            Label {
                objectName: "itemLabel"
                Layout.fillWidth: true
                text: row.item.label
                font.pixelSize: Theme.callout.pixelSize
                font.weight: Font.Medium
                color: Theme.primary
                elide: Text.ElideRight
            }
            Label {
                objectName: "itemPath"
                Layout.fillWidth: true
                text: row.item.path
                font.family: Theme.monospaceFamily
                font.pixelSize: Theme.caption2.pixelSize
                color: Theme.secondary
                elide: Text.ElideMiddle
                maximumLineCount: 1
            }
        }
        SizeText {
            objectName: "itemSize"
            text: Formatter.bytes(row.item.size)
        }
    }
    Divider {
        anchors.bottom: parent.bottom
        width: parent.width - inset
        inset: 48
        visible: !row.isLast
    }
}
