// The tabs of frmOptions that name files and programs: directories,
// dictionaries, start-up and saving, browsers and publishing.
#include "app/frmOptions.h"

#include "core/OptionsHooks.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include "publish/ui/AliasEditor.h"
#include <QToolButton>
#include <QVBoxLayout>

namespace qly::app {

using namespace core;

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
    m_aliases = new publish::ui::AliasEditor;
    m_aliases->setObjectName(QStringLiteral("aliasArea"));
    m_aliases->load();
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

} // namespace qly::app
