#pragma once

#include "documents/Document.h"

#include <QUrl>
#include <QWidget>

class QTabWidget;
class QToolButton;
class QComboBox;
class QLabel;
class QPushButton;
class QVBoxLayout;
class QMdiSubWindow;
class QInputMethodEvent;

namespace qly::documents::ui {

class ScintillaEdit;

// A document window: the edit tab with the buffer, and the preview tab with
// its browser and toolbar. The two kinds below differ only in small points.
class DocumentWindow : public QWidget, public Document
{
    Q_OBJECT
public:
    explicit DocumentWindow(QWidget *parent = nullptr);
    ~DocumentWindow() override;

    platform::HTMLEdit &txtDoc() override;
    ScintillaEdit *edit() const { return m_edit; }

    QString caption() const override;
    void setCaption(const QString &caption) override;
    int windowState() const override;
    void setWindowState(int state) override;
    QRect geometryTwips() const override;
    void setGeometryTwips(const QRect &twips) override;
    int currentTab() const override;
    void selectTab(int tab) override;
    void activate() override;
    void ShowMyScout(bool force = false) override;

    // The applet support file that previews copy beside the page.
    virtual QString appletHelperFile() const = 0;
    // The kind name, as the window class is known.
    virtual QString kindName() const = 0;

    // Closes without the save question (the caller has asked already).
    void closeWithoutQuery();
    // True once the window has agreed to close.
    bool isClosing() const { return m_closing; }
    // The position panel text, "Ln:" line " Chr:" column.
    QString positionText() const;

    // The preview browser's own commands; Home shows the current text again.
    enum class BrowserCommand { Back, Forward, Stop, Refresh, Home };
    void runBrowserCommand(BrowserCommand command);
    // Links the selection to the page the preview shows.
    void cmdLinkTo_Click();
    // The temporary page written for the preview tab; empty before the
    // first and again once the tab has loaded it.
    QString scoutFile() const { return m_scoutFile; }

signals:
    void positionChanged(const QString &text);
    // The right button alone, in the text: the main window's popup menu.
    void popupRequested(const QPoint &globalPos);
    void activated();
    // The edit control's overwrite mode, after each key and when it gets the keyboard.
    void overwriteChanged(bool overwrite);

protected:
    // The key-up duty beyond marking the preview as stale.
    virtual bool runsKeyHookOnKeyUp() const = 0;

    void closeEvent(QCloseEvent *event) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QMdiSubWindow *subWindow() const;
    void onTabChanged(int tab);
    void updatePosition();
    void buildPreviewPage(QWidget *page);
    // The preview's page view, made on first use (a note when the browser
    // library cannot be loaded).
    QWidget *browser();
    void openInBrowser(const QUrl &url);
    void removeScoutFile();
    // Committed text of a dead key or an input method; true when it was put in here.
    bool inputMethodCommit(QInputMethodEvent *event);

    ScintillaEdit *m_edit = nullptr;
    QTabWidget *m_tabDoc = nullptr;
    QWidget *m_previewPage = nullptr;
    QVBoxLayout *m_previewLayout = nullptr;
    QWidget *m_browser = nullptr;
    bool m_browserMissing = false;
    QComboBox *m_cmbHistory = nullptr;
    QLabel *m_lblHistory = nullptr;
    QPushButton *m_cmdLinkTo = nullptr;
    QString m_caption;       // the caption without the window's change mark
    QString m_scoutFile;     // the page written for the preview tab, until it has loaded
    QUrl m_scoutUrl;         // where that page was shown
    QString m_scoutStub;     // the empty file that reserved its name
    bool m_skipQuery = false;
    bool m_closing = false;
    bool m_altClick = false;
    bool m_forwardingInput = false;
    int m_lastTab = 0;
};

// The window kind made when [Display] "Explorer Internal" is on.
class frmDocWeb final : public DocumentWindow
{
    Q_OBJECT
public:
    using DocumentWindow::DocumentWindow;
    QString appletHelperFile() const override { return QStringLiteral("lfledhelp.class"); }
    QString kindName() const override { return QStringLiteral("frmDocWeb"); }

protected:
    bool runsKeyHookOnKeyUp() const override { return true; }
};

// The window kind made otherwise.
class frmDocSax final : public DocumentWindow
{
    Q_OBJECT
public:
    using DocumentWindow::DocumentWindow;
    QString appletHelperFile() const override { return QStringLiteral("lfledhelper.class"); }
    QString kindName() const override { return QStringLiteral("frmDocSax"); }

protected:
    bool runsKeyHookOnKeyUp() const override { return false; }
};

} // namespace qly::documents::ui
