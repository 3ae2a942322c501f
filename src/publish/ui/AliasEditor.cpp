#include "publish/ui/AliasEditor.h"

#include "core/FileIo.h"
#include "core/Settings.h"
#include "core/TextCodec.h"
#include "platform/Prompts.h"
#include "publish/Aliases.h"

#include <QHash>
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

// Kept on the term cell: the file line the row came from (-1 for a new row)
// and whether the user changed the row.
constexpr int kLineRole = Qt::UserRole;
constexpr int kEditedRole = Qt::UserRole + 1;

// A flag as it goes back to the file: the old text while its meaning stands.
QString flagText(const QString &old, bool on)
{
    if (old.isEmpty())
        return core::YesNo(on);
    const bool wasOn = old.compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0;
    return wasOn == on ? old : core::YesNo(on);
}

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
        if (m_syncing)
            return;
        markEdited(item->row());
        if (item->column() == Replacement && item->row() == m_grdAliases->currentRow())
            showCurrent();
    });
    connect(m_txtAlias, &QPlainTextEdit::textChanged, this, &AliasEditor::aliasTextEdited);
    showCurrent();
}

void AliasEditor::load(const QString &path)
{
    const QString file = path.isEmpty() ? aliasFilePath() : path;
    m_grdAliases->setRowCount(0);
    m_lines.clear();
    m_lineEnd = QStringLiteral("\r\n");
    m_endsWithLineEnd = true;
    m_encoding = core::TextEncoding::Utf8;
    m_changed = false;
    QByteArray bytes;
    if (core::readWholeFile(file, bytes).ok() && !bytes.isEmpty()) {
        const core::DecodedFile decoded = core::decodeFile(bytes);
        m_encoding = decoded.encoding;
        const QString &text = decoded.text;
        const qsizetype firstLf = text.indexOf(u'\n');
        if (firstLf >= 0 && (firstLf == 0 || text.at(firstLf - 1) != u'\r'))
            m_lineEnd = QStringLiteral("\n");
        m_endsWithLineEnd = text.endsWith(u'\n');
        m_lines = text.split(u'\n');
        if (m_endsWithLineEnd)
            m_lines.removeLast();
        for (int i = 0; i < m_lines.size(); ++i) {
            QString &line = m_lines[i];
            if (line.endsWith(u'\r'))
                line.chop(1);
            Alias alias;
            if (parseAliasLine(line, alias))
                addRow(alias.term, alias.replacement, alias.matchesCase(), alias.wholeWordOnly(), i);
        }
    }
    if (m_grdAliases->rowCount() > 0)
        m_grdAliases->setCurrentCell(0, Term);
    showCurrent();
}

QString AliasEditor::composeText() const
{
    // Rows by the file line they came from; new rows go behind the file's lines.
    QHash<int, int> rowOfLine;
    QList<int> newRows;
    for (int row = 0; row < m_grdAliases->rowCount(); ++row) {
        const int line = m_grdAliases->item(row, Term)->data(kLineRole).toInt();
        if (line >= 0)
            rowOfLine.insert(line, row);
        else
            newRows << row;
    }
    const auto rowLine = [this](int row, const QString &oldLine) {
        const QTableWidgetItem *term = m_grdAliases->item(row, Term);
        Alias old;
        parseAliasLine(oldLine, old);
        Alias alias;
        alias.term = realForm(term->text());
        if (alias.term.isEmpty())
            return QString();
        const QTableWidgetItem *replacement = m_grdAliases->item(row, Replacement);
        alias.replacement = replacement ? realForm(replacement->text()) : QString();
        alias.matchCase = flagText(old.matchCase, m_grdAliases->item(row, MatchCase)->checkState() == Qt::Checked);
        alias.wholeWord = flagText(old.wholeWord, m_grdAliases->item(row, WholeWord)->checkState() == Qt::Checked);
        return formatAliasLine(alias);
    };
    QStringList out;
    for (int i = 0; i < m_lines.size(); ++i) {
        Alias alias;
        if (!parseAliasLine(m_lines[i], alias)) {
            out << m_lines[i];
            continue;
        }
        const auto row = rowOfLine.constFind(i);
        if (row == rowOfLine.constEnd())
            continue;   // deleted
        const bool edited = m_grdAliases->item(*row, Term)->data(kEditedRole).toBool();
        const QString line = edited ? rowLine(*row, m_lines[i]) : m_lines[i];
        if (!line.isEmpty())
            out << line;
    }
    for (int row : std::as_const(newRows)) {
        const QString line = rowLine(row, QString());
        if (!line.isEmpty())
            out << line;
    }
    QString text = out.join(m_lineEnd);
    if (!out.isEmpty() && (m_endsWithLineEnd || m_lines.isEmpty()))
        text += m_lineEnd;
    return text;
}

bool AliasEditor::save(const QString &path)
{
    if (!m_changed)
        return true;
    const QString file = path.isEmpty() ? aliasFilePath() : path;
    const core::IoResult result = core::writeFileAtomically(file, core::encodeText(composeText(), m_encoding));
    if (!result.ok()) {
        platform::MsgBox(QStringLiteral("Could not save the aliases to ") + file + QStringLiteral(": ") + result.message,
                         platform::Buttons::Ok, platform::Icon::Exclamation);
        return false;
    }
    return true;
}

void AliasEditor::addRow(const QString &term, const QString &replacement, bool matchCase, bool wholeWord,
                         int fileLine)
{
    m_syncing = true;
    const int row = m_grdAliases->rowCount();
    m_grdAliases->insertRow(row);
    auto *termItem = new QTableWidgetItem(shownForm(term));
    termItem->setData(kLineRole, fileLine);
    termItem->setData(kEditedRole, fileLine < 0);
    m_grdAliases->setItem(row, Term, termItem);
    m_grdAliases->setItem(row, Replacement, new QTableWidgetItem(shownForm(replacement)));
    m_grdAliases->setItem(row, MatchCase, checkItem(matchCase));
    m_grdAliases->setItem(row, WholeWord, checkItem(wholeWord));
    m_syncing = false;
}

void AliasEditor::btnNew_Click()
{
    addRow(QString(), QString(), false, false, -1);
    m_changed = true;
    const int row = m_grdAliases->rowCount() - 1;
    m_grdAliases->setCurrentCell(row, Term);
    m_grdAliases->editItem(m_grdAliases->item(row, Term));
}

void AliasEditor::btnDelete_Click()
{
    const int row = m_grdAliases->currentRow();
    if (row >= 0) {
        m_grdAliases->removeRow(row);
        m_changed = true;
    }
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
    markEdited(row);
}

void AliasEditor::markEdited(int row)
{
    if (QTableWidgetItem *term = m_grdAliases->item(row, Term)) {
        m_syncing = true;
        term->setData(kEditedRole, true);
        m_syncing = false;
        m_changed = true;
    }
}

} // namespace qly::publish::ui
