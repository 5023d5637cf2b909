#pragma once

#include "foundation/URLTransferLine.hpp"

#include <cstdint>
#include <curl/curl.h>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace brindle {

class ExitGate;

/// The process's network thread: libcurl's multi interface over sockets, with connections, names and TLS sessions shared by all transfers.
/// Tasks hand it requests and get its answers on the main thread. Thread: as each operation says.
class URLSessionEngine {
public:
    /// The one engine; its thread starts at first use. Thread: main.
    static URLSessionEngine& shared();

    URLSessionEngine(const URLSessionEngine&) = delete;
    URLSessionEngine& operator=(const URLSessionEngine&) = delete;

    /// Begins a task, or its next request after a redirect or a challenge. Thread: main.
    void start(const std::shared_ptr<URLSessionDataTask>& task, URLTransfer::Request request);
    /// Drops a task's request. Thread: main.
    void cancel(std::uint64_t identifier);
    std::uint64_t newIdentifier() { return ++_lastIdentifier; }

private:
    using Command = std::function<void()>;
    /// What a finished request is about, as the main thread gets it.
    struct Outcome {
        std::optional<URLError> error;
        int statusCode = 0;
        std::optional<std::string> redirectTarget;
        std::optional<URLAuthenticationChallenge> challenge;
        std::string body;
        URLTransfer::Request request;
    };

    URLSessionEngine();

    // Network thread.
    [[noreturn]] void run(ExitGate& gate);
    void runCommands();
    void beginTransfers();
    void suspendSilentTransfers();
    void collectFinished();
    void finish(CURL* handle, CURLcode code);
    void deliver(Outcome outcome);
    int timeout() const;
    static int watchSocket(CURL* handle, curl_socket_t socket, int what, void* engine, void* known);
    static int setTimer(CURLM* multi, long milliseconds, void* engine);

    // Main thread.
    void post(Command command);
    void receive(Outcome outcome);
    void followRedirect(const std::shared_ptr<URLSessionDataTask>& task, Outcome outcome);
    void answerChallenge(const std::shared_ptr<URLSessionDataTask>& task, Outcome outcome);
    static void complete(URLSessionDataTask& task, Outcome& outcome);

    std::uint64_t _lastIdentifier = 0;                                 ///< main thread
    std::map<std::uint64_t, std::weak_ptr<URLSessionDataTask>> _tasks; ///< main thread

    CURLM* _multi;
    CURLSH* _share;
    URLTransferLine _line;
    std::optional<URLTransfer::Time> _timer; ///< when libcurl wants to be called
    int _poll;
    int _wake;

    std::mutex _mutex;
    std::vector<Command> _commands; ///< guarded by `_mutex`
};

} // namespace brindle
