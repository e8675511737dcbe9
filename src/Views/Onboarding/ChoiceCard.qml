import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One of two answers side by side: a symbol, a title and a line, outlined in the accent colour
// while it is the chosen one.
AbstractButton {
    id: card

    property string symbol
    property string subtitle
    property bool selected: false

    checkable: false
    implicitHeight: 104
    Accessible.role: Accessible.RadioButton
    Accessible.checked: selected
    Accessible.name: text

    background: Rectangle {
        radius: 12
        color: card.selected ? Qt.rgba(Theme.accent.r, Theme.accent.g, Theme.accent.b, 0.1) : Theme.faintFill
        border.width: card.selected ? 2 : 1
        border.color: card.selected ? Theme.accent : Theme.separator
    }
    contentItem: ColumnLayout {
        spacing: 6
        SymbolIcon {
            Layout.preferredWidth: 20
            Layout.preferredHeight: 20
            symbol: card.symbol
            color: card.selected ? Theme.accent : Theme.secondary
        }
        Label {
            Layout.fillWidth: true
            text: card.text
            font: Theme.headline
            color: Theme.primary
        }
        Label {
            Layout.fillWidth: true
            text: card.subtitle
            font: Theme.subheadline
            color: Theme.secondary
            wrapMode: Text.WordWrap
        }
    }
    padding: 14
}
