#include "core/ui/Toolbars.h"

#include "core/Settings.h"
#include "core/ui/CommandCatalogue.h"
#include "core/ui/CommandTable.h"

#include <QAction>
#include <QComboBox>
#include <QDataStream>
#include <QIODevice>
#include <QIcon>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QWidgetAction>

namespace qly::core::ui {

namespace {

constexpr quint32 kLayoutMagic = 0x514C5442;   // "QLTB"
constexpr quint32 kLayoutVersion = 1;

const BandLayout *layoutOf(const QString &band)
{
    for (const BandLayout &b : toolbarLayout()) {
        if (b.name == band)
            return &b;
    }
    return nullptr;
}

} // namespace

Toolbars::Toolbars(QMainWindow &window, CommandTable &commands)
    : QObject(&window)
    , m_window(window)
    , m_commands(commands)
{
    m_cmbApplyStyle = new QComboBox(&window);
    m_cmbApplyStyle->setObjectName(QStringLiteral("cmbApplyStyle"));
    m_cmbApplyStyle->setToolTip(tr("Apply a style class (comes with style sheets)"));
    m_cmbApplyStyle->setEnabled(false);
    m_cmbApplyStyle->setMinimumContentsLength(12);
    // The band holds the box through an action of ours: a band that is
    // filled anew gives the box back instead of deleting it.
    m_styleAction = new QWidgetAction(this);
    m_styleAction->setDefaultWidget(m_cmbApplyStyle);

    for (const BandLayout &layout : toolbarLayout()) {
        // Three rows by design: file tools; text and insert; format, style and browser.
        if (layout.name == QLatin1String("Text Property") || layout.name == QLatin1String("Properties"))
            window.addToolBarBreak(Qt::TopToolBarArea);
        auto *bar = new QToolBar(layout.name, &window);
        bar->setObjectName(layout.name);
        bar->setIconSize(QSize(24, 24));
        window.addToolBar(Qt::TopToolBarArea, bar);
        m_bands.insert(layout.name, bar);
        m_order << layout.name;
        QStringList tools = layout.tools;
        tools.removeAll(QString());
        m_shown.insert(layout.name, tools);
        fill(layout.name);

        if (layout.viewCommand.isEmpty())
            continue;
        QAction *view = commands.action(layout.viewCommand);
        view->setCheckable(true);
        view->setChecked(true);
        const QString name = layout.name;
        commands.bind(layout.viewCommand, [this, view, name] {
            m_bands.value(name)->setVisible(view->isChecked());
            WriteSetting(QStringLiteral("Display"), name, YesNo(view->isChecked()));
        });
        connect(bar, &QToolBar::visibilityChanged, this, [this] {
            if (m_window.isVisible())
                updateViewChecks();
        });
    }
}

QStringList Toolbars::allTools(const QString &band) const
{
    const BandLayout *layout = layoutOf(band);
    QStringList tools = layout ? layout->tools : QStringList();
    tools.removeAll(QString());
    return tools;
}

void Toolbars::addTool(QToolBar *bar, const QString &tool)
{
    if (tool == QLatin1String("cmbApplyStyle")) {
        bar->addAction(m_styleAction);
        return;
    }
    if (QAction *a = m_commands.action(toolCommand(tool))) {
        if (a->icon().isNull())
            a->setIcon(toolIcon(tool));
        bar->addAction(a);
        // The preview tool carries the browser menu on its arrow.
        if (tool == QLatin1String("tlbPreview")) {
            if (auto *button = qobject_cast<QToolButton *>(bar->widgetForAction(a))) {
                button->setMenu(previewMenu());
                button->setPopupMode(QToolButton::MenuButtonPopup);
            }
        }
    }
}

QMenu *Toolbars::previewMenu()
{
    if (m_previewMenu)
        return m_previewMenu;
    m_previewMenu = new QMenu(&m_window);
    m_previewMenu->setObjectName(QStringLiteral("mnuPreviewTool"));
    for (const char *name : {"Preview0", "Preview1", "Preview2", "Preview3", "PreviewAll", "", "EditBrowsers"}) {
        if (!*name)
            m_previewMenu->addSeparator();
        else if (QAction *a = m_commands.action(QString::fromLatin1(name)))
            m_previewMenu->addAction(a);
    }
    return m_previewMenu;
}

QString Toolbars::toolCaption(const QString &tool) const
{
    if (tool == QLatin1String("cmbApplyStyle"))
        return tr("Apply Style");
    const QAction *a = m_commands.action(toolCommand(tool));
    if (!a)
        return tool;
    // "&" marks the mnemonic; "&&" stands for one "&".
    const QString text = a->text();
    QString caption;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && i + 1 < text.size())
            ++i;
        caption += text[i];
    }
    return caption;
}

QIcon Toolbars::toolPicture(const QString &tool) const
{
    const QAction *a = m_commands.action(toolCommand(tool));
    return a && !a->icon().isNull() ? a->icon() : toolIcon(tool);
}

void Toolbars::fill(const QString &band)
{
    QToolBar *bar = m_bands.value(band);
    bar->clear();
    const QStringList shown = m_shown.value(band);
    if (shown != allTools(band)) {
        // The user's own choice and order.
        for (const QString &tool : shown)
            addTool(bar, tool);
        return;
    }
    // The design's groups, with separators between them.
    for (const QString &tool : layoutOf(band)->tools) {
        if (tool.isEmpty())
            bar->addSeparator();
        else
            addTool(bar, tool);
    }
}

void Toolbars::setShownTools(const QString &band, const QStringList &tools)
{
    if (!m_bands.contains(band))
        return;
    QStringList known;
    const QStringList all = allTools(band);
    for (const QString &t : tools) {
        if (all.contains(t) && !known.contains(t))
            known << t;
    }
    m_shown.insert(band, known);
    fill(band);
}

void Toolbars::updateViewChecks()
{
    for (const BandLayout &layout : toolbarLayout()) {
        if (QAction *view = m_commands.action(layout.viewCommand))
            view->setChecked(m_bands.value(layout.name)->isVisibleTo(&m_window));
    }
}

QByteArray Toolbars::saveLayout() const
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << kLayoutMagic << kLayoutVersion << m_window.saveState();
    out << quint32(m_order.size());
    for (const QString &band : m_order)
        out << band << m_shown.value(band);
    return bytes;
}

bool Toolbars::loadLayout(const QByteArray &bytes)
{
    QDataStream in(bytes);
    quint32 magic = 0, version = 0, count = 0;
    QByteArray state;
    in >> magic >> version;
    if (magic != kLayoutMagic || version != kLayoutVersion)
        return false;
    in >> state >> count;
    if (in.status() != QDataStream::Ok || count > 64)
        return false;
    QHash<QString, QStringList> shown;
    for (quint32 i = 0; i < count; ++i) {
        QString band;
        QStringList tools;
        in >> band >> tools;
        if (in.status() != QDataStream::Ok)
            return false;
        shown.insert(band, tools);
    }
    for (auto it = shown.cbegin(); it != shown.cend(); ++it)
        setShownTools(it.key(), it.value());
    m_window.restoreState(state);
    updateViewChecks();
    return true;
}

} // namespace qly::core::ui
