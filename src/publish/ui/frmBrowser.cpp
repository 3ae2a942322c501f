#include "publish/ui/frmBrowser.h"

#include "core/ui/DialogFlags.h"
#include "core/ui/Help.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace qly::publish::ui {

frmBrowser::frmBrowser(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(QStringLiteral("frmBrowser"));
    setWindowTitle(QStringLiteral("Choose Browser"));
    auto *layout = new QVBoxLayout(this);
    auto *row = new QHBoxLayout;
    m_lstBrowsers = new QListWidget(this);
    m_lstBrowsers->setObjectName(QStringLiteral("lstBrowsers"));
    m_lstBrowsers->setMinimumWidth(320);
    row->addWidget(m_lstBrowsers, 1);
    auto *side = new QVBoxLayout;
    auto button = [&](const char *name, const QString &text) {
        auto *b = new QPushButton(text, this);
        b->setObjectName(QString::fromLatin1(name));
        b->setAutoDefault(false);
        side->addWidget(b);
        return b;
    };
    QPushButton *add = button("btnAdd", QStringLiteral("&Add..."));
    QPushButton *remove = button("btnremove", QStringLiteral("&Remove"));
    QPushButton *setDefault = button("btnSetDefault", QStringLiteral("Set &Default"));
    side->addStretch(1);
    row->addLayout(side);
    layout->addLayout(row);

    m_chkNoChoose = new QCheckBox(QStringLiteral("Don't ask for a browser before each preview"), this);
    m_chkNoChoose->setObjectName(QStringLiteral("chkNoChoose"));
    layout->addWidget(m_chkNoChoose);
    m_chkUseAll = new QCheckBox(QStringLiteral("Preview with ALL these browsers"), this);
    m_chkUseAll->setObjectName(QStringLiteral("chkUseAll"));
    layout->addWidget(m_chkUseAll);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOptions(0)"));
    ok->setDefault(true);
    buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole)->setObjectName(QStringLiteral("cmdOptions(1)"));
    core::ui::addHelpButton(buttons, this, QStringLiteral("cmdOptions(2)"));
    layout->addWidget(buttons);

    connect(add, &QPushButton::clicked, this, [this] { showRows(m_model.btnAdd_Click()); });
    connect(remove, &QPushButton::clicked, this, [this] {
        const int r = m_lstBrowsers->currentRow();
        m_model.btnremove_Click(r);
        showRows(qMin(r, int(m_model.rows().size()) - 1));
    });
    connect(setDefault, &QPushButton::clicked, this, [this] {
        const int r = m_lstBrowsers->currentRow();
        m_model.btnSetDefault_Click(r);
        showRows(r);
    });
    connect(m_lstBrowsers, &QListWidget::itemDoubleClicked, this, [this] { cmdOptions_Click(0); });
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { cmdOptions_Click(0); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { cmdOptions_Click(1); });
    connect(buttons, &QDialogButtonBox::helpRequested, this, [this] { cmdOptions_Click(2); });
    showRows(m_model.defaultRow());
}

void frmBrowser::showRows(int select)
{
    m_lstBrowsers->clear();
    m_lstBrowsers->addItems(m_model.rows());
    if (select >= 0)
        m_lstBrowsers->setCurrentRow(select);
}

void frmBrowser::cmdOptions_Click(int index)
{
    m_tag = index == 0 ? QStringLiteral("1") : QStringLiteral("0");
    if (index == 0)
        accept();
    else
        reject();
}

void frmBrowser::choose(QWidget *parent)
{
    frmBrowser dialog(parent);
    if (dialog.exec() != QDialog::Accepted)
        return;
    // The dialog is gone from the screen before the browsers start.
    dialog.model().confirm(dialog.m_lstBrowsers->currentRow(), dialog.m_chkNoChoose->isChecked(),
                           dialog.m_chkUseAll->isChecked());
}

} // namespace qly::publish::ui
