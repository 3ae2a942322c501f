#include "markup/ui/frmFilterKeys.h"

#include "core/ui/Help.h"
#include "documents/Coloring.h"
#include "markup/TagFilters.h"
#include "markup/ui/TagTree.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace qly::markup::ui {

void LoadTreeFilters(TagTree &tree)
{
    const QSet<QString> on = markup::LoadFilters(tree.FilterList());
    tree.setFilters(on);
    PublishKnownWords(tree.catalogue(), on);
}

frmFilterKeys::frmFilterKeys(TagTree &tree, QWidget *parent)
    : QDialog(parent)
    , m_tree(tree)
{
    setObjectName(QStringLiteral("frmFilterKeys"));
    setWindowTitle(QStringLiteral("Filter Keywords"));
    auto *layout = new QVBoxLayout(this);
    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("lstFilter"));
    for (const QString &name : FilterDialogRows()) {
        auto *item = new QListWidgetItem(name, m_list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemIsSelectable);
        item->setCheckState(Qt::Unchecked);
    }
    layout->addWidget(m_list);
    auto *box = new QDialogButtonBox(this);
    QPushButton *ok = box->addButton(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("frmOK"));
    QPushButton *cancel = box->addButton(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("frmCancel"));
    QPushButton *help = box->addButton(QDialogButtonBox::Help);
    help->setObjectName(QStringLiteral("Command1"));
    connect(ok, &QPushButton::clicked, this, &frmFilterKeys::frmOK_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(help, &QPushButton::clicked, this, [] { core::ui::OpenHelp(); });
    layout->addWidget(box);
    LoadFilters();
}

void frmFilterKeys::SaveFilters() const
{
    QList<QPair<QString, bool>> rows;
    for (int i = 0; i < m_list->count(); ++i)
        rows.append({m_list->item(i)->text(), m_list->item(i)->checkState() == Qt::Checked});
    markup::SaveFilters(rows);
}

void frmFilterKeys::LoadFilters()
{
    const QSet<QString> on = markup::LoadFilters(FilterDialogRows());
    for (int i = 0; i < m_list->count(); ++i)
        m_list->item(i)->setCheckState(on.contains(m_list->item(i)->text()) ? Qt::Checked : Qt::Unchecked);
}

void frmFilterKeys::frmOK_Click()
{
    SaveFilters();
    LoadFilters();
    m_tree.setTagView(TagTree::Reload);
    LoadTreeFilters(m_tree);
    // Tags the filters no longer know show as errors, and the other way round.
    documents::ColorAll();
    accept();
}

} // namespace qly::markup::ui
