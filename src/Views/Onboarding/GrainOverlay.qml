import QtQuick

// A fine, still grain over the background, so the colour reads as a surface rather than a flat
// fill. Painted once per size.
Canvas {
    id: grain
    opacity: 0.05
    renderStrategy: Canvas.Cooperative
    onWidthChanged: requestPaint()
    onHeightChanged: requestPaint()
    onPaint: {
        const context = getContext("2d")
        context.clearRect(0, 0, width, height)
        context.fillStyle = "white"
        // A fixed pseudo-random sequence: the same grain every time.
        let seed = 12345
        const count = Math.floor(width * height / 60)
        for (let i = 0; i < count; ++i) {
            seed = (seed * 1103515245 + 12345) % 2147483648
            const x = seed % Math.max(1, Math.floor(width))
            seed = (seed * 1103515245 + 12345) % 2147483648
            const y = seed % Math.max(1, Math.floor(height))
            context.fillRect(x, y, 1, 1)
        }
    }
}
