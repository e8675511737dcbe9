import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// A question the window asks before it does something it can't quietly undo: a title, a line
// of explanation and two answers, the confirming one on the right. Escape and the Cancel button
// both decline.
Dialog {
    id: dialog

    property string heading
    property string message
    property string confirmText: qsTr("OK")
    // Marks the confirming answer as one that removes something.
    property bool destructive: false

    signal confirmed()
    signal declined()

    modal: true
    closePolicy: Popup.CloseOnEscape
    anchors.centerIn: Overlay.overlay
    width: 300
    padding: 20
    onRejected: declined()

    background: Rectangle {
        radius: 12
        color: Theme.windowBackground
        border.color: Theme.separator
    }

    contentItem: ColumnLayout {
        spacing: 8
        Label {
            objectName: "alertHeading"
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: dialog.heading
            font: Theme.headline
            color: Theme.primary
        }
        Label {
            objectName: "alertMessage"
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: dialog.message
            font: Theme.callout
            color: Theme.secondary
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.topMargin: 8
            spacing: 8
            Button {
                objectName: "alertCancel"
                Layout.fillWidth: true
                text: qsTr("Cancel")
                onClicked: dialog.reject()
            }
            Button {
                id: confirmButton
                objectName: "alertConfirm"
                Layout.fillWidth: true
                text: dialog.confirmText
                palette.buttonText: dialog.destructive ? Theme.red : Theme.accent
                font.weight: Font.DemiBold
                onClicked: {
                    dialog.close()
                    dialog.confirmed()
                }
            }
        }
    }
}
