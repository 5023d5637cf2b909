#include "html/Arena.hpp"

#include <algorithm>

namespace brindle::html {

namespace {

constexpr std::size_t largestUsualChunk = std::size_t{1} << 20;

}

void* Arena::allocateInNewChunk(std::size_t size) {
    // A large text gets a chunk of its own, so that what is left of the current chunk stays of use.
    if (size > _nextCapacity / 4) {
        return _chunks.emplace_back(std::make_unique_for_overwrite<std::byte[]>(size)).get();
    }
    _chunk = _chunks.emplace_back(std::make_unique_for_overwrite<std::byte[]>(_nextCapacity)).get();
    _capacity = _nextCapacity;
    _used = size;
    _nextCapacity = std::min(_nextCapacity * 2, largestUsualChunk);
    return _chunk;
}

} // namespace brindle::html
