#include "core/TextCodec.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace qly::core;

class tst_TextCodec : public QObject
{
    Q_OBJECT
private slots:
    void everyByteSurvivesWindows1252();
    void randomBytesRoundTrip();
    void validationAgreesWithQt();
    void unencodableCharactersBecomeReferences();
};

void tst_TextCodec::everyByteSurvivesWindows1252()
{
    QByteArray all;
    for (int b = 0; b < 256; ++b)
        all += char(b);
    const QString text = decodeText(all, TextEncoding::Windows1252);
    QCOMPARE(text.size(), 256);
    QCOMPARE(text.at(0x80), QChar(0x20AC));
    QCOMPARE(text.at(0x81), QChar(0x81));
    QCOMPARE(text.at(0xE9), QChar(u'é'));
    QCOMPARE(encodeText(text, TextEncoding::Windows1252), all);
    QCOMPARE(utf8ToWindows1252(windows1252ToUtf8(all)), all);
    QCOMPARE(windows1252ToUtf8(all), text.toUtf8());
}

void tst_TextCodec::randomBytesRoundTrip()
{
    QRandomGenerator rng(42);
    for (int round = 0; round < 300; ++round) {
        QByteArray bytes(int(rng.bounded(64)), Qt::Uninitialized);
        for (char &c : bytes)
            c = char(rng.bounded(256));
        const DecodedFile file = decodeFile(bytes);
        QCOMPARE(encodeText(file.text, file.encoding), bytes);
    }
}

void tst_TextCodec::validationAgreesWithQt()
{
    QRandomGenerator rng(1);
    // Biased towards UTF-8 lead and continuation bytes so that both answers occur.
    const QByteArray pool("a\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80\xed\xa0\x80\xc0\xf5\x80\xbf", 19);
    int valid = 0;
    for (int round = 0; round < 2000; ++round) {
        QByteArray bytes;
        for (int i = 0, n = int(rng.bounded(12)); i < n; ++i)
            bytes += pool[rng.bounded(int(pool.size()))];
        // Valid exactly when decoding and encoding back change nothing.
        const bool expected = QString::fromUtf8(bytes).toUtf8() == bytes && !bytes.contains("\xed\xa0");
        QCOMPARE(isValidUtf8(bytes), expected);
        valid += expected;
    }
    QVERIFY(valid > 100 && valid < 1900);
    QVERIFY(isValidUtf8(QByteArray(100, 'a') + "\xc3\xa9"));
    QVERIFY(!isValidUtf8(QByteArray(100, 'a') + "\xc3"));
}

void tst_TextCodec::unencodableCharactersBecomeReferences()
{
    const QString text = QStringLiteral("a→b") + QString::fromUtf8("\xF0\x9F\x98\x80");
    QCOMPARE(encodeText(text, TextEncoding::Windows1252), QByteArray("a&#8594;b&#128512;"));
    QCOMPARE(utf8ToWindows1252(text.toUtf8()), QByteArray("a&#8594;b&#128512;"));
}

QTEST_GUILESS_MAIN(tst_TextCodec)
#include "tst_textcodec.moc"
