#pragma once

#include "core/TextCodec.h"

#include <QStringList>
#include <QWidget>

class QPlainTextEdit;
class QPushButton;
class QTableWidget;

namespace qly::publish::ui {

// The alias controls of the options dialog: the grid of aliases
// (`grdAliases`: term, replacement, match case, whole word), `btnNew` and
// `btnDelete`, and `txtAlias`, the replacement of the chosen alias in full
// (line breaks included). Line breaks show as "NL_" in the grid, as the
// file stores them.
class AliasEditor final : public QWidget
{
    Q_OBJECT
public:
    explicit AliasEditor(QWidget *parent = nullptr);

    // Reads aliases.inf (empty: the one in the program directory).
    void load(const QString &path = {});
    // Writes the aliases back when the user changed one, in the file's own
    // encoding and line ends: an unchanged alias keeps its line as it was,
    // lines that are no aliases keep their place, a deleted alias loses its
    // line, new ones go at the end; rows without a term are left out.
    // Without a change the file is not touched. False, after telling the
    // user, when the file could not be written.
    bool save(const QString &path = {});
    // True once the user changed, added or deleted an alias.
    bool changed() const { return m_changed; }

    QTableWidget *grid() const { return m_grdAliases; }
    QPushButton *newButton() const { return m_btnNew; }
    QPushButton *deleteButton() const { return m_btnDelete; }
    QPlainTextEdit *aliasText() const { return m_txtAlias; }

private:
    void btnNew_Click();
    void btnDelete_Click();
    void addRow(const QString &term, const QString &replacement, bool matchCase, bool wholeWord, int fileLine);
    void showCurrent();
    void aliasTextEdited();
    void markEdited(int row);
    QString composeText() const;

    QTableWidget *m_grdAliases = nullptr;
    QPushButton *m_btnNew = nullptr;
    QPushButton *m_btnDelete = nullptr;
    QPlainTextEdit *m_txtAlias = nullptr;
    QStringList m_lines;          // the file's lines as read, without their ends
    QString m_lineEnd = QStringLiteral("\r\n");
    bool m_endsWithLineEnd = true;
    core::TextEncoding m_encoding = core::TextEncoding::Utf8;
    bool m_changed = false;
    bool m_syncing = false;
};

} // namespace qly::publish::ui
