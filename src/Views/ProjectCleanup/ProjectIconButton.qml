import QtQuick
import QtQuick.Controls
import Mopwell

// A borderless button that is only a symbol, with its meaning in the tooltip and for assistive
// technology.
ToolButton {
    id: button

    property string symbol
    property color symbolColor: Theme.secondary
    property string help

    implicitWidth: 24
    implicitHeight: 24
    padding: 4
    flat: true
    contentItem: SymbolIcon { symbol: button.symbol; color: button.symbolColor }
    Accessible.name: help
    ToolTip.visible: hovered && help.length > 0
    ToolTip.text: help
    ToolTip.delay: 600
}
