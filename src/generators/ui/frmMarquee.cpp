#include "generators/ui/frmMarquee.h"

#include "generators/JavaApplets.h"

#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>

namespace qly::generators::ui {

frmMarquee::frmMarquee(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmMarquee"), QStringLiteral("Marquee"), parent)
{
    m_txtText = addLine(QStringLiteral("txtText"), QStringLiteral("Text:"));
    const char *captions[] = {"Height:", "Horizontal space:", "Vertical space:", "Scroll delay:", "Scroll amount:",
                              "Loop:", "Width:"};
    for (int i = 0; i < 7; ++i)
        m_fields[size_t(i)] = addLine(QStringLiteral("txtField%1").arg(i + 1), QString::fromLatin1(captions[i]));
    m_cmbBehavior = addCombo(QStringLiteral("cmbBehavior"), QStringLiteral("Behaviour:"),
                             {QString(), QStringLiteral("Scroll Right Through"), QStringLiteral("Scroll And Stick"),
                              QStringLiteral("Bounce Off Edges")}, false);
    m_cmbDirection = addCombo(QStringLiteral("cmbDirection"), QStringLiteral("Direction:"),
                              {QString(), QStringLiteral("Left to Right"), QStringLiteral("Right to Left")}, false);
    QStringList colors = MarqueeColorNames();
    colors.prepend(QString());
    colors << QStringLiteral("Custom...");
    m_cmbColor = addCombo(QStringLiteral("cmbColor"), QStringLiteral("Background colour:"), colors, false);
    m_cmbAlign = addCombo(QStringLiteral("cmbAlign"), QStringLiteral("Align:"),
                          {QString(), QStringLiteral("Top"), QStringLiteral("Middle"), QStringLiteral("Bottom")}, false);
    connect(m_cmbColor, &QComboBox::activated, this, [this](int index) {
        if (index != m_cmbColor->count() - 1)
            return;
        const QColor c = QColorDialog::getColor(Qt::white, this);
        if (!c.isValid())
            return;
        const QString hex = QStringLiteral("#%1").arg(c.rgb() & 0xFFFFFF, 6, 16, QLatin1Char('0')).toUpper();
        m_cmbColor->insertItem(index, hex);
        m_cmbColor->setCurrentIndex(index);
    });
}

QString frmMarquee::text() const
{
    MarqueeFields f;
    for (size_t i = 0; i < 7; ++i)
        f.fields[i] = m_fields[i]->text().trimmed();
    f.behavior = m_cmbBehavior->currentIndex() - 1;
    f.direction = m_cmbDirection->currentIndex() - 1;
    f.bgColor = m_cmbColor->currentText() == QLatin1String("Custom...") ? QString() : m_cmbColor->currentText();
    f.align = m_cmbAlign->currentText();
    f.text = m_txtText->text();
    return MarqueeText(f);
}

} // namespace qly::generators::ui
