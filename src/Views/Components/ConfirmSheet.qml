import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The body of every "are you sure" before files go: what is cleaned and how much it frees,
// why it is safe, every item that goes, and Cancel / Clean. Escape cancels and Return confirms
// while the sheet is shown. With `allowPermanentDelete` the user may skip the Trash for this one
// clean; `confirm(permanently)` carries that choice, and is always false without the option.
//
// Items are [{label, size}] with size in bytes, negative when unknown. The sheet is 380 points
// wide; its height follows the content, so a window can size itself to implicitHeight.
Item {
    id: root

    property string title
    property string sizeText  // already formatted; empty when unknown
    property string whySafe
    property var items: []
    property bool allowPermanentDelete: false
    // View state: starts off for every new sheet.
    property bool deletePermanently: false

    signal cancel()
    signal confirm(bool permanently)

    readonly property bool permanent: allowPermanentDelete && deletePermanently
    readonly property int itemCount: items ? items.length : 0

    // Every row is 33 points with 2 points of inset above and below the list; beyond six rows the
    // list stops growing and scrolls.
    function rowsHeight(count) {
        return 33 * count + 4
    }
    function listHeight(count) {
        return Math.min(rowsHeight(count), 200)
    }
    readonly property bool listScrolls: rowsHeight(itemCount) > listHeight(itemCount)

    function countText(count) {
        return count === 1 ? qsTr("%1 item").arg(count) : qsTr("%1 items").arg(count)
    }

    function confirmChoice() {
        root.confirm(root.permanent)
    }

    // One list row: the label on one line, cut in the middle, with the size at the end when
    // known, and a divider under every row but the last. Clicking the label shows it whole so
    // any part of it can be selected and copied.
    component ItemRow: Item {
        id: itemRow

        required property var modelData
        required property int index

        height: 33

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 10
            anchors.rightMargin: 10
            spacing: 8

            TextInput {
                id: label
                objectName: "confirmItemLabel"
                Layout.fillWidth: true
                readOnly: true
                selectByMouse: true
                clip: true
                font: Theme.callout
                color: Theme.primary
                selectionColor: Theme.accent
                selectedTextColor: Theme.accentText
                text: activeFocus ? itemRow.modelData.label : elided.elidedText

                TextMetrics {
                    id: elided
                    font: label.font
                    text: itemRow.modelData.label
                    elide: Qt.ElideMiddle
                    elideWidth: label.width
                }
            }
            SizeText {
                objectName: "confirmItemSize"
                visible: itemRow.modelData.size >= 0
                text: itemRow.modelData.size >= 0 ? Formatter.bytes(itemRow.modelData.size) : ""
            }
        }
        Rectangle {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.leftMargin: 10
            anchors.rightMargin: 10
            height: 1
            color: Theme.separator
            visible: itemRow.index < root.itemCount - 1
        }
    }

    implicitWidth: 380
    implicitHeight: column.implicitHeight + 2 * 18

    Shortcut {
        sequences: [StandardKey.Cancel]
        enabled: root.visible
        onActivated: root.cancel()
    }
    Shortcut {
        sequences: ["Return", "Enter"]
        enabled: root.visible
        onActivated: root.confirmChoice()
    }

    ColumnLayout {
        id: column
        anchors.fill: parent
        anchors.margins: 18
        spacing: 14

        RowLayout {
            spacing: 10

            SymbolIcon {
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: Theme.largeTitle.pixelSize
                Layout.preferredHeight: Theme.largeTitle.pixelSize
                symbol: "trash.circle.fill"
                color: Theme.orange
            }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 3

                Label {
                    objectName: "confirmTitle"
                    Layout.fillWidth: true
                    text: qsTr("Clean %1").arg(root.title)
                    font: Theme.headline
                    color: Theme.primary
                    wrapMode: Text.Wrap
                }
                Label {
                    objectName: "confirmSize"
                    Layout.fillWidth: true
                    visible: root.sizeText.length > 0
                    text: qsTr("Frees about %1. This data regenerates automatically.").arg(root.sizeText)
                    font: Theme.callout
                    color: Theme.secondary
                    wrapMode: Text.Wrap
                }
            }
        }

        Rectangle {
            objectName: "confirmWhySafe"
            Layout.fillWidth: true
            visible: root.whySafe.length > 0
            implicitHeight: whySafeRow.implicitHeight + 16
            radius: Theme.cornerRadius
            color: Theme.greenTint

            RowLayout {
                id: whySafeRow
                anchors.fill: parent
                anchors.margins: 8
                spacing: 8

                SymbolIcon {
                    Layout.alignment: Qt.AlignTop
                    Layout.preferredWidth: 15
                    Layout.preferredHeight: 15
                    symbol: "checkmark.shield.fill"
                    color: Theme.green
                }
                Label {
                    objectName: "confirmWhySafeText"
                    Layout.fillWidth: true
                    text: root.whySafe
                    font: Theme.callout
                    color: Theme.primary
                    wrapMode: Text.Wrap
                }
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            visible: root.itemCount > 0
            spacing: 6

            RowLayout {
                Layout.fillWidth: true

                Label {
                    text: qsTr("Will clear")
                    font.pixelSize: Theme.caption1.pixelSize
                    font.weight: Font.DemiBold
                    color: Theme.secondary
                }
                Item { Layout.fillWidth: true }
                Label {
                    objectName: "confirmCount"
                    text: root.countText(root.itemCount)
                    font: Theme.caption1
                    color: Theme.tertiary
                }
            }

            Rectangle {
                Layout.fillWidth: true
                Layout.preferredHeight: root.listHeight(root.itemCount)
                radius: 6
                color: Theme.faintFill

                ListView {
                    id: list
                    objectName: "confirmList"
                    anchors.fill: parent
                    topMargin: 2
                    bottomMargin: 2
                    clip: true
                    boundsBehavior: Flickable.StopAtBounds
                    model: root.items
                    // Always shown when rows are out of sight, so the user knows to look.
                    ScrollBar.vertical: ScrollBar {
                        policy: root.listScrolls ? ScrollBar.AlwaysOn : ScrollBar.AsNeeded
                    }
                    // Rows stop short of the bar so sizes stay clear of it.
                    delegate: ItemRow {
                        width: list.width - (root.listScrolls ? 8 : 0)
                    }
                }
            }
        }

        CheckBox {
            objectName: "confirmPermanent"
            visible: root.allowPermanentDelete
            padding: 0
            spacing: 6
            text: qsTr("Delete permanently (skip the Trash)")
            font: Theme.caption1
            checked: root.deletePermanently
            onToggled: root.deletePermanently = checked
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: qsTr("Useful for very large build folders — frees the space immediately, but can't be recovered.")
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 8

            Item { Layout.fillWidth: true }
            Button {
                id: cancelButton
                objectName: "confirmCancel"
                text: qsTr("Cancel")
                font: Theme.body
                implicitHeight: confirmButton.implicitHeight
                leftPadding: 14
                rightPadding: 14
                onClicked: root.cancel()
                background: Rectangle {
                    radius: 6
                    color: cancelButton.down ? Theme.separator : Theme.controlBackground
                    border.width: 1
                    border.color: Theme.separator
                }
            }
            CleanActionButton {
                id: confirmButton
                objectName: "confirmButton"
                title: root.permanent ? qsTr("Delete") : qsTr("Clean")
                onClicked: root.confirmChoice()
            }
        }
    }
}
