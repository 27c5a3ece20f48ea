#include "platform/appcast/PlainText.h"

#include <QSet>

namespace orlamo::appcast {

namespace {

constexpr qsizetype longestReference = 10;  // between & and ;

const QSet<QString> unseen{"script", "style", "head", "title"};
const QSet<QString> startsLine{"p", "div", "br", "li", "h1", "h2", "h3", "h4", "h5", "h6", "tr", "blockquote", "pre"};
const QSet<QString> endsLine{"p", "div", "ul", "ol", "h1", "h2", "h3", "h4", "h5", "h6", "table", "blockquote", "pre"};

bool isFormat(uint character) {
    switch (QChar::category(character)) {
        case QChar::Other_Control:
        case QChar::Other_Format:
        case QChar::Other_Surrogate:
        case QChar::Other_PrivateUse:
        case QChar::Other_NotAssigned:
            return true;
        default:
            return character == QChar::ObjectReplacementCharacter || character == QChar::ReplacementCharacter;
    }
}

bool isLineEnd(uint character) {
    return character == '\n' || character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
}

struct Tag {
    QString name;  // in lower case
    bool closes = false;
    qsizetype end = 0;  // behind the tag
};

/// The tag, comment or declaration that starts at a '<'; without an end it goes on to the end of the text.
Tag tagAt(const QString& markup, qsizetype at) {
    if (markup.mid(at, 4) == "<!--") {
        const qsizetype close = markup.indexOf("-->", at + 4);
        return {.name = {}, .closes = false, .end = close < 0 ? markup.size() : close + 3};
    }
    Tag tag;
    qsizetype next = at + 1;
    if (next < markup.size() && markup[next] == '/') {
        tag.closes = true;
        ++next;
    }
    while (next < markup.size() && markup[next].isLetterOrNumber()) tag.name += markup[next++].toLower();
    const qsizetype close = markup.indexOf('>', next);
    tag.end = close < 0 ? markup.size() : close + 1;
    return tag;
}

bool isTagStart(QChar next) {
    return next.isLetter() || next == '/' || next == '!' || next == '?';
}

/// What the reference that starts at an '&' stands for, and its length; nothing and 0 when it is none.
std::pair<QString, qsizetype> reference(const QString& markup, qsizetype at) {
    const qsizetype end = markup.mid(at + 1, longestReference + 1).indexOf(';');
    if (end < 1) return {};
    const QString name = markup.mid(at + 1, end);
    const qsizetype length = end + 2;
    static const QHash<QString, QString> named{{"amp", "&"},        {"lt", "<"},         {"gt", ">"},
                                               {"quot", "\""},      {"apos", "'"},       {"nbsp", " "},
                                               {"ndash", "\u2013"}, {"mdash", "\u2014"}, {"hellip", "\u2026"}};
    if (const auto found = named.find(name); found != named.end()) return {*found, length};
    if (name[0] != '#') return {};
    bool isNumber = false;
    const bool hexadecimal = name.size() > 1 && name[1].toLower() == 'x';
    const uint code = name.mid(hexadecimal ? 2 : 1).toUInt(&isNumber, hexadecimal ? 16 : 10);
    if (!isNumber || code == 0 || code > 0x10ffff) return {};
    const char32_t character = code;
    return {QString::fromUcs4(&character, 1), length};
}

}  // namespace

QString shownText(const QString& text, LineEnds lineEnds, qsizetype longest) {
    QString result;
    qsizetype lines = 0;  // line ends since the last word
    bool blank = false;
    for (const uint character : text.toUcs4()) {
        if (isLineEnd(character) && lineEnds == LineEnds::keep) {
            ++lines;
        } else if (QChar::isSpace(character)) {
            blank = true;
        } else if (!isFormat(character)) {
            const char32_t kept = character;
            QString next = QString::fromUcs4(&kept, 1);
            if (!result.isEmpty() && lines > 0) {
                next.prepend(lines > 1 ? "\n\n" : "\n");
            } else if (!result.isEmpty() && blank) {
                next.prepend(' ');
            }
            if (result.size() + next.size() > longest) return result + QChar(0x2026);
            result += next;
            lines = 0;
            blank = false;
        }
    }
    return result;
}

QString withoutMarkup(const QString& markup) {
    const qsizetype lastTagEnd = markup.lastIndexOf('>');  // a '<' behind it is no tag
    bool flows = false;                                    // tags end the lines, line ends do not
    QString result;
    QString hiddenUntil;  // the name of the element whose contents are not for reading
    for (qsizetype at = 0; at < markup.size();) {
        const QChar character = markup[at];
        if (character == '<' && at < lastTagEnd && isTagStart(markup[at + 1])) {
            const Tag tag = tagAt(markup, at);
            at = tag.end;
            if (!hiddenUntil.isEmpty()) {
                if (tag.closes && tag.name == hiddenUntil) hiddenUntil.clear();
            } else if (!tag.closes && unseen.contains(tag.name)) {
                hiddenUntil = tag.name;
            } else if ((tag.closes ? endsLine : startsLine).contains(tag.name)) {
                flows = true;
                result += '\n';
                if (tag.name == "li") result += u"\u2022 ";
            }
            continue;
        }
        ++at;
        if (!hiddenUntil.isEmpty()) continue;
        const auto [text, length] = character == '&' ? reference(markup, at - 1) : std::pair<QString, qsizetype>();
        if (length > 0) {
            result += text;
            at += length - 1;
        } else {
            result += flows && character == '\n' ? QChar(' ') : character;
        }
    }
    return result;
}

}  // namespace orlamo::appcast
