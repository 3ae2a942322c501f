#pragma once

#include "core/FileIo.h"

#include <QRect>
#include <QString>
#include <functional>

namespace qly::platform {
class HTMLEdit;
}

namespace qly::documents {

// The public face of a document window: one text buffer, a preview, and the
// facts about the file behind it. The two window kinds share it; tests use
// a window-less implementation over an in-memory buffer.
class Document
{
public:
    virtual ~Document() = default;

    QString HostName;        // FTP host of a remote document
    QString RemoteDir;       // remote directory of a remote document
    QString ShowFileName;    // name in the caption: a path, "Untitled-n" or a remote name
    QString UserName;        // FTP login of a remote document
    QString password;        // FTP password of a remote document
    QString LocalFileName;   // the file on disk; a temp file when remote; empty while untitled
    bool bRemote = false;
    qint16 filenum = 0;      // the number the file registry gave this file
    bool bNeedsPreview = false;

    virtual platform::HTMLEdit &txtDoc() = 0;

    // The window: caption, state (0 normal, 1 minimized, 2 maximized),
    // geometry in twips, tab (0 edit, 1 preview), activation.
    virtual QString caption() const = 0;
    virtual void setCaption(const QString &caption) = 0;
    virtual int windowState() const = 0;
    virtual void setWindowState(int state) = 0;
    virtual QRect geometryTwips() const = 0;
    virtual void setGeometryTwips(const QRect &twips) = 0;
    virtual int currentTab() const = 0;
    virtual void selectTab(int tab) = 0;
    virtual void activate() = 0;
    // Fills the preview tab with the current text.
    virtual void ShowMyScout(bool force = false) = 0;

    // True when LocalFileName names an existing file.
    bool IsSaved() const;
    // Loads the file into the buffer and registers it; false on failure.
    bool LoadFile(const QString &path);
    // Saves to LocalFileName, or asks for a name when there is none.
    bool Save();
    // Asks for a name, proposing the page's title, then NamedSaveAs.
    bool SaveAs();
    // Saves under `path` (the default extension added when it has none);
    // Dirty is left as it is.
    bool NamedSaveAs(const QString &path);
    // Writes the buffer to `path` and changes nothing else.
    core::IoResult RawSaveFile(const QString &path);
    // Saves the document to the FTP server it came from, or to the
    // directory the shared session is in.
    bool SaveRemote();
    void ShowCaptionAndTab(const QString &name, bool flag = false);

    // The caption less a window suffix ":n"; see StripDocSuffix.
    QString captionPath() const;
};

// Cuts a window suffix: the part from a colon after the drive part, when
// what follows it is a number above 0.
QString StripDocSuffix(const QString &caption);

// Seams for what later parts of the program add to saving and loading.
struct DocumentHooks {
    std::function<void(const QString &path)> addRecentFile;
    // A text file dropped on the current document; the text tools fill it.
    std::function<void(const QString &path)> insertTextFile;
    // A website project (".prj") to open; the websites fill it.
    std::function<bool(const QString &path)> openWebsite;
    // The channel pages of the New Document dialog (kinds 4 NetCaster and
    // 5 Active Channel): asks for the channel's values and returns what fills
    // the template's placeholders; an empty function when the user cancelled.
    // The generators fill it; unset, the placeholders stay.
    using PageFiller = std::function<QString(const QString &templateText)>;
    std::function<PageFiller(int kind)> askChannelPage;
    // A remote document's file has been written: send it to its server.
    // False keeps the document changed (and its local copy in place).
    std::function<bool(Document &document)> sendRemote;
    // Document::SaveRemote; the transfer part fills both.
    std::function<bool(Document &document)> saveRemote;
};
DocumentHooks &documentHooks();

} // namespace qly::documents
