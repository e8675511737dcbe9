import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The second step: what Mopwell never does, and the Trash switch.
StaggeredColumn {
    id: step

    required property AppSettings settings
    readonly property var features: [
        { symbol: "doc.text.magnifyingglass", title: qsTr("Only ever clears regenerable files"),
          subtitle: qsTr("Caches and build output — never your documents, photos, or code.") },
        { symbol: "eye.fill", title: qsTr("Shows you everything first"),
          subtitle: qsTr("Exactly what's removed, and how much space, before you confirm.") },
        { symbol: "arrow.uturn.backward.circle.fill", title: qsTr("Recoverable by default"),
          subtitle: qsTr("Items move to the Trash, so anything can be brought back.") }
    ]

    spacing: 14

    HeroIcon {
        Layout.alignment: Qt.AlignHCenter
        symbol: "checkmark.shield.fill"
        pulse: step.pulse
        still: step.still
    }
    Label {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        text: qsTr("Safe by design")
        font.pixelSize: 28
        font.weight: Font.Bold
        color: Theme.primary
    }
    Label {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        text: qsTr("Mopwell is built so you never lose anything that matters.")
        font: Theme.title3
        color: Theme.secondary
        wrapMode: Text.WordWrap
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 12
        Repeater {
            model: step.features
            delegate: ChipRow {
                required property var modelData
                Layout.fillWidth: true
                symbol: modelData.symbol
                title: modelData.title
                subtitle: modelData.subtitle
            }
        }
    }
    Rectangle {
        Layout.fillWidth: true
        implicitHeight: trashCard.implicitHeight + 24
        radius: 10
        color: Theme.faintFill
        border.color: Theme.separator
        ColumnLayout {
            id: trashCard
            anchors.fill: parent
            anchors.margins: 12
            spacing: 4
            ToggleSwitch {
                objectName: "onboardingMoveToTrash"
                Layout.fillWidth: true
                text: qsTr("Move cleaned items to the Trash")
                font: Theme.headline
                checked: step.settings.moveToTrash
                onToggled: step.settings.moveToTrash = checked
            }
            Label {
                Layout.fillWidth: true
                text: qsTr("Recommended — recover anything you change your mind about.")
                font: Theme.subheadline
                color: Theme.secondary
                wrapMode: Text.WordWrap
            }
        }
    }
}
