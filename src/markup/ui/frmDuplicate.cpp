#include "markup/ui/frmDuplicate.h"

#include "core/ui/DialogFlags.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace qly::markup::ui {

frmDuplicate::frmDuplicate(const QString &link, QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(QStringLiteral("frmDuplicate"));
    setWindowTitle(tr("Duplicate Link"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("This link occurs more than once:"), this));
    m_txtDup = new QLineEdit(link, this);
    m_txtDup->setObjectName(QStringLiteral("txtDup"));
    m_txtDup->setReadOnly(true);
    m_txtDup->setMinimumWidth(360);
    layout->addWidget(m_txtDup);
    auto *row = new QHBoxLayout;
    const struct {
        const char *name;
        QString caption;
        DuplicateChoice choice;
    } buttons[] = {
        {"cmdOptions0", tr("&Next Occurrence"), DuplicateChoice::Next},
        {"cmdOptions1", tr("Next &Link"), DuplicateChoice::NextLink},
        {"cmdOptions2", tr("&Cancel All"), DuplicateChoice::CancelAll},
    };
    for (const auto &b : buttons) {
        auto *button = new QPushButton(b.caption, this);
        button->setObjectName(QString::fromLatin1(b.name));
        const DuplicateChoice choice = b.choice;
        connect(button, &QPushButton::clicked, this, [this, choice] { choose(choice); });
        row->addWidget(button);
    }
    layout->addLayout(row);
}

void frmDuplicate::choose(DuplicateChoice choice)
{
    m_choice = choice;
    if (choice == DuplicateChoice::CancelAll)
        reject();
    else
        accept();
}

DuplicateChoice frmDuplicate::ask(const QString &link, QWidget *parent)
{
    frmDuplicate dialog(link, parent);
    dialog.exec();
    return dialog.choice();
}

} // namespace qly::markup::ui
