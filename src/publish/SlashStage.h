#pragma once

#include "publish/ByteStage.h"

namespace qly::publish {

// "\" turned into "/" inside tags, by the rule of ConvertSlashes: from a "<"
// to the next ">"; a "<" that no ">" follows changes nothing behind it, so
// the text of an open tag waits until its ">" or the end has come.
class SlashStage : public ByteStage
{
public:
    void run(QByteArray &in, bool last, QByteArray &out) override;

private:
    bool m_inTag = false;
    qsizetype m_scanned = 0;   // bytes of `in` known to hold no ">", inside a tag
};

} // namespace qly::publish
