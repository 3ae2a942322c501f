#pragma once

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
    // Writes the aliases back, CR LF line ends. Rows without a term are left
    // out; lines of the file that were no aliases are kept at the end.
    // False, after telling the user, when the file could not be written.
    bool save(const QString &path = {});

    QTableWidget *grid() const { return m_grdAliases; }
    QPushButton *newButton() const { return m_btnNew; }
    QPushButton *deleteButton() const { return m_btnDelete; }
    QPlainTextEdit *aliasText() const { return m_txtAlias; }

private:
    void btnNew_Click();
    void btnDelete_Click();
    void addRow(const QString &term, const QString &replacement, bool matchCase, bool wholeWord);
    void showCurrent();
    void aliasTextEdited();

    QTableWidget *m_grdAliases = nullptr;
    QPushButton *m_btnNew = nullptr;
    QPushButton *m_btnDelete = nullptr;
    QPlainTextEdit *m_txtAlias = nullptr;
    QStringList m_otherLines;
    bool m_syncing = false;
};

} // namespace qly::publish::ui
