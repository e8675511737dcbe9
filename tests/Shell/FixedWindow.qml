import QtQuick
import Mopwell

// A window whose content decides its size.
Window {
    required property AppModel model
    width: 100
    height: 80

    Item {
        implicitWidth: 320
        implicitHeight: 200
    }
}
