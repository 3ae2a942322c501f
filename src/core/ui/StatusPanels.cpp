#include "core/ui/StatusPanels.h"

#include "core/StatusText.h"
#include "core/ui/KeyboardLocks.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QStatusBar>
#include <QTime>
#include <QTimer>

namespace qly::core::ui {

StatusPanels::StatusPanels(QStatusBar *bar)
    : QObject(bar)
    , m_bar(bar)
    , m_clock(new QTimer(this))
{
    addPanel(bar, QStringLiteral("Status"), QString(), QString(), 1);
    addPanel(bar, QStringLiteral("SyntaxColor"), QStringLiteral("Syntax Coloring"), QStringLiteral("Color syntax of tags"), 0);
    addPanel(bar, QStringLiteral("TagColor"), QStringLiteral("Tag Coloring"), QStringLiteral("Color entire tags"), 0);
    addPanel(bar, QStringLiteral("Line"), QStringLiteral("Line#"), QStringLiteral("Current line and character position"), 0);
    addPanel(bar, QStringLiteral("DateTime"), QString(), QStringLiteral("Click the time to insert date and time"), 0);
    addPanel(bar, QStringLiteral("Num"), QString(), QString(), 0);
    addPanel(bar, QStringLiteral("Ins"), QStringLiteral("INS"), QString(), 0);

    connect(&StatusText::instance(), &StatusText::changed, this, [this](const QString &text) {
        panel(QStringLiteral("Status"))->setText(text);
        // Shown at once, also during a busy loop.
        panel(QStringLiteral("Status"))->repaint();
    });
    // The NUM panel follows the keyboard, whichever window has it.
    qApp->installEventFilter(this);
    if (const std::optional<bool> on = numLockNow())
        setNumLock(*on);
    connect(m_clock, &QTimer::timeout, this, &StatusPanels::updateTime);
    m_clock->start(1000);
    updateTime();
}

QLabel *StatusPanels::addPanel(QStatusBar *bar, const QString &key, const QString &text, const QString &tip, int stretch)
{
    auto *label = new QLabel(text, bar);
    label->setObjectName(key);
    label->setToolTip(tip);
    label->setFrameShape(QFrame::Panel);
    label->setFrameShadow(QFrame::Sunken);
    label->setMargin(1);
    label->installEventFilter(this);
    if (stretch > 0)
        bar->addWidget(label, stretch);
    else
        bar->addPermanentWidget(label);
    m_panels << label;
    return label;
}

QLabel *StatusPanels::panel(const QString &key) const
{
    for (QLabel *label : m_panels) {
        if (label->objectName() == key)
            return label;
    }
    return nullptr;
}

void StatusPanels::setPosition(const QString &text)
{
    panel(QStringLiteral("Line"))->setText(text);
}

void StatusPanels::showColoringMode(bool syntax)
{
    QLabel *active = panel(syntax ? QStringLiteral("SyntaxColor") : QStringLiteral("TagColor"));
    QLabel *other = panel(syntax ? QStringLiteral("TagColor") : QStringLiteral("SyntaxColor"));
    // The mode in force is pressed in and takes no click; the other one offers itself.
    active->setFrameShadow(QFrame::Sunken);
    active->setEnabled(false);
    other->setFrameShadow(QFrame::Raised);
    other->setEnabled(true);
}

void StatusPanels::setOverwrite(bool overwrite)
{
    panel(QStringLiteral("Ins"))->setText(overwrite ? QStringLiteral("OVR") : QStringLiteral("INS"));
}

void StatusPanels::setNumLock(bool on)
{
    QLabel *p = panel(QStringLiteral("Num"));
    p->setText(on ? QStringLiteral("NUM") : QString());
}

std::optional<bool> numLockAfter(const QKeyEvent &event)
{
#if defined(Q_OS_WIN)
    constexpr quint32 numLockMask = 0x200;   // as Qt's Windows key mapper reports it
#elif defined(Q_OS_MACOS)
    return std::nullopt;
#else
    constexpr quint32 numLockMask = 0x10;    // X11 and xkb: Mod2
#endif
#if !defined(Q_OS_MACOS)
    bool on = event.nativeModifiers() & numLockMask;
    // A key event carries the state before the key: Num Lock going down changes it.
    if (event.key() == Qt::Key_NumLock && event.type() == QEvent::KeyPress)
        on = !on;
    return on;
#endif
}

void StatusPanels::updateTime()
{
    const QString text = QLocale().toString(QTime::currentTime(), QLocale::ShortFormat);
    QLabel *p = panel(QStringLiteral("DateTime"));
    if (p->text() != text)
        p->setText(text);
}

bool StatusPanels::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
        if (const std::optional<bool> on = numLockAfter(*static_cast<QKeyEvent *>(event)))
            setNumLock(*on);
        return false;
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        auto *label = qobject_cast<QLabel *>(watched);
        if (label && label->isEnabled())
            emit panelClicked(label->objectName());
    }
    return QObject::eventFilter(watched, event);
}

} // namespace qly::core::ui
