#pragma once

#include <QByteArray>

namespace qly::publish {

// One pass of publishing over the bytes of a text that arrive in pieces.
// run() takes what it can decide from the front of `in`, removes it there and
// appends its result to `out`; bytes it needs to see more of (a CR that a LF
// may follow, a term cut in two) stay in `in` for the next call. With `last`
// the text ends after `in`, and everything must go.
class ByteStage
{
public:
    virtual ~ByteStage() = default;
    virtual void run(QByteArray &in, bool last, QByteArray &out) = 0;
};

} // namespace qly::publish
