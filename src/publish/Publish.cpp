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
#include "publish/Passes.h"
#include "publish/PublishStream.h"

#include <QFile>
#include <QTime>

#include <utility>

namespace qly::publish {

namespace {

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

// The passes on the characters of a text.
class StringPasses : public PassTarget
{
public:
    explicit StringPasses(QString &text)
        : m_text(text)
    {
    }
    void replaceLineEnds(const char *with) override { publish::replaceLineEnds(m_text, QString::fromLatin1(with)); }
    void translateCharacters() override { m_text = markup::TranslateCharacters(m_text); }
    void applyAliases() override { ApplyAliases(m_text); }
    void convertSlashesToUnix() override { ConvertSlashes(m_text, QStringLiteral("TOUNIX")); }

private:
    QString &m_text;
};

// Publishes the bytes of a page into `target`, which is replaced whole once
// it is complete. Where the passes give the same result on the page's bytes
// as on its characters, the bytes go through them piece by piece and are
// written as they come; otherwise the page is decoded, published as
// characters and written at the end.
core::IoResult publishInto(const QString &target, const QByteArray &page)
{
    core::AtomicFileWriter writer(target);
    const core::IoResult opened = writer.open();
    if (!opened.ok())
        return opened;
    const core::TextEncoding encoding = core::detectEncoding(page);
    const PassSettings settings = readPassSettings();
    if (canPublishBytes(settings, encoding)) {
        bool writing = false;
        const auto sink = [&writer, &writing](const char *data, qsizetype size) {
            if (!std::exchange(writing, true))
                core::ShowStatus(QStringLiteral("Writing file..."));
            return writer.write(data, size);
        };
        publishBytes(page, encoding, settings, sink);
        if (!writing)
            core::ShowStatus(QStringLiteral("Writing file..."));
    } else {
        QString text = core::decodeText(page, encoding);
        StringPasses passes(text);
        runPasses(settings, passes);
        const QByteArray bytes = core::encodeText(text, encoding);
        core::ShowStatus(QStringLiteral("Writing file..."));
        writer.write(bytes.constData(), bytes.size());
    }
    return writer.commit();
}

} // namespace

QString PublishText(QString &text)
{
    StringPasses passes(text);
    runPasses(readPassSettings(), passes);
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
    }
    core::IoResult written;
    if (failed) {
        // The target is written all the same, empty.
        core::ShowStatus(QStringLiteral("Writing file..."));
        written = core::writeFileAtomically(target, bytes);
    } else {
        written = publishInto(target, bytes);
    }
    core::EndWait();
    if (!written.ok()) {
        platform::MsgBox(QStringLiteral("Couldn't write ") + target + QStringLiteral(": ") + written.message,
                         platform::Buttons::Ok, platform::Icon::Exclamation);
        return false;
    }
    return !failed;
}

} // namespace qly::publish
