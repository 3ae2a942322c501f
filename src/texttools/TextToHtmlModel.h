#pragma once

#include "texttools/TextToHtml.h"

#include <QString>
#include <QStringList>

namespace qly::texttools {

// The Convert to HTML dialog (frmConvert) without its window: the fields
// under their control names, the checks, and what each button does to the
// current document and to files.
class TextToHtmlModel
{
public:
    enum Button { Apply = 0, Cancel = 1, OkDocument = 2, OkFiles = 3 };
    // A list the user must choose from before a button works.
    enum class MissingChoice { None, ListType, FirstHead, OtherHead };

    static QStringList listTypes();      // "Bullet", "Numbered"
    static QStringList listActions();    // "remove that character", "leave it in the document"
    static QStringList headTags();       // "<H1>" ... "<B>"
    static QStringList isolations();     // "above", "below", "above & below"
    static int widthOf(int column);      // rbcols index to 40, 80, 132

    bool chkPre = false;
    int rbcols = 1;
    bool chkMakePara = false;
    bool chkMakeList = false;
    int cmbListType = -1;          // -1: not chosen
    QString txtBullet;
    int cmbListAction = -1;        // -1 counts as "remove that character"
    bool chkFirstHead = false;
    bool chkOtherHead = false;
    int cmbFirstHead = -1;
    int cmbOtherHead = -1;
    int cmbIsolate = 1;
    bool chkMakeBreak = false;

    ConvertOptions options() const;

    // Saves the current document's copy to work from; on failure tells the
    // user and gives false: the dialog closes again.
    bool open();

    // The choice still missing, told to the user in a "No List Type" box.
    MissingChoice validate() const;

    // A button's work. Gives the missing choice when the checks failed (the
    // dialog then opens that list) and sets `close` when the dialog goes.
    MissingChoice press(Button button, bool &close);

    // Cancel's work without the checks: the saved copy goes back into the
    // document. Closing the window does this.
    void restore();

    bool applied() const { return m_applied; }
    QString savedDocument() const { return m_savedDocument; }

private:
    void apply();
    void okDocument();
    void convertFiles();

    QString m_savedDocument;
    bool m_applied = false;
    bool m_wasDirty = false;
};

} // namespace qly::texttools
