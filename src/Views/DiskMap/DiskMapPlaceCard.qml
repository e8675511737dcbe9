import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One place on the disk map's start screen: its symbol over its name, the whole card a button.
AbstractButton {
    id: card

    property string label
    property string symbol

    Layout.fillWidth: true
    Layout.preferredHeight: 84
    Layout.preferredWidth: 1  // equal columns, whatever the labels
    text: label
    hoverEnabled: true
    // A click leaves the keyboard where it was: the map that the card opens takes it.
    focusPolicy: Qt.TabFocus
    Accessible.name: label

    background: Rectangle {
        radius: 10
        color: card.down ? Theme.separator : (card.hovered ? Theme.faintFill : Theme.controlBackground)
        border.color: card.hovered ? Theme.accent : Theme.separator
    }
    contentItem: ColumnLayout {
        spacing: 8
        Item { Layout.fillHeight: true }
        SymbolIcon {
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 24
            Layout.preferredHeight: 24
            symbol: card.symbol
            color: Theme.accent
        }
        Label {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideMiddle
            text: card.label
            font: Theme.body
            color: Theme.primary
        }
        Item { Layout.fillHeight: true }
    }
}
