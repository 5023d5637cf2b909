#pragma once

#include "SyndicatedParser/RoutingTable.hpp"
#include "tests/cli/LibraryFolder.hpp"
#include "tests/support/HTTPServer.hpp"
#include "tests/support/Network.hpp"

#include <string>

namespace brindle {

/// Calls the program with feeds of a server on loopback. The program fetches only where there is a default route:
/// where the machine has none, the tests run in a network of their own that has one.
class NetworkCommandTest : public CommandLineTest {
protected:
    /// Before the server of the first test has threads and a socket.
    static void SetUpTestSuite() {
        if (!hasDefaultRoute() && testsupport::leaveNetwork())
            static_cast<void>(testsupport::ip("link set lo up") && testsupport::addDefaultRoute());
    }
    void SetUp() override {
        if (!hasDefaultRoute())
            GTEST_SKIP() << "the machine has no default route, and no network namespaces";
    }

    void serve(const std::string& path, std::string body) { server.route(path, HTTPServer::document(std::move(body))); }
    std::string address(const std::string& path) const { return server.origin() + path; }
    static HTTPServer::Response faulty(HTTPServer::Response::Fault fault) {
        HTTPServer::Response response;
        response.fault = fault;
        return response;
    }
    /// Adds the feed at a path and gives its UUID.
    std::string add(const std::string& path) { return runJSON({"add", address(path)})[0]["uuid"]; }

    HTTPServer server;

private:
    static bool hasDefaultRoute() { return RoutingTable::defaultRouteFlags().value_or(0) != 0; }
};

} // namespace brindle
