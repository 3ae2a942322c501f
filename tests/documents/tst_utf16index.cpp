#include "documents/Utf16Index.h"

#include <QRandomGenerator>
#include <QtTest>

using qly::documents::Utf16Index;

class tst_Utf16Index : public QObject
{
    Q_OBJECT
private slots:
    void positionsMatchQStringAfterEdits();
};

void tst_Utf16Index::positionsMatchQStringAfterEdits()
{
    QByteArray buffer;
    Utf16Index index([&buffer](std::int64_t pos, std::int64_t) { return buffer.constData() + pos; });
    const QString pieces[] = {QStringLiteral("a"), QStringLiteral("<p>"), QStringLiteral("\u00e9"),
                              QStringLiteral("\u20ac"), QStringLiteral("\U0001F600"), QStringLiteral("\r\n")};
    QRandomGenerator rng(5);
    // Larger than a few blocks, so that edits fall before, in and after them.
    QString text;
    while (text.size() < 3 * Utf16Index::kBlock)
        text += pieces[rng.bounded(6)];
    buffer = text.toUtf8();
    index.reset(buffer.size());

    for (int round = 0; round < 200; ++round) {
        QCOMPARE(index.totalUnits(), std::int64_t(text.size()));
        QCOMPARE(index.length(), std::int64_t(buffer.size()));
        // A character position and its byte agree both ways.
        for (int probe = 0; probe < 5; ++probe) {
            int chars = rng.bounded(int(text.size()) + 1);
            if (chars > 0 && chars < text.size() && text.at(chars).isLowSurrogate())
                --chars;   // the middle of a pair stands for its character
            const std::int64_t byte = text.left(chars).toUtf8().size();
            QCOMPARE(index.byteOf(chars), byte);
            QCOMPARE(index.unitsBefore(byte), std::int64_t(chars));
        }
        // An edit somewhere: what goes is read before it goes.
        int at = rng.bounded(int(text.size()) + 1);
        if (at > 0 && at < text.size() && text.at(at).isLowSurrogate())
            --at;
        const std::int64_t byte = text.left(at).toUtf8().size();
        if (rng.bounded(2) && at < text.size()) {
            int n = 1 + rng.bounded(std::min<int>(5000, int(text.size()) - at));
            if (at + n < text.size() && text.at(at + n).isLowSurrogate())
                ++n;
            const std::int64_t bytes = text.mid(at, n).toUtf8().size();
            index.removing(byte, bytes);
            buffer.remove(byte, bytes);
            text.remove(at, n);
        } else {
            QString piece;
            for (int k = rng.bounded(3000); k >= 0; --k)
                piece += pieces[rng.bounded(6)];
            buffer.insert(byte, piece.toUtf8());
            text.insert(at, piece);
            index.inserted(byte, piece.toUtf8().size());
        }
    }
}

QTEST_MAIN(tst_Utf16Index)
#include "tst_utf16index.moc"
