#include "desktop/windows/QtTableView.hpp"

#include "Brindle/browser/GroupTableCellView.hpp"
#include "tests/desktop/ToolTip.hpp"

#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace brindle::desktop {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// One column of names and one of nothing, counting what it is asked for.
class NamesFake : public TableViewDataSource {
public:
    std::size_t numberOfRows() const override { return names.size(); }
    std::shared_ptr<TableCellView> viewFor(std::string_view column, std::size_t row) const override {
        ++cells;
        if (column != "name")
            return nullptr;
        const auto cell = std::make_shared<GroupTableCellView>();
        cell->nameTextField.setStringValue(names.at(row));
        return cell;
    }
    double heightOfRow(std::size_t) const override { return 32; }
    bool shouldSelectRow(std::size_t row) const override { return names.at(row) != "-"; }
    void tableViewSelectionDidChange() override { ++changes; }

    std::vector<std::string> names;
    mutable int cells = 0;
    int changes = 0;
};

class QtTableViewTest : public ::testing::Test {
protected:
    void show(std::vector<std::string> names) {
        source->names = std::move(names);
        view.setDataSource(source);
        parent.resize(300, 400);
        view.widget().resize(300, 400);
        parent.show();
        view.widget().setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&parent));
    }
    void reload(std::vector<std::string> names) {
        source->names = std::move(names);
        view.reloadData();
    }

    std::shared_ptr<NamesFake> source = std::make_shared<NamesFake>();
    QWidget parent;
    QtTableView view{&parent, QStringLiteral("Names"), {{"icon", 28}, {"name", 0}}};
};

TEST_F(QtTableViewTest, HasTheRowsAndTheirHeightFromTheDataSource) {
    show({"a", "b", "c"});
    EXPECT_EQ(view.widget().model()->rowCount(), 3);
    EXPECT_EQ(view.widget().rowHeight(1), 32);
    EXPECT_EQ(view.widget().model()->index(1, 1).data().toString(), "b");
}

