#include "generators/StyleFile.h"

#include "core/TextCodec.h"

#include <QtEndian>

namespace qly::generators {

namespace {

const char kTitle[] = "Quillery 4.01";
const char kHead[] = "Style Definition";
const char kVersion[] = "4.01";
const char kEnd[] = "End Style Definition";

void putText(QByteArray &out, const QString &text)
{
    QByteArray bytes = core::encodeText(text, core::TextEncoding::Windows1252);
    if (bytes.size() > 0x7FFF)
        bytes.truncate(0x7FFF);
    const quint16 length = quint16(bytes.size());
    out.append(char(length & 0xFF)).append(char(length >> 8)).append(bytes);
}

void putNumber(QByteArray &out, qint16 n)
{
    const quint16 u = quint16(n);
    out.append(char(u & 0xFF)).append(char(u >> 8));
}

void padToSlot(QByteArray &out)
{
    const qsizetype rest = out.size() % kStyleSlotLength;
    if (rest)
        out.append(QByteArray(kStyleSlotLength - rest, '\0'));
}

// Reads items from a position; any read past the end marks the reader bad.
class Reader
{
public:
    Reader(const QByteArray &bytes, qsizetype at) : m_bytes(bytes), m_at(at) {}
    bool ok() const { return m_ok; }
    qsizetype position() const { return m_at; }

    qint16 number()
    {
        if (!m_ok || m_at + 2 > m_bytes.size()) {
            m_ok = false;
            return 0;
        }
        const qint16 n = qFromLittleEndian<qint16>(m_bytes.constData() + m_at);
        m_at += 2;
        return n;
    }
    QString text()
    {
        const quint16 length = quint16(number());
        if (!m_ok || m_at + length > m_bytes.size()) {
            m_ok = false;
            return {};
        }
        const QString s = core::decodeText(m_bytes.mid(m_at, length), core::TextEncoding::Windows1252);
        m_at += length;
        return s;
    }

private:
    const QByteArray &m_bytes;
    qsizetype m_at;
    bool m_ok = true;
};

} // namespace

QByteArray encodeStyleFile(const StyleRecord &record)
{
    QByteArray out;
    for (const char *marker : {kTitle, kHead, kVersion}) {
        putText(out, QString::fromLatin1(marker));
        padToSlot(out);
    }
    StyleRecord copy = record;
    copy.visit([&out](QString &s) { putText(out, s); }, [&out](qint16 &n) { putNumber(out, n); });
    padToSlot(out);
    putText(out, QString::fromLatin1(kEnd));
    padToSlot(out);
    return out;
}

StyleFileStatus decodeStyleFile(const QByteArray &bytes, StyleRecord &record)
{
    record = StyleRecord();
    Reader head(bytes, kStyleSlotLength);
    if (head.text() != QLatin1String(kHead) || !head.ok())
        return StyleFileStatus::Damaged;
    StyleRecord read;
    Reader body(bytes, 3 * kStyleSlotLength);
    read.visit([&body](QString &s) { s = body.text(); }, [&body](qint16 &n) { n = body.number(); });
    if (!body.ok())
        return StyleFileStatus::Damaged;
    const qsizetype used = body.position() - 3 * kStyleSlotLength;
    const qsizetype endSlot = 3 + (used + kStyleSlotLength - 1) / kStyleSlotLength;
    Reader end(bytes, endSlot * kStyleSlotLength);
    if (end.text() != QLatin1String(kEnd) || !end.ok())
        return StyleFileStatus::Damaged;
    record = read;
    return StyleFileStatus::Ok;
}

} // namespace qly::generators
