#include "documents/NewDocModel.h"

#include "core/Paths.h"
#include "documents/Document.h"
#include "documents/NewDocument.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

#include <QDir>

namespace qly::documents {

using namespace qly::core;

NewDocModel::NewDocModel()
{
    reloadUserTemplates();
}

QString NewDocModel::kindCaption(int kind)
{
    switch (kind) {
    case Normal: return QStringLiteral("Normal (HTML 3.2)");
    case Advanced: return QStringLiteral("Advanced");
    case UserDefined: return QStringLiteral("User Defined");
    case NetCaster: return QStringLiteral("NetCaster (Netscape Channels)");
    case ActiveChannel: return QStringLiteral("Active Channel (PointCast, Microsoft CDF File)");
    default: return {};
    }
}

QStringList NewDocModel::advancedRows()
{
    return {QStringLiteral("Blank"), QStringLiteral("HTML 1.0"), QStringLiteral("HTML 2.0"),
            QStringLiteral("HTML 3.2"), QStringLiteral("HTML 4.0"),
            QStringLiteral("Microsoft Internet Explorer 3.01 HTML"),
            QStringLiteral("Microsoft Internet Explorer 4.0 HTML")};
}

QStringList NewDocModel::advancedFiles()
{
    return {QStringLiteral("Blank.tpl"), QStringLiteral("HTML1.tpl"), QStringLiteral("HTML2.tpl"),
            QStringLiteral("HTML32.tpl"), QStringLiteral("HTML4.tpl"), QStringLiteral("IE3.tpl"),
            QStringLiteral("IE4.tpl")};
}

void NewDocModel::reloadUserTemplates()
{
    const QDir dir(CustomTemplatesDirectory());
    m_userTemplates = dir.entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    if (userTemplate.isEmpty() && !m_userTemplates.isEmpty())
        userTemplate = m_userTemplates.first();
}

Document *NewDocModel::createFromTemplate(const QString &fileName, const QString &missingText) const
{
    const QString path = JoinPath(TemplatesDirectory(), fileName);
    if (!FileExists(path)) {
        if (!missingText.isEmpty())
            platform::MsgBox(missingText);
        return nullptr;
    }
    return NewDocument(path);
}

// The channel's dialog comes first; its values fill the new page's placeholders.
Document *NewDocModel::createChannelPage(const QString &fileName, const QString &missingText) const
{
    DocumentHooks::PageFiller fill;
    if (documentHooks().askChannelPage) {
        fill = documentHooks().askChannelPage(kind);
        if (!fill)
            return nullptr;
    }
    Document *doc = createFromTemplate(fileName, missingText);
    if (doc && fill) {
        doc->txtDoc().setText(fill(doc->txtDoc().Text()));
        doc->txtDoc().ColorHTML();
    }
    return doc;
}

Document *NewDocModel::create() const
{
    switch (kind) {
    case Normal: {
        const QString normal = JoinPath(TemplatesDirectory(), QStringLiteral("HTML32.tpl"));
        return NewDocument(FileExists(normal) ? normal : QString());
    }
    case Advanced: {
        const QStringList files = advancedFiles();
        if (advancedRow < 0 || advancedRow >= files.size())
            return nullptr;
        return createFromTemplate(files.at(advancedRow), QString());
    }
    case UserDefined: {
        const QString path = JoinPath(CustomTemplatesDirectory(), userTemplate);
        if (userTemplate.isEmpty() || !FileExists(path)) {
            platform::MsgBox(QStringLiteral("The specified file does not exist"));
            return nullptr;
        }
        return NewDocument(path);
    }
    case NetCaster:
        return createChannelPage(QStringLiteral("NetCaster.tpl"),
                                 QStringLiteral("Quillery cannot find the template file for NetCaster Channels"));
    case ActiveChannel:
        return createChannelPage(QStringLiteral("ActiveChannel.tpl"),
                                 QStringLiteral("Quillery cannot find the template file for Active Channels"));
    default:
        return nullptr;
    }
}

} // namespace qly::documents
