#include "texttools/ui/frmSpeller.h"

#include "core/Settings.h"
#include "platform/Prompts.h"
#include "texttools/ui/SpellUnderline.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace qly::texttools::ui {

frmSpeller::frmSpeller(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmSpeller"));
    setWindowTitle(QStringLiteral("Spell Check"));
    auto *grid = new QGridLayout(this);

    m_lblContext = new QLabel(this);
    m_lblContext->setObjectName(QStringLiteral("lblContext"));
    m_lblContext->setTextFormat(Qt::RichText);
    m_lblContext->setWordWrap(true);
    m_lblContext->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    grid->addWidget(m_lblContext, 0, 0, 1, 2);

    m_txtWord = new QLineEdit(this);
    m_txtWord->setObjectName(QStringLiteral("txtWord"));
    m_txtWord->setReadOnly(true);
    m_txtChange = new QLineEdit(this);
    m_txtChange->setObjectName(QStringLiteral("txtChange"));
    m_lstSuggest = new QListWidget(this);
    m_lstSuggest->setObjectName(QStringLiteral("lstSuggest"));
    m_cmbDictionary = new QComboBox(this);
    m_cmbDictionary->setObjectName(QStringLiteral("cmbDictionary"));

    auto *fields = new QGridLayout;
    fields->addWidget(new QLabel(QStringLiteral("Not in dictionary:"), this), 0, 0);
    fields->addWidget(m_txtWord, 0, 1);
    fields->addWidget(new QLabel(QStringLiteral("Change to:"), this), 1, 0);
    fields->addWidget(m_txtChange, 1, 1);
    fields->addWidget(new QLabel(QStringLiteral("Suggestions:"), this), 2, 0, Qt::AlignTop);
    fields->addWidget(m_lstSuggest, 2, 1);
    fields->addWidget(new QLabel(QStringLiteral("Dictionary:"), this), 3, 0);
    fields->addWidget(m_cmbDictionary, 3, 1);
    grid->addLayout(fields, 1, 0);

    auto *buttons = new QVBoxLayout;
    const struct {
        const char *name;
        const char *caption;
        SpellAction action;
    } table[] = {
        {"cmdIgnore", "&Ignore", SpellAction::Ignore},        {"cmdIgnoreAll", "I&gnore All", SpellAction::IgnoreAll},
        {"cmdChange", "&Change", SpellAction::Change},        {"cmdChangeAll", "Change A&ll", SpellAction::ChangeAll},
        {"cmdAdd", "&Add", SpellAction::Add},                 {"cmdCancel", "Cancel", SpellAction::Cancel},
    };
    for (const auto &b : table) {
        auto *button = new QPushButton(QString::fromLatin1(b.caption), this);
        button->setObjectName(QString::fromLatin1(b.name));
        button->setAutoDefault(false);
        const SpellAction action = b.action;
        connect(button, &QPushButton::clicked, this, [this, action] { answer(action); });
        buttons->addWidget(button);
        if (action == SpellAction::Change)
            button->setDefault(true);
    }
    buttons->addStretch();
    grid->addLayout(buttons, 1, 1);

    for (const DictionaryFiles &d : InstalledDictionaries())
        m_cmbDictionary->addItem(d.name, d.dic);
    connect(m_lstSuggest, &QListWidget::currentTextChanged, m_txtChange, &QLineEdit::setText);
    connect(m_lstSuggest, &QListWidget::itemDoubleClicked, this, [this] { answer(SpellAction::Change); });
    connect(m_cmbDictionary, &QComboBox::activated, this, &frmSpeller::switchDictionary);
}

SpellAction frmSpeller::ask(SpellSession &session, QString &replacement)
{
    m_session = &session;
    const QString word = session.word();
    const QString context = session.context().toHtmlEscaped();
    const QString escaped = word.toHtmlEscaped();
    const qsizetype at = context.indexOf(escaped);
    m_lblContext->setText(at < 0 ? context
                                 : context.left(at) + QStringLiteral("<b><u>") + escaped + QStringLiteral("</u></b>")
                                       + context.mid(at + escaped.size()));
    m_txtWord->setText(word);
    m_cmbDictionary->setCurrentIndex(m_cmbDictionary->findText(session.checker().name()));
    fillSuggestions();
    m_action = SpellAction::Cancel;
    exec();
    replacement = m_txtChange->text();
    m_session = nullptr;
    return m_action;
}

void frmSpeller::fillSuggestions()
{
    m_lstSuggest->clear();
    const QStringList suggestions = m_session->suggestions();
    m_lstSuggest->addItems(suggestions);
    m_txtChange->setText(suggestions.isEmpty() ? m_session->word() : suggestions.first());
    if (!suggestions.isEmpty())
        m_lstSuggest->setCurrentRow(0);
    m_txtChange->setFocus();
    m_txtChange->selectAll();
}

void frmSpeller::answer(SpellAction action)
{
    m_action = action;
    if (action == SpellAction::Cancel)
        reject();
    else
        accept();
}

void frmSpeller::switchDictionary(int index)
{
    if (!m_session)
        return;
    const QString name = m_cmbDictionary->itemText(index);
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Standard Dictionary"), name);
    QString error;
    std::unique_ptr<SpellChecker> checker = SpellChecker::open(MainDictionary(), error);
    if (!checker) {
        platform::MsgBox(error, platform::Buttons::Ok, platform::Icon::Exclamation,
                         QStringLiteral("Default Dictionary Not Found"));
        return;
    }
    m_session->replaceChecker(std::move(checker));
    if (m_session->checker().check(m_session->word()))
        answer(SpellAction::Ignore);
    else
        fillSuggestions();
}

void frmSpeller::run(QWidget *parent)
{
    frmSpeller dialog(parent);
    CheckSpelling([&dialog](SpellSession &session, QString &replacement) { return dialog.ask(session, replacement); });
    // Words added on the way count for the underlining too.
    SpellUnderline::forget();
}

} // namespace qly::texttools::ui
