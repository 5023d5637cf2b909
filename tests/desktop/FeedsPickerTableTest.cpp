#include "desktop/windows/FeedsPickerTable.hpp"

#include "tests/desktop/ToolTip.hpp"

#include <gtest/gtest.h>
#include <memory>

namespace brindle::desktop {

namespace {

/// One feed.
class FeedFake : public TableViewDataSource {
public:
    explicit FeedFake(const std::string& title) { _cell->checkBox.setTitle(title); }
    std::size_t numberOfRows() const override { return 1; }
    std::shared_ptr<TableCellView> viewFor(std::string_view, std::size_t) const override { return _cell; }
    double heightOfRow(std::size_t) const override { return FeedsPickerViewController::rowHeight; }
    bool shouldSelectRow(std::size_t) const override { return true; }
    void tableViewSelectionDidChange() override {}

private:
    std::shared_ptr<FeedsPickerCell> _cell = std::make_shared<FeedsPickerCell>();
};

} // namespace

TEST(FeedsPickerTableTest, ShowsATitleAsItIsInAToolTip) {
    const std::string title = "<img src='file:///x'> & more";
    const auto source = std::make_shared<FeedFake>(title);
    QWidget parent;
    FeedsPickerTable table(&parent);
    table.setDataSource(source);
    table.reloadData();
    EXPECT_EQ(readToolTip(table.widget().item(0)->toolTip()), title);
}

} // namespace brindle::desktop
