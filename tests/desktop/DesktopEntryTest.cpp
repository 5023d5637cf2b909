#include "desktop/Options.hpp"
#include "desktop/system/KeyFile.hpp"
#include "desktop/system/SingleInstance.hpp"
#include "foundation/FileManager.hpp"
#include "tests/support/Folders.hpp"

#include <gmock/gmock.h>

namespace brindle::desktop {

using testing::ElementsAre;

TEST(DesktopEntryTest, OffersTheFeedsBrowser) {
    const auto text = FileManager::contents(testsupport::sourceFolder() + "/resources/desktop/org.brindle.Brindle.desktop");
    ASSERT_TRUE(text);
    const KeyFile entry(*text);
    EXPECT_THAT(entry.list("Desktop Entry", "Actions"), ElementsAre(SingleInstance::feedsBrowserAction));
    const std::string command = entry.value("Desktop Action show-feeds-browser", "Exec").value_or(std::string());
    const std::string program = "brindle ";
    ASSERT_TRUE(command.starts_with(program));
    const auto options = Options::parse({command.substr(program.size())}, "/");
    ASSERT_TRUE(options);
    EXPECT_TRUE(options->showsFeedsBrowser);
    EXPECT_TRUE(entry.value("Desktop Action show-feeds-browser", "Name[de]"));
}

} // namespace brindle::desktop
