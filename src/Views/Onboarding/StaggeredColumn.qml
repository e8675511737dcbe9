import QtQuick
import QtQuick.Layouts

// A column whose children come in one after another, fading and rising a little, each time
// `pulse` changes. With `still` set they only fade, all together.
ColumnLayout {
    id: column

    property int pulse: 0
    property bool still: false
    // Runs from 0 to 1 over the whole entrance.
    property real progress: 1

    // How far the child at `index` has come in, from 0 to 1.
    function share(index) {
        const start = still ? 0 : index * 0.12
        return Math.max(0, Math.min(1, (progress - start) / 0.4))
    }

    function enter() {
        entrance.stop()
        progress = 0
        entrance.start()
    }

    onPulseChanged: enter()
    Component.onCompleted: {
        for (let i = 0; i < children.length; ++i) {
            const child = children[i]
            const index = i
            child.opacity = Qt.binding(() => column.share(index))
            const shift = Qt.createQmlObject("import QtQuick; Translate {}", child)
            shift.y = Qt.binding(() => column.still ? 0 : 14 * (1 - column.share(index)))
            child.transform = [shift]
        }
        enter()
    }

    NumberAnimation {
        id: entrance
        target: column
        property: "progress"
        from: 0
        to: 1
        duration: column.still ? 200 : 200 + 120 * column.children.length + 500
        easing.type: Easing.OutCubic
    }
}
