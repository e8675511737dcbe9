import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// A label on the left and its control, given as the child, on the right.
RowLayout {
    id: row
    property string label
    default property alias control: slot.data
    Layout.fillWidth: true
    spacing: 8

    Label {
        Layout.fillWidth: true
        text: row.label
        font: Theme.body
        color: Theme.primary
        // Longer in some languages: it takes a second line rather than losing its end.
        wrapMode: Text.WordWrap
    }
    Item {
        id: slot
        implicitWidth: childrenRect.width
        implicitHeight: childrenRect.height
    }
}
