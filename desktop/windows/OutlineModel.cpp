#include "desktop/windows/OutlineModel.hpp"

#include "desktop/toolkit/Text.hpp"
#include "desktop/windows/CellRole.hpp"
#include "desktop/windows/CellText.hpp"

#include <algorithm>
#include <utility>

namespace brindle::desktop {

/// A row that was asked for.
struct OutlineModel::Node {
    OutlineItem item; ///< null for the root
    Node* parent = nullptr;
    std::size_t row = 0; ///< in the parent
    bool isLoaded = false;
    std::vector<std::unique_ptr<Node>> children;
    std::shared_ptr<TableCellView> cell; ///< null until it is drawn
};

OutlineModel::OutlineModel() : _root(std::make_unique<Node>()) {}

OutlineModel::~OutlineModel() {
    dropChildren(*_root);
}

void OutlineModel::setDataSource(std::weak_ptr<OutlineViewDataSource> dataSource) {
    _dataSource = std::move(dataSource);
    reloadData();
}

OutlineModel::Node& OutlineModel::node(const QModelIndex& index) const {
    return index.isValid() ? *static_cast<Node*>(index.internalPointer()) : *_root;
}

OutlineModel::Node* OutlineModel::find(const OutlineItem& item) const {
    if (!item)
        return _root.get();
    const auto found = _nodes.find(item.get());
    return found == _nodes.end() ? nullptr : found->second;
}

QModelIndex OutlineModel::index(const Node& node) const {
    return node.parent ? createIndex(static_cast<int>(node.row), 0, &node) : QModelIndex();
}

OutlineItem OutlineModel::item(const QModelIndex& index) const {
    return node(index).item;
}

QModelIndex OutlineModel::indexOf(const OutlineItem& item) const {
    const Node* const found = find(item);
    return found ? index(*found) : QModelIndex();
}

std::unique_ptr<OutlineModel::Node> OutlineModel::makeNode(OutlineItem item, Node& parent) const {
    auto made = std::make_unique<Node>();
    made->item = std::move(item);
    made->parent = &parent;
    _nodes[made->item.get()] = made.get();
    return made;
}

void OutlineModel::load(Node& node) const {
    const auto source = _dataSource.lock();
    if (node.isLoaded || !source)
        return;
    node.isLoaded = true;
    const std::size_t count = source->numberOfChildren(node.item);
    node.children.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        node.children.push_back(makeNode(source->child(i, node.item), node));
        node.children.back()->row = i;
    }
}

void OutlineModel::forget(Node& node) {
    const auto found = _nodes.find(node.item.get());
    if (found != _nodes.end() && found->second == &node)
        _nodes.erase(found);
}

/// Without a stack for the depth of the tree.
void OutlineModel::dropChildren(Node& node) {
    std::vector<std::unique_ptr<Node>> doomed = std::move(node.children);
    node.children.clear();
    node.isLoaded = false;
    while (!doomed.empty()) {
        const std::unique_ptr<Node> last = std::move(doomed.back());
        doomed.pop_back();
        forget(*last);
        std::move(last->children.begin(), last->children.end(), std::back_inserter(doomed));
    }
}

void OutlineModel::renumber(Node& node, std::size_t from) {
    for (std::size_t i = from; i < node.children.size(); ++i)
        node.children[i]->row = i;
}

void OutlineModel::reloadData() {
    beginResetModel();
    dropChildren(*_root);
    load(*_root);
    endResetModel();
}

void OutlineModel::reloadItem(const OutlineItem& item, bool reloadChildren) {
    Node* const found = find(item);
    if (!found)
        return;
    found->cell.reset();
    const QModelIndex place = index(*found);
    if (reloadChildren && found->isLoaded) {
        if (!found->children.empty()) {
            beginRemoveRows(place, 0, static_cast<int>(found->children.size()) - 1);
            dropChildren(*found);
            endRemoveRows();
        }
        const auto source = _dataSource.lock();
        const std::size_t count = source ? source->numberOfChildren(item) : 0;
        found->isLoaded = count == 0;
        if (count > 0) {
            beginInsertRows(place, 0, static_cast<int>(count) - 1);
            load(*found);
            endInsertRows();
        }
    }
    if (place.isValid())
        emit dataChanged(place, place);
}

void OutlineModel::insertItem(std::size_t place, const OutlineItem& parent) {
    const auto source = _dataSource.lock();
    Node* const above = find(parent);
    // What was not looked into yet is asked for with the new row in it.
    if (!source || !above || !above->isLoaded)
        return;
    const std::size_t row = std::min(place, above->children.size());
    beginInsertRows(index(*above), static_cast<int>(row), static_cast<int>(row));
    above->children.insert(above->children.begin() + static_cast<std::ptrdiff_t>(row), makeNode(source->child(row, parent), *above));
    renumber(*above, row);
    endInsertRows();
}

void OutlineModel::removeItem(std::size_t row, const OutlineItem& parent) {
    Node* const above = find(parent);
    if (!above || row >= above->children.size())
        return;
    beginRemoveRows(index(*above), static_cast<int>(row), static_cast<int>(row));
    const auto place = above->children.begin() + static_cast<std::ptrdiff_t>(row);
    dropChildren(**place);
    forget(**place);
    above->children.erase(place);
    renumber(*above, row);
    endRemoveRows();
}

