#include "generators/ui/frmIMOptions.h"

#include "core/Globals.h"
#include "core/Settings.h"
#include "core/ui/DialogFlags.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFormLayout>
#include <QPixmap>
#include <QPushButton>

namespace qly::generators::ui {

namespace {

const QString kSection = QStringLiteral("ImageMap Options");

QColor fromNumber(qint64 n)
{
    return QColor(int(n & 0xFF), int((n >> 8) & 0xFF), int((n >> 16) & 0xFF));
}

QString toNumber(const QColor &c)
{
    return QString::number(qint64(c.red()) | (qint64(c.green()) << 8) | (qint64(c.blue()) << 16));
}

QColor stored(const QString &key, qint64 fallback)
{
    bool ok = false;
    const qint64 n = core::ReadSetting(kSection, key).trimmed().toLongLong(&ok);
    if (ok && n >= 0 && n <= 0xFFFFFF)
        return fromNumber(n);
    return fromNumber(fallback);
}

} // namespace

void frmIMOptions::writeDefaultsToNewConfiguration()
{
    if (!core::gIniFile.isEmpty() && QFile::exists(core::gIniFile))
        return;
    core::WriteSetting(kSection, QStringLiteral("Standard Color"), QStringLiteral("0"));
    core::WriteSetting(kSection, QStringLiteral("Selected Color"), QStringLiteral("65535"));
}

QColor frmIMOptions::standardColour()
{
    return stored(QStringLiteral("Standard Color"), 0);
}

QColor frmIMOptions::selectedColour()
{
    return stored(QStringLiteral("Selected Color"), 65535);
}

frmIMOptions::frmIMOptions(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags), m_standard(standardColour()), m_selected(selectedColour())
{
    setObjectName(QStringLiteral("frmIMOptions"));
    setWindowTitle(QStringLiteral("Client-Side Image Map Options"));
    auto *form = new QFormLayout(this);
    m_picStandard = new QPushButton(this);
    m_picStandard->setObjectName(QStringLiteral("picStandard"));
    m_picSelected = new QPushButton(this);
    m_picSelected->setObjectName(QStringLiteral("picSelected"));
    paint(m_picStandard, m_standard);
    paint(m_picSelected, m_selected);
    connect(m_picStandard, &QPushButton::clicked, this, [this] { choose(m_picStandard, m_standard); });
    connect(m_picSelected, &QPushButton::clicked, this, [this] { choose(m_picSelected, m_selected); });
    form->addRow(QStringLiteral("&Hotspot colour:"), m_picStandard);
    form->addRow(QStringLiteral("&Selected hotspot colour:"), m_picSelected);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("butOk"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmIMOptions::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmIMOptions::reject);
    form->addRow(buttons);
}

void frmIMOptions::paint(QPushButton *button, const QColor &colour)
{
    QPixmap swatch(48, 16);
    swatch.fill(colour);
    button->setIcon(QIcon(swatch));
    button->setIconSize(swatch.size());
    button->setText(colour.name(QColor::HexRgb).toUpper());
}

void frmIMOptions::choose(QPushButton *button, QColor &colour)
{
    const QColor chosen = QColorDialog::getColor(colour, this, windowTitle());
    if (!chosen.isValid())
        return;
    colour = chosen;
    paint(button, colour);
}

void frmIMOptions::accept()
{
    core::WriteSetting(kSection, QStringLiteral("Standard Color"), toNumber(m_standard));
    core::WriteSetting(kSection, QStringLiteral("Selected Color"), toNumber(m_selected));
    QDialog::accept();
}

bool frmIMOptions::edit(QWidget *parent)
{
    frmIMOptions dialog(parent);
    return dialog.exec() == QDialog::Accepted;
}

} // namespace qly::generators::ui
