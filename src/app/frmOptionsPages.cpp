// The tabs of frmOptions that shape the editing: general, editing,
// colouring and display. Widgets carry the system's control names as
// object names.
#include "app/frmOptions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace qly::app {

using namespace core;


QString frmOptions::indexed(const char *control, int i)
{
    return QString::fromLatin1(control) + u'(' + QString::number(i) + u')';
}

QHBoxLayout *frmOptions::row(const QString &label, QWidget *field, const QString &after)
{
    auto *h = new QHBoxLayout;
    h->addWidget(new QLabel(label));
    h->addWidget(field, 1);
    if (!after.isEmpty())
        h->addWidget(new QLabel(after));
    return h;
}

QWidget *frmOptions::page(OptionsTab tab)
{
    auto *w = new QWidget;
    w->setObjectName(indexed("picOptions", int(tab)));
    return w;
}

void frmOptions::addChecks(QBoxLayout *layout, OptionsTab tab, QLatin1String section)
{
    for (const CheckBinding &b : checkBindings()) {
        if (b.tab != tab || b.id == OptionCheck::ColorHTML || (!section.isEmpty() && b.section != section))
            continue;
        auto *box = new QCheckBox(b.caption);
        box->setObjectName(b.control);
        m_checks[size_t(b.id)] = box;
        layout->addWidget(box);
        connect(box, &QCheckBox::toggled, this, [this, id = b.id](bool on) { m_model.setCheck(id, on); });
    }
}

QComboBox *frmOptions::combo(const QString &name, const QStringList &items, bool editable)
{
    auto *c = new QComboBox;
    c->setObjectName(name);
    c->addItems(items);
    c->setEditable(editable);
    return c;
}

QWidget *frmOptions::buildGeneral()
{
    QWidget *w = page(OptionsTab::General);
    auto *v = new QVBoxLayout(w);
    addChecks(v, OptionsTab::General);
    m_anchor = combo(QStringLiteral("cmbAnchor"), OptionsModel::anchorChoices(), false);
    m_bigLetter = combo(indexed("cmbFont", 2), OptionsModel::bigLetterSizes(), false);
    v->addLayout(row(QStringLiteral("Anchors are written with:"), m_anchor));
    v->addLayout(row(QStringLiteral("Font size of big first letters:"), m_bigLetter));
    v->addStretch();
    connect(m_anchor, &QComboBox::currentTextChanged, this, [this](const QString &t) { m_model.anchor = t; });
    connect(m_bigLetter, &QComboBox::currentTextChanged, this, [this](const QString &t) { m_model.bigLetterSize = t; });
    return w;
}

QWidget *frmOptions::buildEditing()
{
    QWidget *w = page(OptionsTab::Editing);
    auto *v = new QVBoxLayout(w);
    m_fontName = combo(indexed("cmbFont", 0), QFontDatabase::families(), true);
    QStringList sizes;
    for (int s : QFontDatabase::standardSizes())
        sizes << QString::number(s);
    m_fontSize = combo(indexed("cmbFont", 1), sizes, true);
    m_docExt = combo(QStringLiteral("cmbDefaultDocExt"), OptionsModel::documentExtensions(), true);
    enterMovesOn(m_fontName);
    enterMovesOn(m_fontSize);
    v->addLayout(row(QStringLiteral("Font:"), m_fontName));
    v->addLayout(row(QStringLiteral("Size:"), m_fontSize));
    v->addLayout(row(QStringLiteral("Default document extension:"), m_docExt));
    addChecks(v, OptionsTab::Editing);
    v->addStretch();
    connect(m_fontName, &QComboBox::currentTextChanged, this, [this](const QString &t) { m_model.fontName = t; });
    connect(m_fontSize, &QComboBox::currentTextChanged, this, [this](const QString &t) { m_model.fontSize = t; });
    connect(m_docExt, &QComboBox::currentTextChanged, this, [this](const QString &t) { m_model.documentExtension = t; });
    connect(m_docExt, &QComboBox::textActivated, this, [this](const QString &t) {
        m_model.chooseDocumentExtension(t);
        QCheckBox *force = m_checks[size_t(OptionCheck::ForceDefaultExt)];
        force->setVisible(m_model.forceExtensionVisible());
        force->setChecked(m_model.check(OptionCheck::ForceDefaultExt));
    });
    return w;
}

QWidget *frmOptions::buildColoring()
{
    QWidget *w = page(OptionsTab::Coloring);
    auto *v = new QVBoxLayout(w);
    const CheckBinding &b = checkBinding(OptionCheck::ColorHTML);
    auto *colour = new QCheckBox(b.caption);
    colour->setObjectName(b.control);
    m_checks[size_t(OptionCheck::ColorHTML)] = colour;
    v->addWidget(colour);
    m_colourFrame = new QGroupBox;
    m_colourFrame->setObjectName(QStringLiteral("fraColourHTML"));
    auto *frames = new QHBoxLayout(m_colourFrame);
    QHash<QString, QFormLayout *> forms;
    for (const char *name : {"Main", "JavaScript", "HTML Tags"}) {
        auto *g = new QGroupBox(QString::fromLatin1(name));
        forms.insert(g->title(), new QFormLayout(g));
        frames->addWidget(g, 0, Qt::AlignTop);
    }
    for (int i = 0; i < kColourCount; ++i) {
        const ColourBinding &c = colourBindings()[size_t(i)];
        auto *button = new QToolButton;
        button->setObjectName(indexed("lblColour", i));
        button->setIconSize(QSize(32, 16));
        m_colours[size_t(i)] = button;
        forms.value(QString(c.frame))->addRow(c.caption, button);
        connect(button, &QToolButton::clicked, this, [this, i] { pickColour(i); });
    }
    v->addWidget(m_colourFrame);
    v->addStretch();
    connect(colour, &QCheckBox::toggled, this, [this](bool on) {
        m_model.setCheck(OptionCheck::ColorHTML, on);
        m_colourFrame->setEnabled(on);
    });
    return w;
}

QWidget *frmOptions::buildDisplay()
{
    QWidget *w = page(OptionsTab::Display);
    auto *v = new QVBoxLayout(w);
    addChecks(v, OptionsTab::Display);
    m_scoutCheck = new QCheckBox(QStringLiteral("Refresh table previews after"));
    m_scoutCheck->setObjectName(QStringLiteral("chkSCOUT"));
    m_scout = new QLineEdit;
    m_scout->setObjectName(QStringLiteral("txtScout"));
    auto *h = row(QString(), m_scout, QStringLiteral("seconds idle (max 60)"));
    h->insertWidget(0, m_scoutCheck);
    v->addLayout(h);
    v->addStretch();
    connect(m_scoutCheck, &QCheckBox::toggled, this, [this](bool on) {
        m_model.setScoutEnabled(on);
        m_scout->setEnabled(on);
        m_scout->setText(m_model.scoutSeconds);
    });
    connect(m_scout, &QLineEdit::textEdited, this, [this](const QString &t) { m_model.scoutSeconds = t; });
    connect(m_scout, &QLineEdit::editingFinished, this, [this] {
        m_model.scoutSeconds = OptionsModel::normalizeScout(m_scout->text());
        m_scout->setText(m_model.scoutSeconds);
    });
    return w;
}

} // namespace qly::app
