#include "platform/qt/StandardOutputLog.h"

#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QString>
#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>

namespace orlamo::qt {

std::string logLineBytes(std::string_view text) {
    QByteArray bytes = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toUtf8();
    for (char& c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte < 0x20 && c != '\t') || byte == 0x7F) c = ' ';
    }
    bytes += '\n';
    return bytes.toStdString();
}

StandardOutputLog::StandardOutputLog(int descriptor) : descriptor_(descriptor) {
    std::signal(SIGPIPE, SIG_IGN);
}

bool StandardOutputLog::canWrite() {
    constexpr int patience = 100;  // milliseconds
    pollfd wanted{descriptor_, POLLOUT, 0};
    const int ready = poll(&wanted, 1, isStalled_ ? 0 : patience);
    isStalled_ = ready == 0;
    return ready > 0 && (wanted.revents & POLLOUT) != 0;
}

void StandardOutputLog::write(std::string_view line) {
    const std::string bytes = logLineBytes(line);
    struct stat status {};
    const bool mayBlock = fstat(descriptor_, &status) == 0 && !S_ISREG(status.st_mode);
    // What a pipe takes without blocking once it is writable.
    const std::size_t piece = mayBlock ? PIPE_BUF : bytes.size();
    for (std::size_t done = 0; done < bytes.size();) {
        if (mayBlock && !canWrite()) return;
        const ssize_t written = ::write(descriptor_, bytes.data() + done, std::min(piece, bytes.size() - done));
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return;
        done += static_cast<std::size_t>(written);
    }
}

}  // namespace orlamo::qt
