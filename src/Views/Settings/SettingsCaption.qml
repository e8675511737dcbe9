import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Mopwell

// A line of explanation under a control; red when it reports what went wrong.
Label {
    property bool error: false
    Layout.fillWidth: true
    font: Theme.caption1
    color: error ? Theme.red : Theme.secondary
    wrapMode: Text.WordWrap
}
