#include "websites/Password.h"

#include "core/TextCodec.h"
#include "websites/ProjectFile.h"

#include <QFileInfo>

#include <QStringList>

namespace qly::websites {

namespace {

QByteArray xorBytes(QByteArray bytes)
{
    static const QByteArray key("Keep it behind bars");
    for (qsizetype i = 0; i < bytes.size(); ++i)
        bytes[i] = char(bytes.at(i) ^ key.at(i % key.size()));
    return bytes;
}

// The number at the start of a text, blanks before it skipped; 0 when none.
long leadingNumber(const QString &text, bool *whole = nullptr)
{
    qsizetype i = 0;
    while (i < text.size() && text.at(i) == u' ')
        ++i;
    bool negative = false;
    if (i < text.size() && (text.at(i) == u'-' || text.at(i) == u'+'))
        negative = text.at(i++) == u'-';
    long n = 0;
    const qsizetype digits = i;
    for (; i < text.size() && text.at(i).isDigit() && n < 100000; ++i)
        n = n * 10 + text.at(i).digitValue();
    if (whole)
        *whole = i > digits && i == text.size();
    return negative ? -n : n;
}

} // namespace

QString XorWithKey(const QString &text)
{
    using namespace core;
    return decodeText(xorBytes(encodeText(text, TextEncoding::Windows1252)), TextEncoding::Windows1252);
}

QString ScramblePassword(const QString &text, const QString &mode)
{
    using namespace core;
    const bool encode = mode.compare(QLatin1String("ENC"), Qt::CaseInsensitive) == 0;
    if (!encode && !text.contains(u','))
        return text;
    if (encode) {
        const QByteArray scrambled = xorBytes(encodeText(text, TextEncoding::Windows1252));
        QStringList codes;
        codes.reserve(scrambled.size());
        for (char c : scrambled)
            codes << QString::number(uchar(c));
        return codes.join(u',');
    }
    QByteArray bytes;
    for (const QString &piece : text.split(u',')) {
        const long code = leadingNumber(piece);
        if (code >= 0 && code <= 255)   // a code out of range is passed over
            bytes.append(char(code));
    }
    return decodeText(xorBytes(bytes), TextEncoding::Windows1252);
}

bool IsWellFormedScrambled(const QString &stored)
{
    if (!stored.contains(u','))
        return true;
    for (const QString &piece : stored.split(u',')) {
        bool whole = false;
        const long code = leadingNumber(piece.trimmed(), &whole);
        if (!whole || code < 0 || code > 255)
            return false;
    }
    return true;
}

SecretStore &secretStore()
{
    static SecretStore store;
    return store;
}

namespace {
const QString DetailsSection = QStringLiteral("Details");
const QString StoreKey = QStringLiteral("Password Store");
QString secretKey(const QString &projectFile)
{
    return QStringLiteral("website ") + QFileInfo(projectFile).absoluteFilePath();
}
} // namespace

bool PasswordInKeyring(const QString &projectFile)
{
    return ReadProjectValue(projectFile, DetailsSection, StoreKey).compare(QLatin1String("keyring"), Qt::CaseInsensitive) == 0;
}

QString ProjectPassword(const QString &projectFile)
{
    if (PasswordInKeyring(projectFile) && secretStore().available())
        return secretStore().read(secretKey(projectFile)).value_or(QString());
    return ScramblePassword(ReadProjectValue(projectFile, DetailsSection, QStringLiteral("Password")), QStringLiteral("DEC"));
}

bool StoreProjectPassword(const QString &projectFile, const QString &password, bool keyring)
{
    const QString key = secretKey(projectFile);
    if (keyring && secretStore().available() && secretStore().write(key, password)) {
        WriteProjectValue(DetailsSection, QStringLiteral("Password"), QString(), projectFile);
        WriteProjectValue(DetailsSection, StoreKey, QStringLiteral("keyring"), projectFile);
        return true;
    }
    WriteProjectValue(DetailsSection, QStringLiteral("Password"), ScramblePassword(password, QStringLiteral("ENC")), projectFile);
    if (PasswordInKeyring(projectFile)) {
        WriteProjectValue(DetailsSection, StoreKey, QString(), projectFile);
        if (secretStore().remove)
            secretStore().remove(key);
    }
    return false;
}

} // namespace qly::websites
