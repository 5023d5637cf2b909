#include "foundation/URLSessionEngine.hpp"

#include "foundation/ExitGate.hpp"
#include "foundation/FatalError.hpp"
#include "foundation/RunLoop.hpp"

#include <algorithm>
#include <array>
#include <climits>
#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace brindle {

namespace {

/// How often silent transfers are looked for while others wait for a place.
constexpr std::chrono::milliseconds suspensionInterval{100};

} // namespace

URLSessionEngine& URLSessionEngine::shared() {
    assertMainThread();
    // Ended by the process's end only: sessions may outlive statics.
    static URLSessionEngine& engine = *new URLSessionEngine;
    return engine;
}

URLSessionEngine::URLSessionEngine()
    : _line(URLSession::maximumTransfers, URLSession::maximumTransfersPerHost), _poll(::epoll_create1(EPOLL_CLOEXEC)),
      _wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (_poll < 0 || _wake < 0 || curl_global_init(CURL_GLOBAL_DEFAULT) != CURLE_OK)
        fatalError("The network could not be set up.");
    epoll_event event{};
    event.events = EPOLLIN;
    event.data.fd = _wake;
    ::epoll_ctl(_poll, EPOLL_CTL_ADD, _wake, &event);
    _multi = curl_multi_init();
    _share = curl_share_init();
    if (!_multi || !_share)
        fatalError("The network could not be set up.");
    curl_share_setopt(_share, CURLSHOPT_SHARE, CURL_LOCK_DATA_SSL_SESSION);
    curl_multi_setopt(_multi, CURLMOPT_SOCKETFUNCTION, &URLSessionEngine::watchSocket);
    curl_multi_setopt(_multi, CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(_multi, CURLMOPT_TIMERFUNCTION, &URLSessionEngine::setTimer);
    curl_multi_setopt(_multi, CURLMOPT_TIMERDATA, this);
    curl_multi_setopt(_multi, CURLMOPT_MAX_TOTAL_CONNECTIONS, static_cast<long>(URLSession::maximumTransfers));
    curl_multi_setopt(_multi, CURLMOPT_MAX_HOST_CONNECTIONS, static_cast<long>(URLSession::maximumTransfersPerHost));
    curl_multi_setopt(_multi, CURLMOPT_MAXCONNECTS, static_cast<long>(URLSession::maximumTransfers));
    static ExitGate& gate = *new ExitGate;
    static const ExitGate::Closer closer(gate);
    std::thread([this] { run(gate); }).detach();
}

// Main thread.

void URLSessionEngine::start(const std::shared_ptr<URLSessionDataTask>& task, URLTransfer::Request request) {
    _tasks[request.identifier] = task;
    auto transfer = std::make_shared<std::unique_ptr<URLTransfer>>(std::make_unique<URLTransfer>(std::move(request)));
    post([this, transfer] { _line.add(std::move(*transfer)); });
}

void URLSessionEngine::cancel(std::uint64_t identifier) {
    _tasks.erase(identifier);
    post([this, identifier] {
        if (const auto transfer = _line.take(identifier); transfer && transfer->handle())
            curl_multi_remove_handle(_multi, transfer->handle());
    });
}

void URLSessionEngine::post(Command command) {
    {
        const std::lock_guard lock(_mutex);
        _commands.push_back(std::move(command));
    }
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(_wake, &one, sizeof one);
}

void URLSessionEngine::receive(Outcome outcome) {
    const auto found = _tasks.find(outcome.request.identifier);
    if (found == _tasks.end())
        return;
    const auto task = found->second.lock();
    _tasks.erase(found);
    if (!task || task->_ended)
        return;
    if (!outcome.error)
        task->_response = URLResponse{outcome.statusCode};
    const auto session = task->_session.lock();
    if (!outcome.error && session && outcome.redirectTarget)
        followRedirect(task, std::move(outcome));
    else if (!outcome.error && session && outcome.challenge)
        answerChallenge(task, std::move(outcome));
    else
        complete(*task, outcome);
}

void URLSessionEngine::followRedirect(const std::shared_ptr<URLSessionDataTask>& task, Outcome outcome) {
    const URLRequest newRequest{URL::make(*outcome.redirectTarget)};
    const URLResponse response = *task->_response;
    const auto session = task->_session.lock();
    const auto kept = std::make_shared<Outcome>(std::move(outcome));
    const std::weak_ptr<URLSessionDataTask> weakTask = task;
    session->_delegate->willPerformRedirection(*task, response, newRequest, [weakTask, kept](std::optional<URLRequest> request) {
        const auto asked = weakTask.lock();
        if (!asked || asked->_ended)
            return;
        if (!request || !request->url)
            return complete(*asked, *kept);
        asked->send(*request->url);
    });
}

void URLSessionEngine::answerChallenge(const std::shared_ptr<URLSessionDataTask>& task, Outcome outcome) {
    const URLAuthenticationChallenge challenge = *outcome.challenge;
    const auto session = task->_session.lock();
    const auto kept = std::make_shared<Outcome>(std::move(outcome));
    const std::weak_ptr<URLSessionDataTask> weakTask = task;
    using Disposition = URLAuthenticationChallengeDisposition;
    session->_delegate->didReceiveChallenge(
        challenge, [this, weakTask, kept](Disposition disposition, std::optional<URLCredential> credential) {
            const auto asked = weakTask.lock();
            if (!asked || asked->_ended)
                return;
            if (disposition == Disposition::cancelAuthenticationChallenge)
                return asked->cancel();
            if (disposition != Disposition::useCredential || !credential)
                return complete(*asked, *kept);
            URLTransfer::Request again = std::move(kept->request);
            again.failedCredentials += again.credential ? 1 : 0;
            again.credential = std::move(credential);
            again.credentialMethod = kept->challenge->authenticationMethod;
            start(asked, std::move(again));
        });
}

