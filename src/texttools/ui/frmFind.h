#pragma once

#include "texttools/FindModel.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace qly::platform {
class HTMLEdit;
}

namespace qly::texttools::ui {

class HitHighlighter;

// The modeless find and replace dialog, in its Find ("f") or Replace ("r")
// guise. It shows a FindModel and works on whatever document is current.
class frmFind final : public QDialog
{
    Q_OBJECT
public:
    explicit frmFind(QWidget *parent = nullptr);
    ~frmFind() override;

    // The one dialog of the program, made on first use.
    static frmFind &instance(QWidget *parent);
    // Sets the guise, takes a selection of one line as the search text and shows.
    void showGuise(const QString &guise);
    // F3 and Shift+F3: the next or previous hit of the last search text.
    void findAgain(bool backwards);
    // Moves the marks of the hits to the document that is current now.
    void followCurrentDocument() { updateHighlight(); }
    // The open dialog, or null.
    static frmFind *existing();

    FindModel &model() { return m_model; }
    QComboBox *findField() const { return m_cmbFind; }
    QComboBox *replaceField() const { return m_cmbReplace; }
    QCheckBox *optionBox(int index) const { return m_chkOptions[index]; }
    QCheckBox *regexBox() const { return m_chkRegex; }
    QPushButton *button(int index) const { return m_btnOptions[index]; }

protected:
    // Hiding (Close, Escape) clears the marks and keeps the position.
    void hideEvent(QHideEvent *event) override;

private:
    void applyGuise();
    void readFields();
    void onFind();
    void onReplaceAll();
    void updateHighlight();
    static void fillHistory(QComboBox *box, const QStringList &history);
    platform::HTMLEdit *currentEdit() const;

    FindModel m_model;
    QComboBox *m_cmbFind = nullptr;
    QLabel *m_lblReplaceHeading = nullptr;
    QComboBox *m_cmbReplace = nullptr;
    QCheckBox *m_chkOptions[4] = {};
    QCheckBox *m_chkRegex = nullptr;
    QPushButton *m_btnOptions[4] = {};
    HitHighlighter *m_highlighter = nullptr;
};

} // namespace qly::texttools::ui
