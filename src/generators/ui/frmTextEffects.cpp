#include "generators/ui/frmTextEffects.h"

#include "core/ui/Help.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "generators/AppletClasses.h"
#include "generators/EffectChecks.h"
#include "generators/ui/frmTEAppSize.h"
#include "platform/Prompts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QUrl>

namespace qly::generators::ui {

namespace {

// The folder of the current document, or the temp folder for an untitled one.
QString documentDirectory()
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (doc && !doc->LocalFileName.isEmpty())
        return QFileInfo(doc->LocalFileName).absolutePath();
    return QDir::tempPath();
}

} // namespace

frmTextEffects::frmTextEffects(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmTextEffects"), QStringLiteral("Text Effects"), parent)
{
    const TextEffectsModel defaults;
    setMinimumWidth(660);
    m_ssTabs = new QTabWidget(this);
    m_ssTabs->setObjectName(QStringLiteral("ssTabs"));
    for (const QString &effect : TextEffectsModel::effects())
        m_ssTabs->addTab(effectPage(effect), effect);
    form()->addRow(m_ssTabs);

    m_txtStringCenter = addLine(QStringLiteral("txtStringCenter"), QStringLiteral("Text:"));
    m_txtStringCenter->setText(defaults.text);
    m_cmbFontName = addCombo(QStringLiteral("cmbFontName"), QStringLiteral("Font:"), TextEffectsModel::fontNames(), true);
    m_cmbFontName->setCurrentText(defaults.fontName);
    QStringList sizes;
    for (int s : {8, 10, 12, 14, 18, 24, 36, 48, 72})
        sizes << QString::number(s);
    m_cmbFontsize = addCombo(QStringLiteral("cmbFontsize"), QStringLiteral("Font size:"), sizes, true);
    m_cmbFontsize->setCurrentText(defaults.fontSize);
    auto *style = new QHBoxLayout;
    m_bold = new QCheckBox(QStringLiteral("Bold"), this);
    m_bold->setObjectName(QStringLiteral("vsecmdBold"));
    m_italic = new QCheckBox(QStringLiteral("Italic"), this);
    m_italic->setObjectName(QStringLiteral("vsecmdItalic"));
    style->addWidget(m_bold);
    style->addWidget(m_italic);
    style->addStretch();
    form()->addRow(QStringLiteral("Style:"), style);
    m_foreground = addColor(QStringLiteral("vsecmdForeground"), QStringLiteral("Text colour:"), defaults.foreground);
    m_background = addColor(QStringLiteral("vsecmdBackground"), QStringLiteral("Background:"), defaults.background);

    auto *speed = new QHBoxLayout;
    m_sldSpeed = new QSlider(Qt::Horizontal, this);
    m_sldSpeed->setObjectName(QStringLiteral("sldSpeed"));
    const NumberRange speedRange = EffectFieldRange(QStringLiteral("txtSpeed"));
    m_sldSpeed->setRange(speedRange.low, speedRange.high);
    m_txtSpeed = new QLineEdit(defaults.speed, this);
    m_txtSpeed->setObjectName(QStringLiteral("txtSpeed"));
    m_txtSpeed->setValidator(new QIntValidator(0, 99999, m_txtSpeed));
    m_txtSpeed->setMaximumWidth(70);
    m_sldSpeed->setValue(defaults.speed.toInt());
    speed->addWidget(m_sldSpeed, 1);
    speed->addWidget(m_txtSpeed);
    form()->addRow(QStringLiteral("Delay:"), speed);
    connect(m_sldSpeed, &QSlider::valueChanged, this, [this](int v) { m_txtSpeed->setText(QString::number(v)); });
    connect(m_txtSpeed, &QLineEdit::editingFinished, this, [this] { checkNumber(m_txtSpeed); });

    m_cmbAlignment = addCombo(QStringLiteral("cmbAlignment"), QStringLiteral("Alignment:"),
                              TextEffectsModel::alignments(), false);
    m_cmbAlignment->setCurrentText(defaults.alignment);
    auto *border = new QHBoxLayout;
    for (const auto &[name, caption] : {std::pair{"chkBorder", "Border"}, std::pair{"chkBorder3D", "3D border"}}) {
        auto *box = new QCheckBox(QString::fromLatin1(caption), this);
        box->setObjectName(QString::fromLatin1(name));
        border->addWidget(box);
    }
    border->addStretch();
    form()->addRow(QStringLiteral("Border:"), border);
    addFallbackCheck();

    auto *actions = new QHBoxLayout;
    auto *size = new QPushButton(QStringLiteral("Applet &Size..."), this);
    size->setObjectName(QStringLiteral("cmdSize"));
    auto *show = new QPushButton(QStringLiteral("&Preview"), this);
    show->setObjectName(QStringLiteral("sscPreview"));
    actions->addWidget(size);
    actions->addWidget(show);
    actions->addStretch();
    form()->addRow(actions);
    connect(size, &QPushButton::clicked, this, [this] {
        frmTEAppSize dialog(m_size, this);
        dialog.ask();
    });
    connect(show, &QPushButton::clicked, this, &frmTextEffects::preview);

    connect(m_cmbFontName->lineEdit(), &QLineEdit::editingFinished, this, [this] {
        if (!ValidFontName(m_cmbFontName->currentText()))
            m_cmbFontName->setCurrentText(TextEffectsModel().fontName);
    });
    connect(m_cmbFontsize->lineEdit(), &QLineEdit::editingFinished, this, [this] {
        if (!ValidFontSize(m_cmbFontsize->currentText()))
            m_cmbFontsize->setCurrentText(TextEffectsModel().fontSize);
    });
}

QWidget *frmTextEffects::effectPage(const QString &effect)
{
    auto *page = new QWidget(m_ssTabs);
    auto *layout = new QFormLayout(page);
    const TextEffectsModel defaults;
    for (const auto &[name, caption] : TextEffectsModel::effectFields(effect)) {
        auto *edit = new QLineEdit(defaults.fields.value(name), page);
        edit->setObjectName(name);
        edit->setValidator(new QIntValidator(0, 99999, edit));
        connect(edit, &QLineEdit::editingFinished, this, [this, edit] { checkNumber(edit); });
        layout->addRow(caption, edit);
        m_fields.insert(name, edit);
    }
    if (effect == QLatin1String("Jumping")) {
        auto *row = new QHBoxLayout;
        m_optYes = new QRadioButton(QStringLiteral("Yes"), page);
        m_optYes->setObjectName(QStringLiteral("optYes"));
        m_optYes->setChecked(true);
        auto *no = new QRadioButton(QStringLiteral("No"), page);
        no->setObjectName(QStringLiteral("optNo"));
        row->addWidget(m_optYes);
        row->addWidget(no);
        row->addStretch();
        layout->addRow(QStringLiteral("Popcorn:"), row);
    } else if (effect == QLatin1String("Spearmint")) {
        m_cmbAlign = new QComboBox(page);
        m_cmbAlign->setObjectName(QStringLiteral("cmbAlign"));
        m_cmbAlign->addItems({QString(), QStringLiteral("left"), QStringLiteral("center"), QStringLiteral("right")});
        layout->addRow(QStringLiteral("Text alignment:"), m_cmbAlign);
        m_txtMinFont = new QLineEdit(page);
        m_txtMinFont->setObjectName(QStringLiteral("txtMinFont"));
        m_txtMinFont->setValidator(new QIntValidator(0, 999, m_txtMinFont));
        connect(m_txtMinFont, &QLineEdit::editingFinished, this, [this] { checkNumber(m_txtMinFont); });
        layout->addRow(QStringLiteral("Smallest font size:"), m_txtMinFont);
        m_chkSpearmint = new QCheckBox(QStringLiteral("Eat the letters"), page);
        m_chkSpearmint->setObjectName(QStringLiteral("chkSpearmint"));
        m_chkGradient = new QCheckBox(QStringLiteral("Font gradient"), page);
        m_chkGradient->setObjectName(QStringLiteral("chkGradient"));
        layout->addRow(QString(), m_chkSpearmint);
        layout->addRow(QString(), m_chkGradient);
    }
    return page;
}

void frmTextEffects::checkNumber(QLineEdit *edit)
{
    if (edit->text().isEmpty())
        return;
    if (!ValidNumericInput(edit->text(), EffectFieldRange(edit->objectName())))
        edit->clear();
    else if (edit == m_txtSpeed)
        m_sldSpeed->setValue(edit->text().toInt());
}

TextEffectsModel frmTextEffects::model() const
{
    TextEffectsModel m = m_size;
    m.effect = m_ssTabs->tabText(m_ssTabs->currentIndex());
    m.text = m_txtStringCenter->text();
    m.fontName = m_cmbFontName->currentText();
    m.fontSize = m_cmbFontsize->currentText();
    m.bold = m_bold->isChecked();
    m.italic = m_italic->isChecked();
    m.foreground = colorOf(m_foreground);
    m.background = colorOf(m_background);
    m.speed = m_txtSpeed->text();
    m.alignment = m_cmbAlignment->currentText();
    for (auto it = m_fields.begin(); it != m_fields.end(); ++it)
        m.fields.insert(it.key(), it.value()->text());
    m.popcorn = m_optYes->isChecked();
    m.spearmintAlign = m_cmbAlign->currentText();
    m.spearmintEat = m_chkSpearmint->isChecked();
    m.gradient = m_chkGradient->isChecked();
    m.minFont = m_txtMinFont->text();
    return m;
}

QString frmTextEffects::appletText()
{
    TextEffectsModel m = model();
    const QString text = m.CreateApplet();
    m_txtStringCenter->setText(m.text);
    return text;
}

void frmTextEffects::preview()
{
    const TextEffectsModel m = model();
    const QString path = WriteAppletPreview(m.previewPage(appletText()), documentDirectory());
    if (path.isEmpty()) {
        platform::MsgBox(QStringLiteral("The preview could not be written."));
        return;
    }
    core::ui::OpenInBrowser(QUrl::fromLocalFile(path));
}

bool frmTextEffects::confirm()
{
    return ValidFontName(m_cmbFontName->currentText()) && ValidFontSize(m_cmbFontsize->currentText());
}

} // namespace qly::generators::ui
