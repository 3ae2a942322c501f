#include "generators/TableFramePreview.h"

#include "core/Paths.h"
#include "core/TextCodec.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "markup/TagPrimitives.h"
#include "platform/Prompts.h"

#include <QDir>
#include <QFileInfo>
#include <QTime>

namespace qly::generators {

QString TablePreviewPage(const QString &tableMarkup)
{
    return QStringLiteral("<HTML><BODY><TITLE>Table Preview</TITLE>\r\n") + tableMarkup
           + QStringLiteral("</BODY></HTML>");
}

QString PreviewPagePath()
{
    QString dir = QDir::currentPath();
    if (documents::Document *doc = documents::Workspace::CurrentDocument())
        if (!doc->LocalFileName.isEmpty())
            dir = QFileInfo(doc->LocalFileName).absolutePath();
    return core::JoinPath(dir, QStringLiteral("~qly") + QTime::currentTime().toString(QStringLiteral("mmss"))
                                   + QStringLiteral(".htm"));
}

core::IoResult WritePreviewPage(const QString &path, const QString &html)
{
    return core::writeFileAtomically(path, QByteArray("\xEF\xBB\xBF") + html.toUtf8());
}

bool InsertFixedTemplate(const QString &stem, int number)
{
    const QString path = core::JoinPath(core::JoinPath(core::ProgramDirectory(), QStringLiteral("Templates")),
                                        stem + QString::number(number) + QStringLiteral(".tpl"));
    QByteArray bytes;
    if (!core::FileExists(path) || !core::readWholeFile(path, bytes).ok()) {
        platform::MsgBox(QStringLiteral("Template file not found: ") + path);
        return false;
    }
    markup::InsertMarkup(core::decodeText(bytes, core::detectEncoding(bytes)), QString());
    return true;
}

} // namespace qly::generators
