#include "tests/shell/AppDelegateFixture.hpp"

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Shows a sheet until a test answers it.
class WaitingAlerts : public AlertPresenter {
public:
    void runModal(const Alert&, Answer) override {}
    void beginSheet(const Alert&, Answer receiver) override { answer = std::move(receiver); }

    Answer answer;
};

class SystemIntegrationTest : public AppDelegateTest {
protected:
    SystemIntegration& integration() { return delegate->systemIntegration(); }
    /// How often the question's completion was called.
    int ask() {
        int calls = 0;
        integration().askSetAsDefaultFeedReader([&] { ++calls; });
        return calls;
    }
    std::string text(std::string_view key) const { return environment.defaults->stringForKey(key).value_or("-"); }
};

TEST_F(SystemIntegrationTest, AsksOnceToOpenFeedsAddresses) {
    EXPECT_EQ(ask(), 1);
    EXPECT_THAT(takeCalls(), ElementsAre("activate", "runModal askForDefaultFeedReaderTitle", "setDefaultHandler feed test.brindle"));
    EXPECT_EQ(alerts->alerts[0], (Alert{"askForDefaultFeedReaderTitle", "askForDefaultFeedReaderMessage", {"buttonOK", "buttonCancel"}}));
    EXPECT_TRUE(isOn(preference::askedSetAsDefaultFeedReader));
    EXPECT_TRUE(isOn(preference::isDefaultReader));
    EXPECT_EQ(text(preference::previousFeedReader), "");
    EXPECT_EQ(ask(), 1);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(SystemIntegrationTest, AsksWhereItOpensThemAlready) {
    launchServices->handlers["feed"] = bundleIdentifier;
    EXPECT_EQ(ask(), 1);
    EXPECT_EQ(alerts->alerts.size(), 1U);
    EXPECT_EQ(text(preference::previousFeedReader), bundleIdentifier);
}

TEST_F(SystemIntegrationTest, LeavesTheAddressesWhereTheyAreWhenThePersonCancels) {
    alerts->response = Alert::firstButtonReturn + 1;
    EXPECT_EQ(ask(), 1);
    EXPECT_TRUE(isOn(preference::askedSetAsDefaultFeedReader));
    EXPECT_FALSE(isOn(preference::isDefaultReader));
    EXPECT_THAT(launchServices->handlers, IsEmpty());
}

TEST_F(SystemIntegrationTest, DoesNotAskWhereAnotherProgramOpensThem) {
    launchServices->handlers["feed"] = "other";
    EXPECT_EQ(ask(), 1);
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_FALSE(isOn(preference::askedSetAsDefaultFeedReader));
}

TEST_F(SystemIntegrationTest, DoesNothingWithoutABundleIdentifier) {
    environment.bundleIdentifier.reset();
    remake();
    EXPECT_EQ(ask(), 1);
    integration().toggleDefaultFeedReader(true);
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_FALSE(isOn(preference::isDefaultReader));
    EXPECT_FALSE(integration().isDefaultFeedReader());
}

TEST_F(SystemIntegrationTest, TakesTheAddressesAndGivesThemBack) {
    launchServices->handlers["feed"] = "other";
    EXPECT_FALSE(integration().isDefaultFeedReader());
    integration().toggleDefaultFeedReader(true);
    EXPECT_TRUE(integration().isDefaultFeedReader());
    EXPECT_TRUE(isOn(preference::isDefaultReader));
    EXPECT_EQ(text(preference::previousDefaultRSSReader), "other");
    integration().toggleDefaultFeedReader(false);
    EXPECT_EQ(launchServices->handlers["feed"], "other");
    EXPECT_FALSE(isOn(preference::isDefaultReader));
}

TEST_F(SystemIntegrationTest, KeepsTheAddressesWhereNoProgramHadThem) {
    integration().toggleDefaultFeedReader(true);
    integration().toggleDefaultFeedReader(false);
    EXPECT_TRUE(integration().isDefaultFeedReader());
    EXPECT_FALSE(isOn(preference::isDefaultReader));
    EXPECT_EQ(text(preference::previousDefaultRSSReader), "-");
}

TEST_F(SystemIntegrationTest, HasNobodyToGiveTheAddressesBackToWhereItHadThemBefore) {
    launchServices->handlers["feed"] = bundleIdentifier;
    integration().toggleDefaultFeedReader(true);
    EXPECT_THAT(takeCalls(), ElementsAre("setDefaultHandler feed test.brindle"));
    EXPECT_EQ(text(preference::previousDefaultRSSReader), "-");
    EXPECT_TRUE(isOn(preference::isDefaultReader));
}

TEST_F(SystemIntegrationTest, GivesTheAddressesToNobodyOfAnEmptyName) {
    set(preference::previousDefaultRSSReader, std::string());
    integration().toggleDefaultFeedReader(false);
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_FALSE(isOn(preference::isDefaultReader));
}

TEST_F(SystemIntegrationTest, GivesTheAddressesBackAlsoWithoutABundleIdentifier) {
    environment.bundleIdentifier.reset();
    remake();
    set(preference::isDefaultReader, true);
    set(preference::previousDefaultRSSReader, std::string("other"));
    integration().toggleDefaultFeedReader(false);
    EXPECT_THAT(takeCalls(), ElementsAre("setDefaultHandler feed other"));
    EXPECT_FALSE(isOn(preference::isDefaultReader));
}

TEST_F(SystemIntegrationTest, KeepsApartWhomItReplacedAtTheFirstLaunchAndLater) {
    set(preference::previousFeedReader, std::string("first"));
    integration().toggleDefaultFeedReader(false);
    EXPECT_THAT(takeCalls(), IsEmpty());
    launchServices->handlers["feed"] = "other";
    integration().toggleDefaultFeedReader(true);
    EXPECT_EQ(text(preference::previousFeedReader), "first");
    EXPECT_EQ(text(preference::previousDefaultRSSReader), "other");
}

TEST_F(SystemIntegrationTest, SetsTheLauncher) {
    integration().toggleLaunchOnLogin(true);
    EXPECT_TRUE(isOn(preference::launchOnLogin));
    loginItem->succeeds = false;
    integration().toggleLaunchOnLogin(false);
    EXPECT_FALSE(isOn(preference::launchOnLogin));
    EXPECT_THAT(takeCalls(),
        ElementsAre("setLoginItem test.brindle.launcher on", "setLoginItem test.brindle.launcher off", "Could not set launch on login"));
}

TEST_F(SystemIntegrationTest, AsksBeforeItLeavesTheDock) {
    const auto fail = [](bool) { ADD_FAILURE() << "the button is put back"; };
    integration().toggleBackgroundOnly(true, fail);
    EXPECT_EQ(alerts->alerts[0],
        (Alert{"Restart required!", "This operation will take effect when you restart Brindle. Do you still want to change it?",
            {"OK", "Cancel"}}));
    EXPECT_THAT(takeCalls(), ElementsAre("beginSheet Restart required!"));
    EXPECT_TRUE(isOn(preference::hideInDock));
    alerts->response = 0;
    integration().toggleBackgroundOnly(false, fail);
    EXPECT_TRUE(isOn(preference::hideInDock));
}

TEST_F(SystemIntegrationTest, ChangesNothingOnceItIsGone) {
    const auto waiting = std::make_shared<WaitingAlerts>();
    auto made = SystemIntegration::make({environment.defaults, nullptr, waiting, nullptr, nullptr, nullptr, nullptr, std::nullopt, {}});
    made->toggleBackgroundOnly(true, [](bool) {});
    made.reset();
    waiting->answer(Alert::firstButtonReturn);
    EXPECT_FALSE(isOn(preference::hideInDock));
}

TEST_F(SystemIntegrationTest, PutsTheButtonBackWhenThePersonCancels) {
    std::vector<bool> states;
    alerts->response = Alert::firstButtonReturn + 1;
    integration().toggleBackgroundOnly(true, [&](bool isOn) { states.push_back(isOn); });
    EXPECT_THAT(states, ElementsAre(false));
    EXPECT_FALSE(isOn(preference::hideInDock));
    set(preference::hideInDock, true);
    integration().toggleBackgroundOnly(false, [&](bool isOn) { states.push_back(isOn); });
    EXPECT_THAT(states, ElementsAre(false, true));
    EXPECT_TRUE(isOn(preference::hideInDock));
}

} // namespace
} // namespace brindle
