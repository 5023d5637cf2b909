#include "foundation/URLFetch.hpp"

#include <utility>

namespace brindle {

/// Keeps its session until the one task has ended.
class URLFetch::Events : public URLSessionDelegate {
public:
    explicit Events(Completion completion) : _completion(std::move(completion)) {}

    std::shared_ptr<URLSession> session;

    void didReceiveData(URLSessionDataTask&, std::string data) override { _body += data; }

    void didComplete(URLSessionDataTask& task, const std::optional<URLError>& error) override {
        const std::shared_ptr<URLSession> ended = std::exchange(session, nullptr);
        const Completion completion = std::exchange(_completion, nullptr);
        if (error)
            completion(tl::unexpected(*error));
        else
            completion(Answer{task.response().value_or(URLResponse()).statusCode, std::move(_body)});
    }

    void willPerformRedirection(
        URLSessionDataTask&, const URLResponse&, const URLRequest& newRequest, RedirectHandler completionHandler) override {
        const bool follows = ++_redirections <= maximumRedirections && newRequest.url;
        completionHandler(follows ? std::optional(newRequest) : std::nullopt);
    }

    void didReceiveChallenge(const URLAuthenticationChallenge&, ChallengeHandler completionHandler) override {
        completionHandler(URLAuthenticationChallengeDisposition::performDefaultHandling, std::nullopt);
    }

    void didBecomeInvalid(const std::optional<URLError>&) override {}

private:
    Completion _completion;
    std::string _body;
    int _redirections = 0;
};

void URLFetch::begin(const URL& url, std::chrono::milliseconds timeout, std::size_t maximumBody, Completion completion) {
    URLSessionConfiguration configuration;
    configuration.timeoutForRequest = timeout;
    configuration.timeoutForResource = timeout;
    configuration.maximumBody = maximumBody;
    const auto events = std::make_shared<Events>(std::move(completion));
    events->session = URLSession::make(std::move(configuration), events);
    events->session->dataTask(url)->resume();
}

} // namespace brindle
