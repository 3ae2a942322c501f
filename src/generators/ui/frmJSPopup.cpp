#include "generators/ui/frmJSPopup.h"

#include "core/ui/HistoryCombo.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace qly::generators::ui {

frmJSPopup::frmJSPopup(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmJSPopup"), QStringLiteral("JavaScript Pop-up Window"), parent)
{
    m_cmbURL = addCombo(QStringLiteral("cmbURL"), QStringLiteral("URL:"), {}, true);
    core::ui::FillHistoryCombo(m_cmbURL, QStringLiteral("Links"));
    m_cmbURL->setCurrentText(QString());
    m_txtCaption = addLine(QStringLiteral("txtCaption"), QStringLiteral("Button caption:"));
    m_txtCaption->setText(QStringLiteral("Popup"));
    m_txtWidth = addLine(QStringLiteral("txtWidth"), QStringLiteral("Width:"), true);
    m_txtHeight = addLine(QStringLiteral("txtHeight"), QStringLiteral("Height:"), true);
    m_txtWidth->setText(QStringLiteral("400"));
    m_txtHeight->setText(QStringLiteral("300"));
    const char *checks[][2] = {{"chkToolbar", "Toolbar"},     {"chkDir", "Directories"},
                               {"chkStatusbar", "Status bar"}, {"chkMenubar", "Menu bar"},
                               {"chkScrollbars", "Scroll bars"}, {"chkResize", "Resizable"}};
    for (int i = 0; i < 6; ++i)
        m_chk[i] = addCheck(QString::fromLatin1(checks[i][0]), QString::fromLatin1(checks[i][1]));
}

PopupFields frmJSPopup::fields() const
{
    PopupFields f;
    f.url = m_cmbURL->currentText();
    f.caption = m_txtCaption->text();
    f.width = m_txtWidth->text();
    f.height = m_txtHeight->text();
    f.toolbar = m_chk[0]->isChecked();
    f.directories = m_chk[1]->isChecked();
    f.status = m_chk[2]->isChecked();
    f.menubar = m_chk[3]->isChecked();
    f.scrollbars = m_chk[4]->isChecked();
    f.resizable = m_chk[5]->isChecked();
    return f;
}

bool frmJSPopup::confirm()
{
    core::ui::StoreHistoryCombo(m_cmbURL, QStringLiteral("Links"));
    return true;
}

} // namespace qly::generators::ui
