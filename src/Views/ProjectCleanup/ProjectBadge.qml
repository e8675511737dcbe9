import QtQuick
import Mopwell

// A short word or count on a faint rounded fill, beside a name.
Rectangle {
    id: badge

    property string text

    implicitWidth: label.implicitWidth + 10
    implicitHeight: label.implicitHeight + 2
    radius: 4
    color: Qt.rgba(Theme.secondary.r, Theme.secondary.g, Theme.secondary.b, 0.15)

    Text {
        id: label
        anchors.centerIn: parent
        text: badge.text
        font: Qt.font({ pixelSize: Theme.caption1.pixelSize, weight: Font.DemiBold })
        color: Theme.secondary
    }
}
