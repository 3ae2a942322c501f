#pragma once

#include <QString>
#include <functional>

namespace qly::publish {

// Showing the current document in external browsers. The text goes into a
// temporary "~qly" file beside the document (so relative links and images
// resolve), applet classes the page names are copied next to it, and the
// browser is asked to show the file.

// Previews the current document with `browser`; `mode` "ALL" uses every
// browser of [Browsers], from key 1 up to the first missing key.
void PreviewDocument(const QString &browser, const QString &mode = {});

// The directory for the temporary file, or a text starting with "ERROR:".
QString GetPreviewDirectory();

// The temporary file's name in `directory`: "~qlytemp.htm" with [General]
// "Fixed Temp File Name" on, else "~qly" + minutes and seconds + ".htm".
QString PreviewFileName(const QString &directory);

// Copies the support classes of the effect applets (ver, myfont,
// createcolor) from the program's "classes" folder into `directory`, each
// only where it is missing.
void CopyAppletClasses(const QString &directory);

// Copies the classes that the <APPLET> tags of `text` name from the
// program's "classes" folder into `directory`. The LED applet's help class
// "lfledhelp.class" goes in under the name `helperName`.
void CopyNeededApplets(const QString &text, const QString &directory, const QString &helperName);

// Shows `target` (a path or a URL) in `browser`: first by a conversation
// with a running browser, and when none answers, by starting the browser
// with the URL. True when the conversation succeeded. The first call of a
// run sends twice.
bool OpenInBrowser(const QString &browser, const QString &target);

// The URL a browser is given for `target`: a URL as it is, a path as a
// file URL with forward slashes.
QString BrowserUrl(const QString &target);

// Opens `url` in [File Locations] "Browser"; with none set, or none there,
// in the desktop's default browser.
void OpenInDefaultBrowser(const QString &url);

// A conversation with a running browser: open a topic with an item, send
// the request, read the reply. This desktop offers none, so the default
// link refuses at once and browsers are started instead; tests put in
// links that answer.
class BrowserLink
{
public:
    virtual ~BrowserLink() = default;
    // Opens a conversation on `topic` ("service|WWW_OpenURL") about `item`;
    // false when no browser answers.
    virtual bool open(const QString &topic, const QString &item) = 0;
    // Sends the request; `reply` receives the browser's text. False on failure.
    virtual bool request(QString &reply) = 0;
    // Brings the application with the given task value forward.
    virtual void activateTask(const QString &task) = 0;
    // Ends the conversation.
    virtual void close() = 0;
};
BrowserLink &browserLink();
// Null restores the default link.
void setBrowserLink(BrowserLink *link);

// The two values that live for the whole run: the task value (the service
// name, then the identifier of the browser last started) and whether the
// first preview's second sending was done.
struct PreviewRun {
    QString task;
    bool secondSendDone = false;
};
PreviewRun &previewRun();

// Before the preview tab's browser goes to `url`: a URL of a sound or film
// ("wav", "mov") asks whether to go on. False when the user says no.
bool AllowPreviewNavigation(const QString &url);

// The generic preview tool: with no [File Locations] "Browser", the box
// that points to the browser menu; with [General] "Choose Browser Before
// Preview" on, `chooseBrowser`; otherwise a preview with that browser.
// With no document nothing happens.
void tlbPreview_Click(const std::function<void()> &chooseBrowser);

// The address of the hosting control panel: [Lumenserve] "URL" ("http://"
// assumed, "/webmaster" when it names no page) with "UserName" and
// "Password". Empty when no URL is set.
QString HostPanelAddress();

// How the desktop's default browser is asked to open a URL; the editor
// fills it, without it nothing opens.
std::function<bool(const QString &url)> &systemUrlOpener();

} // namespace qly::publish
