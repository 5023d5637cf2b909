#include "desktop/windows/ElidedLabel.hpp"

#include "tests/desktop/ToolTip.hpp"

#include <gtest/gtest.h>

namespace brindle::desktop {

TEST(ElidedLabelTest, TellsInItsToolTipWhatDoesNotFit) {
    ElidedLabel label;
    for (const char* const text : {"Tom & Jerry", "1 < 2", "<img src='file:///x'>"}) {
        label.setText(QLatin1String(text));
        label.resize(20, 20);
        label.grab();
        EXPECT_EQ(readToolTip(label.toolTip()), text);
        label.resize(1000, 20);
        label.grab();
        EXPECT_TRUE(label.toolTip().isEmpty());
    }
}

} // namespace brindle::desktop
