#include "generators/ui/PreviewPane.h"

#include "core/Settings.h"
#include "generators/TableFramePreview.h"
#include "platform/ui/Browser.h"

#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace qly::generators::ui {

PreviewPane::PreviewPane(std::function<QString()> page, QWidget *parent) : QWidget(parent), m_page(std::move(page))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_message = new QLabel(this);
    m_message->hide();
    layout->addWidget(m_message);
    const int seconds = QStringView(core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Scout Refresh"))).trimmed().toInt();
    m_timer.setInterval(std::clamp(seconds, 1, 60) * 1000);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { refreshNow(); });
}

PreviewPane::~PreviewPane()
{
    if (!m_path.isEmpty())
        QFile::remove(m_path);
}

void PreviewPane::setLive(bool live)
{
    if (live && !m_view) {
        QString error;
        m_view = platform::ui::createBrowser(this, {}, &error);
        if (!m_view) {
            m_message->setText(platform::ui::browserUnavailable(error));
            m_message->setVisible(true);
            return;
        }
        m_view->setMinimumHeight(60);
        layout()->addWidget(m_view);
        refreshNow();
    } else if (!live && m_view) {
        delete m_view;
        m_view = nullptr;
    }
}

void PreviewPane::onWritten(std::function<void(const QString &, const QString &)> written)
{
    m_written = std::move(written);
}

void PreviewPane::changed()
{
    m_timer.start();
}

void PreviewPane::changedIfLive()
{
    if (m_view)
        changed();
}

void PreviewPane::showLive(QWidget *dialog)
{
    if (m_view) {
        refreshNow();
        return;
    }
    // The dialog grows first, then the browser takes the new room.
    const int room = fontMetrics().height() * 12;
    fitToScreen(dialog, dialog->size() + QSize(0, room));
    show();
    setLive(true);
    if (!m_view)
        return;
    // The fields keep their height; the browser takes what is left.
    m_view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_view->setMinimumHeight(room / 2);
}

bool PreviewPane::refreshNow()
{
    m_timer.stop();
    // One file for the dialog's life, removed when it closes.
    if (m_path.isEmpty())
        m_path = PreviewPagePath();
    const QString page = m_page();
    const core::IoResult written = WritePreviewPage(m_path, page);
    m_message->setVisible(!written.ok());
    if (!written.ok()) {
        m_message->setText(QStringLiteral("The preview could not be written: ") + written.message);
        return false;
    }
    if (m_written)
        m_written(m_path, page);
    if (m_view) {
        const QUrl url = QUrl::fromLocalFile(m_path);
        if (platform::ui::browserUrl(m_view) == url)
            platform::ui::browserReload(m_view);
        else
            platform::ui::browserOpen(m_view, url);
    }
    return true;
}

void fitToScreen(QWidget *dialog, const QSize &preferred)
{
    const QScreen *screen = dialog->parentWidget() ? dialog->parentWidget()->screen() : QGuiApplication::primaryScreen();
    QSize size = preferred;
    if (screen)
        size = size.boundedTo(screen->availableGeometry().size() * 0.95);
    dialog->resize(size.expandedTo(dialog->minimumSizeHint()));
}

namespace {

// A scroll area that asks for room to show all of its contents; it scrolls
// only when the dialog cannot give that room.
class WholeScrollArea final : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;
    QSize sizeHint() const override
    {
        const int frame = 2 * frameWidth();
        return widget() ? widget()->sizeHint() + QSize(frame + verticalScrollBar()->sizeHint().width(), frame)
                        : QScrollArea::sizeHint();
    }
};

} // namespace

QWidget *scrolledPanel(QLayout *fields, QWidget *parent)
{
    auto *inside = new QWidget;
    inside->setLayout(fields);
    fields->setContentsMargins(0, 0, 0, 0);
    auto *area = new WholeScrollArea(parent);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(inside);
    area->setMinimumWidth(inside->sizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    area->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    return area;
}

} // namespace qly::generators::ui
