// Notes of a release made fit for showing.
#include "platform/appcast/PlainText.h"

#include "tests/fuzz/FuzzInput.h"

using namespace orlamo::appcast;
using orlamo::fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr qsizetype longest = 200;
    const QString markup = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
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
    return 0;
}
