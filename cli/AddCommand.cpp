#include "cli/AddCommand.hpp"

#include "Brindle/shell/AddFeedFlow.hpp"
#include "cli/FeedNode.hpp"
#include "cli/Library.hpp"
#include "cli/TextTable.hpp"
#include "foundation/RunLoop.hpp"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;

constexpr std::chrono::seconds timeLimit(120); ///< for the candidate, and for all that follows the commit
constexpr std::int64_t greatestRate = std::numeric_limits<std::int64_t>::max() / 60;

/// What the flow came to, for a caller that waits.
class AddFeedEnd : public AddFeedFlowDelegate {
public:
    explicit AddFeedEnd(std::shared_ptr<FeedAnswers> answers) : _answers(std::move(answers)) {}

    struct Failed {
        Failure failure;
        Alert alert;
    };

    std::optional<Failed> failed;
    bool discovered = false;
    AddFeedFlow::FeedItems committed;

    bool isThere() const { return failed || discovered || !committed.empty(); }

    void addFeedFlowDidFail(AddFeedFlow&, Failure failure, const Alert& alert) override { failed = Failed{failure, alert}; }
    void addFeedFlowDidDiscoverFeedItems(AddFeedFlow&) override { discovered = true; }
    void addFeedFlowDidCommit(AddFeedFlow&, const AddFeedFlow::FeedItems& feeds) override {
        committed = feeds;
        // What was tried before has an icon step open, which may end as soon as this returns.
        for (const std::shared_ptr<FeedItem>& feed : feeds)
            _answers->expect(*feed, discovered ? 0 : 1);
    }

private:
    const std::shared_ptr<FeedAnswers> _answers;
};

std::string message(const AddFeedEnd::Failed& failed, const std::string& address) {
    if (failed.failure == AddFeedFlow::Failure::invalidAddress)
        return "'" + address + "' is no valid URL of a feed";
    return failed.alert.title + (failed.alert.title.ends_with('!') ? " " : ": ") + failed.alert.text;
}

/// Why the flow came to no end: the network is away, or nothing answered.
CommandResult unanswered(const AddFeedFlow& flow) {
    const auto& candidate = flow.newFeedItem();
    if (candidate && candidate->session().isQueued())
        return failure("the network is not available");
    return failure("the server did not answer within " + std::to_string(timeLimit.count()) + " seconds");
}

void printDiscovered(const CommandContext& context, const AddFeedFlow::FeedItems& feeds) {
    JSON array = JSON::array();
    TextTable table({"Pick", "Title", "Address"});
    for (std::size_t i = 0; i < feeds.size(); ++i) {
        JSON json = JSON::object();
        json["pick"] = i + 1;
        json["name"] = feeds[i]->name();
        json["url"] = feeds[i]->url().absoluteString();
        array.push_back(std::move(json));
        table.add({std::to_string(i + 1), feeds[i]->name(), feeds[i]->url().absoluteString()});
    }
    if (context.settings.json)
        context.output.json(array);
    else
        context.output.text(table.text());
}

/// The numbers that `--pick` gives, counted from 1.
tl::expected<std::vector<std::size_t>, CommandError> picks(const Arguments& arguments) {
    std::vector<std::size_t> numbers;
    for (const std::string& text : arguments.values("pick")) {
        const auto number = numberArgument("--pick", text, 1, std::numeric_limits<std::int32_t>::max());
        if (!number)
            return tl::unexpected(number.error());
        numbers.push_back(static_cast<std::size_t>(*number));
    }
    return numbers;
}

/// Commits what was picked of a page's feeds, in page order.
tl::expected<void, CommandError> commitPicked(const CommandContext& context, AddFeedFlow& flow, const std::vector<std::size_t>& numbers) {
    const AddFeedFlow::FeedItems feeds = flow.discoveredFeedItems();
    std::vector<bool> isPicked(feeds.size());
    for (const std::size_t number : numbers) {
        if (number > feeds.size())
            return failure("the page announces " + std::to_string(feeds.size()) + " feeds, there is no feed " + std::to_string(number));
        isPicked[number - 1] = true;
    }
    AddFeedFlow::FeedItems picked;
    for (std::size_t i = 0; i < feeds.size(); ++i) {
        if (isPicked[i])
            picked.push_back(feeds[i]);
    }
    if (!picked.empty()) {
        flow.commit(picked);
        return {};
    }
    printDiscovered(context, feeds);
    return failure("the page announces several feeds; choose with --pick");
}

/// Waits for the fetch that follows a commit, and stores what it brought.
CommandResult finish(const CommandContext& context, Library& library, const AddFeedFlow::FeedItems& feeds) {
    for (const std::shared_ptr<FeedItem>& feed : feeds)
        feed->invalidateTimer();
    library.answers().wait(timeLimit);
    const auto saved = library.save();
    if (!saved)
        return tl::unexpected(saved.error());
    const FeedsManager::Feeds added(feeds.begin(), feeds.end());
    if (context.settings.json)
        context.output.json(feedNodes(added));
    else
        context.output.text(feedOutline(added));
    return ExitStatus::done;
}

CommandResult run(const CommandContext& context) {
    const std::string& address = context.arguments.plain.front();
    const auto rate = context.arguments.number("rate", 1, greatestRate, AddFeedFlow::defaultUpdateRate);
    const auto numbers = picks(context.arguments);
    if (!rate || !numbers)
        return tl::unexpected(rate ? numbers.error() : rate.error());
    const auto opened = Library::open(context.settings, Library::Purpose::writing, Library::network(context.arguments));
    if (!opened)
        return tl::unexpected(opened.error());
    Library& library = **opened;
    const auto end = std::make_shared<AddFeedEnd>(library.sharedAnswers());
    const auto flow = AddFeedFlow::make(library.sharedManager(), end);
    flow->name = context.arguments.value("name").value_or(std::string());
    flow->updateRate = *rate;
    flow->confirm(address);
    const auto isQueued = [&] { return flow->newFeedItem() && flow->newFeedItem()->session().isQueued(); };
    RunLoop::main().runUntil([&] { return end->isThere() || isQueued(); }, timeLimit);
    if (end->failed)
        return failure(message(*end->failed, address));
    if (!end->isThere())
        return unanswered(*flow);
    if (end->discovered) {
        if (const auto committed = commitPicked(context, *flow, *numbers); !committed)
            return tl::unexpected(committed.error());
    }
    return finish(context, library, end->committed);
}

} // namespace

Command addCommand() {
    return {"add", "[--name N] [--rate MINUTES] [--pick K]... [--no-icons] URL",
        "Tries an address and takes its feed into the library. A page that announces several feeds adds none, unless --pick says which.",
        {{"name", "N", "what to call the feed (default: its own title)"}, {"rate", "MINUTES", "how often to update it (default: 5)"},
            {"pick", "K", "take the page's feed of this number, from 1; may be repeated"}, {"no-icons", "", "look for no icons"}},
        1, 1, run};
}

} // namespace brindle
