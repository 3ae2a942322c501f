#include "texttools/FileRewrite.h"

#include "core/Paths.h"
#include "markup/TextOps.h"
#include "publish/Publish.h"

#include <QByteArray>

namespace qly::texttools {

long RewriteText(QString &text, const QList<Term> &terms, LineEndConversion conversion)
{
    long count = 0;
    for (const Term &t : terms) {
        if (!t.find.isEmpty())
            count += markup::ReplaceAll(text, t.find, t.replacement, markup::TextCompare);
    }
    if (conversion == LineEndConversion::DosToUnix) {
        markup::ReplaceAll(text, QStringLiteral("\r\n"), QStringLiteral("\n"), markup::BinaryCompare);
        publish::ConvertSlashes(text, QStringLiteral("TOUNIX"));
    } else if (conversion == LineEndConversion::UnixToDos) {
        markup::ReplaceAll(text, QStringLiteral("\n"), QStringLiteral("\r\n"), markup::BinaryCompare);
        publish::ConvertSlashes(text, QStringLiteral("TODOS"));
    }
    return count;
}

QString TargetPath(const QString &path, bool htmToHtml)
{
    if (htmToHtml && core::GetFileExt(path).compare(QLatin1String("htm"), Qt::CaseInsensitive) == 0)
        return core::StripExtension(path) + QStringLiteral(".html");
    return path;
}

QString CasedPath(const QString &path, NameCase nameCase)
{
    if (nameCase == NameCase::DontChange)
        return path;
    QString name = core::FileNameOf(path).toLower();
    if (nameCase == NameCase::Mixed) {
        bool wordStart = true;
        for (QChar &c : name) {
            if (wordStart && c.isLetter())
                c = c.toUpper();
            wordStart = c.isSpace();
        }
    }
    return path.left(path.size() - core::FileNameOf(path).size()) + name;
}

QString BackupPath(const QString &path)
{
    return core::StripExtension(path) + QStringLiteral(".bak");
}

bool LooksBinary(const QByteArray &bytes)
{
    return QByteArrayView(bytes.constData(), std::min<qsizetype>(bytes.size(), 8192)).indexOf(char(0)) >= 0;
}

} // namespace qly::texttools
