#pragma once

#include "publish/ByteStage.h"

namespace qly::publish {

// Every CR LF replaced by a fixed text, from the left in one pass (a CR LF
// that a replacement brings together is left).
class LineEndStage : public ByteStage
{
public:
    explicit LineEndStage(const char *with);
    void run(QByteArray &in, bool last, QByteArray &out) override;

private:
    QByteArray m_with;
};

} // namespace qly::publish
