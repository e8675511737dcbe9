// File names are bytes: the disk map hands ids to its views as text and gets them back from
// clicks and menus, and a name that is not UTF-8 must still name exactly its own file.

#include "Views/DiskMap/DiskMapModel.h"

#include "Platform/DefaultsStore.h"
#include "QtConversions.h"
#include "Support/ModelFixture.h"
#include "Support/TreeBuilder.h"

#include <filesystem>

namespace {

class DiskMapOddNamesTest : public ModelFixture {
protected:
    DiskMapOddNamesTest() { map.setModel(model.get()); }

    std::string seed(const std::string& relative, std::size_t bytes) const
    {
        const std::string path = tempHome.home() + "/" + relative;
        TreeBuilder::writeFile(path, bytes);
        return path;
    }
    void scanAndWait(const std::string& path)
    {
        map.scan(QtConversions::toQt(path));
        ASSERT_TRUE(waitUntil([&] { return map.phase() == DiskMapModel::Phase::ready && !map.isScanning(); }));
    }

    DiskMapModel map;
};

}  // namespace

TEST_F(DiskMapOddNamesTest, TwoNamesThatReadTheSameAreTrashedByTheirOwnBytes)
{
    // As text both read "report \uFFFD.txt"; the id the view hands back must name the one picked.
    const std::string first = seed("Odd/report \xff.txt", 200'000);
    const std::string second = seed("Odd/report \xfe.txt", 100'000);
    scanAndWait(tempHome.home() + "/Odd");
    const QString picked = map.childNode(1).value(QStringLiteral("id")).toString();
    EXPECT_EQ(QtConversions::toStd(picked), second);

    ASSERT_TRUE(map.canTrashNode(picked));
    map.trashNode(picked);
    EXPECT_TRUE(std::filesystem::exists(first));
    EXPECT_FALSE(std::filesystem::exists(second));
    ASSERT_FALSE(model->history().empty());
    EXPECT_EQ(model->history().front().targetName, "report \xfe.txt");
    ASSERT_TRUE(waitUntil([&] { return map.phase() == DiskMapModel::Phase::ready && !map.isScanning(); }));
}

TEST_F(DiskMapOddNamesTest, AnOddFolderIsRememberedByItsBytes)
{
    const std::string folder = tempHome.home() + "/caf\xe9";
    seed("caf\xe9/x.bin", 1000);
    scanAndWait(folder);
    EXPECT_EQ(DefaultsStore(defaultsPath()).string(DiskMapModel::rootKey), folder);
    EXPECT_EQ(QtConversions::toStd(map.rootPathText()), folder);
}
