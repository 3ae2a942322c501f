#include "generators/ui/frmJavaLED.h"

#include "generators/AppletFallback.h"
#include "generators/JavaApplets.h"

#include <QLineEdit>
#include <QPushButton>

namespace qly::generators::ui {

frmJavaLED::frmJavaLED(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmJavaLED"), QStringLiteral("LED Sign"), parent)
{
    m_txtCaption = addLine(QStringLiteral("txtCaption"), QStringLiteral("Text:"));
    m_color = addColor(QStringLiteral("cmdColor"), QStringLiteral("Colour:"), 0xFF0000);
    m_backColor = addColor(QStringLiteral("cmdBackColor"), QStringLiteral("Background:"), 0x000000);
    addFallbackCheck();
}

QString frmJavaLED::text() const
{
    return JavaLEDText(m_txtCaption->text(), colorOf(m_color), colorOf(m_backColor), AppletFallbackOn());
}

} // namespace qly::generators::ui
