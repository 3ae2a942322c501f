#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

class QLabel;
class QLayout;

namespace qly::generators::ui {

// The live preview of a generator dialog: after each change, once the
// dialog has been idle for [Display] "Scout Refresh" seconds (1 when unset),
// the page is written beside the current document and shown. The browser
// is made only when the pane is switched on, so dialogs work without it.
class PreviewPane final : public QWidget
{
    Q_OBJECT
public:
    // `page` gives the whole page to show.
    explicit PreviewPane(std::function<QString()> page, QWidget *parent = nullptr);
    ~PreviewPane() override;

    void setLive(bool live);
    bool live() const { return m_view != nullptr; }
    // The page view (a QWebEngineView) while the pane is live, else null.
    QWidget *view() const { return m_view; }
    // Something changed: the refresh timer starts again.
    void changed();
    // The same, only while the pane is live.
    void changedIfLive();
    // The Preview button of a dialog whose pane is hidden until first asked
    // for: shows the pane live, with `dialog` grown where the screen allows,
    // or refreshes it at once when it shows already.
    void showLive(QWidget *dialog);
    // Writes the page at once and shows it; false when it could not be written.
    bool refreshNow();
    QString pagePath() const { return m_path; }
    // Called after each write with the page's path and text, e.g. to copy
    // the files the page needs beside it.
    void onWritten(std::function<void(const QString &path, const QString &page)> written);
    int refreshInterval() const { return m_timer.interval(); }

private:
    std::function<QString()> m_page;
    std::function<void(const QString &, const QString &)> m_written;
    QWidget *m_view = nullptr;
    QLabel *m_message = nullptr;
    QTimer m_timer;
    QString m_path;
};

// Gives a generator dialog its preferred size, or as much of it as the
// screen has room for.
void fitToScreen(QWidget *dialog, const QSize &preferred);

// The fields of a dialog in a panel that scrolls when the screen is too
// small for them (large fonts, a doubled scale).
QWidget *scrolledPanel(QLayout *fields, QWidget *parent);

} // namespace qly::generators::ui
