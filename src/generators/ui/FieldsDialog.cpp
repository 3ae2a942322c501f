#include "generators/ui/FieldsDialog.h"

#include "core/ui/DialogFlags.h"
#include "core/ui/Help.h"
#include "generators/AppletFallback.h"
#include "generators/ui/PreviewPane.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace qly::generators::ui {

FieldsDialog::FieldsDialog(const QString &objectName, const QString &title, QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(objectName);
    setWindowTitle(title);
    auto *outer = new QVBoxLayout(this);
    m_form = new QFormLayout;
    outer->addLayout(m_form);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("cmdCancel"));
    core::ui::addHelpButton(buttons, this, QStringLiteral("cmdHelp"));
    outer->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        if (!confirm())
            return;
        m_tag = QStringLiteral("1");
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] {
        m_tag = QStringLiteral("0");
        reject();
    });
}

QSize FieldsDialog::sizeHint() const
{
    // Room for a field of a few words; the layout alone sets the minimum,
    // so that a small screen can still show the dialog whole.
    return QDialog::sizeHint().expandedTo(QSize(fontMetrics().averageCharWidth() * 54, 0));
}

bool FieldsDialog::ask()
{
    m_tag.clear();
    exec();
    return m_tag == QLatin1String("1");
}

QLineEdit *FieldsDialog::addLine(const QString &name, const QString &label, bool numeric)
{
    auto *edit = new QLineEdit(this);
    edit->setObjectName(name);
    if (numeric)
        edit->setValidator(new QIntValidator(0, 99999, edit));
    if (!focusWidget())
        edit->setFocus();
    m_form->addRow(label, edit);
    return edit;
}

QCheckBox *FieldsDialog::addCheck(const QString &name, const QString &label)
{
    auto *box = new QCheckBox(label, this);
    box->setObjectName(name);
    m_form->addRow(QString(), box);
    return box;
}

QComboBox *FieldsDialog::addCombo(const QString &name, const QString &label, const QStringList &items, bool editable)
{
    auto *box = new QComboBox(this);
    box->setObjectName(name);
    box->setEditable(editable);
    box->addItems(items);
    m_form->addRow(label, box);
    return box;
}

QPlainTextEdit *FieldsDialog::addText(const QString &name, const QString &label)
{
    auto *edit = new QPlainTextEdit(this);
    edit->setObjectName(name);
    edit->setTabChangesFocus(true);
    m_form->addRow(label, edit);
    return edit;
}

QPushButton *FieldsDialog::addColor(const QString &name, const QString &label, unsigned rgb)
{
    QPushButton *button = colorButton(name, rgb);
    m_form->addRow(label, button);
    return button;
}

QPushButton *FieldsDialog::colorButton(const QString &name, unsigned rgb)
{
    auto *button = new QPushButton(this);
    button->setObjectName(name);
    setColor(button, rgb);
    connect(button, &QPushButton::clicked, this, [this, button] {
        const QColor chosen = QColorDialog::getColor(QColor::fromRgb(colorOf(button)), this);
        if (!chosen.isValid())
            return;
        setColor(button, chosen.rgb() & 0xFFFFFF);
        emit colorChosen(button);
    });
    return button;
}

unsigned FieldsDialog::colorOf(const QPushButton *button)
{
    return button->property("rgb").toUInt();
}

void FieldsDialog::setColor(QPushButton *button, unsigned rgb)
{
    const QString hex = QStringLiteral("#%1").arg(rgb & 0xFFFFFF, 6, 16, QLatin1Char('0')).toUpper();
    button->setProperty("rgb", rgb & 0xFFFFFF);
    button->setText(hex);
    const bool dark = qGray(QRgb(rgb)) < 128;
    button->setStyleSheet(QStringLiteral("background:%1;color:%2").arg(hex, dark ? QStringLiteral("white")
                                                                                : QStringLiteral("black")));
}

QCheckBox *FieldsDialog::addFallbackCheck()
{
    QCheckBox *box = addCheck(QStringLiteral("chkFallback"), QStringLiteral("Fallback for today's browsers"));
    box->setChecked(AppletFallbackOn());
    connect(box, &QCheckBox::toggled, this, [](bool on) { SetAppletFallback(on); });
    return box;
}

void FieldsDialog::addBelowFields(QWidget *widget, int stretch)
{
    auto *outer = static_cast<QVBoxLayout *>(layout());
    outer->insertWidget(outer->count() - 1, widget, stretch);
}

void FieldsDialog::letFieldsScroll(int preferredWidth)
{
    QSize whole = sizeHint();
    whole.setWidth(std::max(whole.width(), preferredWidth));
    auto *outer = static_cast<QVBoxLayout *>(layout());
    outer->removeItem(m_form);
    m_form->setParent(nullptr);
    QWidget *panel = scrolledPanel(m_form, this);
    // The panel may grow with the dialog and shrink to the rows' minimum.
    auto *area = static_cast<QScrollArea *>(panel);
    panel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    panel->setMinimumWidth(area->widget()->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    outer->insertWidget(0, panel);
    fitToScreen(this, whole);
}

void FieldsDialog::addRowWithButton(const QString &label, QWidget *field, QWidget *button)
{
    auto *row = new QHBoxLayout;
    row->addWidget(field, 1);
    row->addWidget(button);
    m_form->addRow(label, row);
}

} // namespace qly::generators::ui
