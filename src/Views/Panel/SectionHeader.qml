import QtQuick
import QtQuick.Layouts
import Mopwell

// A section's title over the developer list; rows scroll under it.
Rectangle {
    id: header
    required property string section
    width: ListView.view ? ListView.view.width : 380
    height: Theme.headerHeight
    color: Theme.barBackground

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        spacing: 6
        SymbolIcon { implicitWidth: 10; implicitHeight: 10; symbol: header.ListView.view ? header.ListView.view.model.symbolForSection(header.section) : ""; color: Theme.secondary }
        Text {
            text: qsTranslate("CleanupCategory", header.section).toUpperCase()
            font: Qt.font({ pixelSize: Theme.caption2.pixelSize, weight: Font.DemiBold })
            color: Theme.secondary
        }
        Item { Layout.fillWidth: true }
    }
}
