#include "SyndicatedParser/TagRemoval.hpp"

#include <functional>

namespace brindle {

TagRemoval::TagRemoval(std::string_view text, const std::vector<std::string_view>& tags) : _text(text), _index(tags) {
    _stops.emplace_back();
    for (std::size_t at = text.find('>'); at != std::string_view::npos; at = text.find('>', at + 1)) {
        Stop stop;
        stop.position = static_cast<std::ptrdiff_t>(at);
        // The ">" itself is part of every tag, so the comparison begins in front of it.
        stop.range = _index.narrowed(_index.all(), '>');
        stop.reached = {stop.position - 1, _stops.size() - 1};
        stop.next = _stops.size();
        _stops.push_back(stop);
    }
}

std::string TagRemoval::result() {
    for (std::size_t stop = 1; stop < _stops.size(); ++stop)
        compare(stop, 0);
    removeAll();
    return remainder();
}

void TagRemoval::compare(std::size_t stop, std::size_t firstTurn) {
    Stop& self = _stops[stop];
    while (_index.holdsLongerTag(self.range)) {
        passRemoved(self.reached);
        // A ">" that stands may go yet, and the comparison with it.
        if (self.reached.position == _stops[self.reached.stop].position)
            return;
        self.range = _index.narrowed(self.range, _text[static_cast<std::size_t>(self.reached.position)]);
        --self.reached.position;
        if (!_index.holdsWholeTag(self.range))
            continue;
        if (const std::size_t turn = _index.nextPlace(self.range, firstTurn); turn != ReversedTagIndex::never)
            _removals.push({turn, stop, self.reached});
    }
}

bool TagRemoval::isRemoved(const Cursor& cursor) const {
    const Stop& stop = _stops[cursor.stop];
    return stop.removed && stop.position == cursor.position;
}

void TagRemoval::passRemoved(Cursor& cursor) {
    if (!isRemoved(cursor))
        return;
    // Neighbours that are gone are passed together from now on, or a long row of them would be walked again and again.
    Cursor& before = _stops[cursor.stop].before;
    while (isRemoved(before))
        before = _stops[before.stop].before;
    cursor = before;
}

std::size_t TagRemoval::nextLeft(std::size_t stop) {
    while (stop < _stops.size() && _stops[stop].removed) {
        const std::size_t next = _stops[stop].next;
        if (next < _stops.size())
            _stops[stop].next = _stops[next].next;
        stop = next;
    }
    return stop;
}

void TagRemoval::removeAll() {
    std::vector<std::size_t> removed;
    while (!_removals.empty()) {
        const std::size_t turn = _removals.top().turn;
        removed.clear();
        for (; !_removals.empty() && _removals.top().turn == turn; _removals.pop()) {
            const Removal& removal = _removals.top();
            Stop& stop = _stops[removal.stop];
            if (stop.removed)
                continue;
            stop.removed = true;
            stop.before = removal.before;
            stop.next = removal.stop + 1;
            removed.push_back(removal.stop);
        }
        // What this turn forms is for later turns.
        for (const std::size_t stop : removed) {
            if (const std::size_t next = nextLeft(stop); next < _stops.size())
                compare(next, turn + 1);
        }
    }
}

std::string TagRemoval::remainder() {
    std::vector<std::string_view> pieces;
    Cursor cursor{static_cast<std::ptrdiff_t>(_text.size()) - 1, _stops.size() - 1};
    while (cursor.position >= 0) {
        passRemoved(cursor);
        const std::ptrdiff_t stop = _stops[cursor.stop].position;
        // A ">" that stands is a piece of its own; otherwise all that is behind the last one is.
        const std::ptrdiff_t begin = cursor.position == stop ? stop : stop + 1;
        if (cursor.position < 0)
            break;
        pieces.push_back(_text.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(cursor.position - begin + 1)));
        if (cursor.position == stop)
            --cursor.stop;
        cursor.position = begin - 1;
    }
    std::string result;
    for (auto piece = pieces.rbegin(); piece != pieces.rend(); ++piece)
        result += *piece;
    return result;
}

} // namespace brindle
