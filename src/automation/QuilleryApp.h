#pragma once

#include <QObject>
#include <QString>

namespace qly::automation {

// What other programs and plug-ins may ask of the running editor. It keeps
// nothing: each call works on the current document at that moment, and a
// call that needs a document does nothing (and gives the empty value) when
// none is open.
class QuilleryApp : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

public slots:
    // The program's directory.
    QString AppPath() const;
    // The current document's file when it exists on disk, else "".
    QString TEPICurrentDocFilePath() const;
    // As Window > Close All, with its usual questions; true when all closed.
    bool CloseAllDocs();
    // A new document from the default template, made current.
    bool TEPINewDoc();
    // Opens a file and makes its window the active one; with an empty name
    // the Open dialog. A missing file shows the ordinary error box.
    bool TEPIOpenDoc(const QString &Filename);
    // Saves every changed document without the question first; untitled
    // documents still ask for their names.
    bool TEPISaveAllDocs();
    // 1 when a document is active, else 0: not a count.
    qint16 TEPIGetNumDocuments() const;
    qint16 TEPIGetCurrentDocument() const;
    QString TEPIGetText() const;
    void TEPISetText(const QString &text);
    // Inserts at the caret as every generator does.
    void TEPIReplaceText(const QString &text);
    // Inserts behind the <BODY ...> start tag, before </BODY>, behind the
    // <HEAD ...> start tag, or before </HEAD>; nothing when the tag is missing.
    void TEPIAddBody(const QString &bodyText);
    void TEPIAddEndBody(const QString &bodyText);
    void TEPIAddHead(const QString &text);
    void TEPIAddEndHead(const QString &text);
};

// Where the four Add methods put their text in `text`: the position behind
// the start tag or before the end tag named by `stem` ("<BOD", "</BOD",
// "<HEA", "</HEA") and its last letter, found without regard to case; -1
// when the tag is not there.
qsizetype AddPosition(const QString &text, const QString &stem, QChar marker);

} // namespace qly::automation