void URLSessionEngine::complete(URLSessionDataTask& task, Outcome& outcome) {
    const auto session = task._session.lock();
    if (!session || !task.finish())
        return;
    const auto delegate = session->_delegate;
    if (!outcome.body.empty() && !outcome.error)
        delegate->didReceiveData(task, std::exchange(outcome.body, {}));
    delegate->didComplete(task, outcome.error);
}

// Network thread.

void URLSessionEngine::run(ExitGate& gate) {
    std::array<epoll_event, 64> events;
    for (;;) {
        const int count = ::epoll_wait(_poll, events.data(), static_cast<int>(events.size()), timeout());
        const auto entered = gate.enter();
        runCommands();
        int running = 0;
        for (int i = 0; i < count; ++i) {
            const epoll_event& event = events[static_cast<std::size_t>(i)];
            if (event.data.fd == _wake)
                continue;
            const int what = ((event.events & EPOLLIN) ? CURL_CSELECT_IN : 0) | ((event.events & EPOLLOUT) ? CURL_CSELECT_OUT : 0) |
                             ((event.events & (EPOLLERR | EPOLLHUP)) ? CURL_CSELECT_ERR : 0);
            curl_multi_socket_action(_multi, event.data.fd, what, &running);
        }
        if (_timer && *_timer <= std::chrono::steady_clock::now()) {
            _timer.reset();
            curl_multi_socket_action(_multi, CURL_SOCKET_TIMEOUT, 0, &running);
        }
        collectFinished();
        suspendSilentTransfers();
        beginTransfers();
    }
}

void URLSessionEngine::runCommands() {
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t size = ::read(_wake, &count, sizeof count);
    std::vector<Command> commands;
    {
        const std::lock_guard lock(_mutex);
        commands.swap(_commands);
    }
    for (const Command& command : commands)
        command();
}

void URLSessionEngine::beginTransfers() {
    while (URLTransfer* transfer = _line.next()) {
        if (transfer->begin(_share, std::chrono::steady_clock::now()) && curl_multi_add_handle(_multi, transfer->handle()) == CURLM_OK)
            continue;
        Outcome outcome;
        outcome.request = transfer->request();
        outcome.error = urlError(CURLE_FAILED_INIT);
        _line.take(outcome.request.identifier);
        deliver(std::move(outcome));
    }
}

void URLSessionEngine::suspendSilentTransfers() {
    const auto now = std::chrono::steady_clock::now();
    while (URLTransfer* transfer = _line.toSuspend(now)) {
        curl_multi_remove_handle(_multi, transfer->handle());
        transfer->suspend(now);
        _line.sendBack(*transfer);
        beginTransfers();
    }
}

void URLSessionEngine::collectFinished() {
    int left = 0;
    while (const CURLMsg* message = curl_multi_info_read(_multi, &left)) {
        if (message->msg == CURLMSG_DONE)
            finish(message->easy_handle, message->data.result);
    }
}

void URLSessionEngine::finish(CURL* handle, CURLcode code) {
    char* data = nullptr;
    curl_easy_getinfo(handle, CURLINFO_PRIVATE, &data);
    const auto* const known = reinterpret_cast<const URLTransfer*>(data);
    const std::unique_ptr<URLTransfer> transfer = _line.take(known->request().identifier);
    curl_multi_remove_handle(_multi, handle);
    Outcome outcome;
    outcome.request = transfer->request();
    if (code == CURLE_OK) {
        outcome.statusCode = transfer->statusCode();
        outcome.redirectTarget = transfer->redirectTarget();
        outcome.challenge = transfer->challenge();
        outcome.body = transfer->takeBody();
    } else {
        outcome.error = urlError(code);
    }
    deliver(std::move(outcome));
}

void URLSessionEngine::deliver(Outcome outcome) {
    auto kept = std::make_shared<Outcome>(std::move(outcome));
    RunLoop::main().perform([this, kept] { receive(std::move(*kept)); });
}

int URLSessionEngine::timeout() const {
    using std::chrono::milliseconds;
    auto wait = milliseconds(INT_MAX);
    if (_timer)
        wait = std::chrono::ceil<milliseconds>(*_timer - std::chrono::steady_clock::now());
    if (_line.isCrowded())
        wait = std::min(wait, suspensionInterval);
    return wait == milliseconds(INT_MAX) ? -1 : static_cast<int>(std::clamp<long long>(wait.count(), 0, INT_MAX));
}

int URLSessionEngine::watchSocket(CURL*, curl_socket_t socket, int what, void* engine, void* known) {
    auto& self = *static_cast<URLSessionEngine*>(engine);
    if (what == CURL_POLL_REMOVE) {
        ::epoll_ctl(self._poll, EPOLL_CTL_DEL, socket, nullptr);
        return 0;
    }
    epoll_event event{};
    event.data.fd = socket;
    event.events = ((what & CURL_POLL_IN) ? EPOLLIN : 0U) | ((what & CURL_POLL_OUT) ? EPOLLOUT : 0U);
    ::epoll_ctl(self._poll, known ? EPOLL_CTL_MOD : EPOLL_CTL_ADD, socket, &event);
    curl_multi_assign(self._multi, socket, engine); // anything but null: the socket is known from now on
    return 0;
}

int URLSessionEngine::setTimer(CURLM*, long milliseconds, void* engine) {
    auto& self = *static_cast<URLSessionEngine*>(engine);
    if (milliseconds < 0)
        self._timer.reset();
    else
        self._timer = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    return 0;
}

} // namespace brindle
