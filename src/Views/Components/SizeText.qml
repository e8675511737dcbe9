import QtQuick
import QtQuick.Layouts
import Mopwell

// A size as every list shows it, the one rule for a column of sizes: each digit stands in a cell
// as wide as the face's widest digit, and the text is right-aligned in a box that holds the
// widest size the formatter writes. A desktop's face may have proportional figures (a "1"
// narrower than a "0"), and Qt 6.4 has no way to ask a face for its tabular ones, so the cells
// make them; with both, sizes line up digit under digit down a list, and a figure that changes
// while a scan runs moves nothing beside it.
Item {
    id: root

    property string text
    property font font: Theme.callout
    property color color: Theme.primary
    // Off for a size that leads a line of text (a total followed by a word): the box then fits
    // the text.
    property bool holdsWidest: true

    // No size the formatter writes is wider than the widest of these: the zero text, three digits
    // of bytes or of kilobytes, and the most digits each larger unit shows.
    readonly property var widestSamples: [0, 999, 999000, 999900000, 999990000000, 999990000000000]
    readonly property real digitWidth: {
        metrics.font  // measured again for another face: FontMetrics' functions aren't watched
        let widest = 0
        for (let digit = 0; digit <= 9; ++digit)
            widest = Math.max(widest, metrics.advanceWidth(String(digit)))
        return widest
    }
    readonly property real widestWidth: {
        let widest = 0
        for (const bytes of widestSamples)
            widest = Math.max(widest, widthOf(Formatter.bytes(bytes)))
        return widest
    }
    readonly property var runs: runsOf(text)

    // Each digit on its own, everything between digits in one piece: ["1", ".", "5", " GB"].
    function runsOf(sizeText) {
        const found = sizeText.match(/\d|\D+/g)
        return found === null ? [] : found
    }
    function isDigit(run) {
        return run.length === 1 && run >= "0" && run <= "9"
    }
    function runWidth(run) {
        metrics.font
        return isDigit(run) ? digitWidth : metrics.advanceWidth(run)
    }
    function widthOf(sizeText) {
        let width = 0
        for (const run of runsOf(sizeText))
            width += runWidth(run)
        return width
    }

    implicitWidth: Math.ceil(Math.max(widthOf(text), holdsWidest ? widestWidth : 0))
    // A row short of room squeezes its names, never its sizes.
    Layout.minimumWidth: implicitWidth
    implicitHeight: Math.ceil(metrics.height)
    baselineOffset: (height - metrics.height) / 2 + metrics.ascent

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    FontMetrics {
        id: metrics
        font: root.font
    }

    Row {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        Repeater {
            model: root.runs
            Text {
                required property string modelData
                width: root.runWidth(modelData)
                horizontalAlignment: root.isDigit(modelData) ? Text.AlignHCenter : Text.AlignLeft
                textFormat: Text.PlainText
                text: modelData
                font: root.font
                color: root.color
                Accessible.ignored: true
            }
        }
    }
}
