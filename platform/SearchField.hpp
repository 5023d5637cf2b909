#pragma once

#include "platform/TextField.hpp"

namespace brindle {

/// A field that a term is typed into. Whoever shows it sets the text and tells its controller. Thread: main.
class SearchField : public TextField {
public:
    SearchField() { setEditable(true); }
};

} // namespace brindle
