#pragma once

#include "platform/Control.hpp"

#include <memory>
#include <string>
#include <vector>

namespace brindle {

/// A pane of the preferences as its controls, in the order in which a person reads them. Thread: main.
class PreferencesPane {
public:
    /// A line: controls beside each other, behind a label where there is one.
    struct Row {
        std::string label; ///< may be empty; UTF-8
        std::vector<std::shared_ptr<Control>> controls;
    };
    /// Lines that belong together, below a heading.
    struct Section {
        std::string heading; ///< may be empty; UTF-8
        std::vector<Row> rows;
    };

    PreferencesPane() = default;
    PreferencesPane(const PreferencesPane&) = delete;
    PreferencesPane& operator=(const PreferencesPane&) = delete;
    virtual ~PreferencesPane() = default;

    const std::vector<Section>& sections() const { return _sections; }
    /// Each time before the pane is shown.
    virtual void viewWillAppear() {}

protected:
    void addSection(std::string heading, std::vector<Row> rows) { _sections.push_back({std::move(heading), std::move(rows)}); }

private:
    std::vector<Section> _sections;
};

} // namespace brindle
