#pragma once

#include <QString>

namespace orlamo::appcast {

enum class LineEnds { keep, drop };

/// Text from outside made fit for showing: no control, format or bidirectional characters, no unpaired surrogates, no
/// runs of blanks or of more than one empty line, at most `longest` code units, an ellipsis where it was cut.
QString shownText(const QString& text, LineEnds lineEnds, qsizetype longest);

/// The words of a text with markup: tags fall away, blocks become lines, list items get a bullet, the common character
/// references are resolved. Takes time in proportion to the text.
QString withoutMarkup(const QString& markup);

}  // namespace orlamo::appcast
