#include "desktop/system/SingleInstance.hpp"
#include "tests/desktop/ProgramFixture.hpp"

#include <QSignalSpy>
#include <gmock/gmock.h>

namespace brindle::desktop {

using testing::AllOf;
using testing::HasSubstr;

namespace {

/// A later start of the program, beside one that runs already.
class ProgramRequestsTest : public ProgramFixture {
protected:
    void SetUp() override { ASSERT_TRUE(_running.acquire()); }

    QString file(const char* name) const { return QString::fromStdString((_home / name).string()); }

    SingleInstance _running{_bus.connect(), QLatin1String(SingleInstance::standardName)};
    const QSignalSpy _opened{&_running, &SingleInstance::opened};
};

} // namespace

TEST_F(ProgramRequestsTest, HandsOverThatTheFeedsBrowserIsWanted) {
    const QSignalSpy wanted(&_running, &SingleInstance::actionActivated);
    const QSignalSpy activated(&_running, &SingleInstance::activated);
    _variables = {{QStringLiteral("XDG_ACTIVATION_TOKEN"), QStringLiteral("a token")}};
    EXPECT_EQ(finish(start({QStringLiteral("--show-feeds-browser")})), 0);
    ASSERT_TRUE(runEventLoop([&] { return !wanted.isEmpty(); }));
    EXPECT_EQ(wanted[0][0], QStringLiteral("show-feeds-browser"));
    EXPECT_EQ(wanted[0][1], QStringLiteral("a token"));
    EXPECT_TRUE(activated.isEmpty());
}

TEST_F(ProgramRequestsTest, OpensWhatItCanAndTellsOfTheRest) {
    write("mine.opml", "<opml/>");
    QProcess& program = start({QStringLiteral("ftp://a.invalid"), file("mine.opml"), file("none.opml")});
    EXPECT_EQ(finish(program), 0);
    ASSERT_TRUE(runEventLoop([&] { return !_opened.isEmpty(); }));
    EXPECT_EQ(_opened[0][0].toStringList(), QStringList{QStringLiteral("file://") + file("mine.opml")});
    EXPECT_THAT(program.readAllStandardError().toStdString(),
        AllOf(HasSubstr("\"ftp://a.invalid\" is neither"), HasSubstr("This file doesn't exist: " + file("none.opml").toStdString())));
}

TEST_F(ProgramRequestsTest, SaysThatAFileDoesntExist) {
    QProcess& program = start({file("none.opml")});
    // It waits for the person to read that.
    ASSERT_TRUE(runEventLoop([&] {
        program.setReadChannel(QProcess::StandardError);
        return program.peek(1 << 16).contains("This file doesn't exist: ");
    }));
    EXPECT_TRUE(_opened.isEmpty());
}

} // namespace brindle::desktop
