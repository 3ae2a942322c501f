#include "generators/ui/frmListBox.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace qly::generators::ui {

frmListBox::frmListBox(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmListBox"), QStringLiteral("List Box"), parent)
{
    m_txtCaption = addLine(QStringLiteral("txtCaption"), QStringLiteral("Caption:"));
    m_txtName = addLine(QStringLiteral("txtName"), QStringLiteral("Name:"));
    m_txtDefaultVal = addLine(QStringLiteral("txtDefaultVal"), QStringLiteral("Value:"));
    m_chkMultiple = addCheck(QStringLiteral("chkMultiple"), QStringLiteral("Select Multiple"));
    m_txtListItems = addText(QStringLiteral("txtListItems"), QStringLiteral("Items (one a line):"));
}

void frmListBox::ClearFields()
{
    setElement({});
}

void frmListBox::setElement(const FormElement &e)
{
    m_txtCaption->setText(e.caption);
    m_txtName->setText(e.sub[0]);
    m_txtDefaultVal->setText(e.sub[1]);
    m_chkMultiple->setChecked(e.sub[2] == QLatin1String("Multiple"));
    QString items = e.sub[3];
    m_txtListItems->setPlainText(items.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

FormElement frmListBox::element() const
{
    FormElement e;
    e.kind = FormElement::ListBox;
    e.caption = m_txtCaption->text();
    e.sub[0] = m_txtName->text();
    e.sub[1] = m_txtDefaultVal->text();
    e.sub[2] = m_chkMultiple->isChecked() ? QStringLiteral("Multiple") : QStringLiteral("Single");
    e.sub[3] = m_txtListItems->toPlainText().replace(u'\n', QStringLiteral("\r\n"));
    return e;
}

} // namespace qly::generators::ui
