#include "markup/ui/TagTree.h"

#include "markup/TagFilters.h"
#include "markup/ui/frmEditTags.h"

#include <QApplication>
#include <numeric>
#include <QDrag>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMap>
#include <QMimeData>
#include <QMouseEvent>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace qly::markup::ui {

namespace {

constexpr int EntryRole = Qt::UserRole + 1;

QToolButton *button(const QString &name, const QString &text, const QString &tip, QWidget *parent)
{
    auto *b = new QToolButton(parent);
    b->setObjectName(name);
    b->setText(text);
    b->setToolTip(tip);
    b->setAutoRaise(true);
    return b;
}

} // namespace

QString tagMimeType()
{
    return QStringLiteral("application/x-quillery-tag");
}

TagTree::TagTree(QWidget *parent)
    : QWidget(parent)
    , m_file(TagCatalogue::catalogueFile())
    , m_custom(TagCatalogue::customFile())
{
    setObjectName(QStringLiteral("picTags"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    m_find = new QLineEdit(this);
    m_find->setObjectName(QStringLiteral("txtFindTag"));
    m_find->setPlaceholderText(tr("Find a tag"));
    m_find->setClearButtonEnabled(true);
    m_tree = new QTreeWidget(this);
    m_tree->setObjectName(QStringLiteral("treeTags"));
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    m_tree->viewport()->installEventFilter(this);
    m_find->installEventFilter(this);
    auto *buttons = new QHBoxLayout;
    m_cmdTags = button(QStringLiteral("cmdTags"), tr("Tags"), tr("Tags by group"), this);
    m_cmdViewFull = button(QStringLiteral("cmdViewFull"), tr("Full"), tr("Every tag in one list"), this);
    auto *filter = button(QStringLiteral("FilterTags"), tr("Filter..."), tr("Choose the keyword sets"), this);
    buttons->addWidget(m_cmdTags);
    buttons->addWidget(m_cmdViewFull);
    buttons->addStretch();
    buttons->addWidget(filter);
    layout->addWidget(m_find);
    layout->addWidget(m_tree, 1);
    layout->addLayout(buttons);

    connect(m_find, &QLineEdit::textChanged, this, &TagTree::applyFind);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem *item) {
        if (item && item->data(0, EntryRole).isValid())
            emit TagDblClick();
    });
    connect(m_cmdTags, &QToolButton::clicked, this, [this] { emit viewChosen(TagsView); });
    connect(m_cmdViewFull, &QToolButton::clicked, this, [this] { emit viewChosen(FullView); });
    connect(filter, &QToolButton::clicked, this, &TagTree::filterRequested);
}

void TagTree::setCatalogueFiles(const QString &file, const QString &custom)
{
    m_file = file;
    m_custom = custom;
    setTagView(Reload);
}

const TagEntry *TagTree::currentEntry() const
{
    const QTreeWidgetItem *item = m_tree->currentItem();
    if (!item)
        return nullptr;
    const QVariant v = item->data(0, EntryRole);
    return v.isValid() ? &m_shown.at(v.toInt()) : nullptr;
}

QString TagTree::TagStartText() const
{
    const TagEntry *e = currentEntry();
    return e ? (m_upper || e->isScriptWord() ? e->startText : e->startText.toLower()) : QString();
}

QString TagTree::TagEndText() const
{
    const TagEntry *e = currentEntry();
    return e ? (m_upper || e->isScriptWord() ? e->endText : e->endText.toLower()) : QString();
}

QString TagTree::DraggedTag() const
{
    const TagEntry *e = currentEntry();
    if (!e)
        return QString();
    TagEntry shown = *e;
    shown.name = shownName(*e);
    return shown.itemText();
}

QString TagTree::shownName(const TagEntry &entry) const
{
    return m_upper || entry.isScriptWord() ? entry.name : entry.name.toLower();
}

void TagTree::setTagView(int view)
{
    if (view == Reload)
        m_catalogue.load(m_file, m_custom);
    else
        m_view = view == TagsView ? TagsView : FullView;
    m_cmdTags->setDown(m_view == TagsView);
    m_cmdViewFull->setDown(m_view == FullView);
    rebuild();
}

