#pragma once

#include "platform/TableView.hpp"
#include "tests/fakes/CallLog.hpp"

#include <string>
#include <vector>

namespace brindle {

/// Logs each call that changes it.
class TableViewFake : public TableView {
public:
    explicit TableViewFake(CallLog callLog = makeCallLog()) : log(std::move(callLog)) {}

    void setDataSource(std::weak_ptr<TableViewDataSource> newSource) override { dataSource = std::move(newSource); }
    void setColumnHidden(std::string_view column, bool isHidden) override {
        log->push_back((isHidden ? "hide " : "show ") + std::string(column));
    }
    void reloadData() override {
        log->emplace_back("reloadData");
        selection.clear();
    }
    void reloadRow(std::size_t row, const std::vector<std::string_view>& columns) override {
        std::string call = "reloadRow " + std::to_string(row);
        for (const std::string_view column : columns)
            call += " " + std::string(column);
        log->push_back(call);
    }
    std::vector<std::size_t> selectedRows() const override { return selection; }
    std::optional<std::size_t> selectedRow() const override { return selection.empty() ? std::nullopt : std::optional(selection.back()); }

    /// Selects rows as a person would.
    void select(std::vector<std::size_t> rows) {
        selection = std::move(rows);
        if (const auto source = dataSource.lock())
            source->tableViewSelectionDidChange();
    }

    CallLog log;
    std::weak_ptr<TableViewDataSource> dataSource;
    std::vector<std::size_t> selection;
};

} // namespace brindle