TEST_F(QtTableViewTest, MakesCellsOnlyForTheRowsThatAreSeen) {
    show(std::vector<std::string>(100'000, "a"));
    view.widget().viewport()->grab();
    EXPECT_GT(source->cells, 0);
    EXPECT_LT(source->cells, 1000);
}

TEST_F(QtTableViewTest, ArrowsSelectFromTheFirstRowOn) {
    show({"a", "b"});
    QTest::keyClick(&view.widget(), Qt::Key_Down);
    EXPECT_THAT(view.selectedRows(), ElementsAre(0));
    QTest::keyClick(&view.widget(), Qt::Key_Down);
    EXPECT_EQ(view.selectedRow(), 1);
    EXPECT_EQ(source->changes, 2);
}

TEST_F(QtTableViewTest, ARowThatCannotBeSelectedIsNot) {
    show({"-", "b"});
    view.selectRow(0);
    EXPECT_THAT(view.selectedRows(), IsEmpty());
}

TEST_F(QtTableViewTest, TellsOfASelectionByTheProgramAsWell) {
    show({"a", "b"});
    view.selectRow(1);
    EXPECT_EQ(source->changes, 1);
    view.selectRow(7);
    EXPECT_EQ(view.selectedRow(), 1);
}

TEST_F(QtTableViewTest, TheSelectedRowStaysSelectedWhenOthersComeAboveIt) {
    show({"a", "b", "c"});
    view.selectRow(1);
    reload({"new", "a", "b", "c"});
    EXPECT_THAT(view.selectedRows(), ElementsAre(2));
    EXPECT_EQ(source->changes, 1);
}

TEST_F(QtTableViewTest, TheSelectedRowStaysSelectedWhenOthersComeBelowIt) {
    show({"a", "b"});
    view.selectRow(1);
    reload({"a", "b", "c"});
    EXPECT_THAT(view.selectedRows(), ElementsAre(1));
}

TEST_F(QtTableViewTest, AClickOnARowThatStayedSelectedIsTold) {
    show({"a", "b"});
    view.selectRow(1);
    reload({"a", "b", "c"});
    const QPoint place = view.widget().visualRect(view.widget().model()->index(1, 1)).center();
    QTest::mouseClick(view.widget().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(source->changes, 2);
    QTest::mouseClick(view.widget().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(source->changes, 2);
}

TEST_F(QtTableViewTest, NothingIsSelectedAmongOtherRows) {
    show({"a", "b"});
    view.selectRow(1);
    reload({"x", "y"});
    EXPECT_THAT(view.selectedRows(), IsEmpty());
}

TEST_F(QtTableViewTest, TheSelectedRowStaysSelectedWhereverItGoes) {
    show({"a", "b", "c", "d"});
    view.selectRow(2);
    reload({"b", "c", "d", "e"});
    EXPECT_THAT(view.selectedRows(), ElementsAre(1));
    reload({"e", "b", "d", "c"});
    EXPECT_THAT(view.selectedRows(), ElementsAre(3));
    EXPECT_EQ(source->changes, 1);
}

TEST_F(QtTableViewTest, OfRowsOfOneNameTheNearestStaysSelected) {
    show({"same", "b", "c", "same"});
    view.selectRow(3);
    reload({"same", "c", "same", "d"});
    EXPECT_THAT(view.selectedRows(), ElementsAre(2));
}

TEST_F(QtTableViewTest, TellsOfARowThatIsSelectedOnceMore) {
    show({"a", "b"});
    view.selectRow(1);
    reload({"a", "b", "c"});
    view.selectRow(1);
    EXPECT_EQ(source->changes, 2);
    EXPECT_THAT(view.selectedRows(), ElementsAre(1));
}

TEST_F(QtTableViewTest, ShowsANameAsItIsInAToolTip) {
    show({"<img src='file:///x'> & more"});
    const QString tip = view.widget().model()->index(0, 1).data(Qt::ToolTipRole).toString();
    EXPECT_EQ(readToolTip(tip), "<img src='file:///x'> & more");
}

TEST_F(QtTableViewTest, HidesAColumn) {
    show({"a"});
    view.setColumnHidden("icon", true);
    EXPECT_TRUE(view.widget().isColumnHidden(0));
    view.setColumnHidden("unknown", true);
    view.setColumnHidden("icon", false);
    EXPECT_FALSE(view.widget().isColumnHidden(0));
}

TEST_F(QtTableViewTest, AsksForAReloadedRowAnew) {
    show({"a", "b"});
    view.widget().viewport()->grab();
    source->names[1] = "other";
    view.reloadRow(1, {"name"});
    EXPECT_EQ(view.widget().model()->index(1, 1).data().toString(), "other");
    view.reloadRow(9, {"name"});
}

TEST_F(QtTableViewTest, ADataSourceThatIsGoneShowsNothing) {
    show({"a"});
    source.reset();
    EXPECT_FALSE(view.widget().model()->index(0, 1).data().isValid());
    view.widget().viewport()->grab();
}

TEST_F(QtTableViewTest, ArrowsGoToTheCellThatNamesTheRow) {
    show({"a", "b"});
    QTest::keyClick(&view.widget(), Qt::Key_Down);
    QTest::keyClick(&view.widget(), Qt::Key_Down);
    EXPECT_EQ(view.widget().currentIndex().data(Qt::AccessibleTextRole).toString(), "b");
}

TEST_F(QtTableViewTest, SaysSomethingWhereThereAreNoRows) {
    int asked = 0;
    view.setEmptyText([&] {
        ++asked;
        return QStringLiteral("Nothing");
    });
    show({"a"});
    view.widget().grab();
    EXPECT_EQ(asked, 0);
    reload({});
    view.widget().grab();
    EXPECT_GT(asked, 0);
}

} // namespace

} // namespace brindle::desktop
