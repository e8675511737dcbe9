import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The first step: what Mopwell is, in one sentence.
StaggeredColumn {
    id: step

    spacing: 18

    HeroIcon {
        Layout.alignment: Qt.AlignHCenter
        symbol: "internaldrive.fill"
        pulse: step.pulse
        still: step.still
    }
    Label {
        objectName: "welcomeTitle"
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        text: qsTr("Welcome to Mopwell")
        font.pixelSize: 38
        font.weight: Font.Bold
        color: Theme.primary
        wrapMode: Text.WordWrap
    }
    Label {
        Layout.fillWidth: true
        horizontalAlignment: Text.AlignHCenter
        text: DesktopWords.welcomeSubtitle
        font: Theme.title3
        color: Theme.secondary
        wrapMode: Text.WordWrap
    }
}
