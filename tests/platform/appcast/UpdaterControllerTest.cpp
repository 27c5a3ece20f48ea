#include "platform/appcast/UpdaterController.h"

#include <QKeyEvent>

#include "tests/doubles/FakeBundle.h"
#include "tests/doubles/FakeWorkspace.h"
#include "tests/platform/appcast/FeedFixture.h"

namespace orlamo::appcast {
namespace {

using Origin = SPUStandardUpdaterController::Origin;

class Channels : public SPUUpdaterDelegate {
public:
    std::set<std::string> allowedChannelsForUpdater() override { return {"beta"}; }
};

// The string table is empty: every text shows its key.
class UpdaterControllerTest : public FeedFixture {
protected:
    void useFeed(const QUrl& address) { bundle.info["SUFeedURL"] = address.toString().toStdString(); }

    /// The window on the screen; null without one.
    static UpdateWindow* window() {
        UpdateWindow* found = nullptr;
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (!widget->isVisible()) continue;
            EXPECT_EQ(found, nullptr) << "two windows";
            found = dynamic_cast<UpdateWindow*>(widget);
        }
        return found;
    }
    /// What a label or button of the window says; empty when it is not shown.
    static std::string text(const char* name) {
        auto* const widget = window() != nullptr ? window()->findChild<QWidget*>(name) : nullptr;
        return widget != nullptr && widget->isVisible() ? widget->property("text").toString().toStdString() : "";
    }
    static void waitForTitle(const std::string& title) {
        turnEventLoopUntil([&] { return text("updateTitle") == title; });
    }

    FakeBundle bundle;
    FakeWorkspace workspace;
    Updater updater{nullptr, {.transport = Transport::httpsOrLoopback, .limits = {}}};
    std::unique_ptr<SPUStandardUpdaterController> controller =
        updater.initWithStartingUpdater(Updates::StartingUpdater::yes, std::make_unique<Channels>());
};

TEST_F(UpdaterControllerTest, WithoutAFeedOnlyTheUserHearsThatUpdatesComeWithThePackage) {
    for (const PropertyList& address : {PropertyList(), PropertyList(std::string()), PropertyList(true)}) {
        bundle.info["SUFeedURL"] = address;
        controller->checkForUpdates(Origin::launch);
        EXPECT_EQ(window(), nullptr);
        controller->checkForUpdates(Origin::user);
        EXPECT_EQ(text("updateMessage"), "update.package.message");
        window()->close();
    }
    EXPECT_TRUE(log.lines.empty());

    controller = updater.initWithStartingUpdater(Updates::StartingUpdater::no, std::make_unique<Channels>());
    controller->checkForUpdates(Origin::user);
    EXPECT_EQ(window(), nullptr) << "one that is not started checks nothing";
    EXPECT_EQ(log.lines.size(), 1U);
}

TEST_F(UpdaterControllerTest, ANewVersionIsShownWithItsNotesAndAButtonThatOpensItsPage) {
    const QByteArray more = "<link>https://127.0.0.1/2.0?a=b%20c</link><description>&lt;p&gt;News</description>";
    const FeedServer server(Speaks::http, says(httpAnswer(feed({item("2.0", "beta", more), item("3", "nightly")}))));
    bundle.info["CFBundleShortVersionString"] = std::string("1.9");
    bundle.strings["update.newVersion.title"] = "%@ is out";
    useFeed(server.url());
    controller->checkForUpdates(Origin::launch);
    EXPECT_EQ(text("updateTitle"), "update.checking.title");
    waitForTitle("2.0 is out");
    EXPECT_EQ(window()->findChild<QPlainTextEdit*>("updateNotes")->toPlainText(), "News");
    auto* const button = window()->findChild<QPushButton*>("updateOpenPage");
    EXPECT_TRUE(button->isDefault());

    workspace.openingSucceeds = false;
    button->click();
    EXPECT_EQ(text("updateMessage"), "update.newVersion.pageFailed");
    workspace.openingSucceeds = true;
    button->click();
    EXPECT_EQ(workspace.opened.back(), "https://127.0.0.1/2.0?a=b%20c");
    EXPECT_EQ(window(), nullptr);
}

TEST_F(UpdaterControllerTest, OneCheckRunsAtATimeAndEscapeCancelsIt) {
    const FeedServer server(Speaks::http, [](QTcpSocket&, const QByteArray&) {});
    useFeed(server.url());
    controller->checkForUpdates(Origin::user);
    turnEventLoopUntil([&] { return server.requests.size() == 1; });
    const UpdateWindow* const before = window();
    controller->checkForUpdates(Origin::launch);
    EXPECT_EQ(window(), before);
    EXPECT_EQ(server.connections, 1);

    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(window(), &escape);
    EXPECT_EQ(window(), nullptr);
    turnEventLoopUntil([&] { return server.connections == 0; });

    useFeed(QUrl("http://example.org/feed"));
    controller->checkForUpdates(Origin::user);
    waitForTitle("update.failed.title");
    EXPECT_EQ(text("updateMessage"), "update.failed.address");
    useFeed({});
    controller->checkForUpdates(Origin::user);
    EXPECT_EQ(text("updateMessage"), "update.package.message") << "the open window shows the next result";
    controller.reset();
    EXPECT_EQ(window(), nullptr);
}

TEST_F(UpdaterControllerTest, EveryOutcomeHasWordsOfItsOwn) {
    std::set<std::string> messages;
    const int last = static_cast<int>(Outcome::unreadable);
    for (int outcome = 0; outcome <= last; ++outcome) {
        UpdateWindow shown(nullptr);
        shown.bringForward();
        shown.showResult({static_cast<Outcome>(outcome), Item{}}, "1.0");
        EXPECT_TRUE(messages.insert(text("updateMessage")).second) << outcome;
        EXPECT_EQ(text("updateOpenPage"), "");
    }
    EXPECT_FALSE(messages.contains(""));
}

}  // namespace
}  // namespace orlamo::appcast
