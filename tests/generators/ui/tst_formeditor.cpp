#include "core/HistoryList.h"
#include "generators/ui/frmFormEditor.h"
#include "support/FakeWorkspace.h"
#include "support/Shots.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QTabWidget>
#include <QtTest>

using namespace qly;
using generators::FormElement;
using generators::ui::frmFormEditor;

// The form editor's list and the element dialogs it opens, on a document
// without a window.
class tst_FormEditor : public QObject
{
    Q_OBJECT
private slots:
    void listEditsAndInsertsTheForm();
    void editingAnElementThroughItsDialog();
};

namespace {

FormElement element(int kind, const QString &caption, const QString &name = {})
{
    FormElement e;
    e.kind = kind;
    e.caption = caption;
    e.sub[0] = name;
    return e;
}

template <class T>
T *child(QWidget *w, const char *name)
{
    T *found = w->findChild<T *>(QString::fromLatin1(name));
    if (!found)
        qFatal("no child %s", name);
    return found;
}

void select(QTreeWidget *list, int row)
{
    list->clearSelection();
    list->setCurrentItem(list->topLevelItem(row));
}

// Answers the next modal dialog with `fill`, then OK.
void answerNextDialog(std::function<void(QWidget *)> fill)
{
    QTimer::singleShot(0, [fill] {
        QWidget *dialog = QApplication::activeModalWidget();
        QVERIFY(dialog);
        fill(dialog);
        child<QPushButton>(dialog, "cmdOK")->click();
    });
}

} // namespace

void tst_FormEditor::listEditsAndInsertsTheForm()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("Untitled-1"), QString());

    frmFormEditor editor;
    editor.addElement(element(FormElement::Submit, QStringLiteral("Go")));
    editor.addElement(element(FormElement::CheckBox, QStringLiteral("Yes"), QStringLiteral("ok")));
    editor.addElement(element(FormElement::Reset, QStringLiteral("Clear")));
    auto *list = child<QTreeWidget>(&editor, "lstControls");
    QCOMPARE(list->topLevelItemCount(), 3);
    QCOMPARE(list->topLevelItem(1)->text(1), QStringLiteral("ok"));
    if (auto *tabs = editor.findChild<QTabWidget *>())
        tabs->setCurrentIndex(tabs->count() - 1);   // the elements
    test::saveShot(&editor, QStringLiteral("form-editor-elements"));

    // The check box moves to the top; the reset button is deleted; the ends do not move.
    select(list, 1);
    child<QPushButton>(&editor, "cmdUp")->click();
    child<QPushButton>(&editor, "cmdUp")->click();
    QCOMPARE(list->currentItem()->text(0), QStringLiteral("Yes"));
    select(list, 2);
    child<QPushButton>(&editor, "cmdDown")->click();
    child<QPushButton>(&editor, "cmdDelete")->click();
    QCOMPARE(list->topLevelItemCount(), 2);

    // An e-mail form: the method and the MIME type do not reach the text.
    child<QRadioButton>(&editor, "radType1")->setChecked(true);
    child<QRadioButton>(&editor, "radMethod0")->setChecked(true);
    child<QComboBox>(&editor, "cmbURL1")->setCurrentText(QStringLiteral("me@example.com"));
    child<QPushButton>(&editor, "cmdOptions0")->click();
    QCOMPARE(editor.Tag(), QStringLiteral("1"));
    QCOMPARE(doc->edit.Text(),
             QStringLiteral("<FORM action=\"mailto:me@example.com\" method=\"POST\">\r\n"
                            "<INPUT TYPE=\"CHECKBOX\" name = \"ok\">Yes <BR>\r\n"
                            "<INPUT TYPE=\"SUBMIT\" VALUE=\"Go\"></FORM>\r\n"));
    QCOMPARE(core::ReadHistory(QStringLiteral("E-Mail Addresses")), QStringList{QStringLiteral("me@example.com")});
}

void tst_FormEditor::editingAnElementThroughItsDialog()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    frmFormEditor editor;
    FormElement hidden = element(FormElement::Hidden, QString(), QStringLiteral("id"));
    hidden.sub[1] = QStringLiteral("7");
    editor.addElement(hidden);
    select(child<QTreeWidget>(&editor, "lstControls"), 0);

    // The hidden field becomes a password: the two ticks exclude each other.
    answerNextDialog([](QWidget *d) {
        QCOMPARE(d->objectName(), QStringLiteral("frmInputField"));
        QVERIFY(child<QCheckBox>(d, "chkHidden")->isChecked());
        child<QCheckBox>(d, "chkPassword")->setChecked(true);
        QVERIFY(!child<QCheckBox>(d, "chkHidden")->isChecked());
        child<QLineEdit>(d, "txtMaxChars")->setText(QStringLiteral("4"));
    });
    child<QPushButton>(&editor, "cmdEdit")->click();
    const FormElement e = editor.model().elements.value(0);
    QCOMPARE(e.kind, int(FormElement::Password));
    QCOMPARE(e.text(), QStringLiteral(" <INPUT TYPE=\"PASSWORD\" name = \"id\" VALUE=\"7\" COLS=\"4\"> <BR>\r\n"));

    // A list box added through its dialog keeps its lines and its "Multiple".
    answerNextDialog([](QWidget *d) {
        child<QLineEdit>(d, "txtCaption")->setText(QStringLiteral("Pick"));
        child<QCheckBox>(d, "chkMultiple")->setChecked(true);
        d->findChild<QPlainTextEdit *>(QStringLiteral("txtListItems"))->setPlainText(QStringLiteral("A\n\nB"));
    });
    child<QPushButton>(&editor, "cmdListBox")->click();
    QCOMPARE(editor.model().elements.value(1).text(),
             QStringLiteral("Pick <SELECT MULTIPLE >\r\n<OPTION>A\r\n<OPTION>B\r\n</SELECT> <BR>\r\n"));
}

QTEST_MAIN(tst_FormEditor)
#include "tst_formeditor.moc"
