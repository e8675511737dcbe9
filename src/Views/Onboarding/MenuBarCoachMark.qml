import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// The bubble that points at the status icon after the welcome: where Mopwell lives from now on.
// It is drawn in a strip as wide as the screen; `iconX` is where the icon is in that strip, and
// the bubble follows it as far as it can without leaving the screen. Where the icon sits at the
// bottom of the screen the strip lies above it and the arrow points down.
Item {
    id: mark

    property real iconX: width - 120
    property real bubbleWidth: 280
    property bool pointsUp: true
    property bool reduceMotion: Accessibility.reduceMotion
    property bool appeared: false
    readonly property real bubbleCenterX: Math.max(bubbleWidth / 2 + 12, Math.min(width - bubbleWidth / 2 - 12, iconX))
    readonly property real centerY: pointsUp ? 88 : height - 88

    signal dismissed()

    Component.onCompleted: appeared = true

    ColumnLayout {
        id: column
        objectName: "coachMark"
        x: mark.bubbleCenterX - width / 2
        y: mark.centerY - height / 2 + (mark.appeared || mark.reduceMotion ? 0 : (mark.pointsUp ? -10 : 10))
        spacing: 8
        opacity: mark.appeared ? 1 : 0
        Behavior on opacity { enabled: !mark.reduceMotion; NumberAnimation { duration: 450; easing.type: Easing.OutCubic } }
        Behavior on y { enabled: !mark.reduceMotion; NumberAnimation { duration: 450; easing.type: Easing.OutBack } }

        SymbolIcon {
            objectName: "coachArrow"
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 26
            Layout.preferredHeight: 26
            visible: mark.pointsUp
            symbol: "arrowshape.up.fill"
            color: Theme.accent
        }
        Rectangle {
            objectName: "coachBubble"
            Layout.preferredWidth: mark.bubbleWidth
            implicitHeight: bubble.implicitHeight + 28
            radius: 14
            color: Theme.windowBackground
            border.color: Qt.rgba(Theme.accent.r, Theme.accent.g, Theme.accent.b, 0.35)
            Rectangle {
                anchors.fill: parent
                radius: parent.radius
                color: Qt.rgba(Theme.accent.r, Theme.accent.g, Theme.accent.b, 0.08)
            }
            ColumnLayout {
                id: bubble
                anchors.fill: parent
                anchors.margins: 14
                spacing: 6
                RowLayout {
                    spacing: 6
                    SymbolIcon { implicitWidth: 14; implicitHeight: 14; symbol: "internaldrive.fill"; color: Theme.accent }
                    Label {
                        objectName: "coachHeading"
                        text: mark.pointsUp ? qsTr("Mopwell lives up here") : qsTr("Mopwell lives down here")
                        font: Theme.headline
                        color: Theme.primary
                    }
                }
                Label {
                    objectName: "coachText"
                    Layout.fillWidth: true
                    text: DesktopWords.clickTheStatusIcon
                    font: Theme.subheadline
                    color: Theme.secondary
                    wrapMode: Text.WordWrap
                }
                Button {
                    objectName: "gotIt"
                    Layout.alignment: Qt.AlignRight
                    text: qsTr("Got it")
                    font.pixelSize: Theme.caption1.pixelSize
                    font.weight: Font.DemiBold
                    onClicked: mark.dismissed()
                }
            }
        }
        SymbolIcon {
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 26
            Layout.preferredHeight: 26
            visible: !mark.pointsUp
            symbol: "arrowshape.up.fill"
            rotation: 180
            color: Theme.accent
        }
    }
}
