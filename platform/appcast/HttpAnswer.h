#pragma once

#include <QByteArray>
#include <QMap>

namespace orlamo::appcast {

/// A server's answer to one GET, read as it arrives: HTTP/1.0 or 1.1, with a length, in chunks or up to the end of the
/// connection. Every part has a limit. The toolkit's own reader takes a head of any length into memory.
class HttpAnswer {
public:
    enum class State { head, body, complete, tooLarge, broken };

    /// `largestBody` in bytes. The head may have 16 KiB, with the interim answers before it.
    explicit HttpAnswer(qint64 largestBody) : largestBody_(largestBody) {}

    /// More bytes from the server. Nothing changes any more once the answer is complete, too large or broken.
    State take(const QByteArray& bytes);
    /// The server has hung up.
    State end();

    /// 0 before the head was read.
    int status() const { return status_; }
    /// The value of a header, by its name in lower case; empty without one.
    QByteArray header(const QByteArray& name) const { return headers_.value(name); }
    const QByteArray& body() const { return body_; }

private:
    enum class Framing { length, chunks, untilEnd };

    /// What is read next of an answer in chunks.
    enum class Chunk { size, data, lineEnd };

    State takeHead();
    State readHead(const QByteArray& head);
    State chooseFraming();
    State takeBody();
    State takeChunks();

    qint64 largestBody_;
    State state_ = State::head;
    QByteArray pending_;  // arrived, not yet read
    qsizetype headBytes_ = 0;
    int status_ = 0;
    QMap<QByteArray, QByteArray> headers_;
    Framing framing_ = Framing::untilEnd;
    Chunk chunk_ = Chunk::size;
    qint64 left_ = 0;  // bytes of the body, or of the chunk, that are still to come
    QByteArray body_;
};

}  // namespace orlamo::appcast
