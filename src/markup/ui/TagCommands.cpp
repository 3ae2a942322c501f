#include "markup/ui/TagCommands.h"

#include "core/Feedback.h"
#include "core/OptionsHooks.h"
#include "core/Settings.h"
#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "core/ui/StartupSteps.h"
#include "markup/TagActions.h"
#include "markup/ui/TagTree.h"
#include "markup/ui/frmFilterKeys.h"

#include <Qsci/qsciscintillabase.h>

#include <QApplication>
#include <QDropEvent>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QPointer>

namespace qly::markup::ui {

namespace {

bool upperCaseTags()
{
    return !core::ReadSettingFlag(QStringLiteral("Editing"), QStringLiteral("Lower Case Tags"));
}

// Takes tags dropped from the tree on a document's text.
class TagDropFilter final : public QObject
{
public:
    TagDropFilter(TagTree &tree, QMdiArea *mdi) : QObject(&tree), m_tree(tree), m_mdi(mdi) {}

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
            return false;
        auto *drop = static_cast<QDropEvent *>(event);
        if (!drop->mimeData() || !drop->mimeData()->hasFormat(tagMimeType()) || !m_tree.IsDragging())
            return false;
        auto *viewport = qobject_cast<QWidget *>(watched);
        auto *sci = viewport ? qobject_cast<QsciScintillaBase *>(viewport->parentWidget()) : nullptr;
        if (!sci || !m_mdi || !m_mdi->isAncestorOf(sci))
            return false;
        drop->acceptProposedAction();
        if (type != QEvent::Drop)
            return true;
        for (QWidget *w = sci; w; w = w->parentWidget()) {
            if (auto *sub = qobject_cast<QMdiSubWindow *>(w)) {
                m_mdi->setActiveSubWindow(sub);
                break;
            }
        }
        const QPoint at = drop->position().toPoint();
        const long pos = sci->SendScintilla(QsciScintillaBase::SCI_POSITIONFROMPOINT, at.x(), at.y());
        sci->SendScintilla(QsciScintillaBase::SCI_SETEMPTYSELECTION, pos);
        if (const TagEntry *entry = m_tree.currentEntry())
            DropTag(*entry);
        return true;
    }

private:
    TagTree &m_tree;
    QMdiArea *m_mdi;
};

} // namespace

void BuildTagTree(TagTree &tree)
{
    tree.setUpperCase(upperCaseTags());
    tree.setTagView(core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Tag View")) == QLatin1String("1")
                        ? TagTree::TagsView
                        : TagTree::FullView);
    tree.setTagView(TagTree::Reload);
    LoadTreeFilters(tree);
}

TagTree *registerTagCommands(core::ui::Shell &shell)
{
    auto *tree = new TagTree(shell.mainWindow());
    shell.setResourceTab(QStringLiteral("Tags"), tree);
    core::ui::CommandTable &t = shell.commands();
    QMainWindow *window = shell.mainWindow();

    t.bind(QStringLiteral("EditTags"), [tree] {
        tree->EditTagList();
        LoadTreeFilters(*tree);
    });
    t.bind(QStringLiteral("FilterTags"), [tree, window] {
        frmFilterKeys dialog(*tree, window);
        dialog.exec();
    });
    QObject::connect(tree, &TagTree::filterRequested, tree, [&t] { t.run(QStringLiteral("FilterTags")); });
    QObject::connect(tree, &TagTree::TagDblClick, tree, [tree] {
        if (const TagEntry *entry = tree->currentEntry())
            TagDblClick(*entry);
    });
    // cmdTags_Click and cmdViewFull_Click.
    QObject::connect(tree, &TagTree::viewChosen, tree, [tree](int view) {
        core::BeginWait();
        tree->setTagView(view);
        core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Tag View"),
                           view == TagTree::TagsView ? QStringLiteral("1") : QStringLiteral("0"));
        core::EndWait();
    });
    qApp->installEventFilter(new TagDropFilter(*tree, shell.mdiArea()));
    core::optionsHooks().tagTreeOptions = [guard = QPointer<TagTree>(tree)] {
        if (guard)
            guard->setUpperCase(upperCaseTags());
    };
    shell.startupSteps().add(core::ui::StartupStep::TagTree, [tree] { BuildTagTree(*tree); });
    return tree;
}

} // namespace qly::markup::ui
