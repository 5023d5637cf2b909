#pragma once

#include "foundation/UserDefaults.hpp"

#include <QList>
#include <QObject>
#include <QTimer>
#include <memory>
#include <string>

class QSplitter;

namespace brindle::desktop {

/// Keeps the widths of a splitter's panes in the user's defaults, as numbers with blanks between, from one run of the program to the next.
/// The splitter outlives it. Thread: main.
class SplitSizes : public QObject {
public:
    /// The panes take what is kept under the name, where that fits them.
    SplitSizes(QSplitter* splitter, std::shared_ptr<UserDefaults> defaults, const std::string& name);
    ~SplitSizes() override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void restore();
    void rememberSizes();
    void save();

    QSplitter* const _splitter;
    const std::shared_ptr<UserDefaults> _defaults;
    const std::string _key;
    QList<int> _sizes; ///< of each pane, when it was last shown; 0 for one that never was
    QTimer _timer;     ///< gathers the many steps of one drag
};

} // namespace brindle::desktop
