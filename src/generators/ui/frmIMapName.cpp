#include "generators/ui/frmIMapName.h"

#include "core/ui/DialogFlags.h"
#include "generators/ImageMapRules.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

namespace qly::generators::ui {

frmIMapName::frmIMapName(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(QStringLiteral("frmIMapName"));
    setWindowTitle(QStringLiteral("Client-Side Image Map Options"));
    auto *form = new QFormLayout(this);
    m_txtMapName = field("txtMapName", QStringLiteral("&Map name:"));
    m_txtAltText = field("txtAltText", QStringLiteral("&Alternate text:"));
    m_cmbAlignment = new QComboBox(this);
    m_cmbAlignment->setObjectName(QStringLiteral("cmbAlignment"));
    m_cmbAlignment->setEditable(true);
    m_cmbAlignment->addItems({QStringLiteral("top"), QStringLiteral("left"), QStringLiteral("right"),
                              QStringLiteral("texttop"), QStringLiteral("middle"), QStringLiteral("absmiddle"),
                              QStringLiteral("baseline"), QStringLiteral("bottom"), QStringLiteral("absbottom")});
    form->addRow(QStringLiteral("A&lignment:"), m_cmbAlignment);
    m_txtBorder = field("txtBorder", QStringLiteral("&Border width:"));
    m_txtHorzSpace = field("txtHorzSpace", QStringLiteral("&Horizontal space:"));
    m_txtVertSpace = field("txtVertSpace", QStringLiteral("&Vertical space:"));
    m_txtImgWidth = field("txtImgWidth", QStringLiteral("Image &width:"));
    m_txtImgHeight = field("txtImgHeight", QStringLiteral("Image h&eight:"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("Command1(0)"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("Command1(1)"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmIMapName::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmIMapName::reject);
    form->addRow(buttons);
}

QLineEdit *frmIMapName::field(const char *name, const QString &label)
{
    auto *edit = new QLineEdit(this);
    edit->setObjectName(QString::fromLatin1(name));
    static_cast<QFormLayout *>(layout())->addRow(label, edit);
    return edit;
}

void frmIMapName::setValues(const MapValues &v)
{
    m_txtMapName->setText(v.mapName);
    m_txtAltText->setText(v.altText);
    m_cmbAlignment->setEditText(v.align);
    m_txtBorder->setText(v.borderWidth);
    m_txtHorzSpace->setText(v.horzSpace);
    m_txtVertSpace->setText(v.vertSpace);
    m_txtImgWidth->setText(v.imgWidth);
    m_txtImgHeight->setText(v.imgHeight);
}

MapValues frmIMapName::values() const
{
    MapValues v;
    v.mapName = m_txtMapName->text().trimmed();
    v.altText = m_txtAltText->text();
    v.align = m_cmbAlignment->currentText().trimmed();
    v.borderWidth = m_txtBorder->text().trimmed();
    v.horzSpace = m_txtHorzSpace->text().trimmed();
    v.vertSpace = m_txtVertSpace->text().trimmed();
    v.imgWidth = m_txtImgWidth->text().trimmed();
    v.imgHeight = m_txtImgHeight->text().trimmed();
    return v;
}

void frmIMapName::accept()
{
    if (!CheckMapName(m_txtMapName->text())) {
        m_txtMapName->setFocus();
        return;
    }
    QDialog::accept();
}

bool frmIMapName::edit(QWidget *parent, MapValues &values)
{
    frmIMapName dialog(parent);
    dialog.setValues(values);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    values = dialog.values();
    return true;
}

} // namespace qly::generators::ui