/// How many of the children are the data source's, from the first on.
std::size_t OutlineModel::childrenInStep(const Node& node) const {
    const auto source = _dataSource.lock();
    const std::size_t count = source ? std::min(source->numberOfChildren(node.item), node.children.size()) : 0;
    std::size_t row = 0;
    while (row < count && source->child(row, node.item) == node.children[row]->item)
        ++row;
    return row;
}

std::vector<OutlineItem> OutlineModel::itemsOutOfStep() const {
    std::vector<OutlineItem> found;
    const auto source = _dataSource.lock();
    const auto look = [&](const Node& node) {
        if (!node.isLoaded)
            return;
        const std::size_t count = source->numberOfChildren(node.item);
        if (count != node.children.size() || childrenInStep(node) != count)
            found.push_back(node.item);
    };
    if (!source)
        return found;
    look(*_root);
    for (const auto& [item, each] : _nodes)
        look(*each);
    return found;
}

void OutlineModel::catchUp(const OutlineItem& item) {
    const auto source = _dataSource.lock();
    Node* const above = find(item);
    if (!source || !above || !above->isLoaded)
        return;
    const std::size_t kept = childrenInStep(*above);
    while (above->children.size() > kept)
        removeItem(above->children.size() - 1, item);
    const std::size_t count = source->numberOfChildren(item);
    while (above->children.size() < count)
        insertItem(above->children.size(), item);
}

void OutlineModel::moveItem(std::size_t row, const OutlineItem& parent, std::size_t newRow, const OutlineItem& newParent) {
    Node* const from = find(parent);
    Node* const to = find(newParent);
    const bool isThere = from && row < from->children.size();
    if (!isThere)
        return insertItem(newRow, newParent);
    if (!to || !to->isLoaded)
        return removeItem(row, parent);
    const std::size_t limit = from == to ? to->children.size() - 1 : to->children.size();
    const std::size_t place = std::min(newRow, limit);
    // The toolkit counts the new place with the row still in its old one.
    const std::size_t before = from == to && place > row ? place + 1 : place;
    if (!beginMoveRows(index(*from), static_cast<int>(row), static_cast<int>(row), index(*to), static_cast<int>(before)))
        return;
    const auto source = from->children.begin() + static_cast<std::ptrdiff_t>(row);
    std::unique_ptr<Node> moved = std::move(*source);
    from->children.erase(source);
    moved->parent = to;
    to->children.insert(to->children.begin() + static_cast<std::ptrdiff_t>(place), std::move(moved));
    renumber(*from, 0);
    renumber(*to, 0);
    endMoveRows();
}

QModelIndex OutlineModel::index(int row, int column, const QModelIndex& parent) const {
    Node& above = node(parent);
    load(above);
    const auto place = static_cast<std::size_t>(row);
    return row >= 0 && column == 0 && place < above.children.size() ? index(*above.children[place]) : QModelIndex();
}

QModelIndex OutlineModel::parent(const QModelIndex& child) const {
    const Node& below = node(child);
    return below.parent ? index(*below.parent) : QModelIndex();
}

int OutlineModel::rowCount(const QModelIndex& parent) const {
    Node& above = node(parent);
    if (!hasChildren(parent))
        return 0;
    load(above);
    return static_cast<int>(above.children.size());
}

bool OutlineModel::hasChildren(const QModelIndex& parent) const {
    const auto source = _dataSource.lock();
    const Node& above = node(parent);
    return source && (!above.item || source->isItemExpandable(above.item));
}

QVariant OutlineModel::cell(Node& node) const {
    const auto delegate = _delegate.lock();
    if (!node.cell && delegate)
        node.cell = delegate->viewFor(node.item);
    return QVariant::fromValue(node.cell);
}

QVariant OutlineModel::data(const QModelIndex& index, int role) const {
    const auto delegate = _delegate.lock();
    if (!index.isValid() || !delegate)
        return {};
    Node& shown = node(index);
    switch (role) {
    case cellRole:
        return cell(shown);
    case isGroupRole:
        return delegate->isGroupItem(shown.item);
    case rowHeightRole:
        return delegate->heightOfRow(shown.item);
    case Qt::DisplayRole:
        return cell(shown).isNull() || !shown.cell ? QString() : cellName(*shown.cell);
    case Qt::ToolTipRole:
        return toolTipText(data(index, Qt::DisplayRole).toString());
    case Qt::AccessibleTextRole:
        return cell(shown).isNull() || !shown.cell ? QString() : cellDescription(*shown.cell);
    default:
        return {};
    }
}

Qt::ItemFlags OutlineModel::flags(const QModelIndex& index) const {
    const auto delegate = _delegate.lock();
    const auto source = _dataSource.lock();
    if (!index.isValid() || !delegate || !source)
        return Qt::NoItemFlags;
    const OutlineItem& shown = node(index).item;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsDropEnabled;
    flags.setFlag(Qt::ItemIsSelectable, delegate->shouldSelectItem(shown));
    flags.setFlag(Qt::ItemIsDragEnabled, source->pasteboardWriter(shown).has_value());
    flags.setFlag(Qt::ItemNeverHasChildren, !source->isItemExpandable(shown));
    return flags;
}

} // namespace brindle::desktop
