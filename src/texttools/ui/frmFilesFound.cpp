#include "texttools/ui/frmFilesFound.h"

#include "documents/DocumentList.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace qly::texttools::ui {

frmFilesFound::frmFilesFound(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmFilesFound"));
    setWindowTitle(QStringLiteral("Files Found"));
    m_lstFiles = new QListWidget(this);
    m_lstFiles->setObjectName(QStringLiteral("lstFiles"));
    m_lstFiles->setMinimumWidth(m_lstFiles->fontMetrics().averageCharWidth() * 60);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *btnOpen = buttons->addButton(QStringLiteral("&Open"), QDialogButtonBox::AcceptRole);
    QPushButton *btnCancel = buttons->addButton(QStringLiteral("&Cancel"), QDialogButtonBox::RejectRole);
    btnOpen->setObjectName(QStringLiteral("btnOpen"));
    btnCancel->setObjectName(QStringLiteral("btnCancel"));
    connect(btnOpen, &QPushButton::clicked, this, &frmFilesFound::openChosen);
    connect(btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_lstFiles, &QListWidget::itemDoubleClicked, this, &frmFilesFound::openChosen);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_lstFiles);
    layout->addWidget(buttons);
}

void frmFilesFound::addLine(const QString &line)
{
    m_lstFiles->addItem(line);
    if (m_lstFiles->count() == 1) {
        show();
        raise();
    }
}

void frmFilesFound::clearList()
{
    m_lstFiles->clear();
}

void frmFilesFound::openChosen()
{
    const QListWidgetItem *item = m_lstFiles->currentItem();
    // The blank and closing lines are not paths and open nothing.
    if (item && QFileInfo(item->text()).isFile())
        documents::OpenDocumentFile(item->text());
}

} // namespace qly::texttools::ui
