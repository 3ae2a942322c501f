#include "generators/ui/frmCSSImport.h"

#include "core/Globals.h"
#include "core/Settings.h"
#include "core/ui/DialogFlags.h"
#include "core/ui/HistoryCombo.h"
#include "generators/DocumentStyles.h"
#include "generators/StyleLibrary.h"
#include "markup/Links.h"
#include "markup/TagPrimitives.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QToolButton>

namespace qly::generators::ui {

frmCSSImport::frmCSSImport(platform::HTMLEdit &edit, QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags), m_edit(edit)
{
    setObjectName(QStringLiteral("frmCSSImport"));
    setWindowTitle(QStringLiteral("Import Style Sheet"));
    auto *form = new QFormLayout(this);
    m_cmbURL = new QComboBox(this);
    m_cmbURL->setObjectName(QStringLiteral("cmbURL"));
    m_cmbURL->setEditable(true);
    m_cmbURL->setMinimumContentsLength(36);
    core::ui::FillHistoryCombo(m_cmbURL, QStringLiteral("Links"));
    auto *browse = new QToolButton(this);
    browse->setObjectName(QStringLiteral("imgBrowse"));
    browse->setText(QStringLiteral("..."));
    connect(browse, &QToolButton::clicked, this, &frmCSSImport::browse);
    auto *row = new QHBoxLayout;
    row->addWidget(m_cmbURL, 1);
    row->addWidget(browse);
    form->addRow(QStringLiteral("Style sheet &URL:"), row);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmCSSImport::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmCSSImport::reject);
    form->addRow(buttons);

    const QStringList imports = ReadDocumentStyles(edit.Text()).imports;
    QString first = imports.value(0);
    first.remove(QStringLiteral("url(")).remove(QLatin1Char(')'));
    m_cmbURL->setEditText(first);
}

void frmCSSImport::setURL(const QString &url)
{
    m_cmbURL->setEditText(url);
}

void frmCSSImport::browse()
{
    platform::FileRequest request;
    request.title = core::versionCaption() + QStringLiteral(" - Select Style Sheet");
    request.filter = QStringLiteral("Style Sheets (*.css)|*.css|All Files (*.*)|*.*");
    request.directory = core::GetFileLocation(QStringLiteral("Documents"));
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    if (answer.accepted())
        m_cmbURL->setEditText(answer.files.first());
}

void frmCSSImport::accept()
{
    const QString typed = m_cmbURL->currentText().trimmed();
    if (typed.isEmpty()) {
        reject();
        return;
    }
    core::ui::StoreHistoryCombo(m_cmbURL, QStringLiteral("Links"));
    const QString link = markup::RelativeLink(typed);
    const QString url = link.isEmpty() ? typed : link;
    if (m_edit.SelLength() > 0) {
        markup::InsertMarkup(url, QString(), true, markup::Target(m_edit));
    } else if (AddStyleImport(m_edit, url, StyleLibrary::instance()) == StyleWrite::Refused) {
        return;
    }
    QDialog::accept();
}

} // namespace qly::generators::ui
