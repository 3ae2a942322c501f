#include "transfer/ui/ServerFields.h"

#include "core/ui/HistoryCombo.h"

#include <QComboBox>
#include <QLineEdit>

namespace qly::transfer::ui {

QString serversHistory()
{
    return QStringLiteral("Web Servers Used");
}

QComboBox *serverCombo(QWidget *parent)
{
    auto *box = new QComboBox(parent);
    box->setObjectName(QStringLiteral("cmbHost"));
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setMinimumContentsLength(30);
    core::ui::FillHistoryCombo(box, serversHistory());
    return box;
}

QLineEdit *namedField(QWidget *parent, const char *name)
{
    auto *edit = new QLineEdit(parent);
    edit->setObjectName(QString::fromLatin1(name));
    return edit;
}

} // namespace qly::transfer::ui
