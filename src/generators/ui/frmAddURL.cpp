#include "generators/ui/frmAddURL.h"

#include "core/Settings.h"
#include "core/ui/HistoryCombo.h"
#include "markup/Links.h"
#include "platform/Prompts.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QToolButton>

namespace qly::generators::ui {

namespace {

QComboBox *historyCombo(QWidget *parent, const QString &name, const QString &history)
{
    auto *box = new QComboBox(parent);
    box->setObjectName(name);
    box->setEditable(true);
    core::ui::FillHistoryCombo(box, history);
    box->setCurrentText(QString());
    return box;
}

} // namespace

frmAddURL::frmAddURL(bool image, QWidget *parent)
    : FieldsDialog(image ? QStringLiteral("frmAddImage") : QStringLiteral("frmAddURL"),
                   image ? QStringLiteral("Add Image") : QStringLiteral("Add URL to List"), parent)
    , m_image(image)
{
    if (!image) {
        m_txtText = addLine(QStringLiteral("txtText"), QStringLiteral("Text:"));
        m_cmbFileURL[0] = historyCombo(this, QStringLiteral("cmbFileURL"), QStringLiteral("Links"));
        form()->addRow(QStringLiteral("URL:"), m_cmbFileURL[0]);
        return;
    }
    m_cmbFileURL[0] = historyCombo(this, QStringLiteral("cmbFileURL0"), QStringLiteral("Images"));
    auto *browseButton = new QToolButton(this);
    browseButton->setObjectName(QStringLiteral("frmBrowse"));
    browseButton->setText(QStringLiteral("..."));
    addRowWithButton(QStringLiteral("Image URL:"), m_cmbFileURL[0], browseButton);
    connect(browseButton, &QToolButton::clicked, this, &frmAddURL::browse);
    m_cmbFileURL[1] = historyCombo(this, QStringLiteral("cmbFileURL1"), QStringLiteral("Links"));
    form()->addRow(QStringLiteral("Link URL:"), m_cmbFileURL[1]);
    m_txtText = addLine(QStringLiteral("txtCaption"), QStringLiteral("Text:"));
}

void frmAddURL::browse()
{
    platform::FileRequest request;
    request.title = QStringLiteral("Quillery 4.01 - Select Image File");
    request.filter = QStringLiteral("Graphics (*.gif;*.jpg)|*.gif;*.jpg|gif (*.gif)|*.gif|jpeg (*.jpg)|*.jpg|"
                                    "All Files (*.*)|*.*");
    request.directory = core::GetFileLocation(QStringLiteral("Graphics"));
    const QString last = core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Last Picture Type"));
    request.filterIndex = last.toInt() > 0 ? last.toInt() : 1;
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    if (!answer.accepted())
        return;
    core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Last Picture Type"),
                       QString::number(answer.filterIndex));
    m_cmbFileURL[0]->setCurrentText(markup::RelativeLink(answer.files.first()));
}

QStringList frmAddURL::values() const
{
    if (!m_image)
        return {m_txtText->text(), m_cmbFileURL[0]->currentText()};
    return {m_cmbFileURL[0]->currentText(), m_cmbFileURL[1]->currentText(), m_txtText->text()};
}

bool frmAddURL::confirm()
{
    core::ui::StoreHistoryCombo(m_cmbFileURL[0], m_image ? QStringLiteral("Images") : QStringLiteral("Links"));
    if (m_image)
        core::ui::StoreHistoryCombo(m_cmbFileURL[1], QStringLiteral("Links"));
    return true;
}

} // namespace qly::generators::ui
