#pragma once

#include "core/TextCodec.h"
#include "publish/Passes.h"

#include <QByteArray>

#include <functional>

namespace qly::publish {

// Whether the passes give the same result on the bytes of a text in
// `encoding` as on its characters: every text that they can bring in (the
// character table's results, the aliases' terms and replacements) is
// written in that encoding as it is. A Windows-1252 page with an alias
// outside that code page is not; it is published as characters.
bool canPublishBytes(const PassSettings &settings, core::TextEncoding encoding);

// Publishes the bytes of a page with the passes that `settings` switch on,
// as a pipeline: the page goes through all passes a piece at a time (so each
// piece is still in the cache from one pass to the next, and no pass copies
// the whole text), and the result goes to `sink` as it is made, in blocks.
// Shows the passes' status texts. False when `sink` refused a block; the run
// then stops. Requires canPublishBytes().
using ByteSink = std::function<bool(const char *data, qsizetype size)>;
bool publishBytes(const QByteArray &page, core::TextEncoding encoding, const PassSettings &settings,
                  const ByteSink &sink, qsizetype pieceSize = 32 * 1024);

} // namespace qly::publish
