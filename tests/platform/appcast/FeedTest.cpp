#include "platform/appcast/Feed.h"

#include <gtest/gtest.h>

#include "platform/appcast/PlainText.h"
#include "tests/platform/appcast/FeedFixture.h"

namespace orlamo::appcast {
namespace {

class FeedTest : public testing::Test {
protected:
    static Item only(const QByteArray& item) {
        const Feed found = parseFeed(feed({item}), "example.org");
        EXPECT_EQ(found.error, "");
        EXPECT_EQ(found.items.size(), 1U);
        return found.items.empty() ? Item{} : found.items.front();
    }

    FakeLog log;
};

TEST_F(FeedTest, AnItemHasAVersionAChannelNotesAndAPage) {
    const Item found =
        only(item("45", "beta",
                  "<title>Ignored</title><sparkle:shortVersionString> 1.3.0 </sparkle:shortVersionString>"
                  "<description><![CDATA[<p>New: <b>a</b> &amp; b</p>]]></description>"
                  "<link>https://example.org/1.3</link><x:link xmlns:x='x'>https://x</x:link>"));
    EXPECT_EQ(found.versionText, "1.3.0");
    EXPECT_EQ(found.version, Version::parse("1.3"));
    EXPECT_EQ(found.channel, "beta");
    EXPECT_EQ(found.notes, "New: a & b");
    EXPECT_EQ(found.page, QUrl("https://example.org/1.3"));
}

TEST_F(FeedTest, AVersionMayStandAtTheEnclosure) {
    EXPECT_EQ(only("<item><enclosure url='https://example.org/x' sparkle:version='2.1'/></item>").versionText, "2.1");
}

TEST_F(FeedTest, OnlyItemsOfTheChannelCount) {
    const QByteArray stray = item("9.9");
    const Feed found =
        parseFeed(feed({item("1.0"), "<other>" + stray + "</other>"}).replace("</rss>", stray + "</rss>"), "");
    EXPECT_EQ(found.items.size(), 1U);
}

TEST_F(FeedTest, LinksThatLeadElsewhereAreDroppedAndTheItemStays) {
    for (const char* const link :
         {"http://example.org/", "https://example.com/", "https://example.org.example.com/", "https://www.example.org/",
          "https://user@example.org/", "https:example.org", "//example.org/", "/1.3", "javascript:alert(1)",
          "file:///etc/passwd", "https://example.org\\@example.com/", "https://[::1/"}) {
        log.lines.clear();
        EXPECT_TRUE(only(item("1.3", "", QByteArray("<link>") + link + "</link>")).page.isEmpty()) << link;
        EXPECT_EQ(log.lines.size(), 1U) << link;
    }
}

TEST_F(FeedTest, NotesBecomePlainText) {
    const QString longText = QString("word ").repeated(10'000);
    const struct {
        QString markup, text;
    } cases[]{
        {"one\ntwo\r\n\r\n\r\n\r\nthree", "one\ntwo\n\nthree"},
        {"<h2>New</h2>\n<ul>\n<li>a</li>\n<li>b</li>\n</ul>\n<p>End</p>", "New\n\n\u2022 a\n\u2022 b\n\nEnd"},
        {"a<br>b<br/>c", "a\nb\nc"},
        {"<script>alert('x')</script>a<style>b{}</style>c", "ac"},
        {"a<!-- <b>hidden</b> -->b <!-- open", "ab <!-- open"},
        {"&lt;b&gt; &#65;&#x42; &amp;amp; &bogus; &#0; &#x110000; & <3 1 < 2",
         "<b> AB &amp; &bogus; &#0; &#x110000; & <3 1 < 2"},
        {QString("a\u202Eb\u2066c\u200Fd\uFEFFe\u0007f\u2028g\u00A0h"), "abcdef\ng h"},
        {QString("a") + QChar(0xD800) + "b" + QChar(0xFFFC), "ab"},
        {"<a href='x", "<a href='x"},
        {longText, longText.left(9'999) + QChar(0x2026)},
        {"", ""},
    };
    for (const auto& [markup, text] : cases) {
        EXPECT_EQ(shownText(withoutMarkup(markup), LineEnds::keep, 10'000).toStdString(), text.toStdString());
    }
}

TEST_F(FeedTest, VersionsAreOrderedByTheirNumbersAndSuffixes) {
    const QString order =
        "0 < 0.0.1-alpha < 0.0.1-alpha.1 < 0.0.1-alpha.beta < 0.0.1-beta.2 < 0.0.1-beta.11 < 0.0.1rc1 < "
        "0.0.1 = v0.0.1 = 0.0.1.0 = 00.0.01+build5 < 0.2 < 0.10-b < 0.10 = 0.10+1 < 1.0b2 < 1.0B10 < 1 = 1.0.0 < 1.9 < "
        "1.10 < 18446744073709551617.1 < 99999999999999999999999999999999";
    const QStringList ascending = order.split(" < ");
    for (int left = 0; left < ascending.size(); ++left) {
        for (int right = 0; right < ascending.size(); ++right) {
            for (const QString& first : ascending[left].split(" = ")) {
                for (const QString& second : ascending[right].split(" = ")) {
                    const auto found = *Version::parse(first.toStdString()) <=> *Version::parse(second.toStdString());
                    EXPECT_EQ(found, std::weak_ordering(left <=> right)) << (first + " and " + second).toStdString();
                }
            }
        }
    }
    const std::string tooLong(65, '1');
    for (const std::string_view text : {"", "v", "beta", "-1", ".5", tooLong.c_str()})
        EXPECT_FALSE(Version::parse(text)) << text;
    EXPECT_TRUE(Version::parse("1.\xff..\n\x80-%s"));
}

}  // namespace
}  // namespace orlamo::appcast
