import QtQuick
import QtQuick.Controls
import Mopwell

// A button that reads as a link: accent-coloured text, no frame. For secondary actions beside a
// heading ("Select All", "Choose Different…").
ToolButton {
    id: link
    flat: true
    padding: 2
    contentItem: Text {
        text: link.text
        font: Theme.callout
        color: link.enabled ? Theme.accent : Theme.tertiary
        opacity: link.down ? 0.6 : 1
    }
    Accessible.name: text
}
