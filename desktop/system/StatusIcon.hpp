#pragma once

#include "platform/Image.hpp"

#include <QImage>
#include <string>
#include <string_view>
#include <vector>

namespace brindle::desktop {

/// How the program looks in the status area: its image, with a number drawn in. Of what colour the area is nobody tells, so all parts stand
/// out from light and from dark. Thread: main.
namespace statusicon {

/// The sides that panels have, at one and at two pixels a point.
inline const std::vector<int> sides = {16, 22, 24, 32, 44, 48, 64};

/// `side` pixels wide and high. `title` is the number; empty: none.
QImage drawing(const Image& image, std::string_view title, int side);

/// A number of at most three characters: thousands from 1000 on, "99k" from 99000 on.
std::string shortNumber(std::string_view digits);

} // namespace statusicon
} // namespace brindle::desktop
