import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The last step: the first scan runs, and then how much can be freed, counted up. The number
// takes the spinner's place in a block of the same height, so nothing below it moves.
StaggeredColumn {
    id: step

    required property AppModel model
    // The bytes to show; the number counts up to it unless `still`.
    property real revealValue: 0
    property real shownValue: revealValue

    spacing: 18

    Behavior on shownValue {
        enabled: !step.still
        NumberAnimation { duration: 800; easing.type: Easing.OutCubic }
    }

    HeroIcon {
        Layout.alignment: Qt.AlignHCenter
        symbol: "checkmark.circle.fill"
        pulse: step.pulse
        still: step.still
    }
    Label {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        text: qsTr("You're all set")
        font.pixelSize: 38
        font.weight: Font.Bold
        color: Theme.primary
    }
    Item {
        objectName: "revealBlock"
        Layout.fillWidth: true
        Layout.preferredHeight: 64

        RowLayout {
            objectName: "sizingUp"
            anchors.centerIn: parent
            visible: step.model.isScanning
            spacing: 10
            BusyIndicator { running: parent.visible; implicitWidth: 24; implicitHeight: 24 }
            Label { text: qsTr("Sizing up what you can clean…"); font: Theme.title3; color: Theme.secondary }
        }
        ColumnLayout {
            objectName: "revealed"
            anchors.centerIn: parent
            visible: !step.model.isScanning
            spacing: 0
            Label {
                Layout.alignment: Qt.AlignHCenter
                text: qsTr("Ready to free up")
                font: Theme.callout
                color: Theme.secondary
            }
            Label {
                objectName: "revealNumber"
                Layout.alignment: Qt.AlignHCenter
                text: Formatter.bytes(Math.round(step.shownValue))
                font.pixelSize: 52
                font.weight: Font.Bold
                color: Theme.primary
            }
        }
    }
    Label {
        objectName: "activationHint"
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        text: DesktopWords.openFromStatusIcon
        font: Theme.callout
        color: Theme.secondary
        wrapMode: Text.WordWrap
    }
}
