#include "generators/ui/frmTEAppSize.h"

#include "generators/EffectChecks.h"
#include "generators/TextEffectsModel.h"

#include <QLineEdit>

namespace qly::generators::ui {

frmTEAppSize::frmTEAppSize(TextEffectsModel &model, QWidget *parent)
    : FieldsDialog(QStringLiteral("frmTEAppSize"), QStringLiteral("Applet Size"), parent)
    , m_model(model)
{
    m_width = addLine(QStringLiteral("txtappletwidth"), QStringLiteral("Width:"), true);
    m_height = addLine(QStringLiteral("txtappletHeight"), QStringLiteral("Height:"), true);
    m_horizontal = addLine(QStringLiteral("txtappletHorizontal"), QStringLiteral("Horizontal spacing:"), true);
    m_vertical = addLine(QStringLiteral("txtappletVertical"), QStringLiteral("Vertical spacing:"), true);
    m_width->setText(model.width);
    m_height->setText(model.height);
    m_horizontal->setText(model.horizontal);
    m_vertical->setText(model.vertical);
}

bool frmTEAppSize::confirm()
{
    for (QLineEdit *edit : {m_width, m_height, m_horizontal, m_vertical}) {
        if (!ValidNumericInput(edit->text(), EffectFieldRange(edit->objectName()))) {
            edit->clear();
            edit->setFocus();
            return false;
        }
    }
    m_model.width = m_width->text().trimmed();
    m_model.height = m_height->text().trimmed();
    m_model.horizontal = m_horizontal->text().trimmed();
    m_model.vertical = m_vertical->text().trimmed();
    return true;
}

} // namespace qly::generators::ui
