#include "tests/support/HTTPServer.hpp"

#include "foundation/RunLoop.hpp"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cstdlib>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace brindle {

namespace {

bool sendAll(int connection, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = ::send(connection, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

std::string lowered(std::string text) {
    for (char& c : text)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    return text;
}

HTTPServer::Request parsed(std::string_view head) {
    HTTPServer::Request request;
    const auto line = head.substr(0, head.find("\r\n"));
    const auto first = line.find(' ');
    const auto second = line.find(' ', first + 1);
    request.method = line.substr(0, first);
    request.path = line.substr(first + 1, second - first - 1);
    for (std::size_t at = head.find("\r\n"); at != std::string_view::npos && at + 2 < head.size();) {
        const auto end = head.find("\r\n", at + 2);
        const auto field = head.substr(at + 2, end == std::string_view::npos ? end : end - at - 2);
        if (const auto colon = field.find(':'); colon != std::string_view::npos) {
            const auto value = field.find_first_not_of(' ', colon + 1);
            request.headers[lowered(std::string(field.substr(0, colon)))] = value == std::string_view::npos ? "" : field.substr(value);
        }
        at = end;
    }
    return request;
}

} // namespace

std::string HTTPServer::Request::header(const std::string& lowerCaseName) const {
    const auto found = headers.find(lowerCaseName);
    return found == headers.end() ? std::string() : found->second;
}

HTTPServer::HTTPServer() {
    // A proxy of the machine must not come between.
    ::setenv("no_proxy", "*", 1);
    _listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (_listener < 0 || ::bind(_listener, reinterpret_cast<sockaddr*>(&address), size) != 0 || ::listen(_listener, 512) != 0 ||
        ::getsockname(_listener, reinterpret_cast<sockaddr*>(&address), &size) != 0)
        throw std::runtime_error("no loopback server");
    _port = ntohs(address.sin_port);
    _acceptor = std::thread([this] { acceptConnections(); });
}

HTTPServer::~HTTPServer() {
    {
        const std::lock_guard lock(_mutex);
        _ends = true;
        for (const auto& [connection, thread] : _open)
            ::shutdown(connection, SHUT_RDWR);
    }
    _changed.notify_all();
    ::shutdown(_listener, SHUT_RDWR);
    _acceptor.join();
    ::close(_listener);
    {
        std::unique_lock lock(_mutex);
        _changed.wait(lock, [this] { return _open.empty(); });
    }
    for (std::thread& thread : _ended)
        thread.join();
}

void HTTPServer::route(std::string path, Handler handler) {
    const std::lock_guard lock(_mutex);
    _handlers[std::move(path)] = std::move(handler);
}

void HTTPServer::route(std::string path, Response response) {
    route(std::move(path), [response = std::move(response)](const Request&) { return response; });
}

void HTTPServer::redirect(std::string path, std::string to, int status) {
    Response response;
    response.status = status;
    response.headers = {{"Location", std::move(to)}};
    route(std::move(path), std::move(response));
}

std::string HTTPServer::origin() const {
    return "http://127.0.0.1:" + std::to_string(_port);
}

URL HTTPServer::url(std::string_view path) const {
    return *URL::make(origin() + std::string(path));
}

void HTTPServer::release() {
    {
        const std::lock_guard lock(_mutex);
        _released = true;
    }
    _changed.notify_all();
}

std::vector<HTTPServer::Request> HTTPServer::requests() const {
    const std::lock_guard lock(_mutex);
    return _requests;
}

std::size_t HTTPServer::requestCount(std::string_view path) const {
    const std::lock_guard lock(_mutex);
    return static_cast<std::size_t>(std::count_if(_requests.begin(), _requests.end(), [&](const Request& r) { return r.path == path; }));
}

std::size_t HTTPServer::connectionCount() const {
    const std::lock_guard lock(_mutex);
    return _connectionCount;
}

std::size_t HTTPServer::maximumConnectionCount() const {
    const std::lock_guard lock(_mutex);
    return _maximumConnectionCount;
}

HTTPServer::Response HTTPServer::document(std::string body, std::string type) {
    Response response;
    response.body = std::move(body);
    response.headers = {{"Content-Type", std::move(type)}};
    return response;
}

void HTTPServer::acceptConnections() {
    for (;;) {
        const int connection = ::accept4(_listener, nullptr, nullptr, SOCK_CLOEXEC);
        const std::lock_guard lock(_mutex);
        if (_ends || connection < 0) {
            if (connection >= 0)
                ::close(connection);
            return;
        }
        const int on = 1;
        ::setsockopt(connection, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        ++_connectionCount;
        _open.emplace(connection, std::thread([this, connection] { serve(connection); }));
        _maximumConnectionCount = std::max(_maximumConnectionCount, _open.size());
    }
}

void HTTPServer::serve(int connection) {
    std::string received;
    std::array<char, 4096> buffer;
    for (bool goesOn = true; goesOn;) {
        const auto end = received.find("\r\n\r\n");
        if (end != std::string::npos) {
            const Request request = parsed(std::string_view(received).substr(0, end));
            received.erase(0, end + 4);
            goesOn = answer(connection, request);
            continue;
        }
        const ssize_t size = ::recv(connection, buffer.data(), buffer.size(), 0);
        goesOn = size > 0;
        if (goesOn)
            received.append(buffer.data(), static_cast<std::size_t>(size));
    }
    const std::lock_guard lock(_mutex);
    ::close(connection);
    const auto found = _open.find(connection);
    _ended.push_back(std::move(found->second));
    _open.erase(found);
    _changed.notify_all();
}

HTTPServer::Response HTTPServer::responseTo(const Request& request) {
    Handler handler;
    {
        const std::lock_guard lock(_mutex);
        _requests.push_back(request);
        if (const auto found = _handlers.find(request.path); found != _handlers.end())
            handler = found->second;
    }
    // A test that waits for this request in the main loop looks again.
    RunLoop::main().perform([] {});
    if (handler)
        return handler(request);
    Response missing;
    missing.status = 404;
    return missing;
}

bool HTTPServer::answer(int connection, const Request& request) {
    using Fault = Response::Fault;
    const Response response = responseTo(request);
    if (response.fault == Fault::drop)
        return false;
    if (response.fault == Fault::hang)
        waitForRelease();
    std::string head =
        "HTTP/1.1 " + std::to_string(response.status) + " Answer\r\nContent-Length: " + std::to_string(response.body.size()) + "\r\n";
    for (const auto& [name, value] : response.headers)
        head += name + ": " + value + "\r\n";
    head += response.closes ? "Connection: close\r\n\r\n" : "\r\n";
    const std::string_view body = response.body;
    const std::size_t half = body.size() / 2;
    if (!sendAll(connection, head + std::string(body.substr(0, half))) || response.fault == Fault::dropMid)
        return false;
    if (response.fault == Fault::gate)
        waitForRelease();
    return sendAll(connection, body.substr(half)) && !response.closes;
}

void HTTPServer::waitForRelease() {
    std::unique_lock lock(_mutex);
    _changed.wait(lock, [this] { return _released || _ends; });
}

} // namespace brindle
