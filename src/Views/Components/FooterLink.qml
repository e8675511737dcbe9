import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// A plain text button with a leading icon, for the panel's bottom row.
ToolButton {
    id: link
    property string symbol
    flat: true
    contentItem: RowLayout {
        spacing: 4
        SymbolIcon { implicitWidth: 12; implicitHeight: 12; symbol: link.symbol; color: Theme.primary }
        Text { text: link.text; font: Theme.callout; color: Theme.primary }
    }
}
