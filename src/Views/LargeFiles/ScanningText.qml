import QtQuick
import QtQuick.Controls
import Mopwell

// "Scanning… 1,200 files": how far the finder's walk has come.
Label {
    required property FileFinderModel finder

    objectName: "scanningText"
    text: qsTr("Scanning… %1 files").arg(finder.scannedCount.toLocaleString(Qt.locale(), "f", 0))
    font: Theme.callout
    color: Theme.secondary
}
