#include "generators/ui/frmTextEffects.h"

#include "generators/AppletClasses.h"
#include "generators/EffectChecks.h"
#include "generators/ui/PreviewPane.h"
#include "generators/ui/frmTEAppSize.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>

namespace qly::generators::ui {

frmTextEffects::frmTextEffects(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmTextEffects"), QStringLiteral("Text Effects"), parent)
{
    const TextEffectsModel defaults;
    m_ssTabs = new QTabWidget(this);
    m_ssTabs->setObjectName(QStringLiteral("ssTabs"));
    for (const QString &effect : TextEffectsModel::effects())
        m_ssTabs->addTab(effectPage(effect), effect);
    form()->addRow(m_ssTabs);

    m_txtStringCenter = addLine(QStringLiteral("txtStringCenter"), QStringLiteral("Text:"));
    m_txtStringCenter->setText(defaults.text);
    // Font and size share a row, as do style and colours, so that the dialog
    // stays short.
    auto *font = new QHBoxLayout;
    m_cmbFontName = new QComboBox(this);
    m_cmbFontName->setObjectName(QStringLiteral("cmbFontName"));
    m_cmbFontName->setEditable(true);
    m_cmbFontName->addItems(TextEffectsModel::fontNames());
    m_cmbFontName->setCurrentText(defaults.fontName);
    m_cmbFontsize = new QComboBox(this);
    m_cmbFontsize->setObjectName(QStringLiteral("cmbFontsize"));
    m_cmbFontsize->setEditable(true);
    for (int s : {8, 10, 12, 14, 18, 24, 36, 48, 72})
        m_cmbFontsize->addItem(QString::number(s));
    m_cmbFontsize->setCurrentText(defaults.fontSize);
    font->addWidget(m_cmbFontName, 3);
    font->addWidget(new QLabel(QStringLiteral("Size:"), this));
    font->addWidget(m_cmbFontsize, 1);
    form()->addRow(QStringLiteral("Font:"), font);

    auto *style = new QHBoxLayout;
    m_bold = new QCheckBox(QStringLiteral("Bold"), this);
    m_bold->setObjectName(QStringLiteral("vsecmdBold"));
    m_italic = new QCheckBox(QStringLiteral("Italic"), this);
    m_italic->setObjectName(QStringLiteral("vsecmdItalic"));
    style->addWidget(m_bold);
    style->addWidget(m_italic);
    style->addStretch();
    form()->addRow(QStringLiteral("Style:"), style);
    auto *colours = new QHBoxLayout;
    m_foreground = colorButton(QStringLiteral("vsecmdForeground"), defaults.foreground);
    m_background = colorButton(QStringLiteral("vsecmdBackground"), defaults.background);
    colours->addWidget(m_foreground, 1);
    colours->addWidget(new QLabel(QStringLiteral("Background:"), this));
    colours->addWidget(m_background, 1);
    form()->addRow(QStringLiteral("Text colour:"), colours);

    auto *speed = new QHBoxLayout;
    m_sldSpeed = new QSlider(Qt::Horizontal, this);
    m_sldSpeed->setObjectName(QStringLiteral("sldSpeed"));
    const NumberRange speedRange = EffectFieldRange(QStringLiteral("txtSpeed"));
    m_sldSpeed->setRange(speedRange.low, speedRange.high);
    m_txtSpeed = new QLineEdit(defaults.speed, this);
    m_txtSpeed->setObjectName(QStringLiteral("txtSpeed"));
    m_txtSpeed->setValidator(new QIntValidator(0, 99999, m_txtSpeed));
    m_txtSpeed->setMaximumWidth(m_txtSpeed->fontMetrics().averageCharWidth() * 9);
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
    m_chkBorder = new QCheckBox(QStringLiteral("Border"), this);
    m_chkBorder->setObjectName(QStringLiteral("chkBorder"));
    m_chkBorder3D = new QCheckBox(QStringLiteral("3D border"), this);
    m_chkBorder3D->setObjectName(QStringLiteral("chkBorder3D"));
    m_imgBorderColor = colorButton(QStringLiteral("imgBorderColor"), defaults.borderColor);
    m_imgBorderColor->setToolTip(QStringLiteral("Border colour"));
    m_imgBorderColor->setEnabled(false);
    border->addWidget(m_chkBorder);
    border->addWidget(m_chkBorder3D);
    border->addWidget(m_imgBorderColor);
    border->addStretch();
    form()->addRow(QStringLiteral("Border:"), border);
    for (QCheckBox *tick : {m_chkBorder, m_chkBorder3D})
        connect(tick, &QCheckBox::toggled, this, [this] {
            m_imgBorderColor->setEnabled(m_chkBorder->isChecked() || m_chkBorder3D->isChecked());
        });
    addFallbackCheck();

    auto *actionRow = new QWidget(this);
    auto *actions = new QHBoxLayout(actionRow);
    actions->setContentsMargins(0, 0, 0, 0);
    auto *size = new QPushButton(QStringLiteral("Applet &Size..."), this);
    size->setObjectName(QStringLiteral("cmdSize"));
    auto *show = new QPushButton(QStringLiteral("&Preview"), this);
    show->setObjectName(QStringLiteral("sscPreview"));
    actions->addWidget(size);
    actions->addWidget(show);
    actions->addStretch();
    connect(size, &QPushButton::clicked, this, [this] {
        frmTEAppSize dialog(m_size, this);
        if (dialog.ask())
            m_preview->changedIfLive();
    });
    connect(show, &QPushButton::clicked, this, &frmTextEffects::preview);

    // The preview in the dialog: the page beside the current document, with
    // the classes it names copied there.
    m_preview = new PreviewPane([this] {
        TextEffectsModel m = model();
        return m.previewPage(m.CreateApplet());
    }, this);
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->onWritten([](const QString &path, const QString &page) {
        CopyAppletClasses(page, QFileInfo(path).absolutePath());
    });
    addBelowFields(actionRow, 0);
    addBelowFields(m_preview);
    m_preview->hide();   // until the first preview
    followChanges();
    // Wide enough for every effect's tab where the screen allows.
    letFieldsScroll(m_ssTabs->tabBar()->sizeHint().width() + 4 * QWidget::style()->pixelMetric(QStyle::PM_LayoutLeftMargin));

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
    m.border = m_chkBorder->isChecked();
    m.border3D = m_chkBorder3D->isChecked();
    m.borderColor = colorOf(m_imgBorderColor);
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
    appletText();   // an empty text field receives the maker's text
    m_preview->showLive(this);
}

void frmTextEffects::followChanges()
{
    auto changed = [this] { m_preview->changedIfLive(); };
    for (QLineEdit *edit : findChildren<QLineEdit *>())
        connect(edit, &QLineEdit::textChanged, this, changed);
    for (QAbstractButton *tick : findChildren<QAbstractButton *>()) {
        if (tick->isCheckable())
            connect(tick, &QAbstractButton::toggled, this, changed);
    }
    for (QComboBox *box : findChildren<QComboBox *>())
        connect(box, &QComboBox::currentTextChanged, this, changed);
    connect(m_ssTabs, &QTabWidget::currentChanged, this, changed);
    connect(this, &FieldsDialog::colorChosen, this, changed);
}

bool frmTextEffects::confirm()
{
    return ValidFontName(m_cmbFontName->currentText()) && ValidFontSize(m_cmbFontsize->currentText());
}

} // namespace qly::generators::ui
