#pragma once

namespace orlamo::appcast {

/// How a check for updates ended. People are told each in words of its own.
enum class Outcome {
    upToDate,  // no allowed channel has a version greater than this one
    newVersion,
    noFeedAddress,     // the program came as a package, which is updated with the system
    badFeedAddress,    // no address, or not https
    insecureRedirect,  // sent on to an address that is not https
    tooManyRedirects,
    unreachable,  // no such host, refused, broken off
    untrusted,    // no secure connection: certificate or handshake
    timedOut,
    refused,     // a status other than 200
    tooLarge,    // longer than a feed may be
    unreadable,  // no feed, or one that nobody would write in good faith
};

}  // namespace orlamo::appcast
