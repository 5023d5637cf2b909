#include "platform/ResponderChain.hpp"
#include "platform/Menu.hpp"
#include "tests/fakes/ActionHandlerFake.hpp"

#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ResponderChainTest : public ::testing::Test {
protected:
    static std::shared_ptr<MenuItem> item(std::string_view action) { return std::make_shared<MenuItem>("Item", action); }

    std::shared_ptr<ActionHandlerFake> window = std::make_shared<ActionHandlerFake>(std::set<std::string, std::less<>>{"close:"});
    std::shared_ptr<ActionHandlerFake> application =
        std::make_shared<ActionHandlerFake>(std::set<std::string, std::less<>>{"close:", "quit:"});
    ResponderChain chain{{window, application}};
};

TEST_F(ResponderChainTest, GivesAnActionToTheFirstWhoRespondsToIt) {
    EXPECT_TRUE(chain.perform(Action{"close:"}));
    EXPECT_TRUE(chain.perform(Action{"quit:"}));
    EXPECT_FALSE(chain.perform(Action{"unknown:"}));
    EXPECT_THAT(window->log, ElementsAre("close:"));
    EXPECT_THAT(application->log, ElementsAre("quit:"));
}

TEST_F(ResponderChainTest, PassesOverThoseWhoAreGone) {
    window.reset();
    EXPECT_TRUE(chain.perform(Action{"close:"}));
    EXPECT_THAT(application->log, ElementsAre("close:"));
}

TEST_F(ResponderChainTest, AsksThoseWhoWereSetLast) {
    chain.setHandlers({application});
    EXPECT_EQ(chain.handler("close:"), application);
}

TEST_F(ResponderChainTest, AsksTheNextChainAfterItsOwnHandlers) {
    const auto applicationChain = std::make_shared<ResponderChain>(chain);
    const auto pane = std::make_shared<ActionHandlerFake>(std::set<std::string, std::less<>>{"close:"});
    ResponderChain panes({pane});
    EXPECT_FALSE(panes.perform(Action{"quit:"}));
    panes.setNext(applicationChain);
    EXPECT_EQ(panes.handler("close:"), pane);
    EXPECT_EQ(panes.handler("quit:"), application);
    EXPECT_EQ(panes.handler("unknown:"), nullptr);
}

TEST_F(ResponderChainTest, SendsAnItemsActionWithTheItemAsItsSender) {
    const auto represented = std::make_shared<MenuItem>();
    const auto sender = item("quit:");
    sender->setRepresentedObject(represented);
    EXPECT_TRUE(chain.perform(sender));
    EXPECT_THAT(application->senders, ElementsAre(sender));
    EXPECT_EQ((Action{"quit:", sender}).representedObject(), represented);
    EXPECT_EQ(Action{"quit:"}.representedObject(), nullptr);
    EXPECT_FALSE(chain.perform(item("")));
}

TEST_F(ResponderChainTest, PrefersTheTargetOfAnItemToTheChain) {
    const auto target = std::make_shared<ActionHandlerFake>();
    const auto sender = item("close:");
    sender->setTarget(target);
    EXPECT_TRUE(chain.perform(sender));
    EXPECT_THAT(target->log, ElementsAre("close:"));
    EXPECT_THAT(window->log, IsEmpty());
}

TEST_F(ResponderChainTest, HasNobodyForAnItemWhoseTargetIsGoneOrDoesNotRespond) {
    const auto sender = item("quit:");
    sender->setTarget(std::make_shared<ActionHandlerFake>());
    EXPECT_FALSE(chain.perform(sender));
    EXPECT_FALSE(chain.validate(*sender));
    sender->setTarget(window);
    EXPECT_FALSE(chain.perform(sender));
    EXPECT_FALSE(chain.validate(*sender));
}

TEST_F(ResponderChainTest, AsksTheOneWhoWouldGetTheActionWhetherAnItemCanBeChosen) {
    const auto validated = item("close:");
    EXPECT_TRUE(chain.validate(*validated));
    window->validates = false;
    EXPECT_FALSE(chain.validate(*validated));
    EXPECT_THAT(application->validated, IsEmpty());
    EXPECT_FALSE(chain.validate(*item("unknown:")));
}

TEST_F(ResponderChainTest, LetsAnItemWithoutAnActionBeChosenForItsSubmenuAlone) {
    const auto without = item("");
    EXPECT_FALSE(chain.validate(*without));
    without->setSubmenu(std::make_shared<Menu>());
    EXPECT_TRUE(chain.validate(*without));
}

} // namespace
} // namespace brindle