void TagTree::EditTagList()
{
    frmEditTags editor(m_catalogue, m_file, m_custom, window());
    if (editor.exec() == QDialog::Accepted)
        setTagView(Reload);
}

QStringList TagTree::FilterList() const
{
    return markup::FilterList();
}

void TagTree::setFilters(const QSet<QString> &filters)
{
    m_filters = filters;
    rebuild();
}

void TagTree::setUpperCase(bool upper)
{
    if (m_upper == upper)
        return;
    m_upper = upper;
    rebuild();
}

void TagTree::rebuild()
{
    m_tree->clear();
    m_shown = m_catalogue.visibleEntries(m_filters);
    std::vector<int> order(size_t(m_shown.size()));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [this](int a, int b) {
        return m_shown.at(a).name.compare(m_shown.at(b).name, Qt::CaseInsensitive) < 0;
    });
    QMap<QString, QTreeWidgetItem *> groups;
    QList<QTreeWidgetItem *> top;
    for (int index : order) {
        const TagEntry &e = m_shown.at(index);
        auto *item = new QTreeWidgetItem({shownName(e)});
        item->setData(0, EntryRole, index);
        item->setToolTip(0, e.description);
        if (m_view == TagsView) {
            QTreeWidgetItem *&group = groups[e.group.isEmpty() ? tr("Other") : e.group];
            if (!group) {
                group = new QTreeWidgetItem({e.group.isEmpty() ? tr("Other") : e.group});
                group->setFlags(Qt::ItemIsEnabled);
            }
            group->addChild(item);
        } else {
            top << item;
        }
    }
    if (m_view == TagsView)
        top = groups.values();
    m_tree->addTopLevelItems(top);
    if (!m_find->text().isEmpty())
        applyFind(m_find->text());
}

void TagTree::applyFind(const QString &text)
{
    const QString needle = text.trimmed();
    QTreeWidgetItem *first = nullptr;
    QTreeWidgetItem *exact = nullptr;
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *top = m_tree->topLevelItem(i);
        const bool isGroup = top->childCount() > 0;
        int shownChildren = 0;
        const auto check = [&](QTreeWidgetItem *item) {
            const bool match = needle.isEmpty() || item->text(0).contains(needle, Qt::CaseInsensitive);
            item->setHidden(!match);
            if (match && !needle.isEmpty()) {
                if (!first)
                    first = item;
                if (!exact && item->text(0).compare(needle, Qt::CaseInsensitive) == 0)
                    exact = item;
            }
            return match;
        };
        if (isGroup) {
            for (int c = 0; c < top->childCount(); ++c)
                shownChildren += check(top->child(c)) ? 1 : 0;
            top->setHidden(shownChildren == 0);
            top->setExpanded(!needle.isEmpty() && shownChildren > 0);
        } else {
            check(top);
        }
    }
    if (QTreeWidgetItem *hit = exact ? exact : first) {
        m_tree->setCurrentItem(hit);
        m_tree->scrollToItem(hit);
    }
}

void TagTree::startDrag()
{
    if (!currentEntry())
        return;
    auto *mime = new QMimeData;
    mime->setData(tagMimeType(), DraggedTag().toUtf8());
    auto *drag = new QDrag(m_tree);
    drag->setMimeData(mime);
    m_dragging = true;
    drag->exec(Qt::CopyAction);
    m_dragging = false;
}

bool TagTree::eventFilter(QObject *watched, QEvent *event)
{
    static QPoint pressedAt;
    if (watched == m_find && event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) && currentEntry()) {
            emit TagDblClick();
            return true;
        }
        if (key->key() == Qt::Key_Down || key->key() == Qt::Key_Up) {
            m_tree->setFocus();
            QApplication::sendEvent(m_tree, event);
            return true;
        }
    } else if (watched == m_tree->viewport()) {
        if (event->type() == QEvent::MouseButtonPress) {
            pressedAt = static_cast<QMouseEvent *>(event)->position().toPoint();
        } else if (event->type() == QEvent::MouseMove) {
            auto *move = static_cast<QMouseEvent *>(event);
            if ((move->buttons() & Qt::LeftButton)
                && (move->position().toPoint() - pressedAt).manhattanLength() >= QApplication::startDragDistance()
                && currentEntry()) {
                startDrag();
                return true;
            }
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace qly::markup::ui
