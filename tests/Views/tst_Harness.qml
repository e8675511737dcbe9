import QtQuick
import QtTest
import Mopwell

TestCase {
    name: "Harness"
    when: windowShown

    Component { id: panelComponent; MenuPanelView {} }

    function test_aWindowSeesAFreshModel() {
        const model = support.freshModel()
        support.setDisk(model, 1000, 250)
        const panel = createTemporaryObject(panelComponent, null, { model: model })
        verify(panel !== null)
        panel.show()
        const label = findChild(panel, "usage")
        compare(label.text, "Disk used: 75%")
        verify(support.saveScreenshot(panel.contentItem, "harness"))
    }
}
