pragma Singleton
import QtQuick

// Text styles, colours and spacing shared by every view. Sizes are in the same logical points
// the layouts use, so a 13-point headline stands in the same proportion to a 380-point panel as
// on the platform the design comes from. Colours follow the desktop's light or dark palette.
QtObject {
    id: theme

    readonly property SystemPalette palette: SystemPalette { colorGroup: SystemPalette.Active }
    readonly property bool dark: palette.window.hslLightness < 0.5

    // Text styles, largest to smallest.
    readonly property font largeTitle: Qt.font({ pixelSize: 26 })
    readonly property font title1: Qt.font({ pixelSize: 22 })
    readonly property font title2: Qt.font({ pixelSize: 17 })
    readonly property font title3: Qt.font({ pixelSize: 15 })
    readonly property font headline: Qt.font({ pixelSize: 13, weight: Font.DemiBold })
    readonly property font body: Qt.font({ pixelSize: 13 })
    readonly property font callout: Qt.font({ pixelSize: 12 })
    readonly property font subheadline: Qt.font({ pixelSize: 11 })
    readonly property font footnote: Qt.font({ pixelSize: 10 })
    readonly property font caption1: Qt.font({ pixelSize: 10 })
    readonly property font caption2: Qt.font({ pixelSize: 9 })
    // Paths and other text that reads better in fixed-width letters.
    readonly property string monospaceFamily: "monospace"

    // Colours.
    readonly property color accent: dark ? "#0a84ff" : "#007aff"
    readonly property color green: dark ? "#30d158" : "#34c759"
    readonly property color orange: dark ? "#ff9f0a" : "#ff9500"
    readonly property color red: dark ? "#ff453a" : "#ff3b30"
    readonly property color primary: dark ? "#f2ffffff" : "#d9000000"
    readonly property color secondary: dark ? "#8cffffff" : "#80000000"
    readonly property color tertiary: dark ? "#40ffffff" : "#40000000"
    readonly property color separator: dark ? "#1affffff" : "#1a000000"
    readonly property color windowBackground: dark ? "#2b2b2d" : "#f5f5f7"
    readonly property color barBackground: dark ? "#e6323234" : "#eaf0f0f2"
    readonly property color faintFill: dark ? "#0fffffff" : "#0a000000"
    readonly property color greenTint: Qt.rgba(green.r, green.g, green.b, 0.12)
    // The face of a plain push button, beside a prominent one.
    readonly property color controlBackground: dark ? "#48484a" : "#ffffff"
    readonly property color accentText: "#ffffff"

    // Spacing and shapes.
    readonly property int cornerRadius: 8
    readonly property int rowHeight: 44
    readonly property int headerHeight: 28
}
