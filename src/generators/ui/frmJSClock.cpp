#include "generators/ui/frmJSClock.h"

#include <QComboBox>
#include <QIntValidator>
#include <QLineEdit>

namespace qly::generators::ui {

frmJSClock::frmJSClock(bool scrolling, QWidget *parent)
    : FieldsDialog(scrolling ? QStringLiteral("frmJSScrolling") : QStringLiteral("frmJSClock"),
                   scrolling ? QStringLiteral("JavaScript Scrolling Field") : QStringLiteral("JavaScript Clock"), parent)
{
    if (scrolling)
        m_txtMessage = addLine(QStringLiteral("txtMessage"), QStringLiteral("Message:"));
    m_cmbSize = addCombo(QStringLiteral("cmbSize"), QStringLiteral("Field size:"),
                         {QStringLiteral("8"), QStringLiteral("10"), QStringLiteral("20"), QStringLiteral("40"),
                          QStringLiteral("60"), QStringLiteral("80")},
                         true);
    m_cmbSize->setValidator(new QIntValidator(1, 999, m_cmbSize));
    m_cmbSize->setCurrentText(scrolling ? QStringLiteral("40") : QStringLiteral("10"));
}

QString frmJSClock::size() const
{
    return m_cmbSize->currentText().trimmed();
}

QString frmJSClock::message() const
{
    return m_txtMessage ? m_txtMessage->text() : QString();
}

} // namespace qly::generators::ui
