import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// One group of the settings form: a heading, its rows in a rounded box, and a footnote under the
// box. The rows are the section's children.
ColumnLayout {
    id: section

    property string title
    property string footer
    default property alias rows: box.data

    spacing: 6

    Label {
        objectName: "sectionTitle"
        visible: section.title.length > 0
        Layout.leftMargin: 4
        text: section.title
        font: Theme.headline
        color: Theme.primary
    }
    Rectangle {
        Layout.fillWidth: true
        implicitHeight: box.implicitHeight + 20
        radius: Theme.cornerRadius
        color: Theme.controlBackground
        border.color: Theme.separator

        ColumnLayout {
            id: box
            anchors.fill: parent
            anchors.margins: 10
            spacing: 8
        }
    }
    Label {
        objectName: "sectionFooter"
        visible: section.footer.length > 0
        Layout.fillWidth: true
        Layout.leftMargin: 4
        Layout.rightMargin: 4
        text: section.footer
        font: Theme.caption1
        color: Theme.secondary
        wrapMode: Text.WordWrap
        textFormat: Text.StyledText
    }
}
