#include "foundation/URLSession.hpp"

#include "foundation/RunLoop.hpp"
#include "foundation/Text.hpp"
#include "foundation/URLSessionEngine.hpp"

namespace brindle {

namespace {

/// What the limit of transfers for each host goes by.
std::string hostKey(const URL& url) {
    std::string key = text::lowercasedASCII(url.scheme().value_or(""));
    key += "://";
    key += text::lowercasedASCII(url.host().value_or(""));
    key += ':';
    key += url.port().value_or("");
    return key;
}

} // namespace

void URLSessionDataTask::resume() {
    assertMainThread();
    const auto session = _session.lock();
    if (!session || session->_invalid || _ended || _identifier != 0)
        return;
    session->_tasks.insert(shared_from_this());
    send(_url);
}

void URLSessionDataTask::send(const URL& url) {
    const auto session = _session.lock();
    if (!session)
        return;
    URLTransfer::Request request;
    _identifier = URLSessionEngine::shared().newIdentifier();
    request.identifier = _identifier;
    request.url = url.absoluteString();
    request.host = hostKey(url);
    request.configuration = session->_configuration;
    URLSessionEngine::shared().start(shared_from_this(), std::move(request));
}

void URLSessionDataTask::cancel() {
    assertMainThread();
    const auto session = _session.lock();
    if (!session || !finish())
        return;
    if (_identifier != 0)
        URLSessionEngine::shared().cancel(_identifier);
    // Told afterwards, as every end of a task is: never from inside the call that causes it.
    RunLoop::main().perform([task = shared_from_this(), delegate = session->_delegate] {
        delegate->didComplete(*task, URLError{URLError::Code::cancelled, "The transfer was cancelled."});
    });
}

bool URLSessionDataTask::finish() {
    if (_ended)
        return false;
    _ended = true;
    if (const auto session = _session.lock())
        session->_tasks.erase(shared_from_this());
    return true;
}

std::shared_ptr<URLSession> URLSession::make(URLSessionConfiguration configuration, std::shared_ptr<URLSessionDelegate> delegate) {
    return std::shared_ptr<URLSession>(new URLSession(std::move(configuration), std::move(delegate)));
}

URLSession::URLSession(URLSessionConfiguration configuration, std::shared_ptr<URLSessionDelegate> delegate)
    : _configuration(std::move(configuration)), _delegate(std::move(delegate)) {}

URLSession::~URLSession() {
    for (const auto& task : _tasks)
        URLSessionEngine::shared().cancel(task->_identifier);
}

std::shared_ptr<URLSessionDataTask> URLSession::dataTask(const URL& url) {
    return std::shared_ptr<URLSessionDataTask>(new URLSessionDataTask(weak_from_this(), url));
}

void URLSession::invalidateAndCancel() {
    assertMainThread();
    if (_invalid)
        return;
    _invalid = true;
    const auto tasks = _tasks;
    for (const auto& task : tasks)
        task->cancel();
    RunLoop::main().perform([delegate = _delegate] { delegate->didBecomeInvalid(std::nullopt); });
}

} // namespace brindle
