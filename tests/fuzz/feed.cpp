// An update feed as a server sends it.
#include "platform/appcast/Feed.h"

#include "tests/doubles/FakeLog.h"
#include "tests/fuzz/FuzzInput.h"

using namespace orlamo;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FakeLog log;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const appcast::Feed feed = appcast::parseFeed(bytes, "example.org");
    for (const appcast::Item& item : feed.items) {
        require(item.versionText.size() <= 65 && item.notes.size() <= 10'001, "texts are bounded");
        for (const QChar character : item.versionText + item.notes) {
            require(character == '\n' || character.category() != QChar::Other_Control, "texts hold no controls");
            require(character.unicode() < 0x202a || character.unicode() > 0x202e, "texts turn no direction");
        }
        require(item.page.isEmpty() || (item.page.scheme() == "https" && item.page.host() == "example.org"),
                "a page is on the feed's host");
    }
    const auto newest = appcast::newestItem(feed, {"beta"});
    for (const appcast::Item& item : feed.items) {
        const bool counts = item.channel.isEmpty() || item.channel == "beta";
        require(!counts || (newest && !(item.version > newest->version)), "nothing is newer than the newest");
    }
    return 0;
}
