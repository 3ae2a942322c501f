// The eight tabs of frmOptions, each built from the model's bindings. The
// widgets carry the system's control names as object names.
#include "core/ui/frmOptions.h"

#include "core/OptionsHooks.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace qly::core::ui {

namespace {

QString indexed(const char *control, int i)
{
    return QString::fromLatin1(control) + u'(' + QString::number(i) + u')';
}

QHBoxLayout *row(const QString &label, QWidget *field, const QString &after = {})
{
    auto *h = new QHBoxLayout;
    h->addWidget(new QLabel(label));
    h->addWidget(field, 1);
    if (!after.isEmpty())
        h->addWidget(new QLabel(after));
    return h;
}

} // namespace

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

QWidget *frmOptions::buildDirectories()
{
    QWidget *w = page(OptionsTab::Directories);
    auto *v = new QVBoxLayout(w);
    auto *help = new QLabel(QStringLiteral("These are the default directories for the file dialogs.  They are "
                                           "overridden by directories specified in the Website Manager."));
    help->setWordWrap(true);
    v->addWidget(help);
    auto *form = new QFormLayout;
    for (int i = 0; i < kLocationCount; ++i) {
        auto *edit = new QLineEdit;
        edit->setObjectName(indexed("txtFile", i));
        m_files[size_t(i)] = edit;
        auto *browse = new QToolButton;
        browse->setObjectName(indexed("imgBrowse", i));
        browse->setText(QStringLiteral("..."));
        auto *h = new QHBoxLayout;
        h->addWidget(edit, 1);
        h->addWidget(browse);
        form->addRow(locationCaption(i), h);
        connect(edit, &QLineEdit::textEdited, this, [this, i](const QString &t) { m_model.locations[size_t(i)] = t; });
        connect(edit, &QLineEdit::editingFinished, this, [this, i] { m_model.leaveLocation(i); });
        connect(browse, &QToolButton::clicked, this, [this, i] {
            m_model.browseLocation(i);
            m_files[size_t(i)]->setText(m_model.locations[size_t(i)]);
        });
    }
    v->addLayout(form);
    v->addStretch();
    return w;
}

QWidget *frmOptions::buildSpelling()
{
    QWidget *w = page(OptionsTab::Spelling);
    auto *form = new QFormLayout(w);
    for (int i = 0; i < 2; ++i) {
        m_dictionaries[size_t(i)] = new QLineEdit;
        m_dictionaries[size_t(i)]->setObjectName(indexed("txtDictionary", i));
        connect(m_dictionaries[size_t(i)], &QLineEdit::textEdited, this,
                [this, i](const QString &t) { m_model.dictionaries[size_t(i)] = t; });
    }
    auto *browse = new QToolButton;
    browse->setObjectName(QStringLiteral("imgBrowseDict"));
    browse->setText(QStringLiteral("..."));
    auto *custom = new QHBoxLayout;
    custom->addWidget(m_dictionaries[1], 1);
    custom->addWidget(browse);
    form->addRow(QStringLiteral("Standard dictionary:"), m_dictionaries[0]);
    form->addRow(QStringLiteral("Custom dictionary:"), custom);
    connect(browse, &QToolButton::clicked, this, [this] {
        m_model.browseDictionary();
        m_dictionaries[1]->setText(m_model.dictionaries[1]);
    });
    return w;
}

QWidget *frmOptions::buildSaveStart()
{
    QWidget *w = page(OptionsTab::SaveStart);
    auto *v = new QVBoxLayout(w);
    addChecks(v, OptionsTab::SaveStart);
    m_autoSave = new QLineEdit;
    m_autoSave->setObjectName(indexed("txtGeneral", 0));
    enterMovesOn(m_autoSave);
    v->addLayout(row(QStringLiteral("Autosave every"), m_autoSave, QStringLiteral("minutes")));
    v->addStretch();
    connect(m_autoSave, &QLineEdit::textEdited, this, [this](const QString &t) { m_model.autoSaveMinutes = t; });
    return w;
}

QWidget *frmOptions::buildBrowsers()
{
    QWidget *w = page(OptionsTab::ExternalBrowsers);
    auto *v = new QVBoxLayout(w);
    auto *h = new QHBoxLayout;
    m_browsers = new QListWidget;
    m_browsers->setObjectName(QStringLiteral("lstBrowsers"));
    h->addWidget(m_browsers, 1);
    auto *buttons = new QVBoxLayout;
    auto button = [&](const char *name, const char *caption) {
        auto *b = new QPushButton(QString::fromLatin1(caption));
        b->setObjectName(QString::fromLatin1(name));
        b->setAutoDefault(false);
        buttons->addWidget(b);
        return b;
    };
    QPushButton *add = button("cmdAdd", "&Add...");
    m_deleteBrowser = button("cmdDelete", "&Delete");
    QPushButton *find = button("Command3", "&Find Browsers");
    QPushButton *makeDefault = button("Command1", "De&fault");
    buttons->addStretch();
    h->addLayout(buttons);
    v->addLayout(h);
    addChecks(v, OptionsTab::ExternalBrowsers, QLatin1String("General"));
    auto *publishing = new QGroupBox(QStringLiteral("Publishing"));
    auto *p = new QVBoxLayout(publishing);
    addChecks(p, OptionsTab::ExternalBrowsers, QLatin1String("Publishing"));
    m_pubExt = combo(QStringLiteral("cmbExtension"), OptionsModel::publishExtensions(), true);
    p->addLayout(row(QStringLiteral("Extension of published documents:"), m_pubExt));
    m_aliases = new QTableWidget(0, 2);
    m_aliases->setObjectName(QStringLiteral("grdAliases"));
    m_aliases->setHorizontalHeaderLabels({QStringLiteral("Word"), QStringLiteral("Replacement")});
    m_aliases->horizontalHeader()->setStretchLastSection(true);
    m_aliases->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_aliases->setToolTip(QStringLiteral("The words replaced on publishing are kept in aliases.inf"));
    p->addWidget(m_aliases);
    v->addWidget(publishing);

    find->setEnabled(bool(optionsHooks().findBrowsers));
    connect(add, &QPushButton::clicked, this, [this] { m_model.addBrowser(); showBrowsers(); });
    connect(m_deleteBrowser, &QPushButton::clicked, this, [this] {
        m_model.deleteBrowser(m_browsers->currentRow());
        showBrowsers();
    });
    connect(find, &QPushButton::clicked, this, [this] {
        m_model.findBrowsers();
        showBrowsers();
        m_files[kBrowserLocation]->setText(m_model.locations[kBrowserLocation]);
    });
    connect(makeDefault, &QPushButton::clicked, this, [this] {
        const int r = m_browsers->currentRow();
        m_model.setDefaultBrowser(r);
        showBrowsers();
        m_browsers->setCurrentRow(r);
        m_files[kBrowserLocation]->setText(m_model.locations[kBrowserLocation]);
    });
    connect(m_browsers, &QListWidget::currentRowChanged, this, [this](int r) { m_deleteBrowser->setEnabled(r >= 0); });
    connect(m_pubExt, &QComboBox::currentTextChanged, this, [this](const QString &t) { m_model.publishExtension = t; });
    connect(m_checks[size_t(OptionCheck::UseAliases)], &QCheckBox::toggled, m_aliases, &QWidget::setVisible);
    return w;
}

} // namespace qly::core::ui
