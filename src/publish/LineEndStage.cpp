#include "publish/LineEndStage.h"

#include <cstring>

namespace qly::publish {

LineEndStage::LineEndStage(const char *with)
    : m_with(with)
{
}

void LineEndStage::run(QByteArray &in, bool last, QByteArray &out)
{
    const char *data = in.constData();
    const qsizetype n = in.size();
    qsizetype copied = 0;
    qsizetype from = 0;
    while (from < n) {
        const auto *cr = static_cast<const char *>(std::memchr(data + from, '\r', size_t(n - from)));
        if (!cr)
            break;
        const qsizetype at = cr - data;
        if (at + 1 == n) {
            if (last)
                break;
            // The LF that makes it a line end may come with the next piece.
            out.append(data + copied, at - copied);
            in.remove(0, at);
            return;
        }
        if (data[at + 1] == '\n') {
            out.append(data + copied, at - copied);
            out.append(m_with);
            copied = at + 2;
            from = copied;
        } else {
            from = at + 1;
        }
    }
    out.append(data + copied, n - copied);
    in.resize(0);
}

} // namespace qly::publish
