#include "generators/ui/frmPickList.h"

#include "generators/ui/frmAddURL.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace qly::generators::ui {

frmPickList::frmPickList(QWidget *parent)
    : frmPickList(QStringLiteral("frmPickList"), QStringLiteral("Select URL"),
                  {QStringLiteral("Text"), QStringLiteral("URL")}, false, parent)
{
}

frmPickList::frmPickList(const QString &objectName, const QString &title, const QStringList &columns, bool images,
                         QWidget *parent)
    : FieldsDialog(objectName, title, parent)
    , m_images(images)
    , m_lstURLs(new QTreeWidget(this))
{
    m_lstURLs->setObjectName(QStringLiteral("lstURLs"));
    m_lstURLs->setHeaderLabels(columns);
    m_lstURLs->setRootIsDecorated(false);
    m_lstURLs->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    auto *row = new QHBoxLayout;
    row->addWidget(m_lstURLs, 1);
    auto *buttons = new QVBoxLayout;
    auto *add = new QPushButton(QStringLiteral("&Add..."), this);
    add->setObjectName(QStringLiteral("frmAdd"));
    auto *remove = new QPushButton(QStringLiteral("&Remove"), this);
    remove->setObjectName(QStringLiteral("frmRemove"));
    buttons->addWidget(add);
    buttons->addWidget(remove);
    buttons->addStretch();
    row->addLayout(buttons);
    form()->addRow(row);
    connect(add, &QPushButton::clicked, this, [this] {
        frmAddURL dialog(m_images, this);
        if (dialog.ask())
            addRow(dialog.values());
    });
    connect(remove, &QPushButton::clicked, this, [this] { delete m_lstURLs->currentItem(); });
}

void frmPickList::addRow(const QStringList &values)
{
    new QTreeWidgetItem(m_lstURLs, values);
    for (int c = 0; c < m_lstURLs->columnCount(); ++c)
        m_lstURLs->resizeColumnToContents(c);
}

QList<QStringList> frmPickList::rows() const
{
    QList<QStringList> out;
    for (int i = 0; i < m_lstURLs->topLevelItemCount(); ++i) {
        QStringList values;
        for (int c = 0; c < m_lstURLs->columnCount(); ++c)
            values << m_lstURLs->topLevelItem(i)->text(c);
        out << values;
    }
    return out;
}

frmJSRandomAd::frmJSRandomAd(QWidget *parent)
    : frmPickList(QStringLiteral("frmJSRandomAd"), QStringLiteral("JavaScript Random Banner"),
                  {QStringLiteral("Image URL"), QStringLiteral("Link URL"), QStringLiteral("Text")}, true, parent)
{
}

} // namespace qly::generators::ui
