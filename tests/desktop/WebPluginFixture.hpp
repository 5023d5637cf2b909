#pragma once

#include "desktop/toolkit/WebPluginInterface.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/WebEngine.hpp"
#include "tests/support/HTTPServer.hpp"

#include <QTest>
#include <QVBoxLayout>
#include <QWidget>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace brindle::desktop {

/// Pages report what became of them by their title. "open.test" is a host of the open network.
class WebPluginTest : public testing::Test {
protected:
    static void SetUpTestSuite() { server = new HTTPServer(); }
    static void TearDownTestSuite() {
        delete server;
        server = nullptr;
    }

    void SetUp() override {
        WebPluginInterface* const plugin = WebEngine::start()->plugin();
        ASSERT_NE(plugin, nullptr);
        window.resize(400, 300);
        auto* const column = new QVBoxLayout(&window);
        column->setContentsMargins(0, 0, 0, 0);
        page.reset(plugin->makePageView(&window));
        column->addWidget(page->widget());
        WebPageView::Events events;
        events.allowsNavigation = [this](WebPageView::Navigation type, const QUrl& url) {
            if (type != WebPageView::Navigation::linkActivated)
                return true;
            links.push_back(url.toString().toStdString());
            return false;
        };
        events.didStart = [this] { ++started; };
        events.didFinish = [this] { ++finished; };
        events.progressDidChange = [this] { progress.push_back(page->progress()); };
        events.titleDidChange = [this] { titles.push_back(page->title().toStdString()); };
        events.processDidTerminate = [this] {
            ++terminated;
            progressAtEnd = page->progress();
        };
        page->setEvents(std::move(events));
        window.show();
    }

    /// "http://open.test:PORT".
    static std::string openOrigin() {
        const std::string origin = server->origin();
        return "http://open.test" + origin.substr(origin.rfind(':'));
    }

    /// A page of the server, which is on this machine, as a person does who reads a feed from there.
    bool load(const std::string& path, double seconds = 60) {
        return page->load(QUrl(QString::fromStdString(server->origin() + path)), QStringLiteral("127.0.0.1"), seconds);
    }
    void showBody(const std::string& body) { page->setHtml(QByteArray::fromStdString("<!DOCTYPE html><html><body>" + body)); }
    bool waitForTitle(const std::string& title) {
        const bool isThere = runEventLoop([&] { return page->title().toStdString() == title; });
        EXPECT_TRUE(isThere) << "title: " << page->title().toStdString();
        return isThere;
    }
    /// Presses what is in the page's upper left corner.
    void clickCorner() {
        QWidget* const inner = page->widget()->focusProxy();
        ASSERT_NE(inner, nullptr);
        QTest::mouseClick(inner, Qt::LeftButton, {}, QPoint(20, 20));
    }
    /// Presses it until the page has a title: it may not be ready for the first.
    bool clickCornerUntilTitled() {
        return runEventLoop([&] {
            clickCorner();
            return !page->title().isEmpty();
        });
    }
    /// The server takes the request, and says nothing.
    static HTTPServer::Response silence(const std::string& type) {
        HTTPServer::Response response = HTTPServer::document("", type);
        response.fault = HTTPServer::Response::Fault::hang;
        return response;
    }

    static inline HTTPServer* server = nullptr;
    QWidget window;
    std::unique_ptr<WebPageView> page;
    std::vector<std::string> links, titles;
    std::vector<double> progress;
    double progressAtEnd = 0; ///< of the process
    int started = 0, finished = 0, terminated = 0;
};

} // namespace brindle::desktop
