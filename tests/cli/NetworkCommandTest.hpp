#pragma once

#include "SyndicatedParser/NetworkRoute.hpp"
#include "foundation/RunLoop.hpp"
#include "tests/cli/LibraryFolder.hpp"
#include "tests/support/HTTPServer.hpp"

#include <string>

namespace brindle {

/// Calls the program with feeds of a server on loopback. The program fetches only where the machine has a default route.
class NetworkCommandTest : public CommandLineTest {
protected:
    void SetUp() override {
        RunLoop::main(); // belongs to this thread, before the server's threads wake it
        if (defaultNetworkRoute()->flags().value_or(0) == 0)
            GTEST_SKIP() << "the machine has no default route";
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
};

} // namespace brindle
