#include "publish/SlashStage.h"

#include <algorithm>
#include <cstring>

namespace qly::publish {

void SlashStage::run(QByteArray &in, bool last, QByteArray &out)
{
    char *data = in.data();
    const qsizetype n = in.size();
    qsizetype tagStart = 0;   // the first byte behind the "<" of an open tag
    qsizetype from = m_scanned;
    while (from < n || m_inTag) {
        if (!m_inTag) {
            const auto *open = static_cast<const char *>(std::memchr(data + from, '<', size_t(n - from)));
            if (!open)
                break;
            m_inTag = true;
            tagStart = open - data + 1;
            from = tagStart;
        }
        const auto *close =
            from < n ? static_cast<const char *>(std::memchr(data + from, '>', size_t(n - from))) : nullptr;
        if (!close) {
            if (last) {
                m_inTag = false;
                break;
            }
            // The tag's ">" has not come yet: what is before the tag goes.
            out.append(data, tagStart);
            in.remove(0, tagStart);
            m_scanned = n - tagStart;
            return;
        }
        std::replace(data + tagStart, const_cast<char *>(close), '\\', '/');
        m_inTag = false;
        from = close - data;
    }
    out.append(data, n);
    in.resize(0);
    m_scanned = 0;
}

} // namespace qly::publish
