#include "automation/ui/QuilleryAppAdaptor.h"

#include "automation/QuilleryApp.h"

namespace qly::automation::ui {

QuilleryAppAdaptor::QuilleryAppAdaptor(QuilleryApp *app) : QDBusAbstractAdaptor(app), m_app(app)
{
}

QString QuilleryAppAdaptor::AppPath()
{
    return m_app->AppPath();
}

QString QuilleryAppAdaptor::TEPICurrentDocFilePath()
{
    return m_app->TEPICurrentDocFilePath();
}

bool QuilleryAppAdaptor::CloseAllDocs()
{
    return m_app->CloseAllDocs();
}

bool QuilleryAppAdaptor::TEPINewDoc()
{
    return m_app->TEPINewDoc();
}

bool QuilleryAppAdaptor::TEPIOpenDoc(const QString &Filename)
{
    return m_app->TEPIOpenDoc(Filename);
}

bool QuilleryAppAdaptor::TEPISaveAllDocs()
{
    return m_app->TEPISaveAllDocs();
}

qint16 QuilleryAppAdaptor::TEPIGetNumDocuments()
{
    return m_app->TEPIGetNumDocuments();
}

qint16 QuilleryAppAdaptor::TEPIGetCurrentDocument()
{
    return m_app->TEPIGetCurrentDocument();
}

QString QuilleryAppAdaptor::TEPIGetText()
{
    return m_app->TEPIGetText();
}

void QuilleryAppAdaptor::TEPISetText(const QString &text)
{
    m_app->TEPISetText(text);
}

void QuilleryAppAdaptor::TEPIReplaceText(const QString &text)
{
    m_app->TEPIReplaceText(text);
}

void QuilleryAppAdaptor::TEPIAddBody(const QString &bodyText)
{
    m_app->TEPIAddBody(bodyText);
}

void QuilleryAppAdaptor::TEPIAddEndBody(const QString &bodyText)
{
    m_app->TEPIAddEndBody(bodyText);
}

void QuilleryAppAdaptor::TEPIAddHead(const QString &text)
{
    m_app->TEPIAddHead(text);
}

void QuilleryAppAdaptor::TEPIAddEndHead(const QString &text)
{
    m_app->TEPIAddEndHead(text);
}

} // namespace qly::automation::ui
