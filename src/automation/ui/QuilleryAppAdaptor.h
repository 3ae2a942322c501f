#pragma once

#include <QDBusAbstractAdaptor>

namespace qly::automation {
class QuilleryApp;
}

namespace qly::automation::ui {

// QuilleryApp on the session bus: the same fifteen methods under the same
// names, with their documentation in the introspection data.
class QuilleryAppAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.quillery.QuilleryApp")
    Q_CLASSINFO("D-Bus Introspection",
    "  <interface name=\"org.quillery.QuilleryApp\">\n"
    "    <annotation name=\"org.gtk.GDBus.DocString\" value=\"Information about the Lumenfold Quillery\"/>\n"
    "    <annotation name=\"org.quillery.TypeLibrary\" value=\"Quillery: Lumenfold Quillery 4.01\"/>\n"
    "    <method name=\"AppPath\">\n"
    "      <annotation name=\"org.gtk.GDBus.DocString\" value=\"Returns the directory where the Quince executable lives\"/>\n"
    "      <arg type=\"s\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"TEPICurrentDocFilePath\">\n"
    "      <annotation name=\"org.gtk.GDBus.DocString\" value=\"Full filename of the current document.  This property is also in the CurrentDoc object\"/>\n"
    "      <arg type=\"s\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"CloseAllDocs\">\n"
    "      <annotation name=\"org.gtk.GDBus.DocString\" value=\"Close all opened documents in Quince.  Will NOT bypass the usual closing dialogs, prompts or questions.\"/>\n"
    "      <arg type=\"b\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"TEPINewDoc\">\n"
    "      <annotation name=\"org.gtk.GDBus.DocString\" value=\"Opens a new file using the default template (normal.tpl) and makes it the current document\"/>\n"
    "      <arg type=\"b\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"TEPIOpenDoc\">\n"
    "      <annotation name=\"org.gtk.GDBus.DocString\" value=\"Opens filename in Quince.  If filename is not supplied then the standard Open File dialog will be displayed in Quince\"/>\n"
    "      <arg name=\"Filename\" type=\"s\" direction=\"in\"/>\n"
    "      <arg type=\"b\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"TEPISaveAllDocs\">\n"
    "      <annotation name=\"org.gtk.GDBus.DocString\" value=\"Quince will save all the open documents without prompting\"/>\n"
    "      <arg type=\"b\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"TEPIGetNumDocuments\">\n"
    "      <arg type=\"n\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"TEPIGetCurrentDocument\">\n"
    "      <arg type=\"n\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"TEPIGetText\">\n"
    "      <arg type=\"s\" direction=\"out\"/>\n"
    "    </method>\n"
    "    <method name=\"TEPISetText\">\n"
    "      <arg name=\"text\" type=\"s\" direction=\"in\"/>\n"
    "    </method>\n"
    "    <method name=\"TEPIReplaceText\">\n"
    "      <arg name=\"text\" type=\"s\" direction=\"in\"/>\n"
    "    </method>\n"
    "    <method name=\"TEPIAddBody\">\n"
    "      <arg name=\"bodyText\" type=\"s\" direction=\"in\"/>\n"
    "    </method>\n"
    "    <method name=\"TEPIAddEndBody\">\n"
    "      <arg name=\"bodyText\" type=\"s\" direction=\"in\"/>\n"
    "    </method>\n"
    "    <method name=\"TEPIAddHead\">\n"
    "      <arg name=\"text\" type=\"s\" direction=\"in\"/>\n"
    "    </method>\n"
    "    <method name=\"TEPIAddEndHead\">\n"
    "      <arg name=\"text\" type=\"s\" direction=\"in\"/>\n"
    "    </method>\n"
    "  </interface>\n")
public:
    explicit QuilleryAppAdaptor(QuilleryApp *app);

public slots:
    QString AppPath();
    QString TEPICurrentDocFilePath();
    bool CloseAllDocs();
    bool TEPINewDoc();
    bool TEPIOpenDoc(const QString &Filename);
    bool TEPISaveAllDocs();
    qint16 TEPIGetNumDocuments();
    qint16 TEPIGetCurrentDocument();
    QString TEPIGetText();
    void TEPISetText(const QString &text);
    void TEPIReplaceText(const QString &text);
    void TEPIAddBody(const QString &bodyText);
    void TEPIAddEndBody(const QString &bodyText);
    void TEPIAddHead(const QString &text);
    void TEPIAddEndHead(const QString &text);

private:
    QuilleryApp *m_app;
};

} // namespace qly::automation::ui
