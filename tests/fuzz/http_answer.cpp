// A server's answer: read in one piece or in many, it says the same.
#include "platform/appcast/HttpAnswer.h"

#include "tests/fuzz/FuzzInput.h"

using namespace orlamo;
using appcast::HttpAnswer;
using fuzz::require;

namespace {

constexpr qint64 largestBody = 512;

HttpAnswer::State readIn(HttpAnswer& answer, const QByteArray& bytes, qsizetype piece) {
    HttpAnswer::State state = HttpAnswer::State::head;
    for (qsizetype at = 0; at < bytes.size(); at += piece) state = answer.take(bytes.mid(at, piece));
    require(answer.body().size() <= largestBody || state == HttpAnswer::State::tooLarge, "a body is bounded");
    return answer.end();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const QByteArray bytes(reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1);
    HttpAnswer whole(largestBody);
    HttpAnswer pieces(largestBody);
    const auto state = readIn(whole, bytes, std::max<qsizetype>(bytes.size(), 1));
    require(readIn(pieces, bytes, 1 + data[0] % 32) == state, "the pieces do not matter");
    require(state != HttpAnswer::State::complete || whole.body() == pieces.body(), "the body is the same");
    require(whole.status() == pieces.status(), "the status is the same");
    return 0;
}
