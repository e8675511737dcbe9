import QtQuick
import Mopwell

// The button a tool window starts a removal with, in that window's own words and symbol:
//
//     CleanActionButton { title: qsTr("Move to Trash"); systemImage: "trash"; onClicked: … }
//
// `enabled: false` greys it out and ignores presses.
ProminentButton {
    property string title
    property string systemImage

    text: title
    symbol: systemImage
}
