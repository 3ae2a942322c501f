#pragma once

#include "texttools/TextToHtml.h"

#include <QString>
#include <QStringList>

namespace qly::texttools {

// Conversion rules as words, for the command line and for stored cases:
//   --pre[=40|80|132]  --paragraphs  --list=bullet|numbered  --bullet=C
//   --keep-bullet  --first-heading=TAG  --other-heading=TAG  (TAG: H1 H2 H3 H4 I B)
//   --isolate=above|below|both  --breaks
// Each word sets its rule in `options`; false with `error` set on a word
// that is not one of these.
bool ParseConvertArguments(const QStringList &words, ConvertOptions &options, QString &error);

// The lines of the help text that describe the words.
QString ConvertArgumentsHelp();

} // namespace qly::texttools
