#pragma once

#include "foundation/URL.hpp"

#include <condition_variable>
#include <functional>
#include <list>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace brindle {

/// An HTTP/1.1 server on loopback, on a port that the system chooses, whose answers a test writes. One thread for each connection;
/// connections are kept alive.
class HTTPServer {
public:
    struct Request {
        std::string method;
        std::string path;
        std::map<std::string, std::string> headers; ///< names in lower case

        /// Empty for a header that is not there.
        std::string header(const std::string& lowerCaseName) const;
    };

    struct Response {
        /// What goes wrong on purpose.
        enum class Fault {
            none,
            drop,    ///< the connection is closed without an answer
            dropMid, ///< the header and half of the body are sent, then the connection is closed
            hang,    ///< nothing is sent before `release`, then the answer
            gate,    ///< half of the body is sent, the rest after `release`
        };

        std::string body;
        int status = 200;
        std::vector<std::pair<std::string, std::string>> headers;
        Fault fault = Fault::none;
        bool closes = false; ///< ends the connection after the answer
    };

    using Handler = std::function<Response(const Request&)>;

    HTTPServer();
    ~HTTPServer();
    HTTPServer(const HTTPServer&) = delete;
    HTTPServer& operator=(const HTTPServer&) = delete;

    /// Answers requests of `path` (with its query) by `handler`, which is called on the connection's thread. Paths without one get a 404
    /// with an empty body.
    void route(std::string path, Handler handler);
    void route(std::string path, Response response);
    /// Answers with a redirect.
    void redirect(std::string path, std::string to, int status = 301);

    /// "http://127.0.0.1:PORT".
    std::string origin() const;
    URL url(std::string_view path) const;

    /// Lets every answer that hangs or waits at its gate go on, and all later ones.
    void release();

    std::vector<Request> requests() const;
    std::size_t requestCount(std::string_view path) const;
    std::size_t connectionCount() const;
    /// The most connections that were open at one time.
    std::size_t maximumConnectionCount() const;

    /// A response with a body of that type.
    static Response document(std::string body, std::string type = "application/xml");

private:
    void acceptConnections();
    void serve(int connection);
    bool answer(int connection, const Request& request);
    Response responseTo(const Request& request);
    void waitForRelease();

    int _listener = -1;
    int _port = 0;
    mutable std::mutex _mutex; ///< guards what follows
    std::condition_variable _changed;
    bool _released = false;
    bool _ends = false;
    std::map<std::string, Handler> _handlers;
    std::vector<Request> _requests;
    std::map<int, std::thread> _open;
    std::list<std::thread> _ended;
    std::size_t _connectionCount = 0;
    std::size_t _maximumConnectionCount = 0;
    std::thread _acceptor;
};

} // namespace brindle
