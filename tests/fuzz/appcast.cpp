// What the server of the update feed sends.
#include "platform/appcast/Feed.h"
#include "platform/appcast/HttpAnswer.h"
#include "platform/appcast/PlainText.h"
#include "platform/appcast/Version.h"
#include "tests/doubles/FakeLog.h"
#include "tests/fuzz/FuzzInput.h"

namespace orlamo::fuzz {

using namespace appcast;

namespace {

constexpr qint64 largestBody = 512;

HttpAnswer::State readIn(HttpAnswer& answer, const QByteArray& bytes, qsizetype piece) {
    HttpAnswer::State state = HttpAnswer::State::head;
    for (qsizetype at = 0; at < bytes.size(); at += piece) state = answer.take(bytes.mid(at, piece));
    require(answer.body().size() <= largestBody || state == HttpAnswer::State::tooLarge, "a body is bounded");
    return answer.end();
}

}  // namespace

/// An update feed as a server sends it.
void feed(std::string_view bytes) {
    const FakeLog log;
    const Feed parsed = parseFeed(QByteArray(bytes.data(), std::ssize(bytes)), "example.org");
    for (const Item& item : parsed.items) {
        require(item.versionText.size() <= 65 && item.notes.size() <= 10'001, "texts are bounded");
        for (const QChar character : item.versionText + item.notes) {
            require(character == '\n' || character.category() != QChar::Other_Control, "texts hold no controls");
            require(character.unicode() < 0x202a || character.unicode() > 0x202e, "texts turn no direction");
        }
        require(item.page.isEmpty() || (item.page.scheme() == "https" && item.page.host() == "example.org"),
                "a page is on the feed's host");
    }
    const auto newest = newestItem(parsed, {"beta"});
    for (const Item& item : parsed.items) {
        const bool counts = item.channel.isEmpty() || item.channel == "beta";
        require(!counts || (newest && !(item.version > newest->version)), "nothing is newer than the newest");
    }
}

/// A server's answer: read in one piece or in many, it says the same.
void http_answer(std::string_view bytes) {
    if (bytes.empty()) return;
    const QByteArray answer(bytes.data() + 1, std::ssize(bytes) - 1);
    HttpAnswer whole(largestBody), pieces(largestBody);
    const auto state = readIn(whole, answer, std::max<qsizetype>(answer.size(), 1));
    require(readIn(pieces, answer, 1 + FuzzInput(bytes).byte() % 32) == state, "the pieces do not matter");
    require(state != HttpAnswer::State::complete || whole.body() == pieces.body(), "the body is the same");
    require(whole.status() == pieces.status(), "the status is the same");
}

/// Notes of a release made fit for showing.
void plain_text(std::string_view bytes) {
    constexpr qsizetype longest = 200;
    const QString markup = QString::fromUtf8(bytes.data(), std::ssize(bytes));
    const QString words = withoutMarkup(markup);
    require(words.size() <= 2 * markup.size(), "markup does not grow");
    for (const LineEnds ends : {LineEnds::keep, LineEnds::drop}) {
        const QString shown = shownText(words, ends, longest);
        require(shown.size() <= longest + 1, "a text is bounded");
        require(shown.size() > longest || shownText(shown, ends, longest) == shown, "a shown text stays");
        require(shown.isValidUtf16(), "there is no half of a character");
        require(ends == LineEnds::keep || !shown.contains('\n'), "one line is one line");
        require(!shown.contains("\n\n\n") && !shown.contains("  "), "there are no runs of blanks");
    }
}

/// Three versions, one a line: their order is an order.
void versions(std::string_view bytes) {
    FuzzInput input(bytes);
    const auto a = Version::parse(input.line());
    const auto b = Version::parse(input.line());
    const auto c = Version::parse(input.line());
    if (!a || !b) return;
    require(*a == *a, "a version is itself");
    require((*a < *b) == (*b > *a) && (*a == *b) == (*b == *a), "the order has two sides");
    require(!c || !(*a <= *b && *b <= *c) || *a <= *c, "the order goes on");
    require(!c || *a != *b || (*a < *c) == (*b < *c), "equal ones stand at one place");
}

}  // namespace orlamo::fuzz
