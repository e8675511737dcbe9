#include "Views/ProjectCleanup/ProjectListModel.h"

#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using ::testing::ElementsAre;
using Row = ProjectListModel::Row;

namespace {

Row folder(const std::string& name, std::int64_t size)
{
    Row row;
    row.key = "d/" + name;
    row.path = "/" + name;
    row.size = size;
    row.measured = true;
    row.selectable = true;
    return row;
}

std::vector<std::string> keysOf(const ProjectListModel& list)
{
    std::vector<std::string> keys;
    for (const Row& row : list.rows())
        keys.push_back(row.key);
    return keys;
}

// Every change is checked for consistency as it happens, and none may reset the list: a reset
// would rebuild every delegate and drop the pointer's place.
class ProjectListModelTest : public ::testing::Test {
protected:
    ProjectListModel list;
    QAbstractItemModelTester tester{&list, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSignalSpy resets{&list, &QAbstractItemModel::modelReset};
    QSignalSpy moves{&list, &QAbstractItemModel::rowsMoved};
    QSignalSpy changes{&list, &QAbstractItemModel::dataChanged};
};

TEST_F(ProjectListModelTest, RowsAreInsertedMovedRemovedAndUpdatedButNeverReset)
{
    list.update({folder("a", 30), folder("b", 20), folder("c", 10)});
    EXPECT_THAT(keysOf(list), ElementsAre("d/a", "d/b", "d/c"));

    // "c" grows past the others, "b" goes, "d" comes.
    list.update({folder("c", 50), folder("d", 40), folder("a", 30)});
    EXPECT_THAT(keysOf(list), ElementsAre("d/c", "d/d", "d/a"));
    EXPECT_EQ(list.rows().front().size, 50);
    EXPECT_EQ(moves.count(), 1);
    EXPECT_EQ(resets.count(), 0);

    // Only a tick changes: the row is updated where it is.
    changes.clear();
    Row ticked = folder("d", 40);
    ticked.selected = true;
    list.update({folder("c", 50), ticked, folder("a", 30)});
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes.front()[0].toModelIndex().row(), 1);
    EXPECT_EQ(changes.front()[1].toModelIndex().row(), 1);
    EXPECT_EQ(list.data(list.index(1), ProjectListModel::SelectedRole), true);
}

TEST_F(ProjectListModelTest, UnderTheHoldRowsStayPutUntilItEndsOrTheUserReorders)
{
    list.update({folder("a", 30), folder("b", 20), folder("c", 10)});
    list.setHoldOrder(true);

    // Sizes arrive that would reorder everything; a folder goes and a new one comes.
    list.update({folder("c", 90), folder("e", 60), folder("b", 25)});
    EXPECT_THAT(keysOf(list), ElementsAre("d/b", "d/c", "d/e"));
    EXPECT_EQ(list.rows()[1].size, 90);
    EXPECT_EQ(moves.count(), 0);

    list.setHoldOrder(false);
    EXPECT_THAT(keysOf(list), ElementsAre("d/c", "d/e", "d/b"));

    // A new order the user asked for is shown at once.
    list.setHoldOrder(true);
    list.update({folder("b", 25), folder("c", 90), folder("e", 60)}, true);
    EXPECT_THAT(keysOf(list), ElementsAre("d/b", "d/c", "d/e"));
    EXPECT_EQ(resets.count(), 0);
}

TEST_F(ProjectListModelTest, ARowGivenTwiceIsShownOnce)
{
    list.update({folder("a", 30), folder("a", 30), folder("b", 20)});
    EXPECT_THAT(keysOf(list), ElementsAre("d/a", "d/b"));
    EXPECT_EQ(list.row(2), nullptr);
    EXPECT_EQ(list.row(-1), nullptr);
}

}  // namespace
