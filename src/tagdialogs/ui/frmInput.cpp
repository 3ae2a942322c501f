#include "tagdialogs/ui/frmInput.h"

#include "platform/ui/QtPrompts.h"

#include "core/ui/DialogFlags.h"
#include "core/ui/Help.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace qly::tagdialogs::ui {

frmInput::frmInput(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(QStringLiteral("frmInput"));
    setWindowTitle(QStringLiteral("Input"));
    auto *layout = new QVBoxLayout(this);
    m_prompt = new QLabel(this);
    m_prompt->setObjectName(QStringLiteral("lblPrompt"));
    m_prompt->setWordWrap(true);
    layout->addWidget(m_prompt);
    m_txtInput = new QLineEdit(this);
    m_txtInput->setObjectName(QStringLiteral("txtInput"));
    m_txtInput->setMinimumWidth(300);
    layout->addWidget(m_txtInput);
    m_cmbInput = new QComboBox(this);
    m_cmbInput->setObjectName(QStringLiteral("cmbInput"));
    m_cmbInput->hide();
    layout->addWidget(m_cmbInput);
    m_prompt->setBuddy(m_txtInput);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    const char *const captions[] = {"OK", "Cancel", "&Help"};
    for (int i = 0; i < 3; ++i) {
        m_cmdOptions[i] = new QPushButton(QString::fromLatin1(captions[i]), this);
        m_cmdOptions[i]->setObjectName(QStringLiteral("cmdOptions(%1)").arg(i));
        m_cmdOptions[i]->setAutoDefault(false);
        buttons->addWidget(m_cmdOptions[i]);
    }
    // Enter in the text box acts as OK.
    m_cmdOptions[0]->setDefault(true);
    layout->addLayout(buttons);
    connect(m_cmdOptions[0], &QPushButton::clicked, this, &frmInput::accept);
    connect(m_cmdOptions[1], &QPushButton::clicked, this, &frmInput::reject);
    connect(m_cmdOptions[2], &QPushButton::clicked, this, [] { core::ui::OpenHelp(); });
}

void frmInput::setPrompt(const QString &prompt)
{
    m_prompt->setText(prompt);
}

void frmInput::askText(const QString &initial, bool password)
{
    m_txtInput->setText(initial);
    m_txtInput->setEchoMode(password ? QLineEdit::Password : QLineEdit::Normal);
    m_txtInput->show();
    m_cmbInput->hide();
    m_prompt->setBuddy(m_txtInput);
}

void frmInput::askChoice(const QStringList &items, int current)
{
    m_cmbInput->clear();
    m_cmbInput->addItems(items);
    m_cmbInput->setCurrentIndex(current);
    m_txtInput->clear();
    m_txtInput->hide();
    m_cmbInput->show();
    m_prompt->setBuddy(m_cmbInput);
}

void frmInput::accept()
{
    m_model.ok(m_txtInput->isHidden() ? QString() : m_txtInput->text());
    m_model.listIndex = m_cmbInput->currentIndex();
    QDialog::accept();
}

void frmInput::reject()
{
    m_model.cancel();
    m_cmbInput->setCurrentIndex(-1);
    QDialog::reject();
}

void installInputBox()
{
    platform::ui::QtPrompts::inputBox() = [](QWidget *parent, const QString &title, const QString &prompt,
                                             const QString &initial, bool password) -> std::optional<QString> {
        frmInput box(parent);
        if (!title.isEmpty())
            box.setWindowTitle(title);
        box.setPrompt(prompt);
        box.askText(initial, password);
        box.exec();
        const QString answer = box.model().Tag;
        if (answer.isEmpty() || answer == InputModel::cancelled())
            return std::nullopt;
        // OK on an empty box leaves the box's mark for "no text": the empty text.
        if (answer == InputModel::chosen())
            return QString();
        return answer;
    };
}

} // namespace qly::tagdialogs::ui
