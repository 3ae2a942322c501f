#include "publish/Publish.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/TextCodec.h"
#include "documents/Workspace.h"
#include "documents/Document.h"
#include "markup/CharacterCodes.h"
#include "platform/Prompts.h"
#include "publish/Aliases.h"

#include <QFile>
#include <QTime>

namespace qly::publish {

namespace {

bool publishing(const char *key)
{
    return core::ReadSettingFlag(QStringLiteral("Publishing"), QString::fromLatin1(key));
}

// Every CR LF replaced by `with`, in one pass.
void replaceLineEnds(QString &text, QStringView with)
{
    const QString crlf = QStringLiteral("\r\n");
    qsizetype hit = text.indexOf(crlf);
    if (hit < 0)
        return;
    QString out;
    out.reserve(with.size() > 2 ? text.size() + text.size() / 8 : text.size());
    qsizetype from = 0;
    for (; hit >= 0; hit = text.indexOf(crlf, from)) {
        out.append(QStringView(text).mid(from, hit - from));
        out.append(with);
        from = hit + 2;
    }
    out.append(QStringView(text).mid(from));
    text = out;
}

} // namespace

QString PublishText(QString &text)
{
    core::ShowStatus(QStringLiteral("Processing Carriage Returns..."));
    if (publishing("Convert CRLF"))
        replaceLineEnds(text, u"<BR>");
    if (publishing("Strip CRLF"))
        replaceLineEnds(text, u"");
    core::ShowStatus(QStringLiteral("Processing Carriage Returns - DOS To Unix"));
    const bool unixText = publishing("Publish as UNIX Text");
    if (unixText)
        replaceLineEnds(text, u"\n");
    core::ShowStatus(QStringLiteral("Translating extended characters..."));
    if (publishing("Translate Extended Characters")) {
        markup::EnsureCharacterCodes();
        text = markup::TranslateCharacters(text);
    }
    if (publishing("Use Aliases")) {
        core::ShowStatus(QStringLiteral("Translating aliases..."));
        if (unixText)
            aliasesToUnixLineEnds();
        ApplyAliases(text);
    }
    if (publishing("Use UNIX Slashes")) {
        core::ShowStatus(QStringLiteral("Translating UNIX slashes..."));
        ConvertSlashes(text, QStringLiteral("TOUNIX"));
    }
    return text;
}

QString ConvertSlashes(QString &text, const QString &direction)
{
    char16_t from = 0;
    char16_t to = 0;
    if (direction.compare(QLatin1String("TOUNIX"), Qt::CaseInsensitive) == 0) {
        from = u'\\';
        to = u'/';
    } else if (direction.compare(QLatin1String("TODOS"), Qt::CaseInsensitive) == 0) {
        from = u'/';
        to = u'\\';
    } else {
        return text;
    }
    // The slashes change in place (one character for one), so one walk over
    // the text does it. Once no ">" follows a "<", none follows a later one.
    const qsizetype n = text.size();
    qsizetype open = text.indexOf(u'<');
    while (open >= 0) {
        const qsizetype p = open + 1;
        if (p >= n)
            break;
        const qsizetype close = text.indexOf(u'>', p);
        if (close < 0)
            break;
        if (close > p) {
            QChar *data = text.data();
            for (qsizetype i = p; i < close; ++i) {
                if (data[i] == from)
                    data[i] = to;
            }
            open = text.indexOf(u'<', close);
        } else {
            open = text.indexOf(u'<', p + 1);
        }
    }
    return text;
}

QString PrepareSource(const QString &source)
{
    if (!source.isEmpty()) {
        if (!core::FileExists(source))
            core::ErrorBox(QStringLiteral("File not found.") + QStringLiteral(": ") + source);
        return source;
    }
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return QString();
    QString dir = core::ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Publish"));
    if (!core::DirExists(dir)) {
        dir = core::DirectoryOf(doc->captionPath());
        if (!core::DirExists(dir)) {
            platform::MsgBox(QStringLiteral("Cannot publish an 'Untitled' document unless a 'Publish' directory has "
                                            "been chosen in Options / File Dirs"),
                             platform::Buttons::Ok, platform::Icon::Information, QStringLiteral("Cannot Publish File"));
            return QString();
        }
    }
    const QString path = core::JoinPath(dir, QStringLiteral("~qly") + QTime::currentTime().toString(QStringLiteral("mmss"))
                                                 + QStringLiteral(".tmp"));
    if (QFile::exists(path))
        QFile::remove(path);
    const core::IoResult saved = doc->RawSaveFile(path);
    if (!saved.ok())
        core::StepFailed(QStringLiteral("Could not write ") + path + QStringLiteral(": ") + saved.message);
    return path;
}

bool PublishFile(const QString &source, const QString &target)
{
    core::BeginWait();
    const QString path = PrepareSource(source);
    if (path.isEmpty()) {
        core::EndWait();
        return false;
    }
    if (!LoadAliases()) {
        core::EndWait();
        platform::MsgBox(QStringLiteral("Could not publish document"), platform::Buttons::Ok,
                         platform::Icon::Exclamation, QStringLiteral("Error While Loading Aliases"));
        return false;
    }
    if (core::FileExists(target) && !target.startsWith(QLatin1String("~qly"), Qt::CaseInsensitive)
        && !core::ReadSettingFlag(QStringLiteral("General"), QStringLiteral("Create BAK Files"))) {
        // The old target is kept as .bak; the new one then replaces it whole.
        const QString backup = core::StripExtension(target) + QStringLiteral(".bak");
        QFile::remove(backup);
        if (!QFile::copy(target, backup))
            core::StepFailed(QStringLiteral("Could not copy ") + target + QStringLiteral(" to ") + backup);
    }

    QByteArray bytes;
    const core::IoResult read = core::readWholeFile(path, bytes);
    const bool failed = !read.ok();
    if (failed) {
        core::EndWait();
        platform::MsgBox(QStringLiteral("Couldn't read ") + path, platform::Buttons::Ok, platform::Icon::Exclamation,
                         read.message);
        core::BeginWait();
        bytes.clear();
    } else {
        core::DecodedFile file = core::decodeFile(bytes);
        bytes.clear();
        PublishText(file.text);
        bytes = core::encodeText(file.text, file.encoding);
    }
    core::ShowStatus(QStringLiteral("Writing file..."));
    const core::IoResult written = core::writeFileAtomically(target, bytes);
    core::EndWait();
    if (!written.ok()) {
        platform::MsgBox(QStringLiteral("Couldn't write ") + target + QStringLiteral(": ") + written.message,
                         platform::Buttons::Ok, platform::Icon::Exclamation);
        return false;
    }
    return !failed;
}

} // namespace qly::publish
