#include "platform/appcast/HttpAnswer.h"

#include <QList>
#include <algorithm>
#include <cctype>
#include <optional>

namespace orlamo::appcast {

namespace {

constexpr qsizetype longestHead = 16 << 10;
constexpr qsizetype longestChunkLine = 256;  // its size in hexadecimal, and what a server adds to it

/// Digits only: no sign, no blanks, nothing that does not fit.
std::optional<qint64> number(const QByteArray& text, int base) {
    const auto isDigit = [base](char character) {
        return (character >= '0' && character <= '9') ||
               (base == 16 && std::isxdigit(static_cast<unsigned char>(character)));
    };
    bool fits = false;
    const qint64 value = text.toLongLong(&fits, base);
    if (!fits || !std::ranges::all_of(text, isDigit)) return std::nullopt;
    return value;
}

}  // namespace

HttpAnswer::State HttpAnswer::take(const QByteArray& bytes) {
    if (state_ != State::head && state_ != State::body) return state_;
    pending_ += bytes;
    while (state_ == State::head) {
        const qsizetype before = pending_.size();
        state_ = takeHead();
        if (pending_.size() == before) break;
    }
    if (state_ == State::body) state_ = takeBody();
    return state_;
}

HttpAnswer::State HttpAnswer::end() {
    if (state_ == State::body && framing_ == Framing::untilEnd) state_ = State::complete;
    if (state_ == State::head || state_ == State::body) state_ = State::broken;
    return state_;
}

HttpAnswer::State HttpAnswer::takeHead() {
    const qsizetype end = pending_.indexOf("\r\n\r\n");
    const qsizetype length = end < 0 ? pending_.size() : end + 4;
    if (headBytes_ + length > longestHead) return State::tooLarge;
    if (end < 0) return State::head;
    headBytes_ += length;
    const QByteArray head = pending_.left(end);
    pending_.remove(0, length);
    return readHead(head);
}

HttpAnswer::State HttpAnswer::readHead(const QByteArray& head) {
    const QList<QByteArray> lines = head.split('\n');
    // HTTP/1.1 200 OK
    const QList<QByteArray> words = lines.front().trimmed().split(' ');
    if (!words.front().startsWith("HTTP/1.") || words.size() < 2 || words[1].size() != 3) return State::broken;
    const auto status = number(words[1], 10);
    if (!status || *status < 100 || *status == 101) return State::broken;
    if (*status < 200) return State::head;  // an interim answer; the real one follows

    status_ = static_cast<int>(*status);
    for (const QByteArray& line : lines.mid(1)) {
        const qsizetype colon = line.indexOf(':');
        if (colon < 1) return State::broken;
        const QByteArray name = line.left(colon).toLower();
        const QByteArray value = line.mid(colon + 1).trimmed();
        if (name == "content-length" && headers_.contains(name) && headers_.value(name) != value) return State::broken;
        headers_.insert(name, value);
    }
    return chooseFraming();
}

HttpAnswer::State HttpAnswer::chooseFraming() {
    const QByteArray transfer = header("transfer-encoding").toLower();
    if (!transfer.isEmpty()) {
        framing_ = Framing::chunks;
        return transfer == "chunked" ? State::body : State::broken;
    }
    if (!headers_.contains("content-length")) return State::body;
    framing_ = Framing::length;
    const auto length = number(header("content-length"), 10);
    if (!length) return State::broken;
    left_ = *length;
    return left_ > largestBody_ ? State::tooLarge : State::body;
}

HttpAnswer::State HttpAnswer::takeBody() {
    if (framing_ == Framing::chunks) return takeChunks();
    if (framing_ == Framing::length) pending_.truncate(left_);
    body_ += pending_;
    left_ -= pending_.size();
    pending_.clear();
    if (body_.size() > largestBody_) return State::tooLarge;
    return framing_ == Framing::length && left_ == 0 ? State::complete : State::body;
}

HttpAnswer::State HttpAnswer::takeChunks() {
    while (!pending_.isEmpty()) {
        if (chunk_ == Chunk::data) {
            const qsizetype part = std::min<qint64>(left_, pending_.size());
            body_ += pending_.left(part);
            pending_.remove(0, part);
            left_ -= part;
            if (left_ == 0) chunk_ = Chunk::lineEnd;
            continue;
        }
        const qsizetype end = pending_.indexOf("\r\n");
        if (end < 0 || end > longestChunkLine) {
            // One more byte: the line's end may have arrived by half.
            return pending_.size() > longestChunkLine + 1 ? State::broken : State::body;
        }
        const QByteArray line = pending_.left(end);
        pending_.remove(0, end + 2);
        if (chunk_ == Chunk::lineEnd) {
            if (!line.isEmpty()) return State::broken;
            chunk_ = Chunk::size;
            continue;
        }
        const auto size = number(line.split(';').front().trimmed(), 16);
        if (!size) return State::broken;
        if (*size == 0) return State::complete;  // what may follow says nothing about the body
        if (*size > largestBody_ - body_.size()) return State::tooLarge;
        left_ = *size;
        chunk_ = Chunk::data;
    }
    return State::body;
}

}  // namespace orlamo::appcast
