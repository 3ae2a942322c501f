#include "publish/ui/AliasEditor.h"

#include "core/FileIo.h"
#include "core/Settings.h"
#include "core/TextCodec.h"
#include "platform/Prompts.h"
#include "publish/Aliases.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace qly::publish::ui {

namespace {

enum Column { Term, Replacement, MatchCase, WholeWord };

QString shownForm(QString text)
{
    return text.replace(QLatin1String("\r\n"), QLatin1String("NL_"));
}

QString realForm(QString text)
{
    return text.replace(QLatin1String("NL_"), QLatin1String("\r\n"));
}

QTableWidgetItem *checkItem(bool on)
{
    auto *item = new QTableWidgetItem;
    item->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    item->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    return item;
}

} // namespace

AliasEditor::AliasEditor(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("AliasEditor"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_grdAliases = new QTableWidget(0, 4, this);
    m_grdAliases->setObjectName(QStringLiteral("grdAliases"));
    m_grdAliases->setHorizontalHeaderLabels({tr("Word"), tr("Replace with"), tr("Match case"), tr("Whole word")});
    m_grdAliases->horizontalHeader()->setSectionResizeMode(Replacement, QHeaderView::Stretch);
    m_grdAliases->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_grdAliases->setSelectionMode(QAbstractItemView::SingleSelection);
    layout->addWidget(m_grdAliases);

    layout->addWidget(new QLabel(tr("Replacement text:"), this));
    m_txtAlias = new QPlainTextEdit(this);
    m_txtAlias->setObjectName(QStringLiteral("txtAlias"));
    m_txtAlias->setMaximumHeight(90);
    layout->addWidget(m_txtAlias);

    auto *buttons = new QHBoxLayout;
    m_btnNew = new QPushButton(tr("&New"), this);
    m_btnNew->setObjectName(QStringLiteral("btnNew"));
    m_btnDelete = new QPushButton(tr("&Delete"), this);
    m_btnDelete->setObjectName(QStringLiteral("btnDelete"));
    buttons->addWidget(m_btnNew);
    buttons->addWidget(m_btnDelete);
    buttons->addStretch();
    layout->addLayout(buttons);

    connect(m_btnNew, &QPushButton::clicked, this, &AliasEditor::btnNew_Click);
    connect(m_btnDelete, &QPushButton::clicked, this, &AliasEditor::btnDelete_Click);
    connect(m_grdAliases, &QTableWidget::currentCellChanged, this, &AliasEditor::showCurrent);
    connect(m_grdAliases, &QTableWidget::itemChanged, this, [this](QTableWidgetItem *item) {
        if (!m_syncing && item->column() == Replacement && item->row() == m_grdAliases->currentRow())
            showCurrent();
    });
    connect(m_txtAlias, &QPlainTextEdit::textChanged, this, &AliasEditor::aliasTextEdited);
    showCurrent();
}

void AliasEditor::load(const QString &path)
{
    const QString file = path.isEmpty() ? aliasFilePath() : path;
    m_grdAliases->setRowCount(0);
    m_otherLines.clear();
    QByteArray bytes;
    if (core::readWholeFile(file, bytes).ok()) {
        const QString text = core::decodeFile(bytes).text;
        QStringList lines = text.split(u'\n');
        if (!lines.isEmpty() && lines.last().isEmpty())
            lines.removeLast();
        for (QString line : lines) {
            if (line.endsWith(u'\r'))
                line.chop(1);
            Alias alias;
            if (parseAliasLine(line, alias))
                addRow(alias.term, alias.replacement, alias.matchesCase(), alias.wholeWordOnly());
            else if (!line.isEmpty())
                m_otherLines << line;
        }
    }
    if (m_grdAliases->rowCount() > 0)
        m_grdAliases->setCurrentCell(0, Term);
    showCurrent();
}

bool AliasEditor::save(const QString &path)
{
    const QString file = path.isEmpty() ? aliasFilePath() : path;
    QString text;
    for (int row = 0; row < m_grdAliases->rowCount(); ++row) {
        Alias alias;
        const QTableWidgetItem *term = m_grdAliases->item(row, Term);
        const QTableWidgetItem *replacement = m_grdAliases->item(row, Replacement);
        alias.term = term ? realForm(term->text()) : QString();
        if (alias.term.isEmpty())
            continue;
        alias.replacement = replacement ? realForm(replacement->text()) : QString();
        alias.matchCase = core::YesNo(m_grdAliases->item(row, MatchCase)->checkState() == Qt::Checked);
        alias.wholeWord = core::YesNo(m_grdAliases->item(row, WholeWord)->checkState() == Qt::Checked);
        text += formatAliasLine(alias) + QStringLiteral("\r\n");
    }
    for (const QString &line : m_otherLines)
        text += line + QStringLiteral("\r\n");
    const core::IoResult result = core::writeFileAtomically(file, text.toUtf8());
    if (!result.ok()) {
        platform::MsgBox(QStringLiteral("Could not save the aliases to ") + file + QStringLiteral(": ") + result.message,
                         platform::Buttons::Ok, platform::Icon::Exclamation);
        return false;
    }
    return true;
}

void AliasEditor::addRow(const QString &term, const QString &replacement, bool matchCase, bool wholeWord)
{
    m_syncing = true;
    const int row = m_grdAliases->rowCount();
    m_grdAliases->insertRow(row);
    m_grdAliases->setItem(row, Term, new QTableWidgetItem(shownForm(term)));
    m_grdAliases->setItem(row, Replacement, new QTableWidgetItem(shownForm(replacement)));
    m_grdAliases->setItem(row, MatchCase, checkItem(matchCase));
    m_grdAliases->setItem(row, WholeWord, checkItem(wholeWord));
    m_syncing = false;
}

void AliasEditor::btnNew_Click()
{
    addRow(QString(), QString(), false, false);
    const int row = m_grdAliases->rowCount() - 1;
    m_grdAliases->setCurrentCell(row, Term);
    m_grdAliases->editItem(m_grdAliases->item(row, Term));
}

void AliasEditor::btnDelete_Click()
{
    const int row = m_grdAliases->currentRow();
    if (row >= 0)
        m_grdAliases->removeRow(row);
    showCurrent();
}

void AliasEditor::showCurrent()
{
    const int row = m_grdAliases->currentRow();
    const QTableWidgetItem *item = row >= 0 ? m_grdAliases->item(row, Replacement) : nullptr;
    m_syncing = true;
    m_txtAlias->setPlainText(item ? realForm(item->text()).replace(QLatin1String("\r\n"), QLatin1String("\n"))
                                  : QString());
    m_syncing = false;
    m_txtAlias->setEnabled(item != nullptr);
    m_btnDelete->setEnabled(row >= 0);
}

void AliasEditor::aliasTextEdited()
{
    if (m_syncing)
        return;
    const int row = m_grdAliases->currentRow();
    QTableWidgetItem *item = row >= 0 ? m_grdAliases->item(row, Replacement) : nullptr;
    if (!item)
        return;
    QString text = m_txtAlias->toPlainText();
    text.replace(u'\n', QLatin1String("\r\n"));
    m_syncing = true;
    item->setText(shownForm(text));
    m_syncing = false;
}

} // namespace qly::publish::ui
