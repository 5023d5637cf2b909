#pragma once

#include "platform/TableCellView.hpp"

#include <QMetaType>
#include <Qt>
#include <memory>

namespace brindle::desktop {

/// What models of rows hand to their delegate.
enum CellRole : int {
    cellRole = Qt::UserRole, ///< the cell, a `std::shared_ptr<TableCellView>`
    isGroupRole,             ///< whether the row is the header of a section
    rowHeightRole,           ///< in points
};

} // namespace brindle::desktop

Q_DECLARE_METATYPE(std::shared_ptr<brindle::TableCellView>)
