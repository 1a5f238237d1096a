#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include "FormsSupport.h"
#include "platform/widgets/NameList.h"

namespace kinalyx::test {
namespace {

class NameListTest : public ::testing::Test, UsesApplication {
 protected:
  void SetUp() override {
    list.resize(200, 300);
    list.Fill({"Anna", "Ben", "Clara"}, -1);
    list.show();
  }

  QPoint Row(int row) { return list.visualItemRect(list.item(row)).center(); }
  QPoint BesideRows() { return {100, 250}; }
  void Press(QPoint place, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, keys, place);
  }

  NameList list{"NameList"};
};

TEST_F(NameListTest, KeepsTheChosenRow) {
  Press(Row(1));
  QSignalSpy changes(&list, &QListWidget::itemSelectionChanged);
  Press(BesideRows());
  EXPECT_TRUE(list.item(1)->isSelected()) << "a press beside the rows";
  Press(Row(1), Qt::ControlModifier);
  EXPECT_TRUE(list.item(1)->isSelected()) << "a second press with Ctrl";
  EXPECT_EQ(changes.count(), 0);
  EXPECT_EQ(list.currentRow(), 1);
  Press(Row(2), Qt::ControlModifier);
  EXPECT_TRUE(list.item(2)->isSelected());
  EXPECT_FALSE(list.item(1)->isSelected());
}

TEST_F(NameListTest, OfManyIsEmptiedByAPressBesideTheRows) {
  list.setSelectionMode(QAbstractItemView::ExtendedSelection);
  Press(Row(0));
  Press(Row(2), Qt::ControlModifier);
  EXPECT_EQ(list.selectedItems().size(), 2);
  Press(BesideRows());
  EXPECT_TRUE(list.selectedItems().isEmpty());
}

}  // namespace
}  // namespace kinalyx::test
