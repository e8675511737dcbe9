import QtQuick
import Mopwell

// A hairline between blocks or rows; `inset` leaves room for a row's leading icon.
Rectangle {
    property int inset: 0
    implicitHeight: 1
    height: 1
    color: Theme.separator
    x: inset
}
