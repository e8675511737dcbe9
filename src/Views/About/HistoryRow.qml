import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One clean in the history: where it went (the Trash or gone for good), what and when, whether
// it can still be put back, and how much it freed.
RowLayout {
    id: row

    required property var record
    signal putBackRequested()

    spacing: 8

    SymbolIcon {
        objectName: "historyIcon"
        Layout.preferredWidth: 14
        Layout.preferredHeight: 11
        Layout.alignment: Qt.AlignVCenter
        symbol: row.record.trashed ? "trash" : "bolt.fill"
        color: Theme.secondary
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 1
        Label {
            objectName: "historyName"
            Layout.fillWidth: true
            text: row.record.name
            font: Theme.body
            color: Theme.primary
            elide: Text.ElideMiddle
        }
        Label {
            objectName: "historyDate"
            text: row.record.dateText
            font: Theme.caption1
            color: Theme.secondary
        }
    }
    RowLayout {
        objectName: "restoredLabel"
        visible: row.record.restored
        spacing: 3
        SymbolIcon { implicitWidth: 9; implicitHeight: 9; symbol: "arrow.uturn.backward"; color: Theme.secondary }
        Label { text: qsTr("Restored"); font: Theme.caption2; color: Theme.secondary }
    }
    LinkButton {
        objectName: "putBack"
        visible: row.record.restorable
        text: qsTr("Put Back")
        font: Theme.caption1
        ToolTip.visible: hovered
        ToolTip.text: qsTr("Restore these items from the Trash")
        onClicked: row.putBackRequested()
    }
    Label {
        objectName: "historyFreed"
        Layout.minimumWidth: 56
        horizontalAlignment: Text.AlignRight
        text: row.record.freedText
        font: Theme.callout
        color: row.record.restored ? Theme.secondary : Theme.primary
    }
}
