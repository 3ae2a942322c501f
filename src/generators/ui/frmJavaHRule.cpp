#include "generators/ui/frmJavaHRule.h"

#include "generators/AppletFallback.h"
#include "generators/JavaApplets.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

namespace qly::generators::ui {

frmJavaHRule::frmJavaHRule(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmJavaHRule"), QStringLiteral("Java Horizontal Rule"), parent)
{
    m_txtWidth = addLine(QStringLiteral("txtWidth"), QStringLiteral("Width:"));
    m_txtWidth->setPlaceholderText(QStringLiteral("100%"));
    m_txtHeight = addLine(QStringLiteral("txtHeight"), QStringLiteral("Height:"), true);
    m_txtHeight->setPlaceholderText(QStringLiteral("6"));
    m_txtGradient = addLine(QStringLiteral("txtGradient"), QStringLiteral("Gradient size:"), true);
    m_txtGradient->setPlaceholderText(QStringLiteral("25"));
    m_txtChange = addLine(QStringLiteral("txtChange"), QStringLiteral("Change:"), true);
    m_txtChange->setPlaceholderText(QStringLiteral("50"));
    m_color = addColor(QStringLiteral("cmdColor"), QStringLiteral("Colour:"), 0x0000FF);
    m_chkBorder = addCheck(QStringLiteral("chkBorder"), QStringLiteral("Border"));
    addFallbackCheck();
}

QString frmJavaHRule::text() const
{
    const JavaHRuleFields f{m_txtWidth->text().trimmed(), m_txtHeight->text().trimmed(),
                            m_txtGradient->text().trimmed(), m_txtChange->text().trimmed(), colorOf(m_color),
                            m_chkBorder->isChecked()};
    return JavaHRuleText(f, AppletFallbackOn());
}

} // namespace qly::generators::ui
