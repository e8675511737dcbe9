import QtQuick
import Mopwell

Window {
    required property AppModel model
    width: 380
    height: 300
}
